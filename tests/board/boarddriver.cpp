#include <board/boarddriver.h>

#include <core/commands.h>
#include <page/pageview.h>
#include <panels/palettebutton.h>
#include <panels/palettepanel.h>
#include <window/drawer.h>
#include <window/mainwindow.h>

#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <support/patience.h>

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QUndoStack>

#include <algorithm>

namespace boardtest {

const QString rectangle = QStringLiteral("shapes.roundedrectangle");
const QString arrow = QStringLiteral("shapes.blockarrow");
const QString polygon = QStringLiteral("shapes.polygon");
const QString flask = QStringLiteral("shapes.flask");

namespace {

constexpr int dragSteps = 5;
/// Handles stand at most this far from the object, pixels.
constexpr int handleReach = 60;
/// Finer than a handle is large.
constexpr int coarseStep = 8;

/// Layouts move widgets for some turns of the event loop, and some of these turns delete widgets.
void waitUntilStill(const QPointer<QWidget> &widget)
{
    QPoint before;
    while (widget) {
        before = widget->mapToGlobal(QPoint());
        QCoreApplication::processEvents();
        if (widget && widget->mapToGlobal(QPoint()) == before)
            return;
    }
}

/// Scrolls it into view, and waits until what slides has arrived. The widget may be gone afterwards.
void bringIntoView(const QPointer<QWidget> &widget)
{
    waitUntilStill(widget);
    for (QWidget *around = widget ? widget->parentWidget() : nullptr; around; around = around->parentWidget())
        if (auto *scrolled = qobject_cast<QScrollArea *>(around))
            scrolled->ensureWidgetVisible(widget);
    waitUntilStill(widget);
}

std::unique_ptr<board::Workspace> makeWorkspace(const QString &language)
{
    useOwnFolders();
    return std::make_unique<board::Workspace>(language);
}

} // namespace

void useOwnFolders()
{
    static const QTemporaryDir home;
    static const bool isSet = qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit()) &&
                              qputenv("XDG_DATA_HOME", home.filePath("data").toLocal8Bit());
    if (!home.isValid() || !isSet)
        qFatal("there is no folder for settings");
    QCoreApplication::setOrganizationName(QStringLiteral("gliololok"));
    QCoreApplication::setApplicationName(QStringLiteral("gliololok-board"));
}

bool activate(QWidget &window)
{
    if (!QTest::qWaitForWindowExposed(&window, support::patience))
        return false;
    window.activateWindow();
    // For QWindow, a dialog is active while its window is, and the window while its dialog is. A dialog that is
    // closing may take the focus along once more.
    const auto isActive = [&window] {
        if (QApplication::activeWindow() != &window)
            window.activateWindow();
        return QApplication::activeWindow() == &window;
    };
    return QTest::qWaitFor(isActive, support::patience);
}

BoardDriver::BoardDriver(const QString &language)
    : m_hands(hands())
    , m_workspace(makeWorkspace(language))
{
    m_workspace->loadPlugins({QStringLiteral(SHAPE_FOLDER)});
    m_window = std::make_unique<board::MainWindow>(m_workspace.get());
    m_window->resize(1700, 1100);
    m_window->show();
    if (!activate(*m_window))
        qFatal("the window is not active");
    m_window->commands()->action(board::Command::Snapping)->setChecked(false);
    m_window->commands()->action(board::Command::Grid)->setChecked(false);
    m_window->panel()->setPinned(true);
    m_window->panel()->setOpen(true);
    QCoreApplication::processEvents();
    view().setZoom(1);
    view().centerOn(page().rect().center());
    history().clear();
    m_workspace->document()->markSaved();
}

BoardDriver::~BoardDriver() = default;

board::PageView &BoardDriver::view() const
{
    return *m_window->view();
}

pagehost::Page &BoardDriver::page() const
{
    return *view().page();
}

pagehost::PageScene &BoardDriver::scene() const
{
    return *page().scene();
}

QUndoStack &BoardDriver::history() const
{
    return *CUndoRedo::GetInstance()->stack();
}

QPoint BoardDriver::at(const QPointF &pos) const
{
    return view().mapFromScene(pos);
}

void BoardDriver::sendMove(const QPointF &pos, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers)
{
    m_hands->move(view().viewport(), at(pos), held, modifiers);
}

void BoardDriver::press(const QPointF &pos, Qt::KeyboardModifiers modifiers)
{
    sendMove(pos, Qt::NoButton, modifiers);
    m_hands->press(view().viewport(), at(pos), modifiers);
}

void BoardDriver::moveTo(const QPointF &pos, Qt::KeyboardModifiers modifiers)
{
    sendMove(pos, Qt::LeftButton, modifiers);
}

void BoardDriver::release(const QPointF &pos, Qt::KeyboardModifiers modifiers)
{
    m_hands->release(view().viewport(), at(pos), modifiers);
}

void BoardDriver::click(const QPointF &pos, Qt::KeyboardModifiers modifiers)
{
    press(pos, modifiers);
    release(pos, modifiers);
}

void BoardDriver::pressTwice(const QPointF &pos)
{
    click(pos);
    m_hands->pressAgain(view().viewport(), at(pos));
}

void BoardDriver::doubleClick(const QPointF &pos)
{
    pressTwice(pos);
    release(pos);
}

