#include "core/pluginfolders.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace board {

QStringList defaultPluginFolders()
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString installed = programFolder.filePath(QStringLiteral("../" BOARD_LIBRARY_DIR "/gliololok/shapes"));
    const QString built = programFolder.filePath(QStringLiteral("../lib/gliololok/shapes"));
    return {QDir::cleanPath(QDir(installed).exists() ? installed : built)};
}

QString pluginProblemText(const pagehost::PluginReport &report)
{
    const QString pattern = report.loaded ? QStringLiteral("Not all of the plug-in %1 could be used: %2")
                                          : QStringLiteral("The plug-in %1 could not be loaded: %2");
    return pattern.arg(QDir::toNativeSeparators(report.file), report.problem);
}

} // namespace board
