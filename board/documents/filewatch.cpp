#include "documents/filewatch.h"

#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>

namespace board {

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::look);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            look();
    });
}

void FileWatch::watch(const QString &file, const pagehost::FileStamp &known)
{
    const QStringList before = m_watcher.files() + m_watcher.directories();
    if (!before.isEmpty())
        m_watcher.removePaths(before);
    m_file = file;
    m_known = known;
    m_seen = known;
    m_state = Same;
    if (m_file.isEmpty())
        return;
    follow();
    look();
}

/// Files that are replaced by others drop out of the watcher, which still tells of the folder then.
void FileWatch::follow()
{
    const QFileInfo info(m_file);
    if (info.exists() && !m_watcher.files().contains(m_file))
        m_watcher.addPath(m_file);
    const QString folder = info.absolutePath();
    if (QFileInfo::exists(folder) && !m_watcher.directories().contains(folder))
        m_watcher.addPath(folder);
}

void FileWatch::look()
{
    if (m_file.isEmpty())
        return;
    follow();
    const pagehost::FileStamp now = pagehost::FileStamp::atAGlance(m_file);
    if (now.isSameFile(m_seen))
        return;
    m_seen = now;
    if (now.isNull())
        setState(Gone);
    else
        setState(pagehost::FileStamp::of(m_file).hasSameContents(m_known) ? Same : Changed);
}

void FileWatch::setState(State state)
{
    if (state == m_state && state != Changed)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

} // namespace board
