#include "resolve/styleoverride.h"

#include "resolve/pens.h"

namespace Svg {

namespace {

bool isEmpty(const StyleOverride &override)
{
    return !override.strokeColor && !override.strokeStyle && !override.strokeWidth && !override.fill;
}

Stroke effectiveStroke(const Outline &outline, const ComputedStyle &style, const StyleOverride &override)
{
    const QBrush paint = override.strokeColor ? QBrush(*override.strokeColor) : outline.strokePaint;
    return {paint, override.strokeWidth.value_or(style.strokeWidth), override.strokeStyle, outline.dashScale};
}

} // namespace

bool operator==(const StyleOverride &a, const StyleOverride &b)
{
    return a.strokeColor == b.strokeColor && a.strokeStyle == b.strokeStyle && a.strokeWidth == b.strokeWidth &&
           a.fill == b.fill;
}

Outline overridden(const Outline &outline, const ComputedStyle &style, const StyleOverride &override)
{
    Outline result = outline;
    if (override.fill) {
        result.fill = *override.fill;
        result.fillPattern = -1;
    }
    if (override.strokeColor)
        result.strokePattern = -1;
    result.pen = strokePen(style, effectiveStroke(outline, style, override));
    return result;
}

StyleOverridePointer withoutProperty(const StyleOverridePointer &override, AttributeId property)
{
    auto *left = new StyleOverride(*override);
    const StyleOverridePointer result(left);
    switch (property) {
    case AttributeId::Fill:
        left->fill.reset();
        break;
    case AttributeId::Stroke:
        left->strokeColor.reset();
        break;
    case AttributeId::StrokeDasharray:
        left->strokeStyle.reset();
        break;
    case AttributeId::StrokeWidth:
        left->strokeWidth.reset();
        break;
    default:
        break;
    }
    return isEmpty(*left) ? StyleOverridePointer() : result;
}

} // namespace Svg
