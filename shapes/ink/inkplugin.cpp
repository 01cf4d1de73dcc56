#include "ink/inkplugin.h"

#include "ink/core/ink.h"
#include "ink/tools/erasertool.h"
#include "ink/tools/pentool.h"

namespace ink {

QVector<pagehost::ToolRole> InkPlugin::toolRoles() const
{
    return {pagehost::ToolRole::Pen, pagehost::ToolRole::Highlighter, pagehost::ToolRole::Eraser};
}

pagehost::PageTool *InkPlugin::createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const
{
    switch (role) {
    case pagehost::ToolRole::Pen:
    case pagehost::ToolRole::Highlighter:
        return new PenTool(page, role == pagehost::ToolRole::Highlighter);
    case pagehost::ToolRole::Eraser:
        return new EraserTool(page);
    default:
        return nullptr;
    }
}

} // namespace ink

SHAPEKIT_PLUGIN(ink::Ink, "Stroke", "Strich", None)
