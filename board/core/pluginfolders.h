#pragma once

#include <pagehost/objectregistry.h>

#include <QtCore/QStringList>

namespace board {

/// The folder with the shapes that belong to this program, beside it in the build tree or where it was installed.
QStringList defaultPluginFolders();

/// One line that says which plug-in could not be used, or not fully, and why.
QString pluginProblemText(const pagehost::PluginReport &report);

} // namespace board
