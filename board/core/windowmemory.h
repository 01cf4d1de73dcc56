#pragma once

#include <QtCore/Qt>

class QMainWindow;

namespace board {

/// Gives a window that is not yet shown the place that it had when rememberWindow() was last called;
/// at first its own size. In either case no more of the screen than there is.
void restoreWindow(QMainWindow *window);
void rememberWindow(const QMainWindow *window);

/// The edge of the window that the user has chosen for the tools; until then the one where lines of text begin.
Qt::Edge rememberedDockEdge();
void rememberDockEdge(Qt::Edge edge);

/// Whether tools are large enough for fingers, and whether that has been offered; at first neither.
bool remembersLargeTools();
void rememberLargeTools(bool large);
bool remembersOfferOfLargeTools();
void rememberOfferOfLargeTools();

/// Parts of the window that users keep beside the page or not; at first none.
enum class Pane { Panel, Palette, Pages };
bool remembersPinned(Pane pane);
void rememberPinned(Pane pane, bool pinned);

/// Whether the user has chosen dark colours.
bool remembersDarkColors();
void rememberDarkColors(bool dark);

/// Whether colours shall have the highest contrast, and nothing shall move; at first what the desktop wants.
bool remembersHighContrast();
void rememberHighContrast(bool high);
bool remembersReducedMotion();
void rememberReducedMotion(bool reduced);

/// Whether drags snap; at first they do.
bool remembersSnapping();
void rememberSnapping(bool on);

/// Whether fingers draw where there is a pen, too; at first they don't.
bool remembersFingersDraw();
void rememberFingersDraw(bool draw);

/// Whether pages show a grid; at first they don't.
bool remembersGrid();
void rememberGrid(bool shown);

} // namespace board
