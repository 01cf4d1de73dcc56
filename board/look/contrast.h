#pragma once

#include "look/themecolors.h"

class QPalette;

namespace board {

/// As the Web Content Accessibility Guidelines define it, 1 to 21.
double contrastOf(const QColor &one, const QColor &other);

/// Colours of the desktop for people who see little: one ground, one colour of letters and edges. A colour that
/// can't be told from the ground (7:1 for letters, 4.5:1 for the accent, 3:1 for what can't be used) is replaced.
ThemeColors highContrastColors(const QPalette &desktop);

} // namespace board
