#pragma once

#include <QtCore/QString>

namespace board {

class Workspace;

/// Whether a file is a declared shape, by its name.
bool isShapeFile(const QString &path);

/// Puts the shape that a file declares into the middle of the first page, without an undo step. The file's folder
/// must be among those of the registry. False when there is no such shape; the plug-in has told why.
bool placeShapeOf(const QString &path, Workspace &workspace);

} // namespace board
