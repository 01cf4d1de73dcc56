// Menus of what is under the pointer, and the menus of the window.

#include <board/boarddriver.h>

#include <commands/menuplan.h>
#include <core/commands.h>
#include <core/mnemonics.h>
#include <page/pageview.h>
#include <panels/pagepanel.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Command;

using Objects = QVector<CBaseObject *>;

namespace {

/// The window system sends the request after the press.
void rightClick(QWidget *widget, const QPoint &pos)
{
    QTest::mousePress(widget, Qt::RightButton, Qt::NoModifier, pos);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, widget->mapToGlobal(pos));
    QApplication::sendEvent(widget, &event);
    QTest::mouseRelease(widget, Qt::RightButton, Qt::NoModifier, pos);
}

void rightClick(const BoardDriver &board, const QPointF &scenePos)
{
    rightClick(board.view().viewport(), board.view().mapFromScene(scenePos));
}

QMenu *menu(const BoardDriver &board, const QString &name)
{
    return board.window().findChild<QMenu *>(name);
}

/// The only menu that is open; empty for none.
QString openMenu(const BoardDriver &board)
{
    QStringList open;
    for (const char *name : {"objectMenu", "pageMenu", "thumbnailMenu"})
        if (menu(board, name)->isVisible())
            open.append(name);
    return open.join(' ');
}

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    for (const QAction *action : support::listed(menu->actions()))
        if (action->isVisible())
            texts.append(action->isSeparator() ? "|" : board::withoutMnemonic(action->text()));
    return texts;
}

void collect(const board::MenuPlan &plan, QVector<Command> &found)
{
    for (const board::MenuEntry &entry : plan) {
        if (entry.command)
            found.append(*entry.command);
        collect(entry.entries, found);
    }
}

/// Two rectangles side by side; the right one, drawn last, is selected.
struct TwoShapes
{
    BoardDriver board;
    CBaseObject *left = board.draw(rectangle, {300, 300}, {400, 400});
    CBaseObject *right = board.draw(rectangle, {600, 300}, {700, 400});
};

} // namespace

class TestContextMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandIsInTheMenusOfTheWindowOnce();
    void rightClickSelectsTheShapeUnderIt();
    void rightClickOnTheSelectionKeepsIt();
    void rightClickOnEmptyPageOpensThePagesMenu();
    void rightClickReachesALockedShape();
    void rightClickStartsNoDragAndNoStep();
    void rightClickWhileDraggingIsIgnored();
    void objectMenuInOrder();
    void thumbnailMenuActsOnThePageUnderIt();
    void menuKeysOpenTheMenuOfTheSelection_data();
    void menuKeysOpenTheMenuOfTheSelection();
};

void TestContextMenus::everyCommandIsInTheMenusOfTheWindowOnce()
{
    QVector<Command> found;
    collect(board::mainMenuPlan(), found);
    std::sort(found.begin(), found.end());
    QVector<Command> all;
    for (int i = 0; i < board::commandCount; ++i)
        all.append(static_cast<Command>(i));
    QCOMPARE(found, all);
}

void TestContextMenus::rightClickSelectsTheShapeUnderIt()
{
    TwoShapes t;
    rightClick(t.board, {350, 350});
    QCOMPARE(t.board.selection(), Objects{t.left});
    QCOMPARE(openMenu(t.board), QString("objectMenu"));
}

void TestContextMenus::rightClickOnTheSelectionKeepsIt()
{
    TwoShapes t;
    t.board.page().select({t.left, t.right});
    rightClick(t.board, {350, 350});
    QCOMPARE(t.board.selection(), (Objects{t.left, t.right}));
    QCOMPARE(openMenu(t.board), QString("objectMenu"));
}

