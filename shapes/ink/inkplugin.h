#pragma once

#include <shapekit/kindplugin.h>

#include <pagehost/pagetool.h>

#include <QtCore/QObject>

namespace ink {

/// Strokes, and the pen, the highlighter and the eraser for them.
class InkPlugin : public QObject, public shapekit::KindPlugin, public pagehost::ToolPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    QVector<pagehost::ToolRole> toolRoles() const override;
    pagehost::PageTool *createTool(pagehost::ToolRole role, pagehost::ToolPage *page) const override;
};

} // namespace ink
