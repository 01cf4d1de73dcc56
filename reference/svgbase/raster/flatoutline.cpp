#include "raster/flatoutline.h"

#include <QtCore/QtMath>

#include <cmath>

namespace Svg {

namespace {

/// How far a line may stray from its curve, pixels.
constexpr double flatness = 0.025;
/// Farther from the origin than this nothing is flattened, pixels.
constexpr double farthest = 32000;
/// So few that the areas of all lines of a row that go the same way, at most half of them and each at most a
/// pixel's, add up without overflow.
constexpr int mostPoints = 32000;

QPoint inSubpixels(const QPointF &point)
{
    return QPoint(qRound(point.x() * subpixels), qRound(point.y() * subpixels));
}

double bend(const QPointF &a, const QPointF &b, const QPointF &c)
{
    return std::hypot(a.x() - 2 * b.x() + c.x(), a.y() - 2 * b.y() + c.y());
}

// A chord strays from its curve by at most an eighth of the second derivative, which for a cubic curve is at most
// six times the larger bend.
int linesOf(const QPointF &p0, const QPointF &p1, const QPointF &p2, const QPointF &p3)
{
    const double largest = qMax(bend(p0, p1, p2), bend(p1, p2, p3));
    return qMax(1, qCeil(std::sqrt(largest * 6 / 8 / flatness)));
}

// Nor are numbers that are none.
bool isNear(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (!(std::abs(element.x) < farthest && std::abs(element.y) < farthest))
            return false;
    }
    return true;
}

class Flattening
{
public:
    explicit Flattening(FlatOutline *outline)
        : m_outline(outline)
    {
    }

    bool add(const QPainterPath &path);

private:
    void addCurve(const QPainterPath &path, int first);
    void endPolygon();

    FlatOutline *m_outline;
};

void Flattening::endPolygon()
{
    const int end = m_outline->points.size();
    const int begin = m_outline->ends.isEmpty() ? 0 : m_outline->ends.constLast();
    if (end > begin)
        m_outline->ends.append(end);
}

void Flattening::addCurve(const QPainterPath &path, int first)
{
    const QPointF p0 = path.elementAt(first - 1);
    const QPointF p1 = path.elementAt(first);
    const QPointF p2 = path.elementAt(first + 1);
    const QPointF p3 = path.elementAt(first + 2);
    const int lines = linesOf(p0, p1, p2, p3);
    for (int i = 1; i < lines; ++i) {
        const double t = double(i) / lines;
        const double u = 1 - t;
        m_outline->points.append(
            inSubpixels(p0 * (u * u * u) + p1 * (3 * u * u * t) + p2 * (3 * u * t * t) + p3 * (t * t * t)));
    }
    m_outline->points.append(inSubpixels(p3));
}

bool Flattening::add(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.type == QPainterPath::CurveToElement) {
            addCurve(path, i);
            i += 2;
        } else {
            if (element.type == QPainterPath::MoveToElement)
                endPolygon();
            m_outline->points.append(inSubpixels(element));
        }
        if (m_outline->points.size() > mostPoints)
            return false;
    }
    endPolygon();
    return true;
}

} // namespace

bool flatten(const QPainterPath &path, FlatOutline *outline)
{
    outline->points.resize(0);
    outline->ends.resize(0);
    outline->fillRule = path.fillRule();
    return isNear(path) && Flattening(outline).add(path);
}

} // namespace Svg
