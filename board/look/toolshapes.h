#pragma once

#include "look/iconnames.h"
#include "look/iconpaths.h"

namespace board {

/// Pictograms of the tools and of the window's parts.
IconShape toolShape(Icon which);

} // namespace board
