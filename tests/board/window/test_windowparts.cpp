// F6 and Shift+F6: the parts of the window, one after the other.

#include <board/boarddriver.h>

#include <core/commands.h>
#include <lessons/lessonbar.h>
#include <lessons/lessoncontroller.h>
#include <page/pageview.h>
#include <panels/pagepanel.h>
#include <window/dock.h>
#include <window/drawer.h>
#include <window/mainwindow.h>
#include <window/shelf.h>
#include <window/stylebar.h>
#include <window/topbar.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>

using namespace boardtest;

namespace {

/// The name of the innermost part that has the focus.
QString focusedPart(const BoardDriver &board)
{
    const board::MainWindow &window = board.window();
    const QHash<const QWidget *, QString> names{
        {window.view(), "page"},     {window.findChild<board::StyleBar *>(), "style bar"},
        {window.dock(), "dock"},     {window.findChild<board::Shelf *>(), "shelf"},
        {window.panel(), "panel"},   {window.palette(), "shapes"},
        {window.pages(), "strip"},   {window.lessonBar(), "lesson"},
        {window.topBar(), "top bar"}};
    for (const QWidget *widget = QApplication::focusWidget(); widget; widget = widget->parentWidget())
        if (names.contains(widget))
            return names.value(widget);
    return QStringLiteral("none");
}

QStringList walk(const BoardDriver &board, int steps, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QStringList parts;
    for (int i = 0; i < steps; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        parts.append(focusedPart(board));
    }
    return parts;
}

} // namespace

class TestWindowParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void f6WalksAllPartsThatAreShown();
    void shiftF6WalksBack();
    void hiddenPartsArePassed();
    void aPartIsEnteredWhereItWasLeft();
    void everyControlIsReachedByTab();
};

/// With all that can be shown at once: no tool has a shelf while there is a bar at the selection.
void showAll(BoardDriver &board)
{
    board.window().commands()->action(board::Command::PageStrip)->setChecked(true);
    board.window().commands()->action(board::Command::Record)->trigger();
    board.key(Qt::Key_P);
}

void TestWindowParts::f6WalksAllPartsThatAreShown()
{
    BoardDriver board;
    showAll(board);
    QCOMPARE(walk(board, 7), (QStringList{"dock", "shelf", "panel", "strip", "lesson", "top bar", "page"}));
}

void TestWindowParts::shiftF6WalksBack()
{
    BoardDriver board;
    showAll(board);
    QCOMPARE(walk(board, 7, Qt::ShiftModifier),
             (QStringList{"top bar", "lesson", "strip", "panel", "shelf", "dock", "page"}));
}

void TestWindowParts::hiddenPartsArePassed()
{
    BoardDriver board;
    board.window().commands()->action(board::Command::PageStrip)->setChecked(false);
    board.window().panel()->setPinned(false);
    board.window().panel()->setOpen(false);
    board.draw(rectangle, {500, 300}, {700, 420});
    board.key(Qt::Key_V);
    QCoreApplication::processEvents();
    board.view().setFocus();
    QCOMPARE(walk(board, 4), (QStringList{"style bar", "dock", "top bar", "page"}));
}

void TestWindowParts::aPartIsEnteredWhereItWasLeft()
{
    BoardDriver board;
    showAll(board);
    walk(board, 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QWidget *second = QApplication::focusWidget();
    QCOMPARE(focusedPart(board), QString("dock"));
    walk(board, 7);
    QCOMPARE(QApplication::focusWidget(), second);
}

/// From the first control of a part, Tab reaches all others of it.
void TestWindowParts::everyControlIsReachedByTab()
{
    BoardDriver board;
    showAll(board);
    for (const QWidget *part :
         {static_cast<QWidget *>(board.window().dock()), static_cast<QWidget *>(board.window().topBar()),
          static_cast<QWidget *>(board.window().findChild<board::Shelf *>()),
          static_cast<QWidget *>(board.window().lessonBar())}) {
        const QList<QAbstractButton *> buttons = part->findChildren<QAbstractButton *>();
        QVERIFY(!buttons.isEmpty());
        for (const QAbstractButton *button : buttons)
            if (button->isVisible() && button->isEnabled())
                QVERIFY2(button->focusPolicy() & Qt::TabFocus,
                         qPrintable(button->accessibleName() + button->text()));
    }
}

QTEST_MAIN(TestWindowParts)
#include "test_windowparts.moc"
