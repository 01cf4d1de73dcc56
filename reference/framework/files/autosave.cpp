#include <pagehost/autosave.h>

#include <pagehost/documentfile.h>

#include <files/durablefile.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLockFile>
#include <QtCore/QSysInfo>
#include <QtCore/QUuid>

#include <fcntl.h>
#include <sys/stat.h>

namespace pagehost {

namespace {

const QString copySuffix = QStringLiteral(".board");
const QString noteSuffix = QStringLiteral(".json");
const QString lockSuffix = QStringLiteral(".lock");
const QString originalKey = QStringLiteral("original");
const QString stampKey = QStringLiteral("stamp");

QString besides(const QString &copy, const QString &suffix)
{
    return copy.left(copy.size() - copySuffix.size()) + suffix;
}

QJsonObject noteOf(const QString &copy)
{
    QFile note(besides(copy, noteSuffix));
    if (!note.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(note.readAll()).object();
}

/// Whether the lock names a process of this machine.
bool namesProcessHere(const QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program) && (host.isEmpty() || host == QSysInfo::machineHostName());
}

/// Whether the process that made the copy has ended.
bool isAbandoned(const QString &copy)
{
    QLockFile lock(besides(copy, lockSuffix));
    // A running process keeps its lock, however long it is inactive. With 0 no lock is stale by its age alone.
    lock.setStaleLockTime(namesProcessHere(lock) ? 0 : Autosave::longestSilence);
    return lock.tryLock(0);
}

void touch(const QString &file)
{
    ::utimensat(AT_FDCWD, QFile::encodeName(file).constData(), nullptr, 0);
}

} // namespace

Autosave::Autosave(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(QDir(folder).absolutePath())
{
    m_timer.setInterval(defaultInterval);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::saveNow);
}

Autosave::~Autosave()
{
    close();
}

void Autosave::setDocument(Document *document, const QString &originalFile, const FileStamp &originalStamp)
{
    setOriginalFile(originalFile, originalStamp);
    m_document = document;
    m_savedMark = 0;
    document ? m_timer.start() : m_timer.stop();
}

void Autosave::setOriginalFile(const QString &originalFile, const FileStamp &originalStamp)
{
    removeCopy();
    m_originalFile = originalFile;
    m_originalStamp = originalStamp;
}

void Autosave::setInterval(int milliseconds)
{
    m_timer.setInterval(milliseconds);
}

void Autosave::close()
{
    setDocument(nullptr, QString());
    m_lock.reset();
    m_id.clear();
}

QString Autosave::recoveryFile() const
{
    return m_id.isEmpty() ? QString() : QDir(m_folder).filePath(m_id + copySuffix);
}

/// The lock comes first, so that nobody takes the copy for abandoned. It is made again when somebody has cleared
/// the folder.
bool Autosave::claim()
{
    if (m_lock && QFile::exists(besides(recoveryFile(), lockSuffix)))
        return true;
    m_lock.reset();
    QDir().mkpath(m_folder);
    const QString id = m_id.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : m_id;
    auto lock = std::make_unique<QLockFile>(QDir(m_folder).filePath(id + lockSuffix));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0))
        return false;
    m_lock = std::move(lock);
    m_id = id;
    return true;
}

bool Autosave::saveNow()
{
    if (!m_document)
        return true;
    Q_EMIT aboutToLook();
    if (m_lock)
        touch(besides(recoveryFile(), lockSuffix));
    const quint64 mark = m_document->revision();
    const bool hasThis = m_hasCopy && mark == m_savedMark && QFile::exists(recoveryFile());
    if (!m_document->isModified() || hasThis)
        return true;
    FileMessage problem;
    problem.severity = FileMessage::Error;
    problem.textKey = QStringLiteral("IDS_FILE_CANNOT_WRITE");
    problem.arguments = QStringList{m_folder, QString()};
    if (!claim() || !writeCopy(problem)) {
        Q_EMIT failed(problem);
        return false;
    }
    m_hasCopy = true;
    m_savedMark = mark;
    Q_EMIT saved(recoveryFile());
    return true;
}

bool Autosave::writeCopy(FileMessage &problem)
{
    const QJsonObject note{{originalKey, m_originalFile}, {stampKey, m_originalStamp.toJson()}};
    const WriteResult noted = writeDurably(besides(recoveryFile(), noteSuffix), QJsonDocument(note).toJson());
    if (noted.outcome != WriteResult::Written)
        return false;
    const SaveResult result = saveDocument(*m_document, recoveryFile());
    if (!result.saved)
        problem = result.problem;
    return result.saved;
}

void Autosave::removeCopy()
{
    if (!m_id.isEmpty()) {
        QFile::remove(recoveryFile());
        QFile::remove(besides(recoveryFile(), noteSuffix));
    }
    m_hasCopy = false;
}

void Autosave::tidy() const
{
    removeUnfinishedSaves(m_folder);
    const QDir folder(m_folder);
    const QStringList notes = folder.entryList({QStringLiteral("*") + noteSuffix}, QDir::Files);
    for (const QString &note : notes) {
        const QString stem = folder.filePath(note.left(note.size() - noteSuffix.size()));
        const QString copy = stem + copySuffix;
        if (copy != recoveryFile() && !QFile::exists(copy) && isAbandoned(copy))
            discard({copy, {}, {}, {}});
    }
}

QVector<RecoverableDocument> Autosave::recoverable() const
{
    QVector<RecoverableDocument> copies;
    const QFileInfoList files =
        QDir(m_folder).entryInfoList({QStringLiteral("*") + copySuffix}, QDir::Files, QDir::Time);
    for (const QFileInfo &file : files) {
        const QString copy = file.absoluteFilePath();
        if (copy != recoveryFile() && isAbandoned(copy)) {
            const QJsonObject note = noteOf(copy);
            copies.append({copy, note.value(originalKey).toString(),
                           FileStamp::fromJson(note.value(stampKey).toObject()), file.lastModified()});
        }
    }
    return copies;
}

OpenResult Autosave::recover(const RecoverableDocument &copy, const ObjectRegistry &registry) const
{
    OpenResult result = openDocument(copy.recoveryFile, registry);
    result.stamp = copy.originalStamp;
    if (result.document)
        result.document->noteChange();
    return result;
}

void Autosave::discard(const RecoverableDocument &copy)
{
    for (const QString &suffix : {copySuffix, noteSuffix, lockSuffix})
        QFile::remove(besides(copy.recoveryFile, suffix));
}

} // namespace pagehost
