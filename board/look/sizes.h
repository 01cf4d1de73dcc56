#pragma once

#include <functional>

class QObject;

namespace board {

/// Sizes of the parts of the window, logical pixels.
struct Sizes
{
    int topBar; ///< height of the bar at the top
    int barButton;
    int barIcon;
    int dock; ///< across the edge of the window
    int dockButton;
    int dockIcon;
    int dockGap;
    int shelf;    ///< across, with its buttons 12 smaller
    int styleBar; ///< height of the bar at the selection
    int styleButton;
    int panel;   ///< width
    int palette; ///< width
    int kind;    ///< width of a shape in the palette
    int field;   ///< height; rows of the panel are 8 higher
    int pageStrip;
    int thumbnail; ///< width of a page in the strip
    int lessonBar;
    int timeLine;
    int menuRow;
    int listRow; ///< height of rows of the outline and the history
    int letters; ///< height of the font; 0 for that of the system
};

/// Between the dock and the shelf, and between the shelf and the page, logical pixels.
constexpr int shelfGap = 4;

/// The present ones: for mouse and pen, or for fingers.
const Sizes &sizes();
bool areSizesLarge();
void setLargeSizes(bool large);
/// Calls what followSizes() was given.
void applySizes();
/// Calls `apply` now and at each applySizes(), as long as `context` lives.
void followSizes(QObject *context, const std::function<void()> &apply);

} // namespace board
