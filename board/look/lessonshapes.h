#pragma once

#include "look/iconnames.h"
#include "look/iconpaths.h"

namespace board {

/// Pictograms of the ways through a lesson.
IconShape lessonShape(Icon which);

} // namespace board
