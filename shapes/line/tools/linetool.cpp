#include "line/tools/linetool.h"

#include <shapekit/kind.h>
#include <shapekit/text.h>

#include <cmath>

namespace line {

namespace {

/// A press and release closer together than this draw nothing.
constexpr double clickPixels = 4;
/// Bend of a new curve, of its length, to the left of its way.
constexpr double newBend = -0.25;

} // namespace

LineTool::LineTool(pagehost::ToolPage *page, const shapekit::Kind &kind)
    : m_page(page)
    , m_kind(kind)
{
}

const shapekit::Text &LineTool::stepText()
{
    static const shapekit::Text text("Draw a line", "Linie zeichnen");
    return text;
}

void LineTool::press(const pagehost::ToolPointer &pointer)
{
    cancel();
    CBaseObject *object = m_page->createObject(m_kind.id());
    m_line = Line::of(object);
    if (!m_line)
        return;
    m_start = pointer.pos;
    m_isLong = false;
    const bool isArrow = m_style.variant == pagehost::ArrowLine;
    m_line->begin(m_start, m_style.color, m_style.width, isArrow ? Line::Arrow : Line::Plain);
    m_page->add(object);
}

void LineTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_line)
        return;
    const QPointF way = pointer.pos - m_start;
    m_isLong = m_isLong || std::hypot(way.x(), way.y()) >= clickPixels * pointer.pixel;
    if (!m_isLong)
        return;
    const bool keepsSteps = pointer.modifiers.testFlag(Qt::ShiftModifier);
    const QPointF end = keepsSteps ? inSteps(m_start, pointer.pos) : pointer.pos;
    m_line->drawTo(end, {0.5, m_style.variant == pagehost::CurvedLine ? newBend : 0});
}

void LineTool::release(const pagehost::ToolPointer &pointer)
{
    move(pointer);
    if (!m_line)
        return;
    if (!m_isLong) {
        cancel();
        return;
    }
    m_line = nullptr;
    m_page->commit(stepText().key(&m_kind), pagehost::ToolPage::Select);
}

bool LineTool::cancel()
{
    if (!m_line)
        return false;
    m_line = nullptr;
    m_page->revert();
    return true;
}

} // namespace line
