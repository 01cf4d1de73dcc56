#pragma once

#include <pagehost/filestamp.h>

#include <QtCore/QStringList>

#include <functional>

class QWidget;

namespace board {

class Workspace;

/// The questions about files. None of them blocks: the answer comes later, or never when the user cancels. Qt's own
/// dialogs are used on every platform, in the board's language.
class FileDialogs
{
public:
    using TakeFile = std::function<void(const QString &file)>;
    using Work = std::function<void()>;

    /// Both must outlive this.
    FileDialogs(const Workspace *workspace, QWidget *window);

    /// For a file to read, beginning in `folder`.
    void askForFileToOpen(const QString &folder, const TakeFile &take) const;
    /// For a file to write, beginning with `suggestion`. The name that is taken ends in one of the two formats'
    /// suffixes, and the user has agreed to replace a file that exists.
    void askForFileToSave(const QString &suggestion, const TakeFile &take) const;
    /// The same with the suffix of `suggestion`, which is not that of a board.
    void askForFileToWrite(const QString &title, const QString &suggestion, const TakeFile &take) const;
    /// For a folder to write to, beginning with `folder`.
    void askForFolder(const QString &title, const QString &folder, const TakeFile &take) const;
    /// Whether these files, at least one of them, may be replaced.
    void askToReplace(const QStringList &files, const Work &replace) const;
    /// Asks whether to save or discard unsaved changes to `name`.
    void askToKeepChanges(const QString &name, const Work &save, const Work &discard) const;
    /// Asks how to go on with `file`, which somebody else has changed.
    void askAboutConflict(const QString &file, const Work &keepMine, const Work &takeTheirs,
                          const Work &saveBoth) const;
    /// Before saving to `file` changes what others have of it.
    void askToSaveShared(const QString &file, const pagehost::ReplacementEffects &effects, const Work &save,
                         const Work &saveAs) const;

private:
    void takeWithSuffix(const QString &file, const QString &suffix, const TakeFile &take) const;
    void takeUnlessPresent(const QString &file, const TakeFile &take) const;

    const Workspace *m_workspace;
    QWidget *m_window;
};

} // namespace board
