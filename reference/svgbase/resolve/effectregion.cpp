#include "resolve/effectregion.h"

#include "grammar/lengths.h"

namespace Svg {

namespace {

const Length regionStart{-10, Unit::Percent};
const Length regionSize{120, Unit::Percent};

} // namespace

QRectF effectRegion(const Node &effect, bool ofBounds, const RegionContext &context)
{
    const LengthContext lengths{ofBounds ? QSizeF(1, 1) : context.viewport, context.fontSize};
    const auto read = [&](AttributeId id, Axis axis, const Length &fallback) {
        return toUserUnits(lengthOf(effect.attributes.held(id)).value_or(fallback), axis, lengths);
    };
    const QRectF region(read(AttributeId::X, Axis::Horizontal, regionStart),
                        read(AttributeId::Y, Axis::Vertical, regionStart),
                        read(AttributeId::Width, Axis::Horizontal, regionSize),
                        read(AttributeId::Height, Axis::Vertical, regionSize));
    if (!ofBounds)
        return region;
    const QRectF &b = context.bounds;
    return QRectF(b.x() + region.x() * b.width(), b.y() + region.y() * b.height(), region.width() * b.width(),
                  region.height() * b.height());
}

} // namespace Svg
