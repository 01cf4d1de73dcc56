#pragma once

#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// What of an element's own lists is beyond a limit, so that whoever reads them leaves it out; that comes later, or
/// never. Nothing for the elements whose readers tell it themselves.
Problem leftOut(const Tree &tree, NodeIndex element);

} // namespace Svg
