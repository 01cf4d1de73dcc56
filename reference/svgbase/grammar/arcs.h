#pragma once

#include <QtCore/QPointF>

class QPainterPath;

namespace Svg {

/// An elliptical arc in the end point parameterisation of path data (SVG 1.1 §8.3.8).
struct Arc
{
    QPointF from;
    QPointF to;
    double rx = 0;
    double ry = 0;
    /// Rotation of the ellipse's x axis, degrees.
    double rotation = 0;
    bool large = false;
    bool sweep = false;
};

/// Appends the arc as cubic curves; radii that are too small are scaled up (SVG 1.1 §F.6). A radius of 0 gives a
/// straight line, equal end points give nothing.
void appendArc(QPainterPath &path, const Arc &arc);

} // namespace Svg
