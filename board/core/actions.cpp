#include "core/actions.h"

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

Actions::Actions(Workspace *workspace, PageView *view, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
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

QAction *Actions::add(const char *textKey, const QList<QKeySequence> &keys, const Work &work)
{
    auto *action = new QAction(m_workspace->text(textKey), this);
    action->setShortcuts(keys);
    describe(action);
    connect(action, &QAction::triggered, this, work);
    return action;
}

QAction *Actions::add(const char *textKey, Icon picture, const QList<QKeySequence> &keys, const Work &work)
{
    QAction *action = add(textKey, keys, work);
    action->setIcon(icon(picture));
    return action;
}

void Actions::makeEditActions()
{
    undo = add("IDS_BOARD_UNDO", Icon::Undo, keysFor(QKeySequence::Undo, {Qt::CTRL | Qt::Key_Z}),
               [this] { step(&QUndoStack::undo); });
    redo = add("IDS_BOARD_REDO", Icon::Redo,
               keysFor(QKeySequence::Redo, {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y}),
               [this] { step(&QUndoStack::redo); });
    selectAll = add("IDS_BOARD_SELECT_ALL", keysFor(QKeySequence::SelectAll, {Qt::CTRL | Qt::Key_A}),
                    [this] { pagehost::selectAll(m_view->page()); });
    deselect = add("IDS_BOARD_DESELECT", keysFor(QKeySequence::Deselect, {Qt::CTRL | Qt::SHIFT | Qt::Key_A}),
                   [this] { m_view->page()->select({}); });
    duplicate =
        add("IDS_BOARD_DUPLICATE", Icon::Duplicate, {Qt::CTRL | Qt::Key_D}, [this] { duplicateSelection(); });
    // Not the platform's keys: on some, Ctrl+D is one of them.
    remove = add("IDS_BOARD_DELETE", Icon::Delete, {Qt::Key_Delete, Qt::Key_Backspace}, [this] {
        if (!isDragging())
            pagehost::deleteSelection(m_view->page());
    });
}

void Actions::makeArrangeActions()
{
    using Move = pagehost::StackingMove;
    toFront = add("IDS_BOARD_TO_FRONT", Icon::ToFront, {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketRight},
                  [this] { restackSelection(Move::ToFront); });
    forward = add("IDS_BOARD_FORWARD", Icon::Forward, {Qt::CTRL | Qt::Key_BracketRight},
                  [this] { restackSelection(Move::Forward); });
    backward = add("IDS_BOARD_BACKWARD", Icon::Backward, {Qt::CTRL | Qt::Key_BracketLeft},
                   [this] { restackSelection(Move::Backward); });
    toBack = add("IDS_BOARD_TO_BACK", Icon::ToBack, {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketLeft},
                 [this] { restackSelection(Move::ToBack); });
    mirrorHorizontally = add("IDS_BOARD_MIRROR_H", Icon::MirrorHorizontal, {Qt::SHIFT | Qt::Key_H},
                             [this] { mirrorSelection(true); });
    mirrorVertically = add("IDS_BOARD_MIRROR_V", Icon::MirrorVertical, {Qt::SHIFT | Qt::Key_V},
                           [this] { mirrorSelection(false); });
    rotateLeft = add("IDS_BOARD_ROTATE_LEFT", Icon::RotateLeft, {Qt::CTRL | Qt::SHIFT | Qt::Key_R},
                     [this] { rotateSelection(-quarterTurn); });
    rotateRight = add("IDS_BOARD_ROTATE_RIGHT", Icon::RotateRight, {Qt::CTRL | Qt::Key_R},
                      [this] { rotateSelection(quarterTurn); });
}

void Actions::makeViewActions()
{
    zoomIn = add("IDS_BOARD_ZOOM_IN", Icon::ZoomIn,
                 keysFor(QKeySequence::ZoomIn, {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}),
                 [this] { m_view->zoomIn(); });
    zoomOut = add("IDS_BOARD_ZOOM_OUT", Icon::ZoomOut, keysFor(QKeySequence::ZoomOut, {Qt::CTRL | Qt::Key_Minus}),
                  [this] { m_view->zoomOut(); });
    actualSize = add("IDS_BOARD_ACTUAL_SIZE", {Qt::CTRL | Qt::Key_0}, [this] { m_view->setZoom(1); });
    fitPage = add("IDS_BOARD_FIT_PAGE", Icon::ZoomFit, {Qt::CTRL | Qt::Key_9}, [this] { m_view->fitPage(); });
    playAnimation = add("IDS_BOARD_ANIMATION", Icon::Animation, {Qt::Key_F7}, [] {});
    playAnimation->setCheckable(true);
    darkColors = add("IDS_BOARD_DARK", {}, [this] {
        applyTheme(darkColors->isChecked() ? Theme::Dark : Theme::Light);
        rememberDarkColors(darkColors->isChecked());
    });
    darkColors->setCheckable(true);
    darkColors->setChecked(currentTheme() == Theme::Dark);
}

void Actions::makePageActions()
{
    addPage = add("IDS_BOARD_ADD_PAGE", Icon::Add, {Qt::CTRL | Qt::SHIFT | Qt::Key_N}, [this] {
        pagehost::Document *document = m_workspace->document();
        pagehost::addPage(document, document->currentIndex() + 1, document->currentPage()->size());
    });
    removePage = add("IDS_BOARD_REMOVE_PAGE", Icon::Remove, {}, [this] {
        pagehost::removePage(m_workspace->document(), m_workspace->document()->currentIndex());
    });
    previousPage = add("IDS_BOARD_PREVIOUS_PAGE", {Qt::Key_PageUp}, [this] { turnPage(-1); });
    nextPage = add("IDS_BOARD_NEXT_PAGE", {Qt::Key_PageDown}, [this] { turnPage(1); });
}

void Actions::makeProgramActions()
{
    exportPages = add("IDS_BOARD_EXPORT", {Qt::CTRL | Qt::Key_E}, [] {});
    exportSvg = add("IDS_BOARD_EXPORT_SVG", {}, [] {});
    quit = add("IDS_BOARD_QUIT", keysFor(QKeySequence::Quit, {Qt::CTRL | Qt::Key_Q}), [] {});
    about = add("IDS_BOARD_ABOUT", {}, [] {});
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
