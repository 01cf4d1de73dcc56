#pragma once

#include <QtGui/QColor>

namespace board {

/// Colours by what they are for. Text on bars, surfaces and fields has a contrast of 4.5:1 at least, an edge of
/// 3:1.
struct ThemeColors
{
    QColor bar;     ///< behind bars, the dock and the panel
    QColor surface; ///< behind what pops up
    QColor desk;    ///< around the page
    QColor field;   ///< behind what is typed
    QColor text;
    QColor faint;    ///< captions, keys and hints
    QColor disabled; ///< text of what can't be used now
    QColor accent;
    QColor onAccent; ///< text on the accent
    QColor soft;     ///< behind what is chosen
    QColor border;   ///< lines between parts of the window
    QColor control;  ///< edges of fields and handles
    QColor hover;    ///< behind a button under the mouse
    QColor bad, good, warn, record;
    QColor shadow;     ///< of what lies above something else, with its alpha
    QColor pageShadow; ///< of paper, with its alpha
    QColor shapePen;   ///< outlines of shapes in pictures of them
};

} // namespace board
