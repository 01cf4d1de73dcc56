#include "ink/plugin/inkplugin.h"

#include "ink/core/ink.h"
#include "ink/tools/erasertool.h"
#include "ink/tools/pentool.h"
#include "ink/tools/steptexts.h"

namespace ink {

InkPlugin::InkPlugin()
    : ShapePlugin({shapekit::kindOf<Ink>(QStringLiteral(SHAPEKIT_NAME),
                                         shapekit::inEnglishAndGerman("Stroke", "Strich"), shapekit::Group::None)})
{
}

QVector<const shapekit::Text *> InkPlugin::furtherTexts() const
{
    return {&drawnText, &erasedText};
}

QVector<pagehost::ToolRole> InkPlugin::toolRoles() const
{
    return {pagehost::ToolRole::Pen, pagehost::ToolRole::Highlighter, pagehost::ToolRole::Eraser};
}

pagehost::PageTool *InkPlugin::createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const
{
    switch (role) {
    case pagehost::ToolRole::Pen:
    case pagehost::ToolRole::Highlighter:
        return new PenTool(page, kind(0), role == pagehost::ToolRole::Highlighter);
    case pagehost::ToolRole::Eraser:
        return new EraserTool(page, kind(0));
    default:
        return nullptr;
    }
}

} // namespace ink
