#include "paint/paintingwork.h"

#include <QtCore/QtMath>

#include <numeric>

namespace Svg {

namespace {

// Measured. Qt's raster engine walks along a row of pixels to where an edge crosses it.
constexpr double workPerCrossing = 10;
constexpr double workPerStep = 4;
constexpr double workPerElement = 50;
constexpr double workPerStrokedPiece = 1000;
constexpr double workPerOpaquePixel = 1;
constexpr double workPerFadedPixel = 2;
constexpr double workPerGradientPixel = 3;
constexpr double workPerTilePixel = 2;
constexpr double workPerScaledPixel = 8;
constexpr double sidesOfStroke = 2;
constexpr int opaque = 255;

double lengthOf(const QPainterPath &path)
{
    double length = 0;
    for (int i = 1; i < path.elementCount(); ++i) {
        const QPainterPath::Element a = path.elementAt(i - 1);
        const QPainterPath::Element b = path.elementAt(i);
        if (!b.isMoveTo())
            length += qAbs(b.x - a.x) + qAbs(b.y - a.y);
    }
    return length;
}

double workPerPixel(const QBrush &brush, double opacity)
{
    switch (brush.style()) {
    case Qt::NoBrush:
        return 0;
    case Qt::SolidPattern:
        return brush.color().alpha() == opaque && opacity >= 1 ? workPerOpaquePixel : workPerFadedPixel;
    case Qt::TexturePattern:
        return brush.transform().type() > QTransform::TxTranslate ? workPerScaledPixel : workPerTilePixel;
    default:
        return workPerGradientPixel;
    }
}

// For this number of visible pixels of the item.
double strokedPixels(const MappedShape &shape, double seen, double pixelRatio)
{
    if (!shape.strokePath.isEmpty())
        return seen;
    const bool stroked = shape.pen.style() != Qt::NoPen;
    return stroked ? qMin(seen, shape.outlineLength * shape.pen.widthF() * pixelRatio * pixelRatio) : 0;
}

} // namespace

double strokedPieces(const MappedShape &shape)
{
    if (shape.pen.style() == Qt::NoPen)
        return 0;
    const double elements = shape.path.elementCount();
    if (shape.pen.style() == Qt::SolidLine)
        return elements;
    const QVector<qreal> pattern = shape.pen.dashPattern();
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0) * shape.pen.widthF();
    return elements + (period > 0 ? lengthOf(shape.path) / period * pattern.size() : 0);
}

double paintedLength(const MappedShape &shape)
{
    const double outline = lengthOf(shape.path);
    const bool stroked = shape.pen.style() != Qt::NoPen;
    const double filled = shape.fill.style() != Qt::NoBrush ? outline : 0;
    if (!stroked)
        return filled + lengthOf(shape.strokePath);
    const bool round = shape.pen.joinStyle() == Qt::RoundJoin || shape.pen.capStyle() == Qt::RoundCap;
    const double ends = strokedPieces(shape) * shape.pen.widthF() * (round ? M_PI : sidesOfStroke);
    return filled + sidesOfStroke * outline + ends;
}

PaintingWork paintingWork(const MappedItem &item, const QRect &area, double pixelRatio)
{
    const auto &shape = std::get<MappedShape>(item.content);
    const QRectF visible = item.bounds & QRectF(area);
    PaintingWork work;
    work.elements = shape.elementCount * workPerElement;
    if (visible.isEmpty())
        return work;
    work.elements += shape.strokedPieces * workPerStrokedPiece;
    // The visible part of an outline may be the densest part of it.
    const double share = std::sqrt(qMin(1.0, visible.height() / item.bounds.height()));
    const double crossings = shape.outlineLength * share * pixelRatio;
    const double density = qMin(crossings / qMax(1.0, visible.height() * pixelRatio), visible.width() * pixelRatio);
    const double pixels = visible.width() * visible.height() * pixelRatio * pixelRatio;
    const double opacity = item.item.opacity;
    work.pixels = crossings * workPerCrossing + pixels * workPerPixel(shape.fill, opacity) +
                  strokedPixels(shape, pixels, pixelRatio) * workPerPixel(shape.pen.brush(), opacity);
    work.crowding = crossings * density * workPerStep;
    return work;
}

double imageWork(const QRectF &bounds, const QRect &area, double pixelRatio)
{
    const QRectF visible = bounds & QRectF(area);
    return visible.width() * visible.height() * pixelRatio * pixelRatio * workPerScaledPixel;
}

} // namespace Svg
