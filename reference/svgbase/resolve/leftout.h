#pragma once

#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// Items of an element's lists that exceed a limit; readers skip them. Empty for elements whose readers report that
/// themselves.
Problem leftOut(const Tree &tree, NodeIndex element);

} // namespace Svg
