#include "resolve/visiblebounds.h"

#include "resolve/drawingwalk.h"

namespace Svg {

QRectF visibleBounds(SettledTree &document, NodeIndex top)
{
    QRectF bounds;
    bool first = true;
    walkDrawing(document, top, [&](NodeIndex node, const FactsPointer &facts) {
        if (!facts->displayed)
            return false;
        // Of a text only the visible parts have bounds.
        const bool isText = document.tree().node(node).kind == ElementKind::Text;
        if (isText ? !facts->outlines.isEmpty() : facts->hasGeometry && facts->style->visible) {
            bounds = first ? facts->bounds : bounds | facts->bounds;
            first = false;
        }
        return true;
    });
    return bounds;
}

} // namespace Svg
