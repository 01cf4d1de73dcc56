#pragma once

#include "panels/editors/numbereditor.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

#include <optional>

namespace board {

/// One property as an object describes it (CPSRootObject::GetAttribute()).
struct PropertyDescription
{
    enum Kind { Choice, Color, Brush, Whole, Real, WholeRange, RealRange, Switch, Text };

    struct Entry
    {
        QString text; ///< localisation key or plain text
        QPixmap icon; ///< null for none
    };

    Kind kind = Text;
    int id = 0;
    QString nameKey; ///< localisation key
    bool isEnabled = true;
    /// The number of the entry (Choice), a QColor (Color, Brush), an int (Whole, WholeRange), a double (Real,
    /// RealRange), a bool (Switch), or text (Text).
    QVariant value;
    NumberRange range; ///< of a WholeRange and a RealRange
    QVector<Entry> entries;
};

/// Reads a description: property id, the code of the editor (left out for numbers without a range), name, whether
/// it can be changed, then what belongs to the code. Nothing for bytes that end early, go on, name another property
/// than `id` or hold values that no editor can show, and for properties that are bytes only the object understands.
std::optional<PropertyDescription> parseAttribute(int id, const QByteArray &bytes);

/// The stream that sets the property to `value` (CPSRootObject::SetAttribute()).
QByteArray attributeAnswer(const PropertyDescription &property, const QVariant &value);

} // namespace board
