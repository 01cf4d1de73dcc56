#include "ink/core/strokefit.h"

#include <QtCore/QRectF>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ink {

namespace {

/// A stroke that sweeps that much is meant to close: the ends of the arc would be less than a radius apart.
constexpr double closingSweep = 300 * M_PI / 180;
/// Farthest that a stroke may be from its curve, as a part of its radius or of the height of a flat arc.
constexpr double largestDeviation = 0.15;
/// Farthest that a stroke may go back on its way around the centre, as a part of the way.
constexpr double largestRetreat = 0.1;
/// Least height of an arc in chords. Lines drawn by hand are bent by less.
constexpr double leastHeight = 0.05;
/// Ellipses rounder than this ratio of the axes are meant to be circles.
constexpr double roundestRatio = 1.2;
/// Flatter ones are strokes to and fro.
constexpr double flattestRatio = 10;
/// An ellipse beside a circle that fits, too, must deviate this many times less.
constexpr double clearlyBetter = 2;
/// Farthest that a stroke meant as a line may be beside it, as a part of the line.
constexpr double largestBend = 0.45;
/// Longest way of such a stroke in lines. A line of handwriting is longer.
constexpr double longestWay = 2;
/// Determinant of the spread of places over the square of its trace, below which they are on a line.
constexpr double leastSpread = 1e-6;
/// Strokes that aren't higher and wider are lines.
constexpr double leastSize = 1e-100;

using Places = QVector<QPointF>;

/// A circle that may fit a stroke, and the course of the stroke around it.
struct Fit
{
    QPointF centre;
    double radius = 0;
    double sweep = 0;     ///< signed angle
    double retreat = 0;   ///< largest angle that the stroke went back
    double deviation = 0; ///< largest distance of the stroke from the circle

    double height() const { return std::abs(sweep) < M_PI ? radius * (1 - std::cos(sweep / 2)) : radius; }
    bool holds() const
    {
        return radius > 0 && retreat <= largestRetreat * std::abs(sweep) &&
               deviation <= largestDeviation * height();
    }
    bool closes() const { return holds() && std::abs(sweep) >= closingSweep; }
};

double lengthOf(QPointF way)
{
    return std::hypot(way.x(), way.y());
}

double cross(QPointF a, QPointF b)
{
    return a.x() * b.y() - a.y() * b.x();
}

Places usable(const Places &places)
{
    Places kept;
    std::copy_if(places.begin(), places.end(), std::back_inserter(kept), isMeasurable);
    return kept;
}

QRectF boxOf(const Places &places)
{
    QPointF least = places.first();
    QPointF most = least;
    for (const QPointF &place : places) {
        least = {std::min(least.x(), place.x()), std::min(least.y(), place.y())};
        most = {std::max(most.x(), place.x()), std::max(most.y(), place.y())};
    }
    return {least, most};
}

/// Maps places of the stroke to near the origin, about a unit long.
struct Frame
{
    QPointF middle;
    double unitX;
    double unitY;

