#pragma once

#include "panels/editors/numbereditor.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

namespace board {

/// One control of a settings panel, as an object describes it (CPSRootObject::GetSettingJson()).
struct SettingControl
{
    enum Kind { Choice, Color, Text, Font, Number, Switch, Slider, Command };

    Kind kind = Command;
    QString id;       ///< never empty
    QString titleKey; ///< localisation key
    /// The number of the entry (Choice; -1 for none), a QColor (Color), text (Text), the name of a family or an
    /// empty text for the usual one (Font), a double (Number, Slider), a bool (Switch), or the command (Command).
    QVariant value;
    QStringList icons; ///< paths of a choice's pictures; as many as `texts`, or one of both is empty
    QStringList texts; ///< localisation keys of a choice's entries
    QString section;   ///< of the panel: "text" for those of letters; empty for all others
    QString role;      ///< of letters: what it sets, such as "bold"; may be empty
    NumberRange range; ///< of numbers
    /// Localisation key of what is wrong with the present value; empty for nothing. Its "%1" and so on stand for
    /// the arguments.
    QString messageKey;
    QStringList messageArguments;
    QString unit;

    int entryCount() const { return qMax(icons.size(), texts.size()); }
};

/// The controls of a panel in their order, at most 1000. Controls that make no sense (no id, an unknown kind, a
/// colour that is none, bounds that are no numbers) are passed over; text that is no settings panel gives none.
QVector<SettingControl> parseSettings(const QString &json);

/// A text with its "%1", "%2" and so on replaced, each once.
QString filledIn(const QString &text, const QStringList &arguments);

/// The answer of a panel for SetSettingJson() after the user has chosen `value` for a control.
QString settingAnswer(const SettingControl &control, const QVariant &value);

} // namespace board
