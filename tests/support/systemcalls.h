#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtCore/QVector>

#include <functional>

namespace support {

/// A system call of a traced process: which one, and the how manieth of its kind.
struct SystemCall
{
    QByteArray name;
    int number = 0; ///< from 1

    /// Disturbances for traced(): the process dies when it gets to the call, or the call fails.
    QString killing() const;
    QString failing(const char *error) const;
};

/// Outcome of a traced process.
struct TracedRun
{
    QString problem;           ///< why it could not be traced; empty when it was
    QVector<SystemCall> calls; ///< in their order
    int exitCode = -1;         ///< -1 when it was killed
};

/// Runs `work` in a copy of this process and traces its system calls with strace, from the first to the last.
/// `work` returns the exit code. `disturbance` is what strace is to inject ("rename:signal=KILL:when=1"); empty for
/// nothing.
TracedRun traced(const std::function<int()> &work, const QString &disturbance = {});

/// Whether the process got beyond the only call of that name.
bool isPast(const TracedRun &run, const QByteArray &name);

} // namespace support
