#include "resolve/servertransform.h"

#include "geometry/shapegeometry.h"
#include "grammar/csstransforms.h"
#include "grammar/transforms.h"
#include "style/cascade.h"

namespace Svg {

ServerTransform serverTransform(const Node &node, const ComputedStyle &style, const AttributeValue &own)
{
    const AttributeValue &styled = styledAttribute(Attributes(), style.attributes, AttributeId::Transform);
    return {styled.isEmpty() ? own : styled, styledAttribute(node, style, AttributeId::TransformOrigin).text()};
}

QTransform resolved(const ServerTransform &transform, const QRectF &box, double fontSize)
{
    const LengthContext context{box.size(), fontSize};
    std::optional<QTransform> whole = transformOf(transform.transform);
    if (!whole)
        whole = parseCssTransform(transform.transform.text(), context);
    if (!whole || transform.origin.isEmpty())
        return whole.value_or(QTransform());
    const std::optional<QPointF> given = parseTransformOrigin(transform.origin, context);
    const QPointF origin = given ? box.topLeft() + *given : QPointF();
    return QTransform::fromTranslate(-origin.x(), -origin.y()) * *whole *
           QTransform::fromTranslate(origin.x(), origin.y());
}

} // namespace Svg
