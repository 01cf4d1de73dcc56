#pragma once

#include <QtCore/QStringList>

namespace board {

class Workspace;

/// The states that a window can be pictured in.
QStringList screenshotStates();

/// Opens the window, brings it into one of the states and writes a picture of it. False, with a message on stderr,
/// when the picture could not be written.
bool takeScreenshot(Workspace &workspace, const QString &state, const QString &file);

} // namespace board
