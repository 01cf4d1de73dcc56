#include "line/plugin/lineplugin.h"

#include "line/core/line.h"
#include "line/tools/connectortool.h"
#include "line/tools/linetool.h"

namespace line {

LinePlugin::LinePlugin()
    : ShapePlugin({shapekit::kindOf<Line>(QStringLiteral(SHAPEKIT_NAME),
                                          shapekit::inEnglishAndGerman("Line", "Linie"), shapekit::Group::None)})
{
}

QVector<const shapekit::Text *> LinePlugin::furtherTexts() const
{
    return {&LineTool::stepText(), &ConnectorTool::stepText()};
}

pagehost::PageTool *LinePlugin::createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const
{
    if (role == pagehost::ToolRole::Connector)
        return new ConnectorTool(page, kind(0));
    return role == pagehost::ToolRole::Line ? new LineTool(page, kind(0)) : nullptr;
}

} // namespace line
