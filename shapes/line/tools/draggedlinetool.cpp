#include "line/tools/draggedlinetool.h"

#include <shapekit/kind.h>
#include <shapekit/text.h>

#include <QtCore/QLineF>

namespace line {

namespace {

/// A press and release closer together than this draw nothing.
constexpr double clickPixels = 4;

} // namespace

DraggedLineTool::DraggedLineTool(pagehost::ToolPage *page, const shapekit::Kind &kind,
                                 const shapekit::Text &stepText)
    : m_page(page)
    , m_kind(kind)
    , m_stepText(stepText)
{
}

void DraggedLineTool::press(const pagehost::ToolPointer &pointer)
{
    cancel();
    CBaseObject *object = m_page->createObject(m_kind.id());
    m_line = Line::of(object);
    if (!m_line)
        return;
    m_start = pointer.pos;
    m_isLong = false;
    begin(*m_line, pointer);
    m_page->add(object);
}

void DraggedLineTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_line)
        return;
    m_isLong = m_isLong || QLineF(m_start, pointer.pos).length() >= clickPixels * pointer.pixel;
    if (m_isLong)
        draw(*m_line, pointer);
}

void DraggedLineTool::release(const pagehost::ToolPointer &pointer)
{
    move(pointer);
    if (!m_line)
        return;
    if (!m_isLong) {
        cancel();
        return;
    }
    end();
    m_page->commit(m_stepText.key(&m_kind), pagehost::ToolPage::Select);
}

bool DraggedLineTool::cancel()
{
    if (!m_line) {
        // Whoever puts the tool down may not move the pointer.
        hoverEnd();
        return false;
    }
    end();
    m_page->revert();
    return true;
}

void DraggedLineTool::end()
{
    m_line = nullptr;
    ended();
}

} // namespace line
