#pragma once

#include <QtCore/QPointF>
#include <QtCore/QVector>

namespace board {

/// The places where a laser pointer was within the last second; none while motion is reduced. Times are
/// milliseconds of any clock.
class LaserTrail
{
public:
    struct Place
    {
        QPointF pos;        ///< scene coordinates
        double opacity = 1; ///< from 1 for a new place down to 0
    };

    void add(const QPointF &pos, qint64 now);
    /// Oldest first; forgets those that have faded.
    QVector<Place> places(qint64 now);
    void clear() { m_points.clear(); }

private:
    struct Point
    {
        QPointF pos;
        qint64 time;
    };
    QVector<Point> m_points;
};

} // namespace board
