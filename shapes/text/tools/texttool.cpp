#include "text/tools/texttool.h"

#include "text/core/writing.h"

#include <shapekit/kind.h>
#include <shapekit/text.h>

#include <framework/cbaseobject.h>

#include <algorithm>
#include <cmath>

namespace text {

namespace {

/// A press and release closer together than this are a click.
constexpr double clickPixels = 4;
/// The click is in the middle of the first line: the top of its box is above by this part of the font size.
constexpr double halfLine = 0.6;

} // namespace

TextTool::TextTool(pagehost::ToolPage *page, const shapekit::Kind &kind)
    : m_page(page)
    , m_kind(kind)
{
}

const shapekit::Text &TextTool::stepText()
{
    static const shapekit::Text text("Write a text", "Text schreiben");
    return text;
}

QCursor TextTool::cursor(double) const
{
    return Qt::IBeamCursor;
}

void TextTool::press(const pagehost::ToolPointer &pointer)
{
    cancel();
    m_start = pointer.pos;
    m_isPressed = true;
}

void TextTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_isPressed)
        return;
    const double width = std::abs(pointer.pos.x() - m_start.x());
    if (!m_object && (width < clickPixels * pointer.pixel || !addText()))
        return;
    const QPointF corner(std::min(pointer.pos.x(), m_start.x()), m_start.y());
    m_object->CPSRootObject::setPos(corner, true);
    Writing::of(m_object)->wrapTo(width);
}

void TextTool::release(const pagehost::ToolPointer &pointer)
{
    move(pointer);
    if (!m_isPressed)
        return;
    m_isPressed = false;
    if (!m_object && (m_page->writeAt(m_start) || !addText()))
        return;
    m_object = nullptr;
    m_page->commit(stepText().key(&m_kind), pagehost::ToolPage::Write);
}

/// Where a click has its first line. False where there is no such kind.
bool TextTool::addText()
{
    CBaseObject *object = m_page->createObject(m_kind.id());
    Writing *writing = Writing::of(object);
    if (!writing)
        return false;
    writing->begin(m_style.color, m_style.width);
    object->CPSRootObject::setPos(m_start - QPointF(0, halfLine * m_style.width), false);
    m_page->add(object);
    m_object = object;
    return true;
}

bool TextTool::cancel()
{
    if (!m_isPressed)
        return false;
    m_isPressed = false;
    m_object = nullptr;
    m_page->revert();
    return true;
}

} // namespace text
