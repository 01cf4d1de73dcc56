#pragma once

#include "images/images.h"

namespace Svg {

/// Reads the documents that images show.
const DocumentReader &documentReader();

} // namespace Svg
