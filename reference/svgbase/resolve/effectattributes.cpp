#include "resolve/effectattributes.h"

namespace Svg {

namespace {

bool says(const Node &node, const QString &name, const char *value)
{
    return node.attributes.value(name) == QLatin1String(value);
}

EffectUnits unitsOf(const Node &node, const QString &region, const QString &content)
{
    return {!says(node, region, "userSpaceOnUse"), says(node, content, "objectBoundingBox")};
}

} // namespace

bool isClipOfBounds(const Node &clipPath)
{
    return says(clipPath, QStringLiteral("clipPathUnits"), "objectBoundingBox");
}

EffectUnits maskUnits(const Node &mask)
{
    return unitsOf(mask, QStringLiteral("maskUnits"), QStringLiteral("maskContentUnits"));
}

EffectUnits filterUnits(const Node &filter)
{
    return unitsOf(filter, QStringLiteral("filterUnits"), QStringLiteral("primitiveUnits"));
}

std::optional<ShapeBox> clipShapeBox(const ComputedStyle &style)
{
    const std::optional<ClipShape> shape = parseClipShape(style.effects->clipShape);
    return shape ? std::make_optional(shape->box) : std::nullopt;
}

QPainterPath clipShape(const ComputedStyle &style, const QRectF &box)
{
    const std::optional<ClipShape> shape = parseClipShape(style.effects->clipShape);
    QPainterPath path;
    if (shape && shape->function.isEmpty())
        path.addRect(box);
    else if (shape)
        path = basicShape(shape->function, box, style.font.size).value_or(QPainterPath());
    return path;
}

} // namespace Svg
