#pragma once

#include <QtCore/QPointF>
#include <QtGui/QPainterPath>

namespace Svg {

/// A cubic curve.
struct Curve
{
    /// The curve of a path whose element is the first one behind its start.
    static Curve ofElement(const QPainterPath &path, int element);

    QPointF at(double t) const;
    /// Lines of equal shares of `t` that stay within a distance of the curve.
    int lineCount(double distance) const;

    QPointF start;
    QPointF control1;
    QPointF control2;
    QPointF end;
};

} // namespace Svg
