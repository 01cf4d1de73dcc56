#include "text/glyphshapes.h"

#include "grammar/transforms.h"
#include "inputlimits.h"
#include "resolve/geometry.h"

namespace Svg {

namespace {

QTransform toGlyph(const Tree &tree, NodeIndex shape, NodeIndex glyph)
{
    QTransform transform;
    for (NodeIndex at = shape; at != glyph && at != noNode; at = tree.node(at).parent)
        transform *= parseTransform(tree.node(at).attributes.value(AttributeId::Transform)).value_or(QTransform());
    return transform;
}

} // namespace

QPainterPath glyphShapes(const Tree &tree, NodeIndex glyph)
{
    QPainterPath whole;
    int left = Limits::glyphShapes;
    for (NodeIndex at = tree.following(glyph, glyph); at != noNode && left > 0; at = tree.following(at, glyph)) {
        if (!hasGeometry(tree.node(at).kind))
            continue;
        --left;
        const ComputedStyle style = styleInTree(tree, at);
        const Geometry geometry = shapeGeometry(tree.node(at), style, QSizeF());
        if (geometry.valid && style.displayed && style.fill.kind != Paint::None)
            whole.addPath(toGlyph(tree, at, glyph).map(geometry.path));
    }
    return whole;
}

} // namespace Svg
