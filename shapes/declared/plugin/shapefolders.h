#pragma once

#include <declared/core/pluginmessage.h>
#include <declared/reader/declaration.h>

#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace declared {

class ShapeKind;

/// The folders that shapes are looked for in, first come first served: those of GLIOLOLOK_SHAPES, the user's own,
/// and the one beside the plug-in. One that isn't there is empty.
QStringList shapeFolders();
/// The folder of the user's own shapes.
QString userFolder();

/// The folder beside the plug-in. Only its files may succeed coded shapes.
QString installedFolder();

/// The files "*.shape.svg" of a folder, by name.
QFileInfoList shapeFilesIn(const QString &folder);

/// Declarations of files when they could be read last, by path.
using GoodFiles = QHash<QString, SharedDeclaration>;

/// Notified of faults while folders are read, and later of those of drawing the shapes.
struct FaultListeners
{
    pagehost::MessageListener ofFile;
    pagehost::MessageListener ofDrawing;
};

/// All shapes of the files in some folders. A file with a fault counts as what `good` holds of it, else it is left
/// out, as is one whose id is taken.
std::vector<std::unique_ptr<ShapeKind>> readFolders(const QStringList &folders, const FaultListeners &listeners,
                                                    GoodFiles &good, const QString &installed = installedFolder());

} // namespace declared
