#include "geometry/curve.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Svg {

namespace {

double bend(const QPointF &a, const QPointF &b, const QPointF &c)
{
    return std::hypot(a.x() - 2 * b.x() + c.x(), a.y() - 2 * b.y() + c.y());
}

} // namespace

Curve Curve::ofElement(const QPainterPath &path, int element)
{
    return {path.elementAt(element - 1), path.elementAt(element), path.elementAt(element + 1),
            path.elementAt(element + 2)};
}

QPointF Curve::at(double t) const
{
    const double u = 1 - t;
    return start * (u * u * u) + control1 * (3 * u * u * t) + control2 * (3 * u * t * t) + end * (t * t * t);
}

// A chord strays from its curve by at most an eighth of the second derivative, which for a cubic curve is at most
// six times the larger bend.
int Curve::lineCount(double distance) const
{
    const double largest = qMax(bend(start, control1, control2), bend(control1, control2, end));
    return qMax(1, qCeil(std::sqrt(largest * 6 / 8 / distance)));
}

} // namespace Svg
