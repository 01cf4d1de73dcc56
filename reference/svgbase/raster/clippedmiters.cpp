#include "raster/clippedmiters.h"

#include <QtCore/QLineF>
#include <QtCore/QVector>
#include <QtGui/QPolygonF>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Svg {

namespace {

/// A line or a curve of an outline, with its directions at both ends.
struct Segment
{
    QPointF start;
    QPointF end;
    QPointF departure;
    QPointF arrival;
    double length = 0;
};

double dot(const QPointF &a, const QPointF &b)
{
    return QPointF::dotProduct(a, b);
}

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

QPointF unit(const QPointF &way)
{
    const double length = std::hypot(way.x(), way.y());
    return length > 0 ? way / length : QPointF();
}

// Control points that coincide with an end don't define the direction there.
QPointF firstWay(std::initializer_list<QPointF> points)
{
    for (const QPointF &point : points)
        if (point != *points.begin())
            return unit(point - *points.begin());
    return QPointF();
}

/// Joins of the subpaths in order.
class MiterClipper
{
public:
    explicit MiterClipper(const QPen &pen);
    QPainterPath clipped(const QPainterPath &path);

private:
    void addLine(const QPointF &to);
    void addCurve(const QPointF &c1, const QPointF &c2, const QPointF &to);
    void add(const Segment &segment);
    void finish();
    bool isInDash(double place) const;
    void addJoin(const Segment &before, const Segment &after);

    double m_halfWidth;
    double m_limit;
    /// User units; empty for a solid line.
    QVector<qreal> m_dashes;
    double m_offset;
    QPointF m_at;
    QVector<Segment> m_segments;
    QPainterPath m_result;
};

MiterClipper::MiterClipper(const QPen &pen)
    : m_halfWidth(pen.widthF() / 2)
    , m_limit(pen.miterLimit())
    , m_offset(pen.dashOffset() * pen.widthF())
{
    if (pen.style() == Qt::SolidLine)
        return;
    m_dashes = pen.dashPattern();
    for (qreal &dash : m_dashes)
        dash *= pen.widthF();
}

void MiterClipper::add(const Segment &segment)
{
    if (segment.start != segment.end || !segment.departure.isNull())
        m_segments.append(segment);
    m_at = segment.end;
}

void MiterClipper::addLine(const QPointF &to)
{
    const QPointF way = unit(to - m_at);
    add({m_at, to, way, way, QLineF(m_at, to).length()});
}

void MiterClipper::addCurve(const QPointF &c1, const QPointF &c2, const QPointF &to)
{
    Segment segment{m_at, to, firstWay({m_at, c1, c2, to}), -firstWay({to, c2, c1, m_at}), 0};
    if (!m_dashes.isEmpty()) {
        QPainterPath curve(m_at);
        curve.cubicTo(c1, c2, to);
        segment.length = curve.length();
    }
    add(segment);
}

// A corner between dashes is invisible.
bool MiterClipper::isInDash(double place) const
{
    const double period = std::accumulate(m_dashes.begin(), m_dashes.end(), 0.0);
    if (m_dashes.isEmpty() || !(period > 0))
        return true;
    double rest = std::fmod(place + m_offset, period);
    rest = rest < 0 ? rest + period : rest;
    for (int i = 0; i < m_dashes.size(); ++i) {
        if (rest < m_dashes.at(i))
            return i % 2 == 0;
        rest -= m_dashes.at(i);
    }
    return false;
}

void MiterClipper::addJoin(const Segment &before, const Segment &after)
{
    const QPointF in = before.arrival;
    const QPointF out = after.departure;
    const double side = cross(in, out) > 0 ? -1 : 1;
    const QPointF first = QPointF(-in.y(), in.x()) * side * m_halfWidth;
    const QPointF second = QPointF(-out.y(), out.x()) * side * m_halfWidth;
    // Between lines that turn back, the outgoing direction is the incoming one.
    const QPointF middle = dot(in, out) > -1 + 1e-12 ? unit(first + second) : in;
    const double halfSine = dot(first, middle) / m_halfWidth;
    const double forward = dot(in, middle);
    if (halfSine * m_limit >= 1 || !(forward > 0))
        return;
    const double rise = (m_limit - halfSine) * m_halfWidth / forward;
    const QPointF corner = before.end;
    QVector<QPointF> piece{corner, corner + first, corner + first + in * rise, corner + second - out * rise,
                           corner + second};
    if (side > 0)
        std::reverse(piece.begin(), piece.end());
    m_result.addPolygon(QPolygonF(piece));
    m_result.closeSubpath();
}

void MiterClipper::finish()
{
    double place = 0;
    for (int i = 1; i < m_segments.size(); ++i) {
        place += m_segments.at(i - 1).length;
        if (isInDash(place))
            addJoin(m_segments.at(i - 1), m_segments.at(i));
    }
    const bool closed = m_segments.size() > 1 && m_segments.constFirst().start == m_segments.constLast().end;
    if (closed && m_dashes.isEmpty())
        addJoin(m_segments.constLast(), m_segments.constFirst());
    m_segments.clear();
}

QPainterPath MiterClipper::clipped(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.isMoveTo()) {
            finish();
            m_at = element;
        } else if (element.isLineTo()) {
            addLine(element);
        } else if (element.isCurveTo() && i + 2 < path.elementCount()) {
            addCurve(element, path.elementAt(i + 1), path.elementAt(i + 2));
            i += 2;
        }
    }
    finish();
    m_result.setFillRule(Qt::WindingFill);
    return m_result;
}

} // namespace

QPainterPath clippedMiters(const QPainterPath &path, const QPen &pen)
{
    return pen.joinStyle() == Qt::MiterJoin && pen.widthF() > 0 ? MiterClipper(pen).clipped(path) : QPainterPath();
}

} // namespace Svg
