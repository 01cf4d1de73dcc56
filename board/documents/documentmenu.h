#pragma once

#include <QtCore/QObject>

class QMenu;
class QWidget;

namespace board {

class Commands;
class DocumentController;
class Workspace;

/// Performs the commands on documents, and keeps the menu of recent ones.
class DocumentMenu : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; the list of recent files belongs to `window`.
    DocumentMenu(const Workspace *workspace, Commands *commands, DocumentController *documents, QWidget *window);

    QMenu *recentMenu() const { return m_recent; }

private:
    void fillRecent();
    void updateRecent();

    const Workspace *m_workspace;
    DocumentController *m_documents;
    QMenu *m_recent;
};

} // namespace board
