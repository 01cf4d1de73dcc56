#include "resolve/pens.h"

#include "grammar/inputlimits.h"

namespace Svg {

namespace {

/// Widths of the pen.
constexpr double shortestDash = 1e-3;

// Painters count dashes in widths of the pen.
void setDashes(QPen &pen, const ComputedStyle &style, double scale)
{
    // Not a copy, which would keep the unused room of the reader's list.
    QVector<qreal> pattern;
    pattern.reserve(style.strokeDasharray.size());
    for (const double dash : style.strokeDasharray)
        pattern.append(dash * (scale / pen.widthF()));
    // A dash without length has caps, which a painter only gives to one that has some.
    if (style.strokeLinecap != Qt::FlatCap)
        for (int i = 0; i < pattern.size(); i += 2)
            pattern[i] = qMax(pattern.at(i), shortestDash);
    pen.setDashPattern(pattern);
    pen.setDashOffset(style.strokeDashoffset * scale / pen.widthF());
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
    else if (!style.strokeDasharray.isEmpty() && stroke.dashScale > 0)
        setDashes(pen, style, stroke.dashScale);
    return pen;
}

} // namespace Svg