void BoardDriver::hold(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    press(from, modifiers);
    for (int step = 1; step <= dragSteps; ++step)
        moveTo(from + (to - from) * step / dragSteps, modifiers);
}

void BoardDriver::drag(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    hold(from, to, modifiers);
    release(to, modifiers);
}

void BoardDriver::hover(const QPointF &pos)
{
    sendMove(pos, Qt::NoButton, Qt::NoModifier);
}

void BoardDriver::wheel(const QPointF &pos, int notches, Qt::KeyboardModifiers modifiers)
{
    m_hands->wheel(view().viewport(), at(pos), notches, modifiers);
}

bool BoardDriver::pen(QEvent::Type type, const QPointF &pos, double pressure)
{
    return m_hands->pen(view().viewport(), type, view().viewportTransform().map(pos), pressure);
}

void BoardDriver::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // After a dialog it takes a turn of the event loop.
    if (!activate(*m_window))
        qFatal("the window is not active");
    view().setFocus();
    m_hands->key(&view(), key, modifiers);
}

void BoardDriver::keyIn(QWidget *focused, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    m_hands->key(focused, key, modifiers);
}

void BoardDriver::type(QWidget *focused, const QString &text)
{
    m_hands->type(focused, text);
}

void BoardDriver::clickOn(QWidget *widget, const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    m_hands->press(widget, pos, modifiers);
    m_hands->release(widget, pos, modifiers);
}

void BoardDriver::clickOn(QWidget *widget)
{
    bringIntoView(widget);
    clickOn(widget, widget->rect().center());
}

QAction *BoardDriver::action(const QString &text) const
{
    const QList<QAction *> candidates = m_window->findChildren<QAction *>();
    for (QAction *candidate : candidates)
        if (candidate->text() == text)
            return candidate;
    return nullptr;
}

QPushButton *BoardDriver::button(const QString &text) const
{
    const QList<QPushButton *> candidates = m_window->findChildren<QPushButton *>();
    for (QPushButton *candidate : candidates)
        if (candidate->isVisible() && candidate->text().remove(QLatin1Char('&')) == text)
            return candidate;
    return nullptr;
}

void BoardDriver::pick(const QString &kindId)
{
    if (!m_window->palette()->isOpen())
        m_window->commands()->action(board::Command::Shapes)->trigger();
    // The shapes that were last used have new buttons from the next turn of the event loop on.
    QCoreApplication::processEvents();
    // So have all shapes when a file of shapes has changed while the palette slides in.
    QPointer<board::PaletteButton> button;
    do {
        button = paletteButton(kindId);
        if (!button)
            return;
        bringIntoView(button.data());
    } while (!button);
    clickOn(button, button->rect().center());
}

board::PaletteButton *BoardDriver::paletteButton(const QString &kindId) const
{
    const auto buttons = m_window->palettePanel()->buttons();
    for (board::PaletteButton *button : buttons)
        if (button->kindId() == kindId && button->isVisible())
            return button;
    return nullptr;
}

QVector<pagehost::ObjectKind> BoardDriver::drawableKinds() const
{
    QVector<pagehost::ObjectKind> kinds = m_workspace->registry().kinds();
    const auto isOfTools = [](const pagehost::ObjectKind &kind) { return kind.group.isEmpty(); };
    kinds.erase(std::remove_if(kinds.begin(), kinds.end(), isOfTools), kinds.end());
    return kinds;
}

CBaseObject *BoardDriver::draw(const QString &kindId, const QPointF &from, const QPointF &to)
{
    pick(kindId);
    drag(from, to);
    return page().objects().isEmpty() ? nullptr : page().objects().last();
}

CBaseObject *BoardDriver::only() const
{
    return page().objectCount() == 1 ? page().objects().first() : nullptr;
}

QVector<CBaseObject *> BoardDriver::selection() const
{
    return page().selectedObjects();
}

QRectF BoardDriver::placeOf(const CBaseObject *object) const
{
    return {object->getPos(), object->getClientRect().size()};
}

QPointF BoardDriver::handle(CObjAction::ACT_Def action) const
{
    QRectF bounds;
    const QVector<CBaseObject *> selected = selection();
    for (const CBaseObject *object : selected)
        bounds |= object->mapToScene(object->getClientRect()).boundingRect();
    if (bounds.isNull())
        return {};
    const QRect area = bounds.adjusted(-handleReach, -handleReach, handleReach, handleReach).toAlignedRect();
    const QVector<QPoint> found = answering(action, area, coarseStep);
    if (found.isEmpty())
        return {};
    const QPoint spot = found.first();
    const QRect around(spot - QPoint(coarseStep, coarseStep) * 4, spot + QPoint(coarseStep, coarseStep) * 4);
    const QVector<QPoint> answers = answering(action, around, 1);
    QPoint sum;
    for (const QPoint &pos : answers)
        sum += pos;
    return {double(qRound(double(sum.x()) / answers.size())), double(qRound(double(sum.y()) / answers.size()))};
}

QVector<QPoint> BoardDriver::answering(CObjAction::ACT_Def action, const QRect &area, int step) const
{
    QVector<QPoint> found;
    for (int y = area.top(); y <= area.bottom(); y += step) {
        for (int x = area.left(); x <= area.right(); x += step)
            if (scene().gripAt(QPointF(x, y)).action == action)
                found.append({x, y});
    }
    return found;
}

} // namespace boardtest
