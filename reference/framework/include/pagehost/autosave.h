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

/// A copy left by a process that ended without saving.
struct RecoverableDocument
{
    QString recoveryFile; ///< absolute path of the copy, in the binary document format
    QString originalFile; ///< empty for a document that was never saved
    /// Of the file that the document was last opened from or saved to; null when unknown.
    FileStamp originalStamp;
    QDateTime time; ///< when the copy was made
};

/// Keeps a recovery copy of a modified document in a folder, so that little is lost in a crash.
///
/// A lock beside the copy names this process and is touched at each check of the document. recoverable() lists the
/// copies whose processes have ended. A lock that names no process of this machine is judged by its age alone.
class FRAMEWORK_EXPORT Autosave : public QObject
{
    Q_OBJECT

public:
    static constexpr int defaultInterval = 60000; ///< milliseconds
    /// Age in milliseconds at which a lock that names no process of this machine counts as abandoned.
    static constexpr int longestSilence = 10 * defaultInterval;

    /// `folder` is made when it is first needed.
    explicit Autosave(const QString &folder, QObject *parent = nullptr);
    /// Ends as close() does: a process that gets here has not crashed.
    ~Autosave() override;

    /// Watches `document`, saved as `originalFile` (empty for none), instead of the previous one, whose copy is
    /// deleted.
    void setDocument(Document *document, const QString &originalFile, const FileStamp &originalStamp = {});
    /// Call after the document has been saved, under any name: deletes its copy.
    void setOriginalFile(const QString &originalFile, const FileStamp &originalStamp = {});
    /// Milliseconds between two checks of the document. A check makes a copy when the document is modified and has
    /// changed since the last copy, or that copy is gone.
    void setInterval(int milliseconds);
    /// See setInterval().
    int interval() const { return m_timer.interval(); }
    /// Checks now. False when a copy was needed and could not be made; failed() tells why.
    bool saveNow();
    /// Removes the copy and the lock and watches nothing.
    void close();

    /// Where copies are kept.
    QString folder() const { return m_folder; }
    /// The copy's absolute path, whether it exists or not; empty while nothing is watched.
    QString recoveryFile() const;

    /// Deletes unfinished first copies of processes that ended while writing them.
    void tidy() const;
    /// Copies in the folder whose processes have ended, newest first.
    QVector<RecoverableDocument> recoverable() const;
    /// Opens a copy. The document counts as modified, and its stamp is the original's. The copy stays until
    /// discard().
    OpenResult recover(const RecoverableDocument &copy, const ObjectRegistry &registry) const;
    /// Deletes a copy and its other files.
    static void discard(const RecoverableDocument &copy);

Q_SIGNALS:
    /// Emitted before a copy is made: receivers bring the document up to date.
    void aboutToLook();
    /// A copy has been made.
    void saved(const QString &recoveryFile);
    /// A copy was needed and could not be made.
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
