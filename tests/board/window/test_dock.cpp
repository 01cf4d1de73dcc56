// The tools at an edge of the window.

#include <board/boarddriver.h>

#include <core/actions.h>
#include <core/toolchoice.h>
#include <page/pageview.h>
#include <window/dock.h>
#include <window/dockbutton.h>
#include <window/mainwindow.h>
#include <window/topbar.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenu>

using namespace boardtest;
using board::Tool;

class TestDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void toolsThatNobodyOffersAreLeftOut();
    void offeredToolComesToItsPlace();
    void pressOnAToolChoosesIt();
    void secondPressKeepsTheTool();
    void toolsStandInTheirOrderFromTheTop();
    void undoAndRedoStandAtTheFarEnd();
    void shortDockClosesGapsThenShrinksThenFolds();
    void foldedToolIsChosenInTheMenu();
    void insertAsksForAFileAndLeavesTheToolAsItIs();
    void dockIsDraggedToAnotherEdge_data();
    void dockIsDraggedToAnotherEdge();
    void dockLiesWhereItWasLeft();
};

namespace {

constexpr Tool allTools[] = {Tool::Pen, Tool::Highlighter, Tool::Eraser, Tool::Text, Tool::Line, Tool::Connector};

/// A dock of its own, with every tool on offer.
struct FullDock
{
    FullDock()
        : dock(&board.workspace(), board.window().commands(), &tools)
    {
        tools.offer(Tool::Shape);
        for (const Tool tool : allTools)
            tools.offer(tool);
        dock.setEdge(Qt::LeftEdge);
        dock.show();
    }
    QRect place(Tool tool) const { return dock.buttonOf(tool)->geometry(); }

