#include "geometry/dashing.h"

#include <cmath>
#include <numeric>

namespace Svg {

namespace {

/// Goes along a line, dash by dash.
class DashWalk
{
public:
    DashWalk(const std::vector<double> &lengths, const std::function<bool(const Polyline &)> &visit)
        : m_lengths(lengths)
        , m_visit(visit)
        , m_left(lengths.front())
    {
    }

    /// Goes to a place in the pattern.
    void skip(double offset);
    bool run(const Polyline &line);

private:
    bool isDash() const { return m_index % 2 == 0; }
    void next();
    bool cut(const Polyline::Point &from, double at);
    bool finish();
    bool walk(const Polyline::Point &from, const Polyline::Point &to);

    const std::vector<double> &m_lengths;
    const std::function<bool(const Polyline &)> &m_visit;
    size_t m_index = 0;
    /// Rest of the present dash or gap.
    double m_left;
    Polyline m_dash;
    /// Place in the present piece behind which the dash goes on.
    double m_begun = 0;
};

void DashWalk::next()
{
    m_index = (m_index + 1) % m_lengths.size();
    m_left = m_lengths[m_index];
}

void DashWalk::skip(double offset)
{
    while (offset >= m_left) {
        offset -= m_left;
        next();
    }
    m_left -= offset;
}

bool DashWalk::finish()
{
    const bool goesOn = m_dash.points.size() < 2 || m_visit(m_dash);
    m_dash.clear();
    return goesOn;
}

// Ends a dash, or begins one, within the piece behind a point.
bool DashWalk::cut(const Polyline::Point &from, double at)
{
    const QPointF place = from.place + from.direction * at;
    const Polyline::Point point{place, from.direction, from.direction, {}, 0, false};
    if (!isDash()) {
        m_dash.extend(point, from.direction, at - m_begun);
        return finish();
    }
    m_dash.clear();
    m_dash.points.push_back(point);
    m_begun = at;
    return true;
}

bool DashWalk::walk(const Polyline::Point &from, const Polyline::Point &to)
{
    double at = 0;
    m_begun = 0;
    while (m_left < from.length - at) {
        at += m_left;
        next();
        if (!cut(from, at))
            return false;
    }
    m_left -= from.length - at;
    if (isDash())
        m_dash.extend(to, from.direction, from.length - m_begun);
    return true;
}

bool DashWalk::run(const Polyline &line)
{
    if (isDash())
        m_dash.points.push_back(line.points.front());
    const size_t count = line.points.size();
    for (int i = 0; i < line.pieceCount(); ++i)
        if (!walk(line.points[size_t(i)], line.points[(size_t(i) + 1) % count]))
            return false;
    return finish();
}

double lengthOf(const Polyline &line)
{
    double length = 0;
    for (int i = 0; i < line.pieceCount(); ++i)
        length += line.points[size_t(i)].length;
    return length;
}

} // namespace

Dashes::Dashes(const QPen &pen)
{
    if (pen.style() == Qt::SolidLine)
        return;
    const QVector<qreal> pattern = pen.dashPattern();
    for (const qreal length : pattern)
        m_lengths.push_back(qMax(0.0, length) * pen.widthF());
    m_period = std::accumulate(m_lengths.begin(), m_lengths.end(), 0.0);
    m_offset = pen.dashOffset() * pen.widthF();
    m_offset -= std::floor(m_offset / m_period) * m_period;
}

bool Dashes::visit(const Polyline &line, const std::function<bool(const Polyline &)> &visit) const
{
    if (line.isClosed && m_offset + lengthOf(line) <= m_lengths.front())
        return visit(line);
    DashWalk walk(m_lengths, visit);
    walk.skip(m_offset);
    return walk.run(line);
}

} // namespace Svg
