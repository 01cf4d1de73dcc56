#include "page/links.h"

#include <pagehost/specialproperty.h>
#include <pagehost/textlinks.h>

#include <framework/cbaseobject.h>

#include <QtCore/QDataStream>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

namespace board {

QString linkAddress(const QString &typed)
{
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:(?![0-9])"));
    QString address = typed.trimmed();
    if (address.isEmpty())
        return {};
    if (!scheme.match(address).hasMatch()) {
        const bool isMail = address.contains(QLatin1Char('@')) && !address.contains(QLatin1Char('/'));
        address.prepend(isMail ? QStringLiteral("mailto:") : QStringLiteral("https://"));
    }
    return pagehost::isLinkAddress(address) ? address : QString();
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
