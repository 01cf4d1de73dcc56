#include "raster/flatoutline.h"

#include "geometry/curve.h"
#include "geometry/stroking.h"

#include <cmath>

namespace Svg {

namespace {

/// Largest distance of a line from the curve that it stands for, pixels.
constexpr double flatness = 0.025;
/// Nothing farther from the origin is flattened, pixels.
constexpr double farthest = 32000;
/// Few enough that the areas of all lines of a row in one direction, at most half of them and each at most a
/// pixel's, add up without overflow.
constexpr int mostPoints = 32000;

QPoint inSubpixels(const QPointF &point)
{
    return QPoint(qRound(point.x() * subpixels), qRound(point.y() * subpixels));
}

// Numbers that are none are not.
bool isNear(const QPointF &point)
{
    return std::abs(point.x()) < farthest && std::abs(point.y()) < farthest;
}

bool isNear(const QPainterPath &path, const QTransform &toPainter)
{
    for (int i = 0; i < path.elementCount(); ++i)
        if (!isNear(toPainter.map(QPointF(path.elementAt(i)))))
            return false;
    return true;
}

class Flattener
{
public:
    explicit Flattener(FlatOutline *outline)
        : m_outline(outline)
    {
    }

    bool add(const QPainterPath &path);

private:
    void addCurve(const Curve &curve);
    void endPolygon();

    FlatOutline *m_outline;
};

void Flattener::endPolygon()
{
    const int end = m_outline->points.size();
    const int begin = m_outline->ends.isEmpty() ? 0 : m_outline->ends.constLast();
    if (end > begin)
        m_outline->ends.append(end);
}

void Flattener::addCurve(const Curve &curve)
{
    const int lines = curve.lineCount(flatness);
    for (int i = 1; i < lines; ++i)
        m_outline->points.append(inSubpixels(curve.at(double(i) / lines)));
    m_outline->points.append(inSubpixels(curve.end));
}

bool Flattener::add(const QPainterPath &path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element &element = path.elementAt(i);
        if (element.type == QPainterPath::CurveToElement) {
            addCurve(Curve::ofElement(path, i));
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
    return isNear(path, QTransform()) && Flattener(outline).add(path);
}

bool flattenStroke(const QPainterPath &path, const QPen &pen, const QTransform &toPainter, FlatOutline *outline)
{
    *outline = FlatOutline();
    StrokeOutline stroke;
    if (!isNear(path, toPainter) || !outlineStroke(path, pen, toPainter, {flatness, mostPoints}, &stroke))
        return false;
    outline->points.reserve(int(stroke.points.size()));
    for (const QPointF &point : stroke.points) {
        if (!isNear(point))
            return false;
        outline->points.append(inSubpixels(point));
    }
    outline->ends = QVector<int>(stroke.ends.begin(), stroke.ends.end());
    return true;
}

} // namespace Svg
