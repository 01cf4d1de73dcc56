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
    CBaseObject *object = m_page->createObject(m_kind.id());
    Writing *writing = Writing::of(object);
    if (!writing)
        return;
    writing->begin(m_style.color, m_style.width);
    m_start = pointer.pos;
    m_isWide = false;
    object->CPSRootObject::setPos(m_start - QPointF(0, halfLine * m_style.width), false);
    m_page->add(object);
    m_object = object;
}

void TextTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_object)
        return;
    const double width = std::abs(pointer.pos.x() - m_start.x());
    m_isWide = m_isWide || width >= clickPixels * pointer.pixel;
    if (!m_isWide)
        return;
    const QPointF corner(std::min(pointer.pos.x(), m_start.x()), m_start.y());
    m_object->CPSRootObject::setPos(corner, true);
    Writing::of(m_object)->wrapTo(width);
}

void TextTool::release(const pagehost::ToolPointer &pointer)
{
    move(pointer);
    if (!m_object)
        return;
    m_object = nullptr;
    m_page->commit(stepText().key(&m_kind), pagehost::ToolPage::Write);
}

bool TextTool::cancel()
{
    if (!m_object)
        return false;
    m_object = nullptr;
    m_page->revert();
    return true;
}

} // namespace text
