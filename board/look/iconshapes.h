#pragma once

#include "look/iconnames.h"
#include "look/iconpaths.h"

namespace board {

IconShape iconShape(Icon which);

} // namespace board
