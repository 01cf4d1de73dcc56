#include "text/glyphshapes.h"

#include "geometry/shapegeometry.h"
#include "grammar/inputlimits.h"
#include "grammar/transforms.h"

namespace Svg {

namespace {

/// An element inside of a glyph.
struct GlyphPart
{
    NodeIndex element;
    ComputedStyle style;
    QTransform toGlyph;
};

// After its parent, which reserved its place; each style is computed once, however deep the element is.
void enter(const Tree &tree, NodeIndex element, QVector<GlyphPart> *open)
{
    const Node &node = tree.node(element);
    while (open->constLast().element != node.parent)
        open->removeLast();
    const GlyphPart above = open->constLast();
    const QTransform own = transformOf(node.attributes.held(AttributeId::Transform)).value_or(QTransform());
    open->append({element, cascade(tree, element, {above.style, QSizeF()}), own * above.toGlyph});
}

} // namespace

QPainterPath glyphShapes(const Tree &tree, NodeIndex glyph, const ComputedStyle &font)
{
    QPainterPath whole;
    QVector<GlyphPart> open{{glyph, cascade(tree, glyph, {font, QSizeF()}), QTransform()}};
    int left = Limits::glyphShapes;
    for (NodeIndex at = tree.following(glyph, glyph); at != noNode && left > 0; at = tree.following(at, glyph)) {
        enter(tree, at, &open);
        if (!hasGeometry(tree.node(at).kind))
            continue;
        --left;
        const GlyphPart &shape = open.constLast();
        const Geometry geometry = shapeGeometry(tree.node(at), shape.style, QSizeF());
        if (geometry.valid && shape.style.displayed && shape.style.fill.kind != Paint::None)
            whole.addPath(shape.toGlyph.map(geometry.path));
    }
    return whole;
}

} // namespace Svg