    BoardDriver board;
    board::ToolChoice tools;
    board::Dock dock;
};

void clickOn(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

} // namespace

void TestDock::init()
{
    useOwnFolders();
    QSettings().clear();
}

void TestDock::toolsThatNobodyOffersAreLeftOut()
{
    BoardDriver board;
    board::ToolChoice tools;
    board::Dock dock(&board.workspace(), board.window().commands(), &tools);
    dock.show();
    QVERIFY(dock.buttonOf(Tool::Select)->isVisible());
    QVERIFY(!dock.buttonOf(Tool::Pen)->isVisible());
    QVERIFY(!dock.buttonOf(Tool::Shape)->isVisible());
}

void TestDock::offeredToolComesToItsPlace()
{
    BoardDriver board;
    board::ToolChoice tools;
    board::Dock dock(&board.workspace(), board.window().commands(), &tools);
    dock.resize(56, 728);
    dock.show();
    tools.offer(Tool::Text);
    QVERIFY(dock.buttonOf(Tool::Text)->isVisible());
    // Select, then a line: 8 + 40 + 12.
    QCOMPARE(dock.buttonOf(Tool::Text)->geometry(), QRect(8, 60, 40, 40));
}

void TestDock::pressOnAToolChoosesIt()
{
    FullDock t;
    clickOn(t.dock.buttonOf(Tool::Pen));
    QCOMPARE(t.tools.tool(), Tool::Pen);
    QVERIFY(t.dock.buttonOf(Tool::Pen)->isChecked());
    QVERIFY(!t.dock.buttonOf(Tool::Select)->isChecked());
}

void TestDock::secondPressKeepsTheTool()
{
    FullDock t;
    clickOn(t.dock.buttonOf(Tool::Line));
    clickOn(t.dock.buttonOf(Tool::Line));
    QVERIFY(t.tools.isKept());
    QVERIFY(t.dock.buttonOf(Tool::Line)->isKept());
    QVERIFY(t.dock.buttonOf(Tool::Line)->isChecked());
    clickOn(t.dock.buttonOf(Tool::Line));
    QVERIFY(!t.tools.isKept());
    QVERIFY(!t.dock.buttonOf(Tool::Line)->isKept());
}

void TestDock::toolsStandInTheirOrderFromTheTop()
{
    FullDock t;
    t.dock.resize(56, 728);
    QCOMPARE(t.place(Tool::Select), QRect(8, 8, 40, 40));
    QCOMPARE(t.place(Tool::Pen), QRect(8, 60, 40, 40));
    QCOMPARE(t.place(Tool::Highlighter), QRect(8, 104, 40, 40));
    QCOMPARE(t.place(Tool::Eraser), QRect(8, 148, 40, 40));
    QCOMPARE(t.place(Tool::Text), QRect(8, 200, 40, 40));
    QCOMPARE(t.place(Tool::Line), QRect(8, 244, 40, 40));
    QCOMPARE(t.place(Tool::Connector), QRect(8, 288, 40, 40));
    QCOMPARE(t.place(Tool::Shape), QRect(8, 340, 40, 40));
    QCOMPARE(t.dock.insertButton()->geometry(), QRect(8, 384, 40, 40));
}

void TestDock::undoAndRedoStandAtTheFarEnd()
{
    FullDock t;
    t.dock.resize(56, 728);
    const auto placeOf = [&](const QAction *action) {
        for (const board::DockButton *button : t.dock.findChildren<board::DockButton *>())
            if (button->defaultAction() == action)
                return button->geometry();
        return QRect();
    };
    QCOMPARE(placeOf(t.board.window().actions()->redo), QRect(8, 680, 40, 40));
    QCOMPARE(placeOf(t.board.window().actions()->undo), QRect(8, 636, 40, 40));
}

/// Eight tools and Insert in four groups, and two at the end.
void TestDock::shortDockClosesGapsThenShrinksThenFolds()
{
    FullDock t;
    // 16 at the edges, 11 × 40, four gaps of 12 around groups, and eight others of 4.
    t.dock.resize(56, 536);
    QCOMPARE(t.place(Tool::Highlighter).top() - t.place(Tool::Pen).bottom() - 1, 4);
    t.dock.resize(56, 535);
    QCOMPARE(t.place(Tool::Highlighter).top() - t.place(Tool::Pen).bottom() - 1, 0);
    QCOMPARE(t.place(Tool::Pen).height(), 40);
    t.dock.resize(56, 503);
    QCOMPARE(t.place(Tool::Pen).height(), 36);
    QVERIFY(!t.dock.moreButton()->isVisible());
    t.dock.resize(56, 459);
    QVERIFY(t.dock.moreButton()->isVisible());
    QVERIFY(!t.dock.buttonOf(Tool::Highlighter)->isVisible());
    QVERIFY(!t.dock.buttonOf(Tool::Connector)->isVisible());
    QVERIFY(t.dock.buttonOf(Tool::Eraser)->isVisible());
}

void TestDock::foldedToolIsChosenInTheMenu()
{
    FullDock t;
    t.dock.resize(56, 459);
    QStringList names;
    for (QAction *action : t.dock.moreButton()->menu()->actions())
        names.append(action->text());
    QCOMPARE(names, QStringList({"Highlighter", "Connector", "Insert"}));
    t.dock.moreButton()->menu()->actions().at(1)->trigger();
    QCOMPARE(t.tools.tool(), Tool::Connector);
}

void TestDock::insertAsksForAFileAndLeavesTheToolAsItIs()
{
    BoardDriver board;
    clickOn(board.window().dock()->insertButton());
    auto *dialog = board.window().findChild<QFileDialog *>();
    QVERIFY(dialog);
    dialog->reject();
    QCOMPARE(board.window().tools()->tool(), Tool::Select);
    QVERIFY(!board.window().dock()->insertButton()->isChecked());
}

void TestDock::dockIsDraggedToAnotherEdge_data()
{
    QTest::addColumn<Qt::Edge>("edge");
    QTest::addColumn<QPoint>("to"); // in percent of the window
    QTest::newRow("right") << Qt::RightEdge << QPoint(95, 50);
    QTest::newRow("top") << Qt::TopEdge << QPoint(50, 10);
    QTest::newRow("bottom") << Qt::BottomEdge << QPoint(50, 95);
}

void TestDock::dockIsDraggedToAnotherEdge()
{
    QFETCH(Qt::Edge, edge);
    QFETCH(QPoint, to);
    BoardDriver board;
    board::Dock &dock = *board.window().dock();
    QCOMPARE(dock.edge(), Qt::LeftEdge);
    const QPoint empty(28, dock.height() / 2);
    const QPoint end(board.window().width() * to.x() / 100, board.window().height() * to.y() / 100);
    QTest::mousePress(&dock, Qt::LeftButton, Qt::NoModifier, empty);
    QMouseEvent move(QEvent::MouseMove, dock.mapFrom(&board.window(), end), board.window().mapToGlobal(end),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&dock, &move);
    QTest::mouseRelease(&dock, Qt::LeftButton);
    QCOMPARE(dock.edge(), edge);
    QCoreApplication::processEvents();
    const QRect place(dock.mapTo(&board.window(), QPoint()), dock.size());
    QCOMPARE(edge == Qt::RightEdge ? place.width() : place.height(), 56);
    QVERIFY(place.contains(edge == Qt::TopEdge ? QPoint(place.center().x(), 41) : place.center()));
    QVERIFY(dock.buttonOf(Tool::Shape)->isVisible());
}

void TestDock::dockLiesWhereItWasLeft()
{
    {
        BoardDriver board;
        board.window().setDockEdge(Qt::BottomEdge);
    }
    BoardDriver board;
    QCOMPARE(board.window().dock()->edge(), Qt::BottomEdge);
    QVERIFY(board.window().dock()->width() > board.window().dock()->height());
}

QTEST_MAIN(TestDock)
#include "test_dock.moc"
