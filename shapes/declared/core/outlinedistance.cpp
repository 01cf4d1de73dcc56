#include <declared/core/outlinedistance.h>

#include <QtCore/QLineF>
#include <QtCore/QVector>
#include <QtCore/QtNumeric>
#include <QtGui/QPolygonF>

#include <algorithm>
#include <limits>

namespace declared {

namespace {

/// Of each outline; more would make a review of large drawings slow.
constexpr int samples = 200;
constexpr int mostSegments = 2000;

QVector<QLineF> segmentsOf(const QPainterPath &path)
{
    QVector<QLineF> segments;
    const QList<QPolygonF> polygons = path.toSubpathPolygons();
    for (const QPolygonF &polygon : polygons)
        for (int i = 1; i < polygon.size() && segments.size() < mostSegments; ++i)
            segments.append({polygon.at(i - 1), polygon.at(i)});
    return segments;
}

double distanceTo(const QLineF &segment, QPointF point)
{
    const QPointF way = segment.p2() - segment.p1();
    const double square = QPointF::dotProduct(way, way);
    const double along =
        square > 0 ? std::clamp(QPointF::dotProduct(point - segment.p1(), way) / square, 0.0, 1.0) : 0;
    return QLineF(point, segment.p1() + way * along).length();
}

double farthestFrom(const QVector<QLineF> &segments, const QVector<QLineF> &other)
{
    double farthest = 0;
    const int every = std::max(1, segments.size() / samples);
    for (int i = 0; i < segments.size(); i += every) {
        for (const QPointF point : {segments.at(i).p1(), segments.at(i).center(), segments.at(i).p2()}) {
            double nearest = std::numeric_limits<double>::infinity();
            for (const QLineF &segment : other)
                nearest = std::min(nearest, distanceTo(segment, point));
            farthest = std::max(farthest, nearest);
        }
    }
    return farthest;
}

} // namespace

double outlineDistance(const QPainterPath &a, const QPainterPath &b)
{
    const QVector<QLineF> ofA = segmentsOf(a);
    const QVector<QLineF> ofB = segmentsOf(b);
    if (ofA.isEmpty() || ofB.isEmpty())
        return ofA.isEmpty() && ofB.isEmpty() ? 0 : std::numeric_limits<double>::infinity();
    return std::max(farthestFrom(ofA, ofB), farthestFrom(ofB, ofA));
}

} // namespace declared
