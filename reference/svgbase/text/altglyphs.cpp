#include "text/altglyphs.h"

#include "grammar/inputlimits.h"
#include "tree/references.h"

namespace Svg {

namespace {

bool isNamed(const Tree &tree, NodeIndex node, const char *name)
{
    return hasLocalName(tree.node(node), QString::fromLatin1(name));
}

// The glyphs of all `glyphRef` children of a node; empty when one of them has no target.
QVector<NodeIndex> listedGlyphs(const Tree &tree, NodeIndex list)
{
    QVector<NodeIndex> glyphs;
    for (NodeIndex at = tree.node(list).firstChild; at != noNode; at = tree.node(at).next) {
        if (!isNamed(tree, at, "glyphRef") || glyphs.size() >= Limits::glyphCharacters)
            continue;
        const NodeIndex glyph = tree.findId(hrefTarget(tree.node(at).attributes));
        if (glyph == noNode || tree.node(glyph).kind != ElementKind::Glyph)
            return {};
        glyphs.append(glyph);
    }
    return glyphs;
}

} // namespace

QVector<NodeIndex> alternateGlyphs(const Tree &tree, NodeIndex altGlyph)
{
    const NodeIndex target = tree.findId(hrefTarget(tree.node(altGlyph).attributes));
    if (target == noNode)
        return {};
    if (tree.node(target).kind == ElementKind::Glyph)
        return {target};
    if (!isNamed(tree, target, "altGlyphDef"))
        return {};
    QVector<NodeIndex> glyphs = listedGlyphs(tree, target);
    for (NodeIndex at = tree.node(target).firstChild; at != noNode && glyphs.isEmpty(); at = tree.node(at).next)
        if (isNamed(tree, at, "altGlyphItem"))
            glyphs = listedGlyphs(tree, at);
    return glyphs;
}

} // namespace Svg
