#include <declared/core/tracks.h>

#include <declared/expressions/functions.h>

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace declared {

namespace {

constexpr double fullCircle = 360;

double stepped(double way, double step, double end)
{
    if (!(step > 0))
        return way;
    const double rounded = wholeOf(way / step) * step;
    return rounded > end ? std::floor(end / step) * step : rounded;
}

QPointF nearestOnLine(QPointF from, QPointF to, double step, QPointF at)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    if (length == 0)
        return from;
    const double along = std::clamp(QPointF::dotProduct(at - from, way) / length, 0.0, length);
    return from + way * (stepped(along, step, length) / length);
}

double angleOf(QPointF arm)
{
    return remainderOf(qRadiansToDegrees(std::atan2(arm.y(), arm.x())), fullCircle);
}

QPointF onEllipse(QPointF centre, QPointF radii, double angle)
{
    return centre + QPointF(radii.x() * cosineOf(angle), radii.y() * sineOf(angle));
}

QPointF nearestOnEllipse(QPointF centre, QPointF radii, double step, QPointF at)
{
    if (radii.x() == 0 || radii.y() == 0)
        return centre;
    const QPointF arm = at - centre;
    return onEllipse(centre, radii, stepped(angleOf({arm.x() / radii.x(), arm.y() / radii.y()}), step, fullCircle));
}

/// The nearest angle from `from` clockwise to `to`; a whole circle where both are the same.
double angleWithin(double angle, double from, double to, double step)
{
    const double turn = remainderOf(to - from, fullCircle);
    const double sweep = turn == 0 ? fullCircle : turn;
    double way = remainderOf(angle - from, fullCircle);
    if (way > sweep)
        way = way - sweep < fullCircle - way ? sweep : 0;
    return from + stepped(way, step, sweep);
}

} // namespace

QPointF nearestOnTrack(TrackDeclaration::Kind kind, const QVector<Value> &arguments, double step, QPointF at)
{
    if (!std::all_of(arguments.begin(), arguments.end(), [](const Value &value) { return value.isFinite(); }))
        return at;
    const auto number = [&](int i) { return arguments.at(i).number(); };
    const QPointF first = arguments.value(0).point;
    const double angle = angleOf(at - first);
    switch (kind) {
    case TrackDeclaration::Line:
        return nearestOnLine(first, arguments.at(1).point, step, at);
    case TrackDeclaration::Circle:
        return nearestOnEllipse(first, {number(1), number(1)}, step, at);
    case TrackDeclaration::Ellipse:
        return nearestOnEllipse(first, {number(1), number(2)}, step, at);
    case TrackDeclaration::Arc: {
        const double within = angleWithin(angle, number(2), number(3), step);
        return onEllipse(first, {number(1), number(1)}, within);
    }
    case TrackDeclaration::Sector: {
        const QPointF arm = at - first;
        const double radius = std::min(std::max(std::hypot(arm.x(), arm.y()), number(1)), number(2));
        return onEllipse(first, {radius, radius}, angleWithin(angle, number(3), number(4), step));
    }
    case TrackDeclaration::None:
        break;
    }
    return at;
}

} // namespace declared
