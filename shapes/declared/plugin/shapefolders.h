#pragma once

#include <declared/reader/message.h>

#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace declared {

class ShapeKind;

/// The folders that shapes are looked for in, first come first served: those of GLIOLOLOK_SHAPES, the user's own,
/// and the one beside the plug-in. One that isn't there is empty.
QStringList shapeFolders();

/// The folder beside the plug-in. Only its files may succeed coded shapes.
QString installedFolder();

/// All shapes of the files "*.shape.svg" in some folders. A file with a fault is left out, and one whose id is
/// taken; `problems` gets a line for each.
std::vector<std::unique_ptr<ShapeKind>> readFolders(const QStringList &folders, QStringList &problems,
                                                    const QString &installed = installedFolder());

} // namespace declared
