#include "text/textlayout.h"

#include "text/linebreaking.h"
#include "text/textpainting.h"
#include "text/textpositions.h"

#include <QtGui/QGuiApplication>

namespace Svg {

TextOutlines layOutText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        TextServices services)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    Problem problem;
    services.problem = &problem;
    services.fonts->beginText(text);
    TextContent content = collectText(tree, text, style, viewport, services.fonts);
    resolvePositions(tree, viewport, &content);
    breakLines(&content, services);
    TextOutlines outlines = paintedText(content, placeText(tree, content, viewport, services));
    outlines.problem = problem;
    outlines.hasReferences = content.hasReferences || DocumentFonts::areIn(tree);
    return outlines;
}

} // namespace Svg
