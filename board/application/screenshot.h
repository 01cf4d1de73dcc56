#pragma once

#include <QtCore/QStringList>

namespace board {

class Workspace;

/// The states that a window can be pictured in.
QStringList screenshotStates();

/// Opens the window with a document (the demo pages when it is empty and the state needs shapes), brings it into
/// one of the states and writes a picture of it; for the state "all", pictures of sixteen situations into the
/// folder `file`. False, with a message on stderr, when the picture could not be written.
bool takeScreenshot(Workspace &workspace, const QString &state, const QString &file, const QString &document = {});

} // namespace board
