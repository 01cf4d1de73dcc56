#pragma once

#include <shapekit/shapeplugin.h>

#include <pagehost/pagetool.h>

namespace line {

/// Lines, and the tools that draw them.
class LinePlugin : public shapekit::ShapePlugin, public pagehost::ToolPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    LinePlugin();

    QVector<pagehost::ToolRole> toolRoles() const override
    {
        return {pagehost::ToolRole::Line, pagehost::ToolRole::Connector};
    }
    pagehost::PageTool *createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const override;

protected:
    QVector<const shapekit::Text *> furtherTexts() const override;
};

} // namespace line
