#include <shapekit/functiongraph.h>

#include <algorithm>
#include <cmath>

namespace shapekit {

namespace {

constexpr int intervals = 240;
/// Further values that one interval, and all of them together, may take.
constexpr int mostOfInterval = 120;
constexpr int mostOfGraph = 6000;
/// How often an interval is halved until a step that remains is a jump.
constexpr int mostHalvings = 14;
/// A larger step is looked at more closely, in heights of the window.
constexpr double coarseStep = 0.04;
/// Values farther outside than this count as just so far, in heights of the window: a pole is a step of limited
/// height.
constexpr double reach = 0.25;

/// Collects the points of a graph, given from left to right, and cuts them at the edges of the window.
class Pieces
{
public:
    explicit Pieces(const QRectF &window)
        : m_window(window)
    {
    }

    void end() { m_isOpen = false; }
    void lineTo(QPointF from, QPointF to)
    {
        QPointF start = from;
        QPointF stop = to;
        if (!cut(start, stop) || !cut(stop, start) || stop.x() <= start.x()) {
            end();
            return;
        }
        if (!m_isOpen || start != from)
            m_pieces.append({start});
        m_pieces.last().append(stop);
        m_isOpen = stop == to;
    }
    QVector<QVector<QPointF>> take() const { return m_pieces; }

private:
    /// Moves an end that is outside to the edge; false when the line stays on that side.
    bool cut(QPointF &end, QPointF other) const
    {
        const double edge = std::clamp(end.y(), m_window.top(), m_window.bottom());
        if (edge == end.y())
            return true;
        if ((end.y() < edge && other.y() < edge) || (end.y() > edge && other.y() > edge))
            return false;
        const double part = (edge - end.y()) / (other.y() - end.y());
        end = {end.x() + part * (other.x() - end.x()), edge};
        return true;
    }

    QRectF m_window;
    QVector<QVector<QPointF>> m_pieces;
    bool m_isOpen = false;
};

class Sampler
{
public:
    Sampler(const std::function<double(double)> &function, const QRectF &window)
        : m_function(function)
        , m_window(window)
        , m_pieces(window)
    {
    }

    QVector<QVector<QPointF>> pieces()
    {
        QPointF from = at(m_window.left());
        for (int i = 1; i <= intervals; ++i) {
            const QPointF to = at(m_window.left() + m_window.width() * i / intervals);
            m_left = std::min(mostOfInterval, m_leftOfGraph);
            m_leftOfGraph -= m_left;
            draw(from, to, mostHalvings);
            m_leftOfGraph += m_left;
            from = to;
        }
        return m_pieces.take();
    }

private:
    QPointF at(double x) const
    {
        const double y = m_function(x);
        return {x, std::isnan(y) ? y : std::clamp(y, m_window.top() - margin(), m_window.bottom() + margin())};
    }
    double margin() const { return reach * m_window.height(); }

    /// Depth is limited by `halvings`.
    void draw(QPointF from, QPointF to, int halvings)
    {
        const bool isDefined = !std::isnan(from.y()) && !std::isnan(to.y());
        const bool isUndefined = std::isnan(from.y()) && std::isnan(to.y());
        const bool isFine = isDefined && std::abs(to.y() - from.y()) <= coarseStep * m_window.height();
        const double middle = from.x() + (to.x() - from.x()) / 2;
        if (!isFine && !isUndefined && halvings > 0 && m_left > 0) {
            --m_left;
            const QPointF between = at(middle);
            draw(from, between, halvings - 1);
            draw(between, to, halvings - 1);
            return;
        }
        const bool isJump = !isFine && halvings == 0;
        if (isDefined && !isJump)
            m_pieces.lineTo(from, to);
        else
            m_pieces.end();
    }

    const std::function<double(double)> &m_function;
    QRectF m_window;
    Pieces m_pieces;
    int m_left = 0;
    int m_leftOfGraph = mostOfGraph;
};

} // namespace

QVector<QVector<QPointF>> graphPieces(const std::function<double(double)> &function, const QRectF &window)
{
    const bool isWindow = std::isfinite(window.width()) && window.width() > 0 && std::isfinite(window.height()) &&
                          window.height() > 0;
    return isWindow ? Sampler(function, window).pieces() : QVector<QVector<QPointF>>();
}

} // namespace shapekit
