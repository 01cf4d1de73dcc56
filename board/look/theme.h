#pragma once

#include "look/themecolors.h"

class QWidget;

namespace board {

enum class Theme {
    Light,
    Dark,
    HighContrast ///< colours of the desktop, double edges, neither shadows nor anything that shines through
};

/// Gives the whole application the colours and widget shapes of a theme, now and for windows that are made later.
void applyTheme(Theme theme);
Theme currentTheme();

/// Makes letters and all parts of the window large enough for fingers, or as usual.
void applyLargeSizes(bool large);

/// Gives a window and its present parts the dark colours whatever the theme is. Those of high contrast stay.
void keepDark(QWidget *window);

/// Those of the window that `widget` is in; null stands for the theme's.
ThemeColors themeColors(const QWidget *widget = nullptr);
/// Of lines around fields, surfaces and parts of the window, logical pixels.
int edgeWidth();

/// Spacings of the window, logical pixels.
constexpr int smallGap = 4;
constexpr int mediumGap = 8;
constexpr int largeGap = 12;

constexpr int buttonRadius = 8;

} // namespace board
