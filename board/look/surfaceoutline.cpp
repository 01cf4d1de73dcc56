#include "look/surfaceoutline.h"

#include "look/sizes.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QRegion>

namespace board {

namespace {

constexpr int usualRadius = 10;
constexpr int largeRadius = 14;

} // namespace

int surfaceRadius()
{
    return areSizesLarge() ? largeRadius : usualRadius;
}

QRegion surfaceRegion(const QRect &rect)
{
    QPainterPath outline;
    outline.addRoundedRect(rect, surfaceRadius(), surfaceRadius());
    return QRegion(outline.toFillPolygon().toPolygon());
}

void paintOutlined(QPainter *painter, const QRect &rect, const QColor &fill, const QColor &border, int edge)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(border, edge));
    painter->setBrush(fill);
    // Half of it inside, so that the border covers whole pixels.
    const double half = edge / 2.0;
    painter->drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), surfaceRadius(), surfaceRadius());
}

} // namespace board
