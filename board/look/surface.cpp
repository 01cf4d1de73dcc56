#include "look/surface.h"

#include "look/sizes.h"
#include "look/theme.h"

#include <QtGui/QPainter>

namespace board {

namespace {

constexpr int usualRadius = 10;
constexpr int largeRadius = 14;

} // namespace

void paintSurface(QPainter *painter, const QRect &rect)
{
    const int radius = areSizesLarge() ? largeRadius : usualRadius;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(themeColors().border, edgeWidth()));
    painter->setBrush(themeColors().surface);
    // Half of it inside, so that the border covers whole pixels.
    const double half = edgeWidth() / 2.0;
    painter->drawRoundedRect(QRectF(rect).adjusted(half, half, -half, -half), radius, radius);
}

} // namespace board
