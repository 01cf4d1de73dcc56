#include <files/workfile.h>

#include <pagehost/filestamp.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace pagehost {

namespace {

const QString namePattern = QStringLiteral(".%1.unfinished-board");
/// Clean-up may take a file between its creation and its lock; another one is made then.
constexpr int mostAttempts = 16;

QString newName()
{
    return namePattern.arg(QUuid::createUuid().toString(QUuid::WithoutBraces));
}

bool isWorkFileName(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("\\A\\.[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\\.unfinished-board\\z"));
    return form.match(name).hasMatch();
}

/// False when another process holds the file, or has deleted it.
bool lockOwn(int descriptor)
{
    struct stat facts = {};
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::fstat(descriptor, &facts) == 0 && facts.st_nlink > 0;
}

/// Deletes the file unless a process is writing it.
bool removeIfAbandoned(const QByteArray &name)
{
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0)
        return false;
    const bool removed = lockOwn(descriptor) && ::unlink(name.constData()) == 0;
    ::close(descriptor);
    return removed;
}

} // namespace

WorkFile::~WorkFile()
{
    remove();
}

void WorkFile::remove()
{
    if (!m_name.isEmpty()) {
        ::unlink(m_name.constData());
        m_name.clear();
    }
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

bool WorkFile::create(const QString &folder, mode_t mode)
{
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        m_name = QFile::encodeName(QDir(folder).absoluteFilePath(newName()));
        m_descriptor = ::open(m_name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (m_descriptor < 0) {
            m_name.clear();
            return false;
        }
        if (lockOwn(m_descriptor))
            return true;
        remove();
    }
    errno = EAGAIN;
    return false;
}

bool WorkFile::write(const QByteArray &bytes)
{
    for (qint64 done = 0; done < bytes.size();) {
        const ssize_t taken = ::write(m_descriptor, bytes.constData() + done, size_t(bytes.size() - done));
        if (taken < 0 && errno != EINTR)
            return false;
        done += qMax<ssize_t>(taken, 0);
    }
    return true;
}

bool WorkFile::resemble(const struct stat &original)
{
    mode_t mode = original.st_mode & 07777;
    const bool keepsGroup = ::fchown(m_descriptor, uid_t(-1), original.st_gid) == 0;
    if (!keepsGroup)
        mode = (mode & ~mode_t(S_IRWXG | S_ISGID)) | ((mode & S_IRWXO) << 3);
    // Last, since changing the owner clears bits of the mode, and loses the right to set them.
    if (::fchown(m_descriptor, original.st_uid, gid_t(-1)) != 0)
        mode &= ~mode_t(S_ISUID);
    return ::fchmod(m_descriptor, mode) == 0;
}

bool WorkFile::sync()
{
    return ::fsync(m_descriptor) == 0;
}

bool WorkFile::takePlaceOf(const QString &file)
{
    if (std::rename(m_name.constData(), QFile::encodeName(file).constData()) != 0)
        return false;
    m_name.clear();
    return true;
}

int removeUnfinishedSaves(const QString &folder)
{
    const QDir directory(folder);
    int removed = 0;
    const QStringList names = directory.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names)
        if (isWorkFileName(name) && removeIfAbandoned(QFile::encodeName(directory.absoluteFilePath(name))))
            ++removed;
    return removed;
}

} // namespace pagehost
