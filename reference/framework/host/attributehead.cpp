#include <host/attributehead.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>

#include <algorithm>

namespace pagehost {

namespace {

/// Unrelated bytes rarely form printable text.
bool isName(const QString &text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar character) { return character.isPrint(); });
}

std::optional<AttributeHead> readHead(int id, const QByteArray &bytes, bool hasCode)
{
    QDataStream in(bytes);
    AttributeHead head;
    qint32 found = 0;
    in >> found;
    if (hasCode)
        in >> head.code;
    in >> head.nameKey >> head.isEnabled;
    if (in.status() != QDataStream::Ok || found != id || !isName(head.nameKey))
        return {};
    head.value = bytes.mid(int(in.device()->pos()));
    return head;
}

} // namespace

std::optional<AttributeHead> readAttributeHead(int id, const QByteArray &bytes)
{
    return readHead(id, bytes, true);
}

std::optional<AttributeHead> readPlainHead(int id, const QByteArray &bytes)
{
    return readHead(id, bytes, false);
}

QByteArray describedBy(CBaseObject *object, int id)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    return object->GetAttribute(id, out) ? bytes : QByteArray();
}

std::optional<ListChoice> choiceOf(const AttributeHead &head)
{
    QDataStream in(head.value);
    ListChoice choice;
    in >> choice.count >> choice.chosen;
    const bool isList = head.code == ListEditor && in.status() == QDataStream::Ok;
    return isList ? std::optional(choice) : std::nullopt;
}

} // namespace pagehost
