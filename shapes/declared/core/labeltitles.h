#pragma once

#include <shapekit/text.h>

#include <memory>

namespace declared {

/// Titles of the properties of a label.
struct LabelTitles
{
    std::unique_ptr<shapekit::Text> text, size, bold, colour, alignment;
    std::unique_ptr<shapekit::Text> start, middle, end; ///< entries of the alignment
};

} // namespace declared
