#include <declared/plugin/shapewatch.h>

#include <declared/plugin/shapefolders.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace declared {

namespace {

/// The system watches a limited number of files for a user; further ones are noticed when they are replaced.
constexpr int mostFiles = 1000;

/// The folder itself or, until somebody makes it, the nearest one above it.
QString nearestFolder(const QString &folder)
{
    QFileInfo info(folder);
    while (!info.isDir() && !info.isRoot() && info.absolutePath() != info.absoluteFilePath())
        info.setFile(info.absolutePath());
    return info.absoluteFilePath();
}

QStringList pathsOf(const QStringList &folders)
{
    QStringList paths;
    QStringList files;
    for (const QString &folder : folders) {
        if (folder.isEmpty())
            continue;
        paths.append(nearestFolder(folder));
        const QFileInfoList present = shapeFilesIn(folder);
        for (const QFileInfo &file : present)
            files.append(file.absoluteFilePath());
    }
    paths += files.mid(0, mostFiles);
    paths.removeDuplicates();
    return paths;
}

} // namespace

ShapeWatch::ShapeWatch(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(quietTime);
    connect(&m_timer, &QTimer::timeout, this, &ShapeWatch::changed);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &ShapeWatch::tellLater);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &ShapeWatch::tellLater);
}

bool ShapeWatch::tellLater()
{
    m_waits = m_timer.isActive() ? m_waits + 1 : 1;
    if (m_waits > mostWaits)
        return false;
    m_timer.start();
    return true;
}

void ShapeWatch::watch(const QStringList &folders)
{
    const QStringList wanted = pathsOf(folders);
    const QStringList present = m_watcher.files() + m_watcher.directories();
    QStringList gone;
    for (const QString &path : present)
        if (!wanted.contains(path))
            gone.append(path);
    QStringList added;
    for (const QString &path : wanted)
        if (!present.contains(path))
            added.append(path);
    if (!gone.isEmpty())
        m_watcher.removePaths(gone);
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

} // namespace declared
