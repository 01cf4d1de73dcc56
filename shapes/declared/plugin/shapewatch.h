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
    /// Milliseconds without a change after which a saved file is complete.
    static constexpr int quietTime = 50;
    /// So often a change is waited for, each within the quiet time of the one before: a file that is written
    /// without a pause is told after a quarter of a second.
    static constexpr int mostWaits = 5;

    explicit ShapeWatch(QObject *parent = nullptr);

    /// Watches these folders and their present files in place of those before. A file that was replaced is watched
    /// no more: to be called after each change.
    void watch(const QStringList &folders);
    /// Tells of a change a little later. False where it doesn't wait any longer than it did anyway.
    bool tellLater();

Q_SIGNALS:
    void changed();

private:
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
    int m_waits = 0; ///< of the change that is told next
};

} // namespace declared
