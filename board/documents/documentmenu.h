#pragma once

#include <QtCore/QObject>

class QAction;
class QMenu;
class QWidget;

namespace board {

class Commands;
class DocumentController;
class Workspace;

/// The File menu's entries about documents.
class DocumentMenu : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; the list of recent files belongs to `window`.
    DocumentMenu(const Workspace *workspace, Commands *commands, DocumentController *documents, QWidget *window);

    QList<QAction *> actions() const { return m_actions; }
    /// The one that stands in the tool bar, too.
    QAction *saveAction() const { return m_save; }
    QAction *openAction() const { return m_open; }
    QMenu *recentMenu() const { return m_recent; }

private:
    void fillRecent();
    void updateRecent();

    const Workspace *m_workspace;
    DocumentController *m_documents;
    QMenu *m_recent;
    QAction *m_open = nullptr;
    QAction *m_save = nullptr;
    QList<QAction *> m_actions;
};

} // namespace board
