#include "look/surface.h"

#include "look/surfaceoutline.h"
#include "look/theme.h"

#include <QtCore/QMargins>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QWidget>

#include <cmath>

namespace board {

namespace {

/// The shadow lies below its surface by this, logical pixels.
constexpr int shadowShift = 4;
/// Half of the blur: the standard deviation of its bell curve.
constexpr double shadowDeviation = 8;
/// Where the bell curve has come down to less than a shade.
constexpr int shadowReach = 20;

/// Part of the full darkness at a distance from the outline, positive outside.
double shadowAt(double distance)
{
    return std::erfc(distance / (shadowDeviation * std::sqrt(2.0))) / 2;
}

/// From a rounded rectangle around the origin, of which `extent` is half of the side.
double distanceFrom(double x, double y, double extent, double radius)
{
    const double right = std::abs(x) - extent + radius;
    const double below = std::abs(y) - extent + radius;
    const double outside = std::hypot(qMax(right, 0.0), qMax(below, 0.0));
    return outside + qMin(qMax(right, below), 0.0) - radius;
}

/// Shadow of the smallest surface, with one pixel between its corners that is stretched for all others.
QPixmap shadowOf(const QColor &color, int radius, double pixelRatio)
{
    const QString key = QStringLiteral("surfaceShadow %1 %2 %3").arg(color.rgba()).arg(radius).arg(pixelRatio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    const double extent = radius + 0.5;
    const int side = qRound(2 * (extent + shadowReach) * pixelRatio);
    QImage image(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const double across = (x + 0.5 - side / 2.0) / pixelRatio;
            const double down = (y + 0.5 - side / 2.0) / pixelRatio;
            const double part = shadowAt(distanceFrom(across, down, extent, radius));
            image.setPixel(x, y, qRgba(color.red(), color.green(), color.blue(), qRound(color.alpha() * part)));
        }
    picture = QPixmap::fromImage(image);
    QPixmapCache::insert(key, picture);
    return picture;
}

/// Beginning and end of the parts of a line whose ends keep their size, with the line's own end.
QVector<double> cuts(double start, double end, double fixed)
{
    return {start, start + fixed, end - fixed, end};
}

} // namespace

void paintSurface(QPainter *painter, const QWidget &widget)
{
    const ThemeColors colors = themeColors(&widget);
    paintOutlined(painter, widget.rect(), colors.surface, colors.border, edgeWidth());
}

QMargins surfaceShadowMargins()
{
    return {shadowReach, shadowReach - shadowShift, shadowReach, shadowReach + shadowShift};
}

/// Corners as they are, the parts between them stretched.
void paintSurfaceShadow(QPainter *painter, const QRect &rect)
{
    const QColor color = themeColors().shadow;
    if (color.alpha() == 0)
        return;
    const double corner = surfaceRadius() + shadowReach;
    const double ratio = painter->device()->devicePixelRatioF();
    const QPixmap picture = shadowOf(color, surfaceRadius(), ratio);
    const QRectF place = QRectF(rect.marginsAdded(surfaceShadowMargins()));
    const QVector<double> columns = cuts(place.left(), place.right(), corner);
    const QVector<double> rows = cuts(place.top(), place.bottom(), corner);
    const QVector<double> from = cuts(0, picture.width(), corner * ratio);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            painter->drawPixmap(
                QRectF(QPointF(columns[column], rows[row]), QPointF(columns[column + 1], rows[row + 1])), picture,
                QRectF(QPointF(from[column], from[row]), QPointF(from[column + 1], from[row + 1])));
}

} // namespace board
