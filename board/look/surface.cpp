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
    painter->setPen(themeColors().border);
    painter->setBrush(themeColors().surface);
    // Half a pixel inside, so that the border covers whole pixels.
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace board
