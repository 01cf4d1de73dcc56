#pragma once

#include "documents/filedialogs.h"
#include "documents/filewatch.h"
#include "documents/recentfiles.h"

#include <pagehost/documentfile.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <functional>
#include <optional>

namespace board {

class Notices;
class Workspace;

/// The document and its file: what it is called, what has changed, opening, saving, and the questions in between.
class DocumentController : public QObject
{
    Q_OBJECT

public:
    using Work = std::function<void()>;

    /// All must outlive this. Dialogs belong to `window`.
    DocumentController(Workspace *workspace, QWidget *window, Notices *notices);

    /// Absolute path of the file that save() writes; empty for none.
    QString file() const { return m_file; }
    /// Where the user keeps boards: the folder of file(), else of the last one.
    QString folder() const;
    /// Of file() as the board knows it.
    const pagehost::FileStamp &stamp() const { return m_stamp; }
    FileWatch &fileWatch() { return m_watch; }
    /// The file that the document was opened from or saved to, though save() may not write it.
    QString origin() const { return m_file.isEmpty() ? m_damagedFile : m_file; }
    /// For people: the file's name without its folder.
    QString name() const;
    bool isModified() const;
    /// Called before the document is saved or left, to end what the user is in the middle of.
    void setSettle(const Work &settle) { m_settle = settle; }
    RecentFiles &recentFiles() { return m_recent; }

    /// Runs `next` once no unsaved change can be lost: at once, or when the user has saved or given the changes up;
    /// never when the user cancels.
    void whenSafe(const Work &next);

    /// @name Requests of the user, which ask about unsaved changes first
    /// @{
    void createNew();
    void askAndOpen();
    void open(const QString &file);
    /// `next` runs when the document has been saved.
    void save(const Work &next = {});
    void saveAs(const Work &next = {});
    /// @}

    /// Opens without a question. False when nothing could be read; the document is then what it was.
    bool openNow(const QString &file);
    /// Takes a document that was brought back and belongs to `file`, which may be empty.
    void takeRecovered(pagehost::OpenResult result, const QString &file);

Q_SIGNALS:
    /// Name, file or isModified() may be others.
    void stateChanged();
    void saved(const QString &file);
    /// A PDF was opened, whose pages belong on pages of the document.
    void worksheetChosen(const QString &file);

private:
    /// The file that a save expects to replace; nothing when it may replace any.
    using Expectation = std::optional<pagehost::FileStamp>;

    void watchDocument();
    void take(pagehost::OpenResult &result, const QString &file, const char *noticeKey);
    void belongTo(const QString &file, const pagehost::FileStamp &stamp);
    /// Asks first when others have something of the file.
    void saveTo(const QString &file, const Expectation &expected, const Work &next);
    void write(const QString &file, const Expectation &expected, const Work &next);
    bool keepDamaged(const QString &file);
    void decide(const QString &file, const Work &next);
    void showFileState();
    void showNotSaved(const QString &file, const pagehost::FileMessage &problem);
    void settle();
    QString suggestion() const;
    QStringList texts(const QVector<pagehost::FileMessage> &messages) const;

    Workspace *m_workspace;
    Notices *m_notices;
    FileDialogs m_dialogs;
    RecentFiles m_recent;
    FileWatch m_watch;
    Work m_settle;
    QString m_file;
    pagehost::FileStamp m_stamp;
    /// A file that save() must not write unasked, since not all of it was read.
    QString m_damagedFile;
};

} // namespace board
