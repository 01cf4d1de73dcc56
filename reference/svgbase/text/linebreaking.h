#pragma once

#include "text/textshaping.h"

namespace Svg {

/// Breaks a text with an "inline-size" into lines (SVG 2 §11.7.1): the first character of each line is given its
/// place, white space at the ends of lines takes no room. Places that its lists of "x" and "y" give to others than
/// the first character don't count. Lines are as far apart as the text element's "line-height" says.
void breakLines(TextContent *content, const TextServices &services);

} // namespace Svg
