#include "text/textlines.h"

#include "geometry/stroking.h"

#include <cmath>

namespace Svg {

namespace {

// Proportions, in thicknesses of the line.
constexpr double dotDistance = 2;
constexpr double dashLength = 3;
constexpr double dashDistance = 5;
constexpr double waveLength = 6;
constexpr double waveHeight = 1.5;
/// Largest distance of the outline of a wave from its curve, in thicknesses.
constexpr double waveAccuracy = 0.0025;
/// Most points of the outline of waves; longer lines are straight.
constexpr int mostWavePoints = 100000;
constexpr double secondLine = 2;

void addBar(QPainterPath *path, double left, double middle, double length, double thickness)
{
    path->addRect(left, middle - thickness / 2, length, thickness);
}

double repetition(LineStyle style)
{
    switch (style) {
    case LineStyle::Dotted:
        return dotDistance;
    case LineStyle::Dashed:
        return dashDistance;
    case LineStyle::Wavy:
        return waveLength;
    case LineStyle::Solid:
    case LineStyle::Double:
        break;
    }
    return 0;
}

// Empty where it has too many points.
QPainterPath strokeArea(const QPainterPath &middle, const QPen &pen)
{
    StrokeOutline stroke;
    QPainterPath area;
    if (!outlineStroke(middle, pen, QTransform(), {waveAccuracy * pen.widthF(), mostWavePoints}, &stroke))
        return area;
    area.setFillRule(Qt::WindingFill);
    int begin = 0;
    for (const int end : stroke.ends) {
        area.moveTo(stroke.points[size_t(begin)]);
        for (int i = begin + 1; i < end; ++i)
            area.lineTo(stroke.points[size_t(i)]);
        area.closeSubpath();
        begin = end;
    }
    return area;
}

// Up and down in halves, as many whole waves as fit.
QPainterPath waves(const LinePiece &piece, int count)
{
    const double length = piece.length / count;
    const double reach = 2 * waveHeight * piece.thickness;
    QPainterPath middle;
    middle.moveTo(0, -piece.height);
    for (int i = 0; i < count; ++i) {
        const double left = i * length;
        middle.cubicTo(left + length / 2, -piece.height - reach, left + length / 2, -piece.height + reach,
                       left + length, -piece.height);
    }
    return strokeArea(middle, QPen(Qt::black, piece.thickness, Qt::SolidLine, Qt::FlatCap));
}

void addRepeated(QPainterPath *path, const LinePiece &piece, int count)
{
    const double step = repetition(piece.style) * piece.thickness;
    for (int i = 0; i < count; ++i) {
        const double left = i * step;
        if (piece.style == LineStyle::Dotted)
            path->addEllipse(QRectF(left, -piece.height - piece.thickness / 2, piece.thickness, piece.thickness));
        else
            addBar(path, left, -piece.height, qMin(dashLength * piece.thickness, piece.length - left),
                   piece.thickness);
    }
}

void addDouble(QPainterPath *path, const LinePiece &piece)
{
    const double apart = secondLine * piece.thickness;
    const double first = -piece.height - (piece.away == 0 ? apart / 2 : 0);
    addBar(path, 0, first, piece.length, piece.thickness);
    addBar(path, 0, first + (piece.away < 0 ? -apart : apart), piece.length, piece.thickness);
}

} // namespace

QPainterPath lineOutline(const LinePiece &piece, int *repetitionsLeft)
{
    QPainterPath path;
    const double step = repetition(piece.style) * piece.thickness;
    const double count = step > 0 ? std::ceil(piece.length / step) : 0;
    const bool repeats = count > 0 && count <= *repetitionsLeft;
    if (repeats)
        *repetitionsLeft -= int(count);
    if (repeats && piece.style == LineStyle::Wavy)
        path = waves(piece, int(count));
    else if (repeats)
        addRepeated(&path, piece, int(count));
    else if (piece.style == LineStyle::Double)
        addDouble(&path, piece);
    if (path.isEmpty())
        addBar(&path, 0, -piece.height, piece.length, piece.thickness);
    return path;
}

} // namespace Svg
