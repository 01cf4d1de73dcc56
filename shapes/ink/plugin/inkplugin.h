#pragma once

#include <shapekit/shapeplugin.h>

#include <pagehost/pagetool.h>

namespace ink {

/// Strokes, and the pen, the highlighter and the eraser for them.
class InkPlugin : public shapekit::ShapePlugin, public pagehost::ToolPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    InkPlugin();

    QVector<pagehost::ToolRole> toolRoles() const override;
    pagehost::PageTool *createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const override;

protected:
    QVector<const shapekit::Text *> furtherTexts() const override;
};

} // namespace ink
