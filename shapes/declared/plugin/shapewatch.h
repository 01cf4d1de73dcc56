#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

namespace declared {

/// Watches folders of files that declare shapes, those that aren't there yet, too, and tells when something in them
/// has changed. Programs save in several steps, which are told once.
class ShapeWatch : public QObject
{
    Q_OBJECT

public:
    explicit ShapeWatch(QObject *parent = nullptr);

    /// Watches these folders and their present files in place of those before. A file that was replaced is watched
    /// no more: to be called after each change.
    void watch(const QStringList &folders);
    /// Tells of a change a little later.
    void tellLater() { m_timer.start(); }

Q_SIGNALS:
    void changed();

private:
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
};

} // namespace declared
