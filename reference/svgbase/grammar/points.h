#pragma once

#include <QtCore/QStringView>
#include <QtGui/QPolygonF>

namespace Svg {

/// The "points" of a polygon or polyline (SVG 1.1 §9.7).
struct Points
{
    /// Every pair before the first error, user units.
    QPolygonF points;
    bool complete = true;
    /// Whether the limit truncated the list.
    bool tooLong = false;
};

Points parsePoints(QStringView text);
/// The same of coordinates without a text.
Points pointsOf(const QVector<double> &coordinates);

} // namespace Svg
