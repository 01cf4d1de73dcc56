#include "resolve/textlayout.h"

#include "text/textpainting.h"
#include "text/textpositions.h"

#include <QtGui/QGuiApplication>

namespace Svg {

TextOutlines layOutText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        GlyphOutlines *glyphs)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    TextContent content = collectText(tree, text, style, viewport);
    resolvePositions(tree, viewport, &content);
    Problem problem;
    TextOutlines outlines = paintedText(content, placeText(tree, content, viewport, {glyphs, &problem}));
    outlines.problem = problem;
    outlines.hasReferences = content.hasReferences;
    return outlines;
}

} // namespace Svg
