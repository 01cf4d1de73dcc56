#pragma once

#include <pagehost/autosave.h>

#include <QtCore/QObject>
#include <QtGui/QPixmap>

#include <functional>

namespace board {

class DocumentController;
class Notices;
class Workspace;

/// Puts unsaved work aside once a minute and offers what a crash left behind.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this. Questions belong to `window`.
    Recovery(Workspace *workspace, DocumentController *documents, Notices *notices, QWidget *window);

    /// Clears away what interrupted saves left, and gives one notice for each copy that a program which is gone
    /// left behind.
    void offer();
    /// Puts into the document what belongs into a copy and is not in it yet.
    void setCompletion(const std::function<void()> &complete);
    pagehost::Autosave &autosave() { return m_autosave; }

private:
    /// One copy, with the facts that tell it from others.
    struct Offer
    {
        pagehost::RecoverableDocument copy;
        QString description; ///< name, time, number of pages
        QPixmap picture;     ///< of the first page with something on it
    };

    void watchDocument();
    Offer offerOf(const pagehost::RecoverableDocument &copy) const;
    void show(const Offer &offer);
    void askToDiscard(const Offer &offer);
    void recover(const pagehost::RecoverableDocument &copy);

    QWidget *m_window;
    Workspace *m_workspace;
    DocumentController *m_documents;
    Notices *m_notices;
    pagehost::Autosave m_autosave;
};

/// Where copies of unsaved work are kept, in the user's data folder.
QString recoveryFolder();

} // namespace board
