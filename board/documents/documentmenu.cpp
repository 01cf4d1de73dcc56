#include "documents/documentmenu.h"

#include "core/shortcuts.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "look/icons.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QMenu>

namespace board {

DocumentMenu::DocumentMenu(const Workspace *workspace, DocumentController *documents, QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_recent(new QMenu(workspace->text("IDS_BOARD_RECENT"), window))
{
    const auto make = [&](const char *textKey, const QList<QKeySequence> &keys, auto work) {
        auto *action = new QAction(workspace->text(textKey), this);
        action->setShortcuts(keys);
        describe(action);
        connect(action, &QAction::triggered, documents, work);
        return action;
    };
    QAction *create = make("IDS_BOARD_NEW", keysFor(QKeySequence::New, {Qt::CTRL | Qt::Key_N}),
                           [documents] { documents->createNew(); });
    m_open = make("IDS_BOARD_OPEN", keysFor(QKeySequence::Open, {Qt::CTRL | Qt::Key_O}),
                  [documents] { documents->askAndOpen(); });
    m_save = make("IDS_BOARD_SAVE", keysFor(QKeySequence::Save, {Qt::CTRL | Qt::Key_S}),
                  [documents] { documents->save(); });
    QAction *saveAs = make("IDS_BOARD_SAVE_AS", keysFor(QKeySequence::SaveAs, {Qt::CTRL | Qt::SHIFT | Qt::Key_S}),
                           [documents] { documents->saveAs(); });
    m_open->setIcon(icon(Icon::Open));
    m_save->setIcon(icon(Icon::Save));
    m_actions = {create, m_open, m_recent->menuAction(), nullptr, m_save, saveAs};
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
