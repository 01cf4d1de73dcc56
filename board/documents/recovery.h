#pragma once

#include <pagehost/autosave.h>

#include <QtCore/QObject>

namespace board {

class DocumentController;
class Notices;
class Workspace;

/// Puts unsaved work aside once a minute and offers what a crash left behind.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    Recovery(Workspace *workspace, DocumentController *documents, Notices *notices, QObject *parent = nullptr);

    /// One notice for each copy that a program which is gone left behind.
    void offer();
    pagehost::Autosave &autosave() { return m_autosave; }

private:
    void watchDocument();
    void recover(const pagehost::RecoverableDocument &copy);

    Workspace *m_workspace;
    DocumentController *m_documents;
    Notices *m_notices;
    pagehost::Autosave m_autosave;
};

/// Where copies of unsaved work are kept, in the user's data folder.
QString recoveryFolder();

} // namespace board
