#include "paint/patternpaint.h"

#include "inputlimits.h"
#include "paint/displaylist.h"
#include "paint/itemmapping.h"
#include "paint/itempainter.h"

#include <QtCore/QtMath>
#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace Svg {

namespace {

/// How far a size in pixels may be off a whole number and still count as one.
constexpr double wholeTolerance = 1e-3;
constexpr int opaque = 255;

int pixelsFor(double length)
{
    const double whole = std::round(length);
    const double wanted = qAbs(length - whole) < wholeTolerance ? whole : std::ceil(length);
    return int(qBound(1.0, wanted, double(Limits::patternSide)));
}

// Pixels of the painter that a tile covers.
QSize tileSize(const QRectF &tile, const QTransform &toPainter)
{
    QSize size(pixelsFor(tile.width() * std::hypot(toPainter.m11(), toPainter.m12())),
               pixelsFor(tile.height() * std::hypot(toPainter.m21(), toPainter.m22())));
    const double pixels = double(size.width()) * size.height();
    if (pixels > Limits::patternPixels) {
        const double shrink = std::sqrt(Limits::patternPixels / pixels);
        size = QSize(pixelsFor(size.width() * shrink), pixelsFor(size.height() * shrink));
    }
    return size;
}

void fade(QImage *picture, double opacity)
{
    QPainter painter(picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(picture->rect(), QColor(0, 0, 0, qRound(opacity * opaque)));
}

QImage paintedTile(const PatternPaint &pattern, const QSize &size, const QTransform &tileToPicture)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QVector<DisplayItem> items = pattern.items;
    mapItems(&items, tileToPicture, QTransform(), &pattern.tiles->mapping);
    QPainter painter(&picture);
    paintItems(&painter, items, &pattern.tiles->budget);
    painter.end();
    if (pattern.opacity < 1)
        fade(&picture, pattern.opacity);
    return picture;
}

// The same tile in many places, and in tiles of other patterns, is painted once.
QImage tilePicture(const PatternPaint &pattern, const QSize &size, const QTransform &tileToPicture)
{
    PatternTiles &tiles = *pattern.tiles;
    const auto key = qMakePair(&pattern, qMakePair(size.width(), size.height()));
    const auto known = tiles.pictures.constFind(key);
    if (known != tiles.pictures.constEnd())
        return *known;
    const double pixels = double(size.width()) * size.height();
    if (pixels > tiles.pixelsLeft || tiles.budget.lacksWork()) {
        tiles.exhausted = true;
        return QImage();
    }
    tiles.pixelsLeft -= pixels;
    const QImage picture = paintedTile(pattern, size, tileToPicture);
    tiles.pictures.insert(key, picture);
    return picture;
}

} // namespace

QBrush patternBrush(const PatternPaint &pattern, const QTransform &transform)
{
    const QSize size = tileSize(pattern.tile, pattern.toTarget * transform);
    const QTransform tileToPicture =
        QTransform::fromTranslate(-pattern.tile.x(), -pattern.tile.y()) *
        QTransform::fromScale(size.width() / pattern.tile.width(), size.height() / pattern.tile.height());
    const QImage picture = tilePicture(pattern, size, tileToPicture);
    if (picture.isNull())
        return Qt::NoBrush;
    QBrush brush(picture);
    brush.setTransform(tileToPicture.inverted() * pattern.toTarget);
    return brush;
}

} // namespace Svg
