#pragma once

#include "text/textshaping.h"

namespace Svg {

/// Breaks a text with an "inline-size" into lines (SVG 2 §11.7.1): positions the first character of each line, and
/// gives no width to white space at the ends of lines. Of the lists of "x" and "y" only the first values count. The
/// distance of lines is the text element's "line-height".
void breakLines(TextContent *content, const TextServices &services);

} // namespace Svg
