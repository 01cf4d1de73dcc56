#pragma once

#include "line/tools/draggedlinetool.h"

namespace line {

/// Draws lines whose ends are joined to what they are put on.
class ConnectorTool : public DraggedLineTool
{
public:
    ConnectorTool(pagehost::ToolPage *page, const shapekit::Kind &kind);

    /// The title of the undo step.
    static const shapekit::Text &stepText();

    void hover(const pagehost::ToolPointer &pointer) override;
    void hoverEnd() override;

protected:
    void begin(Line &line, const pagehost::ToolPointer &pointer) override;
    void draw(Line &line, const pagehost::ToolPointer &pointer) override;
    void ended() override;

private:
    using Connection = pagehost::ToolPage::Connection;

    quint32 numberOf(const Connection &connection);
    Connection endAt(const pagehost::ToolPointer &pointer) const;

    Connection m_from;
};

} // namespace line
