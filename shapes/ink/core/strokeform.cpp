#include "ink/core/strokeform.h"

#include <algorithm>
#include <cmath>

namespace ink {

namespace {

constexpr double fullTurn = 2 * M_PI;
/// Chords are this far from their curve at the most, units.
constexpr double largestGap = 0.1;
/// Angle between neighbouring places of a small curve.
constexpr double widestStep = M_PI / 8;
constexpr double mostSteps = 256;
/// An ellipse shrinks to this part at the most, so that it never vanishes.
constexpr double smallestScale = 0.01;
constexpr double farthest = 1e100;

/// Distance from the centre, as a part of the radius in that direction.
double reachOf(const StrokeForm &ellipse, QPointF place)
{
    const QPointF way = place - ellipse.centre;
    return std::hypot(way.x() / ellipse.radii.width(), way.y() / ellipse.radii.height());
}

int stepsFor(double sweep, double radius)
{
    const double step = std::min(widestStep, 2 * std::acos(std::max(0.0, 1 - largestGap / radius)));
    return int(std::min(mostSteps, std::ceil(std::abs(sweep) / step)));
}

QVector<QPointF> placesOfArc(const StrokeForm &arc)
{
    const QPointF chord = arc.end - arc.start;
    const QPointF across(-chord.y(), chord.x());
    const QPointF centre = (arc.start + arc.end) / 2 + across * ((1 - arc.bulge * arc.bulge) / (4 * arc.bulge));
    const QPointF first = arc.start - centre;
    const QPointF side(-first.y(), first.x());
    const double sweep = 4 * std::atan(arc.bulge);
    const int steps = stepsFor(sweep, std::hypot(first.x(), first.y()));
    QVector<QPointF> places{arc.start};
    for (int i = 1; i < steps; ++i) {
        const double angle = sweep * i / steps;
        places.append(centre + first * std::cos(angle) + side * std::sin(angle));
    }
    places.append(arc.end);
    return places;
}

QVector<QPointF> placesOfEllipse(const StrokeForm &ellipse)
{
    const double sweep = ellipse.isFalling ? -fullTurn : fullTurn;
    const int steps = stepsFor(sweep, std::max(ellipse.radii.width(), ellipse.radii.height()));
    QVector<QPointF> places;
    for (int i = 0; i < steps; ++i) {
        const double angle = ellipse.firstAngle + sweep * i / steps;
        places.append(ellipse.centre +
                      QPointF(ellipse.radii.width() * std::cos(angle), ellipse.radii.height() * std::sin(angle)));
    }
    places.append(places.constFirst());
    return places;
}

} // namespace

bool isMeasurable(QPointF place)
{
    // A coordinate that is no number isn't less than any.
    return std::abs(place.x()) <= farthest && std::abs(place.y()) <= farthest;
}

StrokeForm draggedForm(const StrokeForm &form, QPointF from, QPointF to)
{
    StrokeForm dragged = form;
    if (!isMeasurable(from) || !isMeasurable(to))
        return dragged;
    if (form.kind != StrokeForm::Ellipse) {
        dragged.end += to - from;
        return dragged;
    }
    const double reach = reachOf(form, from);
    if (reach > 0)
        dragged.radii *= std::max(smallestScale, reachOf(form, to) / reach);
    return dragged;
}

QVector<QPointF> placesAlong(const StrokeForm &form)
{
    switch (form.kind) {
    case StrokeForm::Arc:
        return placesOfArc(form);
    case StrokeForm::Ellipse:
        return placesOfEllipse(form);
    case StrokeForm::Line:
        break;
    }
    return {form.start, form.end};
}

} // namespace ink
