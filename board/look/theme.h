#pragma once

#include <QtGui/QColor>

namespace board {

enum class Theme { Light, Dark };

/// Gives the whole application the colours and widget shapes of a theme, now and for windows that are made later.
void applyTheme(Theme theme);
Theme currentTheme();

/// Colours that have no role in QPalette.
struct ThemeColors
{
    QColor canvas;     ///< around the page
    QColor pageEdge;   ///< the page's outline
    QColor pageShadow; ///< with its alpha
    QColor border;     ///< lines between parts of the window
    QColor faintText;  ///< captions and hints
    QColor hover;      ///< behind a button under the mouse
    QColor shapePen;   ///< outlines of shapes in pictures of them
};
ThemeColors themeColors();

/// Spacings of the window, logical pixels.
constexpr int smallGap = 4;
constexpr int mediumGap = 8;
constexpr int largeGap = 12;

} // namespace board
