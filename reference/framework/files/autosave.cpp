#include <pagehost/autosave.h>

#include <pagehost/documentfile.h>

#include <files/durablefile.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLockFile>
#include <QtCore/QUuid>

namespace pagehost {

namespace {

const QString copySuffix = QStringLiteral(".board");
const QString noteSuffix = QStringLiteral(".json");
const QString lockSuffix = QStringLiteral(".lock");
const QString originalKey = QStringLiteral("original");

QString besides(const QString &copy, const QString &suffix)
{
    return copy.left(copy.size() - copySuffix.size()) + suffix;
}

QString originalFileOf(const QString &copy)
{
    QFile note(besides(copy, noteSuffix));
    if (!note.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(note.readAll()).object().value(originalKey).toString();
}

/// Whether the process that made the copy is gone.
bool isAbandoned(const QString &copy)
{
    QLockFile lock(besides(copy, lockSuffix));
    lock.setStaleLockTime(0); // however long the other one lives
    return lock.tryLock(0);
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

void Autosave::setDocument(Document *document, const QString &originalFile)
{
    removeCopy();
    m_document = document;
    m_originalFile = originalFile;
    m_savedMark = 0;
    document ? m_timer.start() : m_timer.stop();
}

void Autosave::setOriginalFile(const QString &originalFile)
{
    removeCopy();
    m_originalFile = originalFile;
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

/// The lock comes first, so that nobody takes the copy for abandoned. It comes again when somebody has cleared the
/// folder.
bool Autosave::claim()
{
    if (m_lock && QFile::exists(besides(recoveryFile(), lockSuffix))) {
        return true;
    }
    m_lock.reset();
    QDir().mkpath(m_folder);
    const QString id = m_id.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : m_id;
    auto lock = std::make_unique<QLockFile>(QDir(m_folder).filePath(id + lockSuffix));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return false;
    }
    m_lock = std::move(lock);
    m_id = id;
    return true;
}

bool Autosave::saveNow()
{
    if (!m_document || !m_document->isModified()) {
        return true;
    }
    const quint64 mark = m_document->revision();
    if (m_hasCopy && mark == m_savedMark && QFile::exists(recoveryFile())) {
        return true;
    }
    FileMessage problem;
    problem.severity = FileMessage::Error;
    problem.textKey = QStringLiteral("IDS_FILE_CANNOT_WRITE");
    problem.arguments = QStringList{m_folder, QString()};
    if (!claim()) {
        Q_EMIT failed(problem);
        return false;
    }
    const QByteArray note = QJsonDocument(QJsonObject{{originalKey, m_originalFile}}).toJson();
    const WriteResult noted = writeDurably(besides(recoveryFile(), noteSuffix), note);
    const SaveResult result = noted.outcome == WriteResult::Written ? saveDocument(*m_document, recoveryFile())
                                                                    : SaveResult{false, problem};
    if (!result.saved) {
        Q_EMIT failed(result.problem);
        return false;
    }
    m_hasCopy = true;
    m_savedMark = mark;
    Q_EMIT saved(recoveryFile());
    return true;
}

void Autosave::removeCopy()
{
    if (!m_id.isEmpty()) {
        QFile::remove(recoveryFile());
        QFile::remove(besides(recoveryFile(), noteSuffix));
    }
    m_hasCopy = false;
}

QVector<RecoverableDocument> Autosave::recoverable() const
{
    QVector<RecoverableDocument> copies;
    const QFileInfoList files =
        QDir(m_folder).entryInfoList({QStringLiteral("*") + copySuffix}, QDir::Files, QDir::Time);
    for (const QFileInfo &file : files) {
        const QString copy = file.absoluteFilePath();
        if (copy != recoveryFile() && isAbandoned(copy)) {
            copies.append({copy, originalFileOf(copy), file.lastModified()});
        }
    }
    return copies;
}

OpenResult Autosave::recover(const RecoverableDocument &copy, const ObjectRegistry &registry) const
{
    OpenResult result = openDocument(copy.recoveryFile, registry);
    if (result.document) {
        result.document->noteChange();
    }
    return result;
}

void Autosave::discard(const RecoverableDocument &copy)
{
    for (const QString &suffix : {copySuffix, noteSuffix, lockSuffix}) {
        QFile::remove(besides(copy.recoveryFile, suffix));
    }
}

} // namespace pagehost
