#pragma once

namespace board {

/// Whether the desktop is set to a theme of high contrast, or to stand still: in the environment variable GTK_THEME
/// and in the file gtk-3.0/settings.ini of the user or else of the system, which desktops of all kinds write.
bool desktopWantsHighContrast();
bool desktopWantsReducedMotion();

} // namespace board
