#include "line/tools/connectortool.h"

#include <shapekit/text.h>

namespace line {

ConnectorTool::ConnectorTool(pagehost::ToolPage *page, const shapekit::Kind &kind)
    : DraggedLineTool(page, kind, stepText())
{
}

const shapekit::Text &ConnectorTool::stepText()
{
    static const shapekit::Text text("Connect objects", "Objekte verbinden");
    return text;
}

/// Shows where a line would begin.
void ConnectorTool::hover(const pagehost::ToolPointer &pointer)
{
    page().highlight(page().connectionAt(pointer).object);
}

void ConnectorTool::hoverEnd()
{
    page().highlight(nullptr);
}

void ConnectorTool::begin(Line &line, const pagehost::ToolPointer &pointer)
{
    m_from = page().connectionAt(pointer);
    const int variant = style().variant;
    const bool isAngled = variant == pagehost::AngledConnector || variant == pagehost::AngledArrow;
    const bool isArrow = variant == pagehost::StraightArrow || variant == pagehost::AngledArrow;
    line.begin(pointer.pos, style().color, style().width, isArrow ? Line::Arrow : Line::Plain,
               isAngled ? Line::Angled : Line::Direct);
    line.join(0, numberOf(m_from), m_from.place);
    page().highlight(m_from.object);
}

void ConnectorTool::draw(Line &line, const pagehost::ToolPointer &pointer)
{
    const Connection to = endAt(pointer);
    page().highlight(to.object);
    line.drawTo(pointer.pos, numberOf(to), to.place);
}

void ConnectorTool::ended()
{
    page().highlight(nullptr);
}

quint32 ConnectorTool::numberOf(const Connection &connection)
{
    return connection.object ? page().numberOf(connection.object) : 0;
}

/// An object is connected with itself only from one of its places to another.
ConnectorTool::Connection ConnectorTool::endAt(const pagehost::ToolPointer &pointer) const
{
    const Connection to = page().connectionAt(pointer);
    const bool isSame = to.object && to.object == m_from.object;
    const bool leadsNowhere = isSame && (to.place.isEmpty() || m_from.place.isEmpty() || to.place == m_from.place);
    return leadsNowhere ? Connection() : to;
}

} // namespace line
