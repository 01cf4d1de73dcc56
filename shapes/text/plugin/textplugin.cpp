#include "text/plugin/textplugin.h"

#include "text/core/writing.h"
#include "text/tools/texttool.h"

namespace text {

TextPlugin::TextPlugin()
    : ShapePlugin({shapekit::kindOf<Writing>(QStringLiteral(SHAPEKIT_NAME),
                                             shapekit::inEnglishAndGerman("Text", "Text"), shapekit::Group::None)})
{
}

QVector<const shapekit::Text *> TextPlugin::furtherTexts() const
{
    return {&TextTool::stepText()};
}

pagehost::PageTool *TextPlugin::createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const
{
    return role == pagehost::ToolRole::Text ? new TextTool(page, kind(0)) : nullptr;
}

} // namespace text
