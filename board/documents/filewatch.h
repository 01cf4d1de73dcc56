#pragma once

#include <pagehost/filestamp.h>

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>

namespace board {

/// Notices that somebody else changes, replaces or deletes a file while the board works on it.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    enum State {
        Same, ///< the contents are those that the board knows
        Gone,
        Changed
    };

    explicit FileWatch(QObject *parent);

    /// Watches a file of which the board knows these contents; an empty path for none. A file that is not the one
    /// that the stamp tells of is noticed at once.
    void watch(const QString &file, const pagehost::FileStamp &known);
    State state() const { return m_state; }
    /// Looks now. It happens by itself when the system tells of a change, and when the board becomes active, since
    /// not every file system tells.
    void look();

Q_SIGNALS:
    void stateChanged();

private:
    void follow();
    void setState(State state);

    QFileSystemWatcher m_watcher;
    QString m_file;
    pagehost::FileStamp m_known;
    pagehost::FileStamp m_seen; ///< at the last look
    State m_state = Same;
};

} // namespace board
