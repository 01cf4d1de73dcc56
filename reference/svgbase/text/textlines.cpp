#include "text/textlines.h"

#include <QtGui/QPainterPathStroker>

#include <cmath>

namespace Svg {

namespace {

// Proportions, in thicknesses of the line.
constexpr double dotDistance = 2;
constexpr double dashLength = 3;
constexpr double dashDistance = 5;
constexpr double waveLength = 6;
constexpr double waveHeight = 1.5;
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
    QPainterPathStroker stroker;
    stroker.setWidth(piece.thickness);
    stroker.setCapStyle(Qt::FlatCap);
    return stroker.createStroke(middle);
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
        return waves(piece, int(count));
    if (repeats)
        addRepeated(&path, piece, int(count));
    else if (piece.style == LineStyle::Double)
        addDouble(&path, piece);
    else
        addBar(&path, 0, -piece.height, piece.length, piece.thickness);
    return path;
}

} // namespace Svg
