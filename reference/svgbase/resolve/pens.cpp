#include "resolve/pens.h"

#include "inputlimits.h"

namespace Svg {

namespace {

// A painter counts dashes in widths of the pen.
void setDashes(QPen &pen, const ComputedStyle &style)
{
    QVector<qreal> pattern = style.strokeDasharray;
    for (qreal &dash : pattern)
        dash /= pen.widthF();
    pen.setDashPattern(pattern);
    pen.setDashOffset(style.strokeDashoffset / pen.widthF());
}

bool usesDashesOfStyle(const Stroke &stroke)
{
    return !stroke.lineStyle || *stroke.lineStyle == Qt::CustomDashLine;
}

} // namespace

QPen strokePen(const ComputedStyle &style, const Stroke &stroke)
{
    // Written so that NaN draws nothing.
    const bool hasWidth = stroke.width > 0;
    if (!hasWidth || stroke.paint.style() == Qt::NoBrush || stroke.lineStyle == Qt::NoPen)
        return QPen(Qt::NoPen);
    const double width = qMin(stroke.width, Limits::strokeWidth);
    QPen pen(stroke.paint, width, Qt::SolidLine, style.strokeLinecap, style.strokeLinejoin);
    pen.setMiterLimit(style.strokeMiterlimit);
    if (!usesDashesOfStyle(stroke))
        pen.setStyle(*stroke.lineStyle);
    else if (!style.strokeDasharray.isEmpty())
        setDashes(pen, style);
    return pen;
}

} // namespace Svg
