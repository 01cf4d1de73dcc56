#include "draw/paintingwork.h"

#include <QtCore/QtMath>

#include <numeric>

namespace Svg {

namespace {

// Measured with Qt's raster engine, which walks along a row of pixels to where an edge crosses it.
constexpr double workPerCrossing = 10;
constexpr double workPerStep = 0.5;
constexpr double workPerElement = 50;
constexpr double workPerStrokedPiece = 1000;
constexpr double workPerPixel = 1;
constexpr double sidesOfStroke = 2;

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

double paintingWork(const DisplayItem &item, const QRect &area, double pixelRatio)
{
    const QRectF visible = item.bounds & QRectF(area);
    const double elements = item.elementCount;
    if (visible.isEmpty())
        return elements * workPerElement;
    // What is seen of an outline may be the densest part of it.
    const double share = std::sqrt(qMin(1.0, visible.height() / item.bounds.height()));
    const double crossings = item.outlineLength * share * pixelRatio;
    const double density = qMin(crossings / qMax(1.0, visible.height() * pixelRatio), visible.width() * pixelRatio);
    return elements * workPerElement + item.strokedPieces * workPerStrokedPiece +
           crossings * (workPerCrossing + density * workPerStep) +
           visible.width() * visible.height() * pixelRatio * pixelRatio * workPerPixel;
}

} // namespace Svg
