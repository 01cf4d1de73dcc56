#include "grammar/arcs.h"

#include <QtCore/QtMath>
#include <QtGui/QPainterPath>
#include <QtGui/QTransform>

namespace Svg {

namespace {

/// The arc on the unit circle: start and sweep, radians.
struct UnitArc
{
    double start = 0;
    double extent = 0;
    QTransform toUser;
};

// SVG 1.1 §F.6.5 and §F.6.6, in the coordinates of the rotated ellipse centred between the end points.
UnitArc unitArc(const Arc &arc)
{
    const double angle = qDegreesToRadians(std::fmod(arc.rotation, 360.0));
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    const QPointF half = (arc.from - arc.to) / 2;
    const double x = cosine * half.x() + sine * half.y();
    const double y = cosine * half.y() - sine * half.x();

    double rx = std::fabs(arc.rx);
    double ry = std::fabs(arc.ry);
    const double stretch = (x / rx) * (x / rx) + (y / ry) * (y / ry);
    if (stretch > 1) {
        rx *= std::sqrt(stretch);
        ry *= std::sqrt(stretch);
    }
    const double u = x / rx;
    const double v = y / ry;
    const double offset = std::sqrt(qMax(0.0, 1 / (u * u + v * v) - 1)) * (arc.large == arc.sweep ? -1 : 1);
    const QPointF centre(offset * v, -offset * u);

    UnitArc result;
    result.start = std::atan2(v - centre.y(), u - centre.x());
    result.extent = std::atan2(-v - centre.y(), -u - centre.x()) - result.start;
    if (arc.sweep && result.extent < 0)
        result.extent += 2 * M_PI;
    if (!arc.sweep && result.extent > 0)
        result.extent -= 2 * M_PI;
    const QPointF middle = (arc.from + arc.to) / 2;
    result.toUser = QTransform::fromTranslate(centre.x(), centre.y()) * QTransform::fromScale(rx, ry) *
                    QTransform(cosine, sine, -sine, cosine, middle.x(), middle.y());
    return result;
}

} // namespace

void appendArc(QPainterPath &path, const Arc &arc)
{
    if (arc.from == arc.to)
        return;
    if (arc.rx == 0 || arc.ry == 0) {
        path.lineTo(arc.to);
        return;
    }
    const UnitArc unit = unitArc(arc);
    if (!qIsFinite(unit.extent) || !qIsFinite(unit.toUser.dx()) || !qIsFinite(unit.toUser.dy())) {
        path.lineTo(arc.to);
        return;
    }
    const int pieces = qMax(1, int(std::ceil(std::fabs(unit.extent) / M_PI_2 - 1e-9)));
    const double step = unit.extent / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step / 4);
    for (int i = 0; i < pieces; ++i) {
        const double a = unit.start + i * step;
        const double b = a + step;
        const QPointF first(std::cos(a) - handle * std::sin(a), std::sin(a) + handle * std::cos(a));
        const QPointF second(std::cos(b) + handle * std::sin(b), std::sin(b) - handle * std::cos(b));
        const QPointF end = i + 1 == pieces ? arc.to : unit.toUser.map(QPointF(std::cos(b), std::sin(b)));
        path.cubicTo(unit.toUser.map(first), unit.toUser.map(second), end);
    }
}

} // namespace Svg
