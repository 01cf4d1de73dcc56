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

// Of so many pixels that are seen of the item.
double strokedPixels(const DisplayItem &item, double seen, double pixelRatio)
{
    if (!item.strokePath.isEmpty())
        return seen;
    const bool stroked = item.pen.style() != Qt::NoPen;
    return stroked ? qMin(seen, item.outlineLength * item.pen.widthF() * pixelRatio * pixelRatio) : 0;
}

} // namespace

double strokedPieces(const DisplayItem &item)
{
    if (item.pen.style() == Qt::NoPen)
        return 0;
    const double elements = item.path.elementCount();
    if (item.pen.style() == Qt::SolidLine)
        return elements;
    const QVector<qreal> pattern = item.pen.dashPattern();
    const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0) * item.pen.widthF();
    return elements + (period > 0 ? lengthOf(item.path) / period * pattern.size() : 0);
}

double paintedLength(const DisplayItem &item)
{
    const double outline = lengthOf(item.path);
    const bool stroked = item.pen.style() != Qt::NoPen;
    const double filled = item.fill.style() != Qt::NoBrush ? outline : 0;
    if (!stroked)
        return filled + lengthOf(item.strokePath);
    const bool round = item.pen.joinStyle() == Qt::RoundJoin || item.pen.capStyle() == Qt::RoundCap;
    const double ends = strokedPieces(item) * item.pen.widthF() * (round ? M_PI : sidesOfStroke);
    return filled + sidesOfStroke * outline + ends;
}

PaintingWork paintingWork(const DisplayItem &item, const QRect &area, double pixelRatio)
{
    const QRectF visible = item.bounds & QRectF(area);
    PaintingWork work;
    work.elements = item.elementCount * workPerElement;
    if (visible.isEmpty())
        return work;
    work.elements += item.strokedPieces * workPerStrokedPiece;
    // What is seen of an outline may be the densest part of it.
    const double share = std::sqrt(qMin(1.0, visible.height() / item.bounds.height()));
    const double crossings = item.outlineLength * share * pixelRatio;
    const double density = qMin(crossings / qMax(1.0, visible.height() * pixelRatio), visible.width() * pixelRatio);
    const double pixels = visible.width() * visible.height() * pixelRatio * pixelRatio;
    work.pixels = crossings * workPerCrossing + pixels * workPerPixel(item.fill, item.opacity) +
                  strokedPixels(item, pixels, pixelRatio) * workPerPixel(item.pen.brush(), item.opacity);
    work.crowding = crossings * density * workPerStep;
    return work;
}

double imageWork(const DisplayItem &item, const QRect &area, double pixelRatio)
{
    const QRectF visible = item.bounds & QRectF(area);
    return visible.width() * visible.height() * pixelRatio * pixelRatio * workPerScaledPixel;
}

} // namespace Svg