    QPointF mapped(QPointF place) const
    {
        return {(place.x() - middle.x()) / unitX, (place.y() - middle.y()) / unitY};
    }
    QPointF unmapped(QPointF place) const
    {
        return {place.x() * unitX + middle.x(), place.y() * unitY + middle.y()};
    }
    Places mapped(const Places &places) const
    {
        Places result;
        result.reserve(places.size());
        for (const QPointF &place : places)
            result.append(mapped(place));
        return result;
    }
};

/// Half the length of the stroke to both neighbours of each place.
QVector<double> weightsOf(const Places &places)
{
    QVector<double> weights(places.size(), 0);
    for (int i = 1; i < places.size(); ++i) {
        const double half = lengthOf(places.at(i) - places.at(i - 1)) / 2;
        weights[i - 1] += half;
        weights[i] += half;
    }
    return weights;
}

/// Sets centre and radius; the radius is 0 for places on a line.
void fitCircle(Fit &fit, const Places &places)
{
    const QVector<double> weights = weightsOf(places);
    QPointF mean;
    double sum = 0;
    for (int i = 0; i < places.size(); ++i) {
        mean += weights.at(i) * places.at(i);
        sum += weights.at(i);
    }
    mean /= sum;
    double xx = 0;
    double yy = 0;
    double xy = 0;
    QPointF third;
    for (int i = 0; i < places.size(); ++i) {
        const QPointF way = places.at(i) - mean;
        xx += weights.at(i) * way.x() * way.x();
        yy += weights.at(i) * way.y() * way.y();
        xy += weights.at(i) * way.x() * way.y();
        third += way * (weights.at(i) * QPointF::dotProduct(way, way));
    }
    const double determinant = xx * yy - xy * xy;
    const double trace = xx + yy;
    if (!(determinant > leastSpread * trace * trace))
        return;
    const QPointF centre =
        QPointF(third.x() * yy - third.y() * xy, third.y() * xx - third.x() * xy) / (2 * determinant);
    fit.centre = mean + centre;
    fit.radius = std::sqrt(QPointF::dotProduct(centre, centre) + trace / sum);
}

/// Follows the stroke around the circle. The middle of each piece counts, too, so that corners are no circle.
void follow(Fit &fit, const Places &places)
{
    double most = 0;
    double least = 0;
    double fall = 0;
    double rise = 0;
    const auto measure = [&fit](QPointF way) {
        fit.deviation = std::max(fit.deviation, std::abs(lengthOf(way) - fit.radius));
    };
    QPointF before = places.first() - fit.centre;
    measure(before);
    for (const QPointF &place : places) {
        const QPointF way = place - fit.centre;
        measure(way);
        measure((before + way) / 2);
        fit.sweep += std::atan2(cross(before, way), QPointF::dotProduct(before, way));
        most = std::max(most, fit.sweep);
        least = std::min(least, fit.sweep);
        fall = std::max(fall, most - fit.sweep);
        rise = std::max(rise, fit.sweep - least);
        before = way;
    }
    fit.retreat = fit.sweep > 0 ? fall : rise;
}

Fit fitted(const Places &places)
{
    Fit fit;
    fitCircle(fit, places);
    if (fit.radius > 0)
        follow(fit, places);
    return fit;
}

bool isEllipse(const Fit &ellipse, const Fit &circle, QSizeF box)
{
    const double ratio = std::max(box.width(), box.height()) / std::min(box.width(), box.height());
    if (!ellipse.closes() || ratio < roundestRatio || ratio > flattestRatio)
        return false;
    return !circle.holds() ||
           ellipse.deviation / ellipse.radius * clearlyBetter <= circle.deviation / circle.radius;
}

StrokeForm closedForm(const Fit &fit, const Frame &frame, const Places &places)
{
    const QPointF first = frame.mapped(places.first()) - fit.centre;
    StrokeForm form;
    form.kind = StrokeForm::Ellipse;
    form.centre = frame.unmapped(fit.centre);
    form.radii = {fit.radius * frame.unitX, fit.radius * frame.unitY};
    form.firstAngle = std::atan2(first.y(), first.x());
    form.isFalling = fit.sweep < 0;
    return form;
}

StrokeForm arcForm(const Fit &fit, const Frame &frame, const Places &places)
{
    const auto onCircle = [&](QPointF place) {
        const QPointF way = frame.mapped(place) - fit.centre;
        return frame.unmapped(fit.centre + way * (fit.radius / lengthOf(way)));
    };
    StrokeForm form = lineBetween(onCircle(places.first()), onCircle(places.last()));
    form.kind = StrokeForm::Arc;
    form.bulge = std::tan(fit.sweep / 4);
    return form;
}

} // namespace

StrokeForm formOf(const QVector<QPointF> &places)
{
    const Places kept = usable(places);
    if (kept.isEmpty())
        return {};
    const StrokeForm line = lineBetween(kept.first(), kept.last());
    const QRectF box = boxOf(kept);
    if (std::min(box.width(), box.height()) <= leastSize)
        return line;
    const double size = std::max(box.width(), box.height());
    const Frame even{box.center(), size, size};
    const Frame stretched{box.center(), box.width(), box.height()};
    const Fit circle = fitted(even.mapped(kept));
    const Fit ellipse = fitted(stretched.mapped(kept));
    if (isEllipse(ellipse, circle, box.size()))
        return closedForm(ellipse, stretched, kept);
    if (circle.closes())
        return closedForm(circle, even, kept);
    const bool isBent = std::abs(std::tan(circle.sweep / 4)) >= 2 * leastHeight;
    return circle.holds() && isBent ? arcForm(circle, even, kept) : line;
}

bool runsStraight(const QVector<QPointF> &places)
{
    const Places kept = usable(places);
    if (kept.isEmpty())
        return false;
    const QPointF line = kept.last() - kept.first();
    const double length = lengthOf(line);
    double way = 0;
    QPointF before = kept.first();
    for (const QPointF &place : kept) {
        way += lengthOf(place - before);
        before = place;
        // The area of a parallelogram: the line by the distance from it.
        if (std::abs(cross(line, place - kept.first())) > largestBend * length * length)
            return false;
    }
    return length > 0 && way <= longestWay * length;
}

} // namespace ink
