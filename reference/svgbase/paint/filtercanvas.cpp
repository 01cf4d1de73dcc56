#include "paint/filtercanvas.h"

#include "scene/filter.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

/// Largest deviation of axes, as a share of their length, that still counts as parallel to the painter's.
constexpr double turnTolerance = 1e-6;

double across(const QTransform &t)
{
    return std::hypot(t.m11(), t.m12());
}

double down(const QTransform &t)
{
    return std::hypot(t.m21(), t.m22());
}

bool isTurned(const QTransform &t)
{
    const double offAxis = qMin(qAbs(t.m12()) + qAbs(t.m21()), qAbs(t.m11()) + qAbs(t.m22()));
    return offAxis > turnTolerance * (across(t) + down(t));
}

// Circles stay circles.
bool isSimilarity(const QTransform &t)
{
    const double product = t.m11() * t.m21() + t.m12() * t.m22();
    const double tolerance = turnTolerance * across(t) * down(t);
    return qAbs(product) <= tolerance && qAbs(across(t) - down(t)) <= turnTolerance * across(t);
}

bool dependsOnAxes(const FilterPrimitive &primitive, bool similarity)
{
    const QSizeF &extent = primitive.extent;
    const bool blurs = extent.width() > 0 || extent.height() > 0;
    const bool round = similarity && qFuzzyCompare(extent.width(), extent.height());
    switch (primitive.kind) {
    case ElementKind::FeGaussianBlur:
    case ElementKind::FeDropShadow:
        return blurs && !round;
    case ElementKind::FeMorphology:
        return blurs;
    case ElementKind::FeTile:
        return true;
    default:
        return primitive.convolution || primitive.displacement || primitive.lighting;
    }
}

bool dependsOnAxes(const Filter &filter, const QTransform &toPainter)
{
    const bool similarity = isSimilarity(toPainter);
    for (const FilterStep &step : filter.steps) {
        for (const FilterPrimitive &primitive : step.primitives)
            if (dependsOnAxes(primitive, similarity))
                return true;
    }
    return false;
}

// A step without a region, a filter function, uses everything.
QRectF neededRegion(const Filter &filter)
{
    QRectF needed;
    for (const FilterStep &step : filter.steps) {
        if (!step.region)
            return QRectF();
        needed |= *step.region;
    }
    return needed;
}

} // namespace

std::optional<FilterCanvas> filterCanvas(const Filter &filter, const QTransform &toPainter)
{
    const QTransform &t = toPainter;
    if (!isTurned(t) || !t.isInvertible() || !dependsOnAxes(filter, t))
        return std::nullopt;
    const QTransform scale = QTransform::fromScale(across(t), down(t));
    FilterCanvas canvas;
    canvas.toPainter = scale.inverted() * t;
    canvas.fromPainter = canvas.toPainter.inverted();
    canvas.needed = scale.mapRect(neededRegion(filter));
    return canvas;
}

} // namespace Svg
