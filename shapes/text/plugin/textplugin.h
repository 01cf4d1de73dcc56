#pragma once

#include <shapekit/shapeplugin.h>

#include <pagehost/pagetool.h>

namespace text {

/// Texts, and the tool that writes them.
class TextPlugin : public shapekit::ShapePlugin, public pagehost::ToolPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    TextPlugin();

    QVector<pagehost::ToolRole> toolRoles() const override { return {pagehost::ToolRole::Text}; }
    pagehost::PageTool *createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const override;

protected:
    QVector<const shapekit::Text *> furtherTexts() const override;
};

} // namespace text
