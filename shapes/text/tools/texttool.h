#pragma once

#include <pagehost/pagetool.h>

class CBaseObject;

namespace shapekit {
class Text;
struct Kind;
} // namespace shapekit

namespace text {

/// Puts a text on the page: where it is clicked, as wide as it grows; over a drag, with lines of that width. A
/// click on a text that is there goes on with that one.
class TextTool : public pagehost::PageTool
{
public:
    /// New texts are objects of `kind`.
    TextTool(pagehost::ToolPage *page, const shapekit::Kind &kind);

    /// The title of the undo step.
    static const shapekit::Text &stepText();

    void setStyle(const pagehost::ToolStyle &style) override { m_style = style; }
    QCursor cursor(double pixel) const override;
    void press(const pagehost::ToolPointer &pointer) override;
    void move(const pagehost::ToolPointer &pointer) override;
    void release(const pagehost::ToolPointer &pointer) override;
    bool isDrawing() const override { return m_isPressed; }
    bool cancel() override;

private:
    bool addText();

    pagehost::ToolPage *m_page;
    const shapekit::Kind &m_kind;
    pagehost::ToolStyle m_style;
    CBaseObject *m_object = nullptr; ///< of a drag that is farther than a click
    QPointF m_start;                 ///< scene coordinates
    bool m_isPressed = false;
};

} // namespace text
