#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

class CBaseObject;

namespace pagehost {

/// The code in a description of a property that names the editor, and so what the value is.
enum EditorCode : qint32 { ListEditor = 1, ColorEditor = 2, SwitchEditor = 4, TextEditor = 5, RangeEditor = 7 };

/// The description of a property with its value unread, which may be large: entries with pictures, a texture.
struct AttributeHead
{
    qint32 code = 0; ///< an EditorCode, or another number
    QString nameKey;
    bool isEnabled = true;
    QByteArray value; ///< everything behind the head
};

/// Nothing when there is no code, no printable name or no flag in the bytes, or another property's id.
std::optional<AttributeHead> readAttributeHead(int id, const QByteArray &bytes);
/// The same without a code, as numbers without a range have it.
std::optional<AttributeHead> readPlainHead(int id, const QByteArray &bytes);
/// The bytes of GetAttribute(); empty when the object does not have the property.
QByteArray describedBy(CBaseObject *object, int id);

/// The value of a list begins with the number of its entries and the number of the chosen one.
struct ListChoice
{
    qint32 count = 0;
    qint32 chosen = 0;
};
/// Nothing for a value that is no list.
std::optional<ListChoice> choiceOf(const AttributeHead &head);

} // namespace pagehost
