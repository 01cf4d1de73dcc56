#pragma once

#include <QtCore/Qt>

class QMainWindow;

namespace board {

/// Gives a window that is not yet shown the place and the panels that it had when rememberWindow() was last called;
/// at first its own size. In either case no more of the screen than there is.
void restoreWindow(QMainWindow *window);
void rememberWindow(const QMainWindow *window);

/// The edge of the window that the user's tools lie at; at first the left one.
Qt::Edge rememberedDockEdge();
void rememberDockEdge(Qt::Edge edge);

/// Whether the user has chosen dark colours.
bool remembersDarkColors();
void rememberDarkColors(bool dark);

} // namespace board
