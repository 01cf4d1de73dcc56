#include "support/systemcalls.h"

#include "support/patience.h"

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QProcess>

#include <algorithm>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

/// A copy of this process that waits for a byte, works, and ends.
struct Copy
{
    pid_t process = -1;
    int start = -1; ///< where the byte is written
};

struct Pipe
{
    Pipe()
    {
        if (::pipe2(ends, O_CLOEXEC) != 0)
            qFatal("there is no pipe");
    }
    bool send() { return ::write(ends[1], "w", 1) == 1; }
    bool receive()
    {
        char byte = 0;
        return ::read(ends[0], &byte, 1) == 1;
    }

    int ends[2];
};

Copy copyThatWaits(const std::function<int()> &work)
{
    Pipe ready;
    Pipe start;
    const pid_t process = ::fork();
    if (process == 0) {
        ::close(start.ends[1]);
        // strace is no ancestor of this process.
        ::prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
        ready.send();
        ::_exit(start.receive() ? work() : 0);
    }
    ::close(start.ends[0]);
    ready.receive(); // the next call is the one that waits
    ::close(ready.ends[0]);
    ::close(ready.ends[1]);
    return {process, start.ends[1]};
}

/// Of a line of strace's log ("rename(...) = 0"); empty for a line about something else.
QByteArray callOf(const QByteArray &line)
{
    const int end = line.indexOf('(');
    const QByteArray name = line.left(end);
    const bool isName =
        end > 0 && std::all_of(name.begin(), name.end(), [](char letter) {
            return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '_';
        });
    return isName ? name : QByteArray();
}

QVector<SystemCall> callsOf(const QString &log)
{
    QFile file(log);
    QVector<SystemCall> calls;
    if (!file.open(QIODevice::ReadOnly))
        return calls;
    QHash<QByteArray, int> numbers;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray name = callOf(line);
        if (!name.isEmpty())
            calls.append({name, ++numbers[name]});
    }
    return calls;
}

/// Waits until strace says that it traces the process; otherwise gives what it says instead.
QString problemOf(QProcess &strace)
{
    QByteArray told;
    while (!told.contains("attached")) {
        if (!strace.waitForReadyRead(patience))
            return QStringLiteral(
                       "strace cannot trace processes here (it is not installed, or ptrace is not permitted; "
                       "in a container, give it the capability SYS_PTRACE): ") +
                   strace.errorString() + QStringLiteral("; ") + QString::fromLocal8Bit(told.trimmed());
        told += strace.readAll();
    }
    return {};
}

} // namespace

QString SystemCall::killing() const
{
    return QStringLiteral("%1:signal=KILL:when=%2").arg(QString::fromLatin1(name), QString::number(number));
}

QString SystemCall::failing(const char *error) const
{
    return QStringLiteral("%1:error=%2:when=%3")
        .arg(QString::fromLatin1(name), QLatin1String(error), QString::number(number));
}

bool isPast(const TracedRun &run, const QByteArray &name)
{
    const auto hasName = [&](const SystemCall &call) { return call.name == name; };
    const auto found = std::find_if(run.calls.begin(), run.calls.end(), hasName);
    return found != run.calls.end() && found + 1 != run.calls.end();
}

TracedRun traced(const std::function<int()> &work, const QString &disturbance)
{
    ::signal(SIGPIPE, SIG_IGN);
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("calls"));
    const Copy copy = copyThatWaits(work);
    QStringList arguments{QStringLiteral("-o"), log, QStringLiteral("-p"), QString::number(copy.process)};
    if (!disturbance.isEmpty())
        arguments << QStringLiteral("-e") << QStringLiteral("inject=") + disturbance;
    QProcess strace;
    strace.setProcessChannelMode(QProcess::MergedChannels);
    strace.start(QStringLiteral("strace"), arguments);
    TracedRun run;
    run.problem = problemOf(strace);
    // A process that dies at its first call may be gone before it is told to begin.
    const bool begins = run.problem.isEmpty() && ::write(copy.start, "w", 1) == 1;
    if (run.problem.isEmpty() && !begins && disturbance.isEmpty())
        run.problem = QStringLiteral("the traced process has gone");
    ::close(copy.start);
    int status = 0;
    ::waitpid(copy.process, &status, 0);
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    strace.waitForFinished(patience);
    run.calls = callsOf(log);
    return run;
}

} // namespace support
