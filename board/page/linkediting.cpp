#include "page/linkediting.h"

#include <pagehost/specialproperty.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

namespace board {

namespace {

QTextCharFormat linkFormat(const QString &address)
{
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorHref(address);
    format.setFontUnderline(true);
    return format;
}

QString addressAt(const QTextDocument &document, int position)
{
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.setPosition(position + 1);
    return cursor.charFormat().anchorHref();
}

} // namespace

LabelLinkState linksOf(CBaseObject &object, qint32 label)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::LabelLinks, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 id = 0;
        qint32 links = 0;
        QByteArray value;
        in >> id >> links >> value;
        if (in.status() == QDataStream::Ok && id == label)
            return {links, pagehost::decodedLinks(value)};
    }
    return {};
}

void showLinks(QTextDocument &document, const QVector<pagehost::TextLink> &links)
{
    const int last = document.characterCount() - 1;
    for (const pagehost::TextLink &link : links) {
        if (link.start + link.length > last)
            continue;
        QTextCursor cursor(&document);
        cursor.setPosition(link.start);
        cursor.setPosition(link.start + link.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(linkFormat(link.address));
    }
}

QVector<pagehost::TextLink> linksIn(const QTextDocument &document)
{
    QVector<pagehost::TextLink> links;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QString address = fragment.charFormat().anchorHref();
            if (address.isEmpty())
                continue;
            const bool goesOn = !links.isEmpty() && links.last().address == address &&
                                links.last().start + links.last().length == fragment.position();
            if (goesOn)
                links.last().length += fragment.length();
            else
                links.append({fragment.position(), fragment.length(), address});
        }
    }
    return links;
}

void selectLink(QTextCursor &cursor)
{
    const QVector<pagehost::TextLink> links = linksIn(*cursor.document());
    for (const pagehost::TextLink &link : links) {
        if (cursor.hasSelection() || cursor.position() < link.start || cursor.position() > link.start + link.length)
            continue;
        cursor.setPosition(link.start);
        cursor.setPosition(link.start + link.length, QTextCursor::KeepAnchor);
    }
}

void setLink(QTextCursor cursor, const QString &address)
{
    if (cursor.hasSelection())
        cursor.setCharFormat(address.isEmpty() ? QTextCharFormat() : linkFormat(address));
    else if (!address.isEmpty())
        cursor.insertText(address, linkFormat(address));
}

bool isBehindLink(const QTextCursor &cursor)
{
    const QString address = cursor.charFormat().anchorHref();
    if (cursor.hasSelection() || address.isEmpty())
        return false;
    const bool isAtEnd = cursor.atBlockEnd();
    return isAtEnd || addressAt(*cursor.document(), cursor.position()) != address;
}

} // namespace board
