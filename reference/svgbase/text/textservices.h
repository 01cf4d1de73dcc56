#pragma once

#include "text/documentfonts.h"
#include "text/glyphoutlines.h"
#include "tree/message.h"

namespace Svg {

/// What setting a text needs besides the text.
struct TextServices
{
    GlyphOutlines *glyphs;
    DocumentFonts *fonts;
    /// Gets what was left out because of a limit.
    Problem *problem;
};

} // namespace Svg
