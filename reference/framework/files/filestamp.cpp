#include <pagehost/filestamp.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace pagehost {

namespace {

constexpr qint64 nanosecondsOfSecond = 1000000000;

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * nanosecondsOfSecond + time.tv_nsec;
}

FileStamp stampOf(const struct stat &facts)
{
    FileStamp stamp;
    stamp.device = facts.st_dev;
    stamp.inode = facts.st_ino;
    stamp.size = facts.st_size;
    stamp.modified = nanoseconds(facts.st_mtim);
    stamp.touched = nanoseconds(facts.st_ctim);
    return stamp;
}

/// JSON numbers are doubles, which do not represent all of these.
QString text(qint64 number)
{
    return QString::number(number);
}

} // namespace

bool FileStamp::isSameFile(const FileStamp &other) const
{
    return device == other.device && inode == other.inode && size == other.size && modified == other.modified &&
           touched == other.touched;
}

bool FileStamp::hasSameContents(const FileStamp &other) const
{
    return !isNull() && size == other.size && !hash.isEmpty() && hash == other.hash;
}

FileStamp FileStamp::of(int descriptor, const QByteArray &contents)
{
    struct stat facts = {};
    FileStamp stamp;
    if (::fstat(descriptor, &facts) == 0)
        stamp = stampOf(facts);
    stamp.size = contents.size();
    stamp.hash = QCryptographicHash::hash(contents, QCryptographicHash::Sha256);
    return stamp;
}

FileStamp FileStamp::of(const QString &file)
{
    FileStamp stamp = atAGlance(file);
    QFile in(file);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    // A device may never end.
    if (stamp.isNull() || !QFileInfo(file).isFile() || !in.open(QIODevice::ReadOnly) || !hash.addData(&in))
        return {};
    stamp.hash = hash.result();
    return stamp;
}

FileStamp FileStamp::atAGlance(const QString &file)
{
    struct stat facts = {};
    return ::stat(QFile::encodeName(file).constData(), &facts) == 0 ? stampOf(facts) : FileStamp();
}

QJsonObject FileStamp::toJson() const
{
    if (isNull())
        return {};
    return {{QStringLiteral("device"), text(qint64(device))},
            {QStringLiteral("inode"), text(qint64(inode))},
            {QStringLiteral("size"), text(size)},
            {QStringLiteral("modified"), text(modified)},
            {QStringLiteral("touched"), text(touched)},
            {QStringLiteral("hash"), QString::fromLatin1(hash.toHex())}};
}

FileStamp FileStamp::fromJson(const QJsonObject &object)
{
    bool isWhole = true;
    const auto number = [&](const char *name) {
        bool isNumber = false;
        const qint64 value = object.value(QLatin1String(name)).toString().toLongLong(&isNumber);
        isWhole = isWhole && isNumber;
        return value;
    };
    FileStamp stamp;
    stamp.device = quint64(number("device"));
    stamp.inode = quint64(number("inode"));
    stamp.size = number("size");
    stamp.modified = number("modified");
    stamp.touched = number("touched");
    stamp.hash = QByteArray::fromHex(object.value(QLatin1String("hash")).toString().toLatin1());
    return isWhole ? stamp : FileStamp();
}

ReplacementEffects effectsOfReplacing(const QString &file)
{
    struct stat facts = {};
    if (::stat(QFile::encodeName(file).constData(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return {};
    return {int(facts.st_nlink) - 1, ::geteuid() != 0 && facts.st_uid != ::geteuid()};
}

} // namespace pagehost
