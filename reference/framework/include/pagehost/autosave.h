#pragma once

#include <pagehost/filestamp.h>

#include <framework/framework_global.h>

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtCore/QVector>

#include <memory>

class QLockFile;

namespace pagehost {

class Document;
class ObjectRegistry;
struct FileMessage;
struct OpenResult;

/// The copy left by a process that ended without saving.
struct RecoverableDocument
{
    QString recoveryFile; ///< absolute path of the copy, in the binary document format
    QString originalFile; ///< empty for a document that never was saved
    /// Of the original when the document was opened from it or saved to it last; null when that is not known.
    FileStamp originalStamp;
    QDateTime time; ///< when the copy was made
};

/// Keeps a recovery copy of a modified document in a folder, so that little is lost in a crash.
///
/// The copy stands beside a lock that names this process and is touched at every look at the document.
/// recoverable() lists the copies whose processes are gone. Of a lock that names no process of this machine nobody
/// can tell that but by its age.
class FRAMEWORK_EXPORT Autosave : public QObject
{
    Q_OBJECT

public:
    static constexpr int defaultInterval = 60000; ///< milliseconds
    /// Milliseconds after which a lock that names no process of this machine has been left behind.
    static constexpr int longestSilence = 10 * defaultInterval;

    /// `folder` is made when it is first needed.
    explicit Autosave(const QString &folder, QObject *parent = nullptr);
    /// Ends as close() does: a process that gets here has not crashed.
    ~Autosave() override;

    /// Watches `document`, saved as `originalFile` (empty for none), in place of the one before, whose copy goes.
    void setDocument(Document *document, const QString &originalFile, const FileStamp &originalStamp = {});
    /// After the document has been saved (as): its copy goes.
    void setOriginalFile(const QString &originalFile, const FileStamp &originalStamp = {});
    /// Milliseconds between two looks at the document; a copy is made at a look when the document is modified and
    /// has changed since the last copy, or when that copy is gone.
    void setInterval(int milliseconds);
    int interval() const { return m_timer.interval(); }
    /// Looks now. False when a copy was wanted and could not be made; failed() tells why.
    bool saveNow();
    /// Removes the copy and the lock and watches nothing.
    void close();

    QString folder() const { return m_folder; }
    /// The copy's absolute path, whether it is there or not; empty while nothing is watched.
    QString recoveryFile() const;

    /// Deletes what processes that died while they made their first copy left in the folder.
    void tidy() const;
    /// Copies in the folder that processes which are gone left behind, the newest first.
    QVector<RecoverableDocument> recoverable() const;
    /// Opens a copy; the document is modified from the start, and the stamp is the original's. The copy stays until
    /// discard().
    OpenResult recover(const RecoverableDocument &copy, const ObjectRegistry &registry) const;
    /// Deletes a copy and what belongs to it.
    static void discard(const RecoverableDocument &copy);

Q_SIGNALS:
    /// Emitted before a copy is made: receivers bring the document up to date.
    void aboutToLook();
    void saved(const QString &recoveryFile);
    void failed(const pagehost::FileMessage &problem);

private:
    bool claim();
    bool writeCopy(FileMessage &problem);
    void removeCopy();

    QString m_folder;
    QString m_id; ///< names this process's files; empty until the first copy
    QString m_originalFile;
    FileStamp m_originalStamp;
    QPointer<Document> m_document;
    QTimer m_timer;
    std::unique_ptr<QLockFile> m_lock;
    quint64 m_savedMark = 0;
    bool m_hasCopy = false;
};

} // namespace pagehost
