#include <files/durablefile.h>

#include <files/workfile.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace pagehost {

namespace {

/// The limit of the system itself.
constexpr int mostLinks = 40;
/// Another board holds the lock of a folder while it examines a file and renames one. One that hangs must not block
/// this one.
constexpr int lockAttempts = 100;
constexpr int lockPause = 10;        ///< milliseconds
constexpr mode_t newFileMode = 0666; ///< limited by the process's umask
constexpr mode_t privateMode = 0600; ///< until the file has its owner

/// The result of a system call that has just failed.
WriteResult failed()
{
    const bool isFull = errno == ENOSPC || errno == EDQUOT || errno == EFBIG;
    return {isFull ? WriteResult::DiskFull : WriteResult::Failed, QString::fromLocal8Bit(std::strerror(errno)), {}};
}

WriteResult failed(int error)
{
    errno = error;
    return failed();
}

/// The target of a link, whether it exists or not.
QString withoutLinks(QString file)
{
    for (int hop = 0; hop < mostLinks && QFileInfo(file).isSymLink(); ++hop)
        file = QFileInfo(file).symLinkTarget();
    return file;
}

/// A folder while something in it is replaced: by one board at a time, as far as they use the lock.
class LockedFolder
{
public:
    explicit LockedFolder(const QString &folder)
        : m_descriptor(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        int attempt = 0;
        while (::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK && ++attempt < lockAttempts)
            QThread::msleep(lockPause);
    }
    ~LockedFolder()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY(LockedFolder)

    /// Writes the folder's entries to the disk.
    void sync() { ::fsync(m_descriptor); }

private:
    int m_descriptor;
};

bool isExpected(const QString &file, const FileStamp &expected)
{
    return !QFileInfo::exists(file) || FileStamp::of(file).hasSameContents(expected);
}

} // namespace

WriteResult writeDurably(const QString &file, const QByteArray &bytes, const std::optional<FileStamp> &expected)
{
    const QString target = withoutLinks(file);
    const QByteArray name = QFile::encodeName(target);
    struct stat before = {};
    const bool exists = ::stat(name.constData(), &before) == 0;
    // A file would replace devices and pipes.
    if (exists && !S_ISREG(before.st_mode) && !S_ISDIR(before.st_mode))
        return failed(EOPNOTSUPP);
    // Whoever may write to the folder could replace a protected file.
    if (exists && ::access(name.constData(), W_OK) != 0)
        return failed();
    const QString folder = QFileInfo(target).absolutePath();
    WorkFile work;
    if (!work.create(folder, exists ? privateMode : newFileMode) || !work.write(bytes) ||
        (exists && !work.resemble(before)) || !work.sync())
        return failed();
    LockedFolder lock(folder);
    if (expected && !isExpected(target, *expected))
        return {WriteResult::Conflict, QString::fromLocal8Bit(std::strerror(EEXIST)), {}};
    if (!work.takePlaceOf(target))
        return failed();
    lock.sync();
    return {WriteResult::Written, {}, FileStamp::of(work.descriptor(), bytes)};
}

} // namespace pagehost
