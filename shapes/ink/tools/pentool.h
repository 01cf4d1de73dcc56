#pragma once

#include "ink/core/strokedata.h"
#include "ink/core/strokeform.h"

#include <pagehost/pagetool.h>

#include <optional>

namespace shapekit {
struct Kind;
}

namespace ink {

class Ink;

/// Draws strokes, one undo step each. Shift makes a stroke a straight line, holding the pen still makes it the form
/// that it was meant to be.
class PenTool : public pagehost::PageTool
{
public:
    /// Strokes are objects of `kind`. A highlighter draws with translucent ink.
    PenTool(pagehost::ToolPage *page, const shapekit::Kind &kind, bool isHighlighter);

    void setStyle(const pagehost::ToolStyle &style) override;
    QCursor cursor(double pixel) const override;
    void press(const pagehost::ToolPointer &pointer) override;
    void move(const pagehost::ToolPointer &pointer) override;
    void release(const pagehost::ToolPointer &pointer) override;
    bool isDrawing() const override { return m_stroke != nullptr; }
    bool cancel() override;
    int stillTime() const override;
    void heldStill() override;

private:
    StrokePoint pointOf(const pagehost::ToolPointer &pointer) const;
    void follow(const pagehost::ToolPointer &pointer);
    void show();
    void showForm(const StrokeForm &form);

    pagehost::ToolPage *m_page;
    const shapekit::Kind &m_kind;
    bool m_isHighlighter;
    QColor m_color;
    double m_width = 1;
    bool m_usesPressure = true;
    bool m_straightens = true;
    Ink *m_stroke = nullptr; ///< while it is drawn
    QVector<StrokePoint> m_points;
    double m_pixel = 1;               ///< of the screen, units of the page
    std::optional<StrokeForm> m_form; ///< since the pen was held still
    QPointF m_restingPlace;           ///< where it was
    bool m_hasShift = false;
};

} // namespace ink
