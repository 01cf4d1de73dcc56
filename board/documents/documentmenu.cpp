#include "documents/documentmenu.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QMenu>

namespace board {

DocumentMenu::DocumentMenu(const Workspace *workspace, Commands *commands, DocumentController *documents,
                           QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_recent(new QMenu(workspace->text("IDS_BOARD_RECENT"), window))
{
    commands->perform(Command::NewBoard, documents, [documents] { documents->createNew(); });
    commands->perform(Command::OpenBoard, documents, [documents] { documents->askAndOpen(); });
    commands->perform(Command::SaveBoard, documents, [documents] { documents->save(); });
    commands->perform(Command::SaveBoardAs, documents, [documents] { documents->saveAs(); });
    connect(m_recent, &QMenu::aboutToShow, this, &DocumentMenu::fillRecent);
    connect(documents, &DocumentController::stateChanged, this, &DocumentMenu::updateRecent);
    m_recent->setToolTipsVisible(true);
    updateRecent();
}

void DocumentMenu::updateRecent()
{
    m_recent->menuAction()->setEnabled(!m_documents->recentFiles().files().isEmpty());
}

void DocumentMenu::fillRecent()
{
    m_recent->clear();
    const QStringList files = m_documents->recentFiles().files();
    for (const QString &file : files) {
        QString name = QFileInfo(file).fileName();
        QAction *action = m_recent->addAction(name.replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setToolTip(file);
        action->setData(file);
        connect(action, &QAction::triggered, m_documents, [this, file] { m_documents->open(file); });
    }
    m_recent->addSeparator();
    connect(m_recent->addAction(m_workspace->text("IDS_BOARD_CLEAR_RECENT")), &QAction::triggered, this, [this] {
        m_documents->recentFiles().clear();
        updateRecent();
    });
}

} // namespace board
