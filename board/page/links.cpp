#include "page/links.h"

#include <pagehost/textlinks.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

namespace board {

namespace {

/// Files and programs of this computer are nobody's to open from a board.
const QStringList allowedSchemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto")};

} // namespace

QString linkAddress(const QString &typed)
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:(?![0-9])"));
    QString address = typed.trimmed();
    if (address.isEmpty() || address.size() > pagehost::longestAddress)
        return {};
    if (!scheme.match(address).hasMatch()) {
        const bool isMail = address.contains(QLatin1Char('@')) && !address.contains(QLatin1Char('/'));
        address.prepend(isMail ? QStringLiteral("mailto:") : QStringLiteral("https://"));
    }
    const QUrl url(address, QUrl::StrictMode);
    const bool isMail = url.scheme() == QLatin1String("mailto");
    const bool leadsSomewhere = isMail ? !url.path().isEmpty() : !url.host().isEmpty();
    return url.isValid() && leadsSomewhere && allowedSchemes.contains(url.scheme()) ? address : QString();
}

bool openLink(const QString &address)
{
    const QString checked = linkAddress(address);
    return !checked.isEmpty() && QDesktopServices::openUrl(QUrl(checked));
}

QString linkAt(CBaseObject &object, const QPointF &scenePos)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::LinkAreas, out))
        return {};
    const QPointF place = object.mapFromScene(scenePos);
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QRectF box;
        QString address;
        in >> box >> address;
        if (in.status() == QDataStream::Ok && box.contains(place))
            return address;
    }
    return {};
}

} // namespace board
