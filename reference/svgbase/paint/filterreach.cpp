#include "paint/filterreach.h"

#include "filters/convolution.h"
#include "filters/displacement.h"

#include <cmath>

namespace Svg {

namespace {

/// Reach of a blur in standard deviations.
constexpr double blurReach = 3;

/// Reaches that are counted in pixels, and the size of a pixel in the element's units.
QSizeF reachInPixels(const FilterPrimitive &primitive)
{
    if (primitive.convolution)
        return QSizeF(primitive.convolution->order);
    return primitive.lighting ? QSizeF(1, 1) : QSizeF(0, 0);
}

QSizeF pixelSize(const QTransform &toPainter)
{
    const double across = std::hypot(toPainter.m11(), toPainter.m12());
    const double down = std::hypot(toPainter.m21(), toPainter.m22());
    return across > 0 && down > 0 ? QSizeF(1 / across, 1 / down) : QSizeF(0, 0);
}

bool takesFromAnywhere(const FilterPrimitive &primitive)
{
    const bool wraps = primitive.convolution && primitive.convolution->edges == Convolution::Wrap;
    return primitive.kind == ElementKind::FeTile || wraps;
}

QSizeF primitiveReach(const FilterPrimitive &primitive, const QSizeF &pixel)
{
    const QSizeF offset(qAbs(primitive.offset.x()), qAbs(primitive.offset.y()));
    const bool morphs = primitive.kind == ElementKind::FeMorphology;
    const QSizeF pixels = reachInPixels(primitive);
    QSizeF reach = primitive.extent * (morphs ? 1 : blurReach) + offset;
    reach += QSizeF(pixels.width() * pixel.width(), pixels.height() * pixel.height());
    if (primitive.displacement)
        reach +=
            QSizeF(qAbs(primitive.displacement->scale.width()), qAbs(primitive.displacement->scale.height())) / 2;
    return reach;
}

QRectF expanded(const QRectF &box, const QSizeF &reach, const QTransform &transform)
{
    const QRectF mapped = transform.mapRect(QRectF(0, 0, reach.width(), reach.height()));
    return box.adjusted(-mapped.width(), -mapped.height(), mapped.width(), mapped.height());
}

QSizeF stepReach(const FilterStep &step, const QSizeF &pixel)
{
    QSizeF reach(0, 0);
    for (const FilterPrimitive &primitive : step.primitives) {
        reach += primitiveReach(primitive, pixel);
        if (step.region && takesFromAnywhere(primitive))
            reach += step.region->size();
    }
    return reach;
}

} // namespace

QSizeF filterReach(const Filter &filter, const QTransform &toPainter)
{
    QSizeF reach(0, 0);
    for (const FilterStep &step : filter.steps)
        reach += stepReach(step, pixelSize(toPainter));
    return reach;
}

QRectF filteredBounds(const Filter &filter, const QTransform &toPainter, const QRectF &content)
{
    QRectF bounds = content;
    for (const FilterStep &step : filter.steps)
        if (step.region)
            bounds = toPainter.mapRect(*step.region);
        else if (!bounds.isEmpty())
            bounds = expanded(bounds, stepReach(step, QSizeF(0, 0)), toPainter);
    return bounds;
}

} // namespace Svg
