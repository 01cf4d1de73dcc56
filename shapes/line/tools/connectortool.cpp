#include "line/tools/connectortool.h"

#include <shapekit/kind.h>
#include <shapekit/text.h>

#include <QtCore/QLineF>

namespace line {

namespace {

/// A press and release closer together than this draw nothing.
constexpr double clickPixels = 4;

} // namespace

ConnectorTool::ConnectorTool(pagehost::ToolPage *page, const shapekit::Kind &kind)
    : m_page(page)
    , m_kind(kind)
{
}

const shapekit::Text &ConnectorTool::stepText()
{
    static const shapekit::Text text("Connect objects", "Objekte verbinden");
    return text;
}

void ConnectorTool::press(const pagehost::ToolPointer &pointer)
{
    cancel();
    CBaseObject *object = m_page->createObject(m_kind.id());
    m_line = Line::of(object);
    if (!m_line)
        return;
    m_start = pointer.pos;
    m_isLong = false;
    m_from = m_page->connectionAt(pointer);
    const bool isAngled = m_style.variant == pagehost::AngledConnector;
    m_line->begin(m_start, m_style.color, m_style.width, Line::Plain, isAngled ? Line::Angled : Line::Direct);
    m_line->join(0, numberOf(m_from), m_from.place);
    m_page->add(object);
    m_page->highlight(m_from.object);
}

void ConnectorTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_line)
        return;
    m_isLong = m_isLong || QLineF(m_start, pointer.pos).length() >= clickPixels * pointer.pixel;
    if (!m_isLong)
        return;
    const Connection to = endAt(pointer);
    m_page->highlight(to.object);
    m_line->drawTo(pointer.pos, numberOf(to), to.place);
}

void ConnectorTool::release(const pagehost::ToolPointer &pointer)
{
    move(pointer);
    if (!m_line)
        return;
    if (!m_isLong) {
        cancel();
        return;
    }
    finish();
    m_page->commit(stepText().key(&m_kind), pagehost::ToolPage::Select);
}

bool ConnectorTool::cancel()
{
    if (!m_line)
        return false;
    finish();
    m_page->revert();
    return true;
}

void ConnectorTool::finish()
{
    m_line = nullptr;
    m_page->highlight(nullptr);
}

quint32 ConnectorTool::numberOf(const Connection &connection)
{
    return connection.object ? m_page->numberOf(connection.object) : 0;
}

/// An object is connected with itself only from one of its places to another.
ConnectorTool::Connection ConnectorTool::endAt(const pagehost::ToolPointer &pointer) const
{
    const Connection to = m_page->connectionAt(pointer);
    const bool isSame = to.object && to.object == m_from.object;
    const bool leadsNowhere = isSame && (to.place.isEmpty() || m_from.place.isEmpty() || to.place == m_from.place);
    return leadsNowhere ? Connection() : to;
}

} // namespace line
