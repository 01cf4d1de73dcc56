#include <support/exact.h>

#include <QtCore/QRectF>
#include <QtCore/QStringList>

namespace support {

QString exact(double value)
{
    return QString::number(value, 'g', 17);
}

QString exact(const QPointF &point)
{
    return QStringList({exact(point.x()), exact(point.y())}).join(' ');
}

QString exact(const QSizeF &size)
{
    return QStringList({exact(size.width()), exact(size.height())}).join(' ');
}

QString exact(const QRectF &rect)
{
    return QStringList({exact(rect.topLeft()), exact(rect.size())}).join(' ');
}

} // namespace support
