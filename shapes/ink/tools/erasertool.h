#pragma once

#include <pagehost/pagetool.h>

class CBaseObject;
class QLineF;

namespace shapekit {
struct Kind;
}

namespace ink {

class Ink;

/// Rubs out strokes, or the parts of them that it touches; one undo step a drag. Shift does the other of the two.
class EraserTool : public pagehost::PageTool
{
public:
    /// The remains of a stroke are objects of `kind`.
    EraserTool(pagehost::ToolPage *page, const shapekit::Kind &kind);

    void setStyle(const pagehost::ToolStyle &style) override { m_style = style; }
    QCursor cursor(double pixel) const override;
    void press(const pagehost::ToolPointer &pointer) override;
    void move(const pagehost::ToolPointer &pointer) override;
    void release(const pagehost::ToolPointer &pointer) override;
    bool isDrawing() const override { return m_isRubbing; }
    bool cancel() override;

private:
    void rub(const pagehost::ToolPointer &pointer);
    void rubOut(CBaseObject *object, const QLineF &way, bool wholeStroke);

    pagehost::ToolPage *m_page;
    const shapekit::Kind &m_kind;
    pagehost::ToolStyle m_style;
    bool m_isRubbing = false;
    QPointF m_last; ///< scene coordinates
};

} // namespace ink
