#pragma once

class QAbstractButton;

namespace board {

/// @name Square buttons that follow the sizes of the window
/// @{
/// Of bars and panels.
void sizeAsBarButton(QAbstractButton *button);
/// Of the bar at the selection.
void sizeAsStyleButton(QAbstractButton *button);
/// @}
/// As high as a button of a bar, and as wide at least.
void sizeAsTextButton(QAbstractButton *button);

} // namespace board
