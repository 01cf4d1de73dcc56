#pragma once

#include "tree/attributes.h"

namespace Svg {

/// The id that an element's "href" refers to, or its "xlink:href" if it has no "href" (SVG 2 §16.1.4); empty unless
/// it is a reference into the document itself.
QString hrefTarget(const Attributes &attributes);

} // namespace Svg
