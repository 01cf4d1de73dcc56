#pragma once

#include "line/core/line.h"

#include <pagehost/pagetool.h>

namespace shapekit {
class Text;
struct Kind;
} // namespace shapekit

namespace line {

/// Draws lines from where the pointer is pressed to where it is released. A click draws nothing.
class DraggedLineTool : public pagehost::PageTool
{
public:
    void setStyle(const pagehost::ToolStyle &style) override { m_style = style; }
    void press(const pagehost::ToolPointer &pointer) override;
    void move(const pagehost::ToolPointer &pointer) override;
    void release(const pagehost::ToolPointer &pointer) override;
    bool isDrawing() const override { return m_line != nullptr; }
    bool cancel() override;

protected:
    /// New lines are objects of `kind`; `stepText` is the title of the undo step. Both outlive the tool.
    DraggedLineTool(pagehost::ToolPage *page, const shapekit::Kind &kind, const shapekit::Text &stepText);

    /// Gives a new line, not yet on the page, its look and its start.
    virtual void begin(Line &line, const pagehost::ToolPointer &pointer) = 0;
    /// Draws the line to the pointer.
    virtual void draw(Line &line, const pagehost::ToolPointer &pointer) = 0;
    /// The line is drawn, or given up.
    virtual void ended() {}

    pagehost::ToolPage &page() const { return *m_page; }
    const pagehost::ToolStyle &style() const { return m_style; }
    /// Where the pointer was pressed, scene coordinates.
    QPointF start() const { return m_start; }

private:
    void end();

    pagehost::ToolPage *m_page;
    const shapekit::Kind &m_kind;
    const shapekit::Text &m_stepText;
    pagehost::ToolStyle m_style;
    Line *m_line = nullptr; ///< while it is drawn
    QPointF m_start;
    bool m_isLong = false; ///< dragged farther than a click
};

} // namespace line
