#include <roundedrectangle/roundedrectangle.h>

#include <kit/pathtext.h>
#include <kit/templatetext.h>

#include <svgbase/qzesvgnode.h>

#include <algorithm>

namespace {

/// From the point where the top left corner's arc ends to the control point's centre, which is thus always inside.
constexpr QPointF handleOffset(8, 12);
constexpr double largestRoundness = 0.5;

} // namespace

QString RoundedRectangle::getSVG()
{
    return shapekit::templateText(QStringLiteral(":/gliololok/roundedrectangle/template.svg"));
}

QPointF RoundedRectangle::controlPointCentre(int)
{
    return QPointF(radius(), 0) + handleOffset;
}

void RoundedRectangle::takeControlPoint(int, QPointF centre)
{
    m_roundness = std::clamp((centre.x() - handleOffset.x()) / shorterSide(), 0.0, largestRoundness);
}

QRectF RoundedRectangle::controlPointRange(int)
{
    return QRectF(handleOffset, QSizeF(largestRoundness * shorterSide(), 0));
}

void RoundedRectangle::writeFigure()
{
    const double left = inset();
    const double right = size().width() - left;
    const double bottom = size().height() - left;
    const double bend = std::max(0.0, radius() - left);
    shapekit::PathText path;
    path.moveTo({left + bend, left})
        .lineTo({right - bend, left})
        .quarterCircleTo(bend, {right, left + bend})
        .lineTo({right, bottom - bend})
        .quarterCircleTo(bend, {right - bend, bottom})
        .lineTo({left + bend, bottom})
        .quarterCircleTo(bend, {left, bottom - bend})
        .lineTo({left, left + bend})
        .quarterCircleTo(bend, {left + bend, left})
        .close();
    figure()->setAttribute(QStringLiteral("d"), path.text());
}