void TestContextMenus::rightClickOnEmptyPageOpensThePagesMenu()
{
    TwoShapes t;
    rightClick(t.board, {900, 600});
    QCOMPARE(t.board.selection(), Objects());
    QCOMPARE(openMenu(t.board), QString("pageMenu"));
    menu(t.board, "pageMenu")->close();
    t.board.window().commands()->action(Command::SelectAll)->trigger();
    QCOMPARE(t.board.selection(), (Objects{t.left, t.right}));
}

void TestContextMenus::rightClickReachesALockedShape()
{
    TwoShapes t;
    pagehost::setObjectsLocked({t.left}, true);
    rightClick(t.board, {350, 350});
    QCOMPARE(t.board.selection(), Objects{t.left});
    QVERIFY(textsOf(menu(t.board, "objectMenu")).contains("Unlock"));
}

void TestContextMenus::rightClickStartsNoDragAndNoStep()
{
    TwoShapes t;
    const int steps = t.board.history().count();
    rightClick(t.board, {350, 350});
    menu(t.board, "objectMenu")->close();
    t.board.hover({500, 500});
    QCOMPARE(t.board.placeOf(t.left), QRectF(300, 300, 100, 100));
    QCOMPARE(t.board.history().count(), steps);
}

void TestContextMenus::rightClickWhileDraggingIsIgnored()
{
    TwoShapes t;
    t.board.hold({650, 350}, {650, 450});
    rightClick(t.board, {350, 350});
    QCOMPARE(openMenu(t.board), QString());
    t.board.release({650, 450});
    QCOMPARE(t.board.selection(), Objects{t.right});
    QCOMPARE(t.board.placeOf(t.right), QRectF(600, 400, 100, 100));
}

void TestContextMenus::objectMenuInOrder()
{
    TwoShapes t;
    rightClick(t.board, {350, 350});
    QCOMPARE(
        textsOf(menu(t.board, "objectMenu")),
        (QStringList{"Edit text", "|", "Cut", "Copy", "Paste", "Duplicate", "|", "Order", "Align", "Bring back",
                     "Group", "Ungroup", "Lock", "|", "Copy look", "Paste look", "All properties", "|", "Delete"}));
}

void TestContextMenus::thumbnailMenuActsOnThePageUnderIt()
{
    TwoShapes t;
    t.board.window().commands()->action(Command::AddPage)->trigger();
    QListWidget *pages = t.board.window().pages()->list();
    rightClick(pages->viewport(), pages->visualItemRect(pages->item(0)).center());
    QCOMPARE(openMenu(t.board), QString("thumbnailMenu"));
    QCOMPARE(t.board.workspace().document()->currentIndex(), 0);
    t.board.window().commands()->action(Command::DuplicatePage)->trigger();
    QCOMPARE(t.board.workspace().document()->pageCount(), 3);
    QCOMPARE(t.board.workspace().document()->page(1)->objectCount(), 2);
}

void TestContextMenus::menuKeysOpenTheMenuOfTheSelection_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::newRow("Menu") << int(Qt::Key_Menu) << false;
    QTest::newRow("Shift+F10") << int(Qt::Key_F10) << true;
}

void TestContextMenus::menuKeysOpenTheMenuOfTheSelection()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    BoardDriver board;
    // So far left and up that the menu fits the screen below it.
    board.draw(rectangle, {150, -135}, {250, -75});
    const Qt::KeyboardModifiers modifiers = shift ? Qt::ShiftModifier : Qt::NoModifier;
    board.key(static_cast<Qt::Key>(key), modifiers);
    QCOMPARE(openMenu(board), QString("objectMenu"));
    const QPoint corner = board.view().viewport()->mapToGlobal(board.view().mapFromScene(QPointF(150, -75)));
    QCOMPARE(menu(board, "objectMenu")->pos(), corner);
    menu(board, "objectMenu")->close();
    board.page().select({});
    board.key(static_cast<Qt::Key>(key), modifiers);
    QCOMPARE(openMenu(board), QString("pageMenu"));
}

QTEST_MAIN(TestContextMenus)
#include "test_contextmenus.moc"
