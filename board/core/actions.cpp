#include "core/actions.h"

#include "core/commands.h"
#include "core/shortcuts.h"
#include "core/windowmemory.h"
#include "core/workspace.h"
#include "look/theme.h"
#include "page/pageview.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>
#include <framework/iframework.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QUndoStack>

namespace board {

namespace {

constexpr double quarterTurn = 90;

QUndoStack *undoStack()
{
    return CUndoRedo::GetInstance()->stack();
}

} // namespace

Actions::Actions(Workspace *workspace, Commands *commands, PageView *view, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_view(view)
{
    makeEditActions();
    makeArrangeActions();
    makeViewActions();
    makePageActions();
    makeProgramActions();
    connect(undoStack(), &QUndoStack::indexChanged, this, &Actions::nameHistory);
    nameHistory();
    update();
}

void Actions::makeEditActions()
{
    undo = m_commands->perform(Command::Undo, this, [this] { step(&QUndoStack::undo); });
    redo = m_commands->perform(Command::Redo, this, [this] { step(&QUndoStack::redo); });
    selectAll = m_commands->perform(Command::SelectAll, this, [this] { pagehost::selectAll(m_view->page()); });
    deselect = m_commands->perform(Command::SelectNothing, this, [this] { m_view->page()->select({}); });
    duplicate = m_commands->perform(Command::Duplicate, this, [this] { duplicateSelection(); });
    remove = m_commands->perform(Command::Delete, this, [this] {
        if (!isDragging())
            pagehost::deleteSelection(m_view->page());
    });
}

void Actions::makeArrangeActions()
{
    using Move = pagehost::StackingMove;
    toFront = m_commands->perform(Command::BringToFront, this, [this] { restackSelection(Move::ToFront); });
    forward = m_commands->perform(Command::BringForward, this, [this] { restackSelection(Move::Forward); });
    backward = m_commands->perform(Command::SendBackward, this, [this] { restackSelection(Move::Backward); });
    toBack = m_commands->perform(Command::SendToBack, this, [this] { restackSelection(Move::ToBack); });
    mirrorHorizontally = m_commands->perform(Command::MirrorAcross, this, [this] { mirrorSelection(true); });
    mirrorVertically = m_commands->perform(Command::MirrorUp, this, [this] { mirrorSelection(false); });
    rotateLeft = m_commands->perform(Command::TurnLeft, this, [this] { rotateSelection(-quarterTurn); });
    rotateRight = m_commands->perform(Command::TurnRight, this, [this] { rotateSelection(quarterTurn); });
}

void Actions::makeViewActions()
{
    zoomIn = m_commands->perform(Command::ZoomIn, this, [this] { m_view->zoomIn(); });
    zoomOut = m_commands->perform(Command::ZoomOut, this, [this] { m_view->zoomOut(); });
    actualSize = m_commands->perform(Command::ActualSize, this, [this] { m_view->setZoom(1); });
    fitPage = m_commands->perform(Command::FitPage, this, [this] { m_view->fitPage(); });
    playAnimation = m_commands->perform(Command::Animations);
    darkColors = m_commands->perform(Command::DarkColors, this, [this] {
        applyTheme(darkColors->isChecked() ? Theme::Dark : Theme::Light);
        rememberDarkColors(darkColors->isChecked());
    });
    darkColors->setChecked(currentTheme() == Theme::Dark);
}

void Actions::makePageActions()
{
    addPage = m_commands->perform(Command::AddPage, this, [this] {
        pagehost::Document *document = m_workspace->document();
        pagehost::addPage(document, document->currentIndex() + 1, document->currentPage()->size());
    });
    removePage = m_commands->perform(Command::RemovePage, this, [this] {
        pagehost::removePage(m_workspace->document(), m_workspace->document()->currentIndex());
    });
    previousPage = m_commands->perform(Command::PreviousPage, this, [this] { turnPage(-1); });
    nextPage = m_commands->perform(Command::NextPage, this, [this] { turnPage(1); });
}

void Actions::makeProgramActions()
{
    exportPages = m_commands->perform(Command::ExportPictures);
    exportSvg = m_commands->perform(Command::ExportDrawings);
    quit = m_commands->perform(Command::Quit);
    about = m_commands->perform(Command::About);
}

void Actions::nameHistory()
{
    const auto name = [this](QAction *action, const char *plainKey, const char *patternKey, const QString &step) {
        action->setText(step.isEmpty() ? m_workspace->text(plainKey)
                                       : m_workspace->text(patternKey).arg(m_workspace->text(step)));
        describe(action);
    };
    name(undo, "IDS_BOARD_UNDO", "IDS_BOARD_UNDO_STEP", undoStack()->undoText());
    name(redo, "IDS_BOARD_REDO", "IDS_BOARD_REDO_STEP", undoStack()->redoText());
    enableHistory();
}

/// Off while the view shows a page that cannot be edited.
void Actions::enableHistory()
{
    undo->setEnabled(undoStack()->canUndo() && m_view->isEditable());
    redo->setEnabled(undoStack()->canRedo() && m_view->isEditable());
}

void Actions::update()
{
    enableHistory();
    const pagehost::Page *page = m_view->page();
    const int selected = page ? page->selectedObjects().size() : 0;
    for (QAction *action : {deselect, duplicate, remove, mirrorHorizontally, mirrorVertically, rotateLeft,
                            rotateRight, toFront, forward, backward, toBack})
        action->setEnabled(selected > 0);
    selectAll->setEnabled(page && page->objectCount() > selected);
    const pagehost::Document *document = m_workspace->document();
    removePage->setEnabled(document->pageCount() > 1);
    previousPage->setEnabled(document->currentIndex() > 0);
    nextPage->setEnabled(document->currentIndex() + 1 < document->pageCount());
}

bool Actions::isDragging() const
{
    return m_view->page()->scene()->isDragging();
}

void Actions::step(void (QUndoStack::*way)())
{
    Q_EMIT aboutToStep();
    // A drag that is still running has no step yet: taking it back is what the user means.
    if (!m_view->page()->scene()->cancelDrag())
        (undoStack()->*way)();
}

void Actions::duplicateSelection()
{
    if (isDragging())
        return;
    // In a group of its own the step is called what the user did.
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_DUPLICATE"));
    pagehost::duplicateSelection(m_view->page(), &m_workspace->registry());
    GetFramework()->endUndoGroup();
}

void Actions::restackSelection(pagehost::StackingMove move)
{
    pagehost::restack(m_view->page(), m_view->page()->selectedObjects(), move);
}

void Actions::mirrorSelection(bool horizontally)
{
    if (!isDragging())
        pagehost::mirrorObjects(m_view->page()->selectedObjects(), horizontally);
}

void Actions::rotateSelection(double degrees)
{
    if (!isDragging())
        pagehost::rotateObjects(m_view->page()->selectedObjects(), degrees);
}

void Actions::turnPage(int by)
{
    pagehost::Document *document = m_workspace->document();
    document->setCurrentIndex(document->currentIndex() + by);
}

} // namespace board
