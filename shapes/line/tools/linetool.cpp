#include "line/tools/linetool.h"

#include <shapekit/text.h>

namespace line {

namespace {

/// Bend of a new curve, of its length, to the left of its way.
constexpr double newBend = -0.25;

} // namespace

LineTool::LineTool(pagehost::ToolPage *page, const shapekit::Kind &kind)
    : DraggedLineTool(page, kind, stepText())
{
}

const shapekit::Text &LineTool::stepText()
{
    static const shapekit::Text text("Draw a line", "Linie zeichnen");
    return text;
}

void LineTool::begin(Line &line, const pagehost::ToolPointer &pointer)
{
    const bool isArrow = style().variant == pagehost::ArrowLine;
    line.begin(pointer.pos, style().color, style().width, isArrow ? Line::Arrow : Line::Plain);
}

void LineTool::draw(Line &line, const pagehost::ToolPointer &pointer)
{
    const bool keepsSteps = pointer.modifiers.testFlag(Qt::ShiftModifier);
    const QPointF end = keepsSteps ? inSteps(start(), pointer.pos) : pointer.pos;
    line.drawTo(end, {0.5, style().variant == pagehost::CurvedLine ? newBend : 0});
}

} // namespace line
