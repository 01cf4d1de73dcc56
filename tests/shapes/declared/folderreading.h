#pragma once

#include <declared/core/shapekind.h>
#include <declared/plugin/shapefolders.h>

namespace declaredtest {

/// Reads folders; `problems` gets a line for each fault of a file.
inline std::vector<std::unique_ptr<declared::ShapeKind>>
readFolders(const QStringList &folders, QStringList &problems,
            const QString &installed = declared::installedFolder())
{
    declared::GoodFiles good;
    const auto note = [&](const pagehost::PluginMessage &fault) { problems.append(fault.told()); };
    return declared::readFolders(folders, {note, {}}, good, installed);
}

} // namespace declaredtest
