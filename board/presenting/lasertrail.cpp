#include "presenting/lasertrail.h"

#include "look/motion.h"

#include <algorithm>

namespace board {

void LaserTrail::add(const QPointF &pos, qint64 now)
{
    m_points.append({pos, now});
}

QVector<LaserTrail::Place> LaserTrail::places(qint64 now)
{
    const int duration = timeOf(Motion::LaserTrail);
    const auto isVisible = [=](const Point &point) { return now - point.time < duration; };
    m_points.erase(m_points.begin(), std::find_if(m_points.begin(), m_points.end(), isVisible));
    QVector<Place> places;
    for (const Point &point : qAsConst(m_points))
        places.append({point.pos, 1 - double(now - point.time) / duration});
    return places;
}

} // namespace board
