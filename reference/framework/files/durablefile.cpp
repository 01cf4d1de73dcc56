#include <files/durablefile.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace pagehost {

namespace {

WriteResult failed(const QString &problem)
{
    return {WriteResult::Failed, problem};
}

QString systemProblem()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// Devices and pipes: a file would take their place.
bool isSpecial(const QString &file)
{
    const QFileInfo info(file);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace

WriteResult writeDurably(const QString &file, const QByteArray &bytes)
{
    if (isSpecial(file)) {
        return failed(QString::fromLocal8Bit(std::strerror(EOPNOTSUPP)));
    }
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly)) {
        return failed(out.errorString());
    }
    // QSaveFile takes a short write for success and would put the torn file in the good one's place.
    const qint64 written = out.write(bytes);
    if (written >= 0 && written < bytes.size()) {
        out.cancelWriting();
        return {WriteResult::ShortWrite, out.errorString()};
    }
    if (written < 0 || !out.flush()) {
        const QString problem = out.errorString();
        out.cancelWriting();
        return failed(problem);
    }
    // Before the rename, and with its result: commit() tells nobody when the disk did not take the bytes.
    if (::fsync(out.handle()) != 0) {
        const QString problem = systemProblem();
        out.cancelWriting();
        return failed(problem);
    }
    if (!out.commit()) {
        return failed(out.errorString());
    }
    syncDirectoryOf(file);
    return {};
}

bool syncDirectoryOf(const QString &file)
{
    const QByteArray directory = QFile::encodeName(QFileInfo(file).absolutePath());
    const int descriptor = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const bool synced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return synced;
}

} // namespace pagehost
