#pragma once

#include <shapekit/text.h>

namespace ink {

/// Titles of the undo steps of the tools.
extern const shapekit::Text drawnText;
extern const shapekit::Text erasedText;

} // namespace ink
