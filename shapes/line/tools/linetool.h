#pragma once

#include "line/tools/draggedlinetool.h"

namespace line {

/// Draws lines, arrows and curves from end to end. Shift keeps to directions of whole steps of 15 degrees.
class LineTool : public DraggedLineTool
{
public:
    LineTool(pagehost::ToolPage *page, const shapekit::Kind &kind);

    /// The title of the undo step.
    static const shapekit::Text &stepText();

protected:
    void begin(Line &line, const pagehost::ToolPointer &pointer) override;
    void draw(Line &line, const pagehost::ToolPointer &pointer) override;
};

} // namespace line
