#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

#include <optional>

class CBaseObject;

/// The streams in which objects describe their properties (CPSRootObject::GetAttribute()) and take values
/// (SetAttribute()).
namespace pagehost {

/// One property as an object describes it.
struct AttributeDescription
{
    enum Kind { Choice, Color, Brush, Whole, Real, WholeRange, RealRange, Switch, Text };

    struct Entry
    {
        QString text; ///< localisation key or plain text
        QPixmap icon; ///< null for none
    };
    struct Range
    {
        double minimum = 0;
        double maximum = 0;
        double step = 0; ///< 0 for any number between the two
    };

    Kind kind = Text;
    int id = 0;
    QString nameKey; ///< localisation key
    bool isEnabled = true;
    /// The number of the entry (Choice), a QColor (Color, Brush), an int (Whole, WholeRange), a double (Real,
    /// RealRange), a bool (Switch), or text (Text). -1 for a choice of none of the entries; transparent for a brush
    /// that has no colour.
    QVariant value;
    Range range;            ///< of a WholeRange and a RealRange
    QVector<Entry> entries; ///< of a Choice
};

/// Reads a description: property id, the code of the editor (left out for numbers without a range), name, whether
/// it can be changed, then what belongs to the code. Nothing for bytes that end early, go on, name another property
/// than `id` or hold values that no editor can show, and for properties that are bytes only the object understands.
FRAMEWORK_EXPORT std::optional<AttributeDescription> readAttribute(int id, const QByteArray &bytes);
/// Asks the object. Nothing for a property that it does not have, and for descriptions that can't be read.
FRAMEWORK_EXPORT std::optional<AttributeDescription> attributeOf(CBaseObject *object, int id);
/// The description that readAttribute() reads, for objects that describe their properties.
FRAMEWORK_EXPORT QByteArray writeAttribute(const AttributeDescription &attribute);

/// The stream that sets the property to `value`.
FRAMEWORK_EXPORT QByteArray attributeAnswer(const AttributeDescription &attribute, const QVariant &value);
/// Has the object take such a stream. `record` asks for an undo step and a playback record. False when the object
/// did not take it.
FRAMEWORK_EXPORT bool giveAttribute(CBaseObject *object, int id, const QByteArray &answer, bool record);

} // namespace pagehost
