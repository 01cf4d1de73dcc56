#include "draw/filter.h"

namespace Svg {

namespace {

/// How many standard deviations a blur reaches.
constexpr double blurReach = 3;

QSizeF primitiveReach(const FilterPrimitive &primitive)
{
    const QSizeF offset(qAbs(primitive.offset.x()), qAbs(primitive.offset.y()));
    const bool morphs = primitive.kind == ElementKind::FeMorphology;
    return primitive.extent * (morphs ? 1 : blurReach) + offset;
}

QRectF expanded(const QRectF &box, const QSizeF &reach, const QTransform &transform)
{
    const QRectF mapped = transform.mapRect(QRectF(0, 0, reach.width(), reach.height()));
    return box.adjusted(-mapped.width(), -mapped.height(), mapped.width(), mapped.height());
}

QSizeF stepReach(const FilterStep &step)
{
    QSizeF reach(0, 0);
    for (const FilterPrimitive &primitive : step.primitives)
        reach += primitiveReach(primitive);
    return reach;
}

} // namespace

QSizeF filterReach(const Filter &filter)
{
    QSizeF reach(0, 0);
    for (const FilterStep &step : filter.steps)
        reach += stepReach(step);
    return reach;
}

QRectF filteredBounds(const Filter &filter, const QRectF &content)
{
    QRectF bounds = content;
    for (const FilterStep &step : filter.steps) {
        if (step.region)
            bounds = filter.toPainter.mapRect(*step.region);
        else if (!bounds.isEmpty())
            bounds = expanded(bounds, stepReach(step), filter.toPainter);
    }
    return bounds;
}

} // namespace Svg
