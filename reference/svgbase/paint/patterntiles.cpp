#include "paint/patterntiles.h"

#include "grammar/inputlimits.h"
#include "grammar/viewboxes.h"
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

} // namespace

QImage PatternTiles::painted(const Pattern &pattern, const QSize &size, const QTransform &tileToPicture)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    MappedItems items = unmapped(pattern.items);
    mapItems(&items, {tileToPicture, QTransform()}, &m_mapping, this);
    QPainter painter(&picture);
    paintItems(&painter, items, &m_budget);
    painter.end();
    if (pattern.opacity < 1)
        fade(&picture, pattern.opacity);
    return picture;
}

QImage PatternTiles::picture(const Pattern &pattern, const QSize &size, const QTransform &tileToPicture)
{
    const auto key = qMakePair(&pattern, qMakePair(size.width(), size.height()));
    const auto known = m_pictures.constFind(key);
    if (known != m_pictures.constEnd())
        return *known;
    const double pixels = double(size.width()) * size.height();
    if (pixels > m_pixelsLeft || m_budget.lacksWork()) {
        m_exhausted = true;
        return QImage();
    }
    m_pixelsLeft -= pixels;
    QImage made = painted(pattern, size, tileToPicture);
    m_pictures.insert(key, made);
    return made;
}

QBrush PatternTiles::brush(const Pattern &pattern, const QTransform &transform)
{
    const QSize size = tileSize(pattern.tile, pattern.toTarget * transform);
    const QTransform tileToPicture = boxMapping(pattern.tile, QRectF(QPointF(), size));
    const QImage tile = picture(pattern, size, tileToPicture);
    if (tile.isNull())
        return Qt::NoBrush;
    QBrush brush(tile);
    brush.setTransform(tileToPicture.inverted() * pattern.toTarget);
    return brush;
}

} // namespace Svg
