#pragma once

#include "line/core/line.h"

#include <pagehost/pagetool.h>

namespace shapekit {
class Text;
struct Kind;
} // namespace shapekit

namespace line {

/// Draws lines whose ends are joined to what they are put on.
class ConnectorTool : public pagehost::PageTool
{
public:
    /// New lines are objects of `kind`.
    ConnectorTool(pagehost::ToolPage *page, const shapekit::Kind &kind);

    /// The title of the undo step.
    static const shapekit::Text &stepText();

    void setStyle(const pagehost::ToolStyle &style) override { m_style = style; }
    void press(const pagehost::ToolPointer &pointer) override;
    void move(const pagehost::ToolPointer &pointer) override;
    void release(const pagehost::ToolPointer &pointer) override;
    bool isDrawing() const override { return m_line != nullptr; }
    bool cancel() override;

private:
    using Connection = pagehost::ToolPage::Connection;

    quint32 numberOf(const Connection &connection);
    Connection endAt(const pagehost::ToolPointer &pointer) const;
    void finish();

    pagehost::ToolPage *m_page;
    const shapekit::Kind &m_kind;
    pagehost::ToolStyle m_style;
    Line *m_line = nullptr; ///< while it is drawn
    QPointF m_start;        ///< scene coordinates
    Connection m_from;
    bool m_isLong = false; ///< dragged farther than a click
};

} // namespace line
