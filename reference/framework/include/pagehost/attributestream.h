#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

#include <optional>

class CBaseObject;

/// Streams by which objects describe their properties (CPSRootObject::GetAttribute()) and take values
/// (SetAttribute()).
namespace pagehost {

/// A property as its object describes it.
struct AttributeDescription
{
    /// How the value is edited; see `value` for its type.
    enum Kind { Choice, Color, Brush, Whole, Real, WholeRange, RealRange, Switch, Text };

    /// An entry of a choice.
    struct Entry
    {
        QString text; ///< localisation key or plain text
        QPixmap icon; ///< null for none
    };
    /// Bounds and step of a number.
    struct Range
    {
        double minimum = 0; ///< smallest value
        double maximum = 0; ///< largest value
        double step = 0;    ///< 0 for any number in between
    };

    Kind kind = Text;      ///< decides the type of the value
    int id = 0;            ///< of the property
    QString nameKey;       ///< localisation key
    bool isEnabled = true; ///< whether the user may change it
    /// The index of the entry (Choice), a QColor (Color, Brush), an int (Whole, WholeRange), a double (Real,
    /// RealRange), a bool (Switch), or text (Text). -1 for a choice of no entry; transparent for a brush without a
    /// colour.
    QVariant value;
    Range range;            ///< of a WholeRange and a RealRange
    QVector<Entry> entries; ///< of a Choice
};

/// Reads a description: property id, editor code (omitted for numbers without a range), name, whether it can be
/// changed, then the data of the code. Empty for bytes that end early or continue, name another property than `id`
/// or have values that no editor can show, and for properties whose bytes only the object understands.
FRAMEWORK_EXPORT std::optional<AttributeDescription> readAttribute(int id, const QByteArray &bytes);
/// Reads the property from an object. Empty for one that it lacks, or whose description can't be read.
FRAMEWORK_EXPORT std::optional<AttributeDescription> attributeOf(CBaseObject *object, int id);
/// Writes the description that readAttribute() reads, for objects that describe their properties.
FRAMEWORK_EXPORT QByteArray writeAttribute(const AttributeDescription &attribute);

/// The stream that sets the property to `value`.
FRAMEWORK_EXPORT QByteArray attributeAnswer(const AttributeDescription &attribute, const QVariant &value);
/// Sets a property of an object from such a stream. `record`: with an undo step and a playback record. False when
/// the object rejects it.
FRAMEWORK_EXPORT bool giveAttribute(CBaseObject *object, int id, const QByteArray &answer, bool record);

} // namespace pagehost
