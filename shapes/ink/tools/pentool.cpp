#include "ink/tools/pentool.h"

#include "ink/core/ink.h"
#include "ink/tools/steptexts.h"
#include "ink/tools/tipcursor.h"

#include <shapekit/kind.h>

#include <cmath>

namespace ink {

namespace {

constexpr int highlighterAlpha = 110;
constexpr int holdingTime = 500;
/// Nearer points say nothing about the line, pixels.
constexpr double shortestStep = 0.75;

constexpr double noPressure = -1;

} // namespace

PenTool::PenTool(pagehost::ToolPage *page, const shapekit::Kind &kind, bool isHighlighter)
    : m_page(page)
    , m_kind(kind)
    , m_isHighlighter(isHighlighter)
{
}

void PenTool::setStyle(const pagehost::ToolStyle &style)
{
    m_color = style.color;
    if (m_isHighlighter)
        m_color.setAlpha(highlighterAlpha);
    m_width = style.width;
    m_usesPressure = style.usesPressure;
    m_straightens = style.straightens;
}

StrokePoint PenTool::pointOf(const pagehost::ToolPointer &pointer) const
{
    return {pointer.pos, m_usesPressure ? pointer.pressure : noPressure};
}

QCursor PenTool::cursor(double pixel) const
{
    return tipCursor(m_color, m_width / pixel);
}

void PenTool::press(const pagehost::ToolPointer &pointer)
{
    cancel();
    CBaseObject *object = m_page->createObject(m_kind.id());
    m_stroke = Ink::of(object);
    if (!m_stroke)
        return;
    m_points = {pointOf(pointer)};
    m_isStraight = false;
    m_hasShift = false;
    m_stroke->begin(m_points, m_color, m_width);
    m_page->add(object);
}

void PenTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_stroke)
        return;
    const QPointF step = pointer.pos - m_points.last().place;
    if (std::hypot(step.x(), step.y()) >= shortestStep * pointer.pixel)
        follow(pointer);
}

void PenTool::follow(const pagehost::ToolPointer &pointer)
{
    m_points.append(pointOf(pointer));
    m_hasShift = pointer.modifiers.testFlag(Qt::ShiftModifier);
    show();
}

/// A straight line has the pressure of its start all along.
void PenTool::show()
{
    if (!m_isStraight && !m_hasShift)
        return m_stroke->redraw(m_points);
    m_stroke->redraw({m_points.first(), {m_points.last().place, m_points.first().pressure}});
}

void PenTool::release(const pagehost::ToolPointer &pointer)
{
    if (!m_stroke)
        return;
    if (pointer.pos != m_points.last().place)
        follow({pointer.pos, m_points.last().pressure, pointer.pixel, pointer.modifiers});
    m_stroke = nullptr;
    m_page->commit(drawnText.key(&m_kind), pagehost::ToolPage::Stay);
}

bool PenTool::cancel()
{
    if (!m_stroke)
        return false;
    m_stroke = nullptr;
    m_page->revert();
    return true;
}

int PenTool::stillTime() const
{
    return m_straightens ? holdingTime : 0;
}

void PenTool::heldStill()
{
    if (!m_stroke || m_points.size() < 2)
        return;
    m_isStraight = true;
    show();
}

} // namespace ink
