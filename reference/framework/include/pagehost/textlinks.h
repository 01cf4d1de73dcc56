#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtCore/QVector>

namespace pagehost {

/// Letters of a text that lead to an address, UTF-16 units.
struct TextLink
{
    int start = 0;   ///< of the first letter
    int length = 0;  ///< number of letters
    QString address; ///< as the user has written it

    /// Equal in all three.
    bool operator==(const TextLink &other) const
    {
        return start == other.start && length == other.length && address == other.address;
    }
};

/// Further links, and longer addresses, are left out.
constexpr int mostLinks = 500;
/// Longer addresses are left out, UTF-16 units.
constexpr int longestAddress = 2000;

/// The links as LabelLinks has them.
inline QByteArray encodedLinks(const QVector<TextLink> &links)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (const TextLink &link : links)
        out << qint32(link.start) << qint32(link.length) << link.address;
    return bytes;
}

/// In the order of the text, without overlaps; none for damaged data.
inline QVector<TextLink> decodedLinks(const QByteArray &bytes)
{
    QVector<TextLink> links;
    QDataStream in(bytes);
    int end = 0;
    while (!in.atEnd() && links.size() < mostLinks) {
        qint32 start = 0;
        qint32 length = 0;
        QString address;
        in >> start >> length >> address;
        if (in.status() != QDataStream::Ok || start < end || length <= 0 || length > (1 << 24) || start > (1 << 24))
            return {};
        end = start + length;
        if (address.size() <= longestAddress)
            links.append({start, length, address});
    }
    return links;
}

/// Whether an address leads into the web or to a mail box: one with http, https or mailto. Files and programs of
/// this computer are nobody's to open from a page.
inline bool isLinkAddress(const QString &address)
{
    if (address.size() > longestAddress)
        return false;
    const QUrl url(address, QUrl::StrictMode);
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("mailto"))
        return url.isValid() && !url.path().isEmpty();
    return url.isValid() && (scheme == QLatin1String("http") || scheme == QLatin1String("https")) &&
           !url.host().isEmpty();
}

} // namespace pagehost
