#pragma once

#include "look/iconnames.h"
#include "look/iconpaths.h"

namespace board {

/// Pictograms of arranging several objects, and of papers.
IconShape arrangingShape(Icon which);

} // namespace board
