#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

class CBaseObject;

namespace pagehost {

/// The code in a property's description that names its editor and thereby the type of its value.
enum EditorCode : qint32 { ListEditor = 1, ColorEditor = 2, SwitchEditor = 4, TextEditor = 5, RangeEditor = 7 };

/// A property's description without its value, which may be large: entries with pictures, a texture.
struct AttributeHead
{
    qint32 code = 0; ///< an EditorCode, or another number
    QString nameKey;
    bool isEnabled = true;
    QByteArray value; ///< everything after the head
};

/// Empty when the bytes have no code, no printable name or no flag, or describe another property.
std::optional<AttributeHead> readAttributeHead(int id, const QByteArray &bytes);
/// The same for a description without a code, as numbers without a range have it.
std::optional<AttributeHead> readPlainHead(int id, const QByteArray &bytes);
/// The bytes of GetAttribute(); empty when the object lacks the property.
QByteArray describedBy(CBaseObject *object, int id);

/// The value of a list begins with the number of its entries and the index of the chosen one.
struct ListChoice
{
    qint32 count = 0;
    qint32 chosen = 0;
};
/// Empty for a value that is not a list.
std::optional<ListChoice> choiceOf(const AttributeHead &head);

} // namespace pagehost
