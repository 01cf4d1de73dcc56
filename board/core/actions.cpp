#include "core/actions.h"

#include "core/arranging.h"
#include "core/commands.h"
#include "core/pagecopy.h"
#include "core/shortcuts.h"
#include "core/windowmemory.h"
#include "core/workspace.h"
#include "look/motion.h"
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

#include <algorithm>

namespace board {

namespace {

constexpr double quarterTurn = 90;
/// Part of the view that the selection fills when it is zoomed to.
constexpr double filledPart = 0.9;

QUndoStack *undoStack()
{
    return CUndoRedo::GetInstance()->stack();
}

/// All of them; false without any.
bool areLocked(const QVector<CBaseObject *> &objects)
{
    return !objects.isEmpty() && std::all_of(objects.begin(), objects.end(),
                                             [](const CBaseObject *object) { return object->isLocked(); });
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
    makeAlignActions();
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
    m_view->addAction(m_commands->perform(Command::EditText, this, [this] { m_view->writeFirstLabel(); }));
    duplicate = m_commands->perform(Command::Duplicate, this, [this] { duplicateSelection(); });
    connect(m_view, &PageView::copyDropped, this, &Actions::dropCopy);
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

void Actions::makeAlignActions()
{
    struct AlignCommand
    {
        Command command;
        Edge edge;
    };
    for (const AlignCommand &row : {AlignCommand{Command::AlignLeft, Edge::Left},
                                    {Command::AlignCenter, Edge::Center},
                                    {Command::AlignRight, Edge::Right},
                                    {Command::AlignTop, Edge::Top},
                                    {Command::AlignMiddle, Edge::Middle},
                                    {Command::AlignBottom, Edge::Bottom}})
        arrange(row.command, [this, edge = row.edge](const auto &objects) { align(units(objects), edge); });
    arrange(Command::DistributeAcross, [this](const auto &objects) { distribute(units(objects), Qt::Horizontal); });
    arrange(Command::DistributeDown, [this](const auto &objects) { distribute(units(objects), Qt::Vertical); });
    arrange(Command::SameSize, [this](const auto &objects) { makeSameSize(units(objects)); });
    arrange(Command::BringBack, [this](const auto &objects) { bringBack(units(objects), m_view->page()->rect()); });
    arrange(Command::Group, [this](const auto &objects) { pagehost::groupObjects(m_view->page(), objects); });
    arrange(Command::Ungroup, [this](const auto &objects) { pagehost::ungroupObjects(m_view->page(), objects); });
    arrange(Command::Lock, [](const auto &objects) { pagehost::setObjectsLocked(objects, !areLocked(objects)); });
}

QVector<Unit> Actions::units(const QVector<CBaseObject *> &objects) const
{
    return unitsOf(*m_view->page(), objects);
}

/// Arranging in the middle of a drag would move what is under the mouse.
void Actions::arrange(Command command, const std::function<void(const QVector<CBaseObject *> &)> &work)
{
    m_commands->perform(command, this, [this, work] {
        if (!isDragging())
            work(m_view->page()->selectedObjects());
        update();
    });
}

void Actions::makeViewActions()
{
    zoomIn = m_commands->perform(Command::ZoomIn, this, [this] { m_view->zoomIn(); });
    zoomOut = m_commands->perform(Command::ZoomOut, this, [this] { m_view->zoomOut(); });
    actualSize = m_commands->perform(Command::ActualSize, this, [this] { m_view->setZoom(1); });
    fitPage = m_commands->perform(Command::FitPage, this, [this] { m_view->fitPage(); });
    m_commands->perform(Command::ZoomToSelection, this, [this] { zoomToSelection(); });
    playAnimation = m_commands->perform(Command::Animations);
    makeLookActions();
}

void Actions::makeLookActions()
{
    darkColors = m_commands->perform(Command::DarkColors, this, [this] {
        rememberDarkColors(darkColors->isChecked());
        showTheme();
    });
    darkColors->setChecked(currentTheme() == Theme::Dark ||
                           (currentTheme() == Theme::HighContrast && remembersDarkColors()));
    highContrast = m_commands->perform(Command::HighContrast, this, [this] {
        rememberHighContrast(highContrast->isChecked());
        showTheme();
    });
    highContrast->setChecked(currentTheme() == Theme::HighContrast);
    QAction *motion = m_commands->perform(Command::ReducedMotion);
    motion->setChecked(isMotionReduced());
    connect(motion, &QAction::toggled, this, [](bool reduced) {
        rememberReducedMotion(reduced);
        setMotionReduced(reduced);
    });
}

/// High contrast has the colours of the desktop, light or dark.
void Actions::showTheme()
{
    const Theme usual = darkColors->isChecked() ? Theme::Dark : Theme::Light;
    applyTheme(highContrast->isChecked() ? Theme::HighContrast : usual);
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
    m_commands->perform(Command::DuplicatePage, this, [this] { duplicatePage(); });
    m_commands->perform(Command::MovePageBack, this, [this] { movePage(-1); });
    m_commands->perform(Command::MovePageOn, this, [this] { movePage(1); });
    const auto index = [this] { return m_workspace->document()->currentIndex(); };
    previousPage = m_commands->perform(Command::PreviousPage, this, [=] { showPage(index() - 1); });
    nextPage = m_commands->perform(Command::NextPage, this, [=] { showPage(index() + 1); });
    m_commands->perform(Command::FirstPage, this, [=] { showPage(0); });
    m_commands->perform(Command::LastPage, this, [=] { showPage(m_workspace->document()->pageCount() - 1); });
}

void Actions::makeProgramActions()
{
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
    enableArranging();
    enablePages();
}

void Actions::enableArranging()
{
    const pagehost::Page *page = m_view->page();
    const QVector<CBaseObject *> objects = page ? page->selectedObjects() : QVector<CBaseObject *>();
    const int count = page ? units(objects).size() : 0;
    const auto needs = [&](int least, const QVector<Command> &commands) {
        for (const Command command : commands)
            m_commands->action(command)->setEnabled(count >= least);
    };
    needs(1, {Command::SelectNothing, Command::Duplicate, Command::Delete, Command::MirrorAcross, Command::MirrorUp,
              Command::TurnLeft, Command::TurnRight, Command::BringToFront, Command::BringForward,
              Command::SendBackward, Command::SendToBack, Command::Lock, Command::ZoomToSelection});
    needs(2, {Command::Group, Command::AlignLeft, Command::AlignCenter, Command::AlignRight, Command::AlignTop,
              Command::AlignMiddle, Command::AlignBottom, Command::SameSize});
    needs(3, {Command::DistributeAcross, Command::DistributeDown});
    m_commands->action(Command::BringBack)->setEnabled(page && !objects.isEmpty() && isOff(objects, page->rect()));
    m_commands->action(Command::Ungroup)->setEnabled(page && pagehost::hasGroup(*page, objects));
    m_commands->action(Command::EditText)->setEnabled(m_view->canWriteLabel());
    selectAll->setEnabled(page && page->objectCount() > objects.size());
    QAction *lock = m_commands->action(Command::Lock);
    lock->setText(m_workspace->text(areLocked(objects) ? "IDS_BOARD_UNLOCK" : "IDS_BOARD_LOCK"));
    describe(lock);
}

void Actions::enablePages()
{
    const pagehost::Document *document = m_workspace->document();
    const bool isFirst = document->currentIndex() <= 0;
    const bool isLast = document->currentIndex() + 1 >= document->pageCount();
    removePage->setEnabled(document->pageCount() > 1);
    for (const Command command : {Command::PreviousPage, Command::FirstPage, Command::MovePageBack})
        m_commands->action(command)->setEnabled(!isFirst);
    for (const Command command : {Command::NextPage, Command::LastPage, Command::MovePageOn})
        m_commands->action(command)->setEnabled(!isLast);
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
    if (!isDragging())
        dropCopy(pagehost::duplicateOffset);
}

/// As far from the selected objects as this.
void Actions::dropCopy(const QPointF &way)
{
    // In a group of its own the step is called what the user did.
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_DUPLICATE"));
    pagehost::duplicateSelection(m_view->page(), &m_workspace->registry(), way);
    GetFramework()->endUndoGroup();
}

void Actions::restackSelection(pagehost::StackingMove move)
{
    pagehost::restack(m_view->page(), m_view->page()->selectedObjects(), move);
}

void Actions::mirrorSelection(bool horizontally)
{
    if (!isDragging())
        pagehost::mirrorUnits(units(m_view->page()->selectedObjects()), horizontally);
}

void Actions::rotateSelection(double degrees)
{
    if (!isDragging())
        pagehost::rotateUnits(units(m_view->page()->selectedObjects()), degrees);
}

void Actions::duplicatePage()
{
    pagehost::Document *document = m_workspace->document();
    addPageCopy(document, *document->currentPage(), m_workspace->registry(),
                QStringLiteral("IDS_BOARD_DUPLICATE_PAGE"));
}

void Actions::zoomToSelection()
{
    const QRectF box = pagehost::boundsOf(m_view->page()->selectedObjects());
    if (box.isEmpty())
        return;
    const QSizeF room = QSizeF(m_view->viewport()->size()) * filledPart;
    m_view->setZoom(qMin(room.width() / box.width(), room.height() / box.height()));
    m_view->centerOn(box.center());
}

void Actions::showPage(int index)
{
    m_workspace->document()->setCurrentIndex(index);
}

void Actions::movePage(int by)
{
    pagehost::Document *document = m_workspace->document();
    pagehost::movePage(document, document->currentIndex(), document->currentIndex() + by);
    enablePages();
}

} // namespace board
