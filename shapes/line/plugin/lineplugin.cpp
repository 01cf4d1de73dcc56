#include "line/plugin/lineplugin.h"

#include "line/core/line.h"
#include "line/tools/linetool.h"

namespace line {

LinePlugin::LinePlugin()
    : ShapePlugin({shapekit::kindOf<Line>(QStringLiteral(SHAPEKIT_NAME),
                                          shapekit::inEnglishAndGerman("Line", "Linie"), shapekit::Group::None)})
{
}

QVector<const shapekit::Text *> LinePlugin::furtherTexts() const
{
    return {&LineTool::stepText()};
}

pagehost::PageTool *LinePlugin::createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const
{
    return role == pagehost::ToolRole::Line ? new LineTool(page, kind(0)) : nullptr;
}

} // namespace line
