// The tools at an edge of the window.

#include <board/boarddriver.h>

#include <core/actions.h>
#include <core/commands.h>
#include <core/toolchoice.h>
#include <look/dockbutton.h>
#include <look/sizes.h>
#include <look/theme.h>
#include <page/pageview.h>
#include <tools/toolsettings.h>
#include <window/dock.h>
#include <window/mainwindow.h>
#include <window/pencolors.h>
#include <window/topbar.h>

#include <support/listed.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>

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
    void keysPressATool_data();
    void keysPressATool();
    void secondPressKeepsTheTool();
    void toolsStandInTheirOrderFromTheTop();
    void undoAndRedoStandAtTheFarEnd();
    void shortDockClosesGapsThenShrinksThenFolds();
    void foldedToolIsChosenInTheMenu();
    void insertAsksForAFileAndLeavesTheToolAsItIs();
    void dockIsDraggedToAnotherEdge_data();
    void dockIsDraggedToAnotherEdge();
    void dockLiesWhereItWasLeft();
    void toolsAndBarAreOneAtTheTopAndTheBottom_data();
    void toolsAndBarAreOneAtTheTopAndTheBottom();
    void barIsAtTheTopAgainWhenTheToolsStandAtASide();
    void largeToolsAreLargeEnoughForFingers();
    void largeToolsShrinkThenFoldWhereTheyAreTooLong();
    void colorsOfThePenStandInTheOneBar();
    void aColourInTheBarTakesThePen();
    void firstTouchOffersLargeToolsOnce();
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

/// Names of those that a finger misses.
QString smallButtons(const QWidget &bar)
{
    QStringList names;
    const QList<QToolButton *> buttons = bar.findChildren<QToolButton *>();
    for (const QToolButton *button : buttons)
        if (button->isVisible() && (button->height() < 44 || button->width() < 44))
            names.append(button->text());
    return names.join(", ");
}

void clickOn(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

} // namespace

void TestDock::init()
{
    useOwnFolders();
    QSettings().clear();
    board::applyLargeSizes(false);
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

void TestDock::keysPressATool_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space") << int(Qt::Key_Space);
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void TestDock::keysPressATool()
{
    QFETCH(int, key);
    FullDock t;
    QTest::keyClick(t.dock.buttonOf(Tool::Eraser), static_cast<Qt::Key>(key));
    QCOMPARE(t.tools.tool(), Tool::Eraser);
    QVERIFY(!t.tools.isKept());
    QTest::keyClick(t.dock.buttonOf(Tool::Eraser), static_cast<Qt::Key>(key));
    QVERIFY(t.tools.isKept());
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
        for (const board::DockButton *button : support::listed(t.dock.findChildren<board::DockButton *>()))
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
    for (QAction *action : support::listed(t.dock.moreButton()->menu()->actions()))
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

void TestDock::toolsAndBarAreOneAtTheTopAndTheBottom_data()
{
    QTest::addColumn<Qt::Edge>("edge");
    QTest::newRow("top") << Qt::TopEdge;
    QTest::newRow("bottom") << Qt::BottomEdge;
}

void TestDock::toolsAndBarAreOneAtTheTopAndTheBottom()
{
    QFETCH(Qt::Edge, edge);
    BoardDriver board;
    board::MainWindow &window = board.window();
    window.setDockEdge(edge);
    QCoreApplication::processEvents();
    const QRect bar(window.topBar()->mapTo(&window, QPoint()), window.topBar()->size());
    QCOMPARE(bar, QRect(0, edge == Qt::TopEdge ? 0 : window.height() - 56, window.width(), 56));
    const QRect tools(window.dock()->mapTo(&window, QPoint()), window.dock()->size());
    QVERIFY(bar.contains(tools));
    QCOMPARE(tools.height(), 56);
    QVERIFY(!window.menus()->isVisible());
    // Pages at the left, what is done with all of it at the right.
    const auto leftOf = [&](const QWidget *part) { return part->mapTo(&window, QPoint()).x(); };
    QVERIFY(leftOf(window.topBar()->pages()) < tools.left());
    const QList<QToolButton *> buttons = window.topBar()->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons)
        if (button->defaultAction() == window.commands()->action(board::Command::Present))
            QVERIFY(leftOf(button) > tools.right());
    // All the rest is the page's.
    QCOMPARE(board.view().height(), window.height() - 56);
}

void TestDock::barIsAtTheTopAgainWhenTheToolsStandAtASide()
{
    BoardDriver board;
    board::MainWindow &window = board.window();
    window.setDockEdge(Qt::BottomEdge);
    window.setDockEdge(Qt::RightEdge);
    QCoreApplication::processEvents();
    QCOMPARE(window.topBar()->geometry(), QRect(0, 0, window.width(), 40));
    QVERIFY(window.menus()->isVisible());
    QCOMPARE(QRect(window.dock()->mapTo(&window, QPoint()), window.dock()->size()),
             QRect(window.width() - 56, 40, 56, window.height() - 40));
}

void TestDock::largeToolsAreLargeEnoughForFingers()
{
    {
        BoardDriver board;
        board.window().setLargeTools(true);
        QCoreApplication::processEvents();
        QCOMPARE(board.window().dock()->width(), 96);
        QCOMPARE(board.window().dock()->buttonOf(Tool::Select)->geometry(), QRect(16, 8, 64, 64));
        QCOMPARE(board.window().topBar()->height(), 56);
        QCOMPARE(smallButtons(*board.window().topBar()), QString());
        board.window().setDockEdge(Qt::BottomEdge);
        QCoreApplication::processEvents();
        QCOMPARE(board.window().topBar()->height(), 96);
    }
    BoardDriver again;
    QVERIFY(board::areSizesLarge());
    QCOMPARE(smallButtons(*again.window().topBar()), QString());
    again.window().setLargeTools(false);
    QCoreApplication::processEvents();
    QCOMPARE(again.window().topBar()->height(), 56);
}

/// Eight tools and Insert in four groups, and two at the end.
void TestDock::largeToolsShrinkThenFoldWhereTheyAreTooLong()
{
    FullDock t;
    board::applyLargeSizes(true);
    // 16 at the edges, 11 × 64, four gaps of 12 around groups, and eight others of 8.
    t.dock.resize(96, 832);
    QCOMPARE(t.place(Tool::Pen).height(), 64);
    QCOMPARE(t.place(Tool::Highlighter).top() - t.place(Tool::Pen).bottom() - 1, 8);
    t.dock.resize(96, 831);
    QCOMPARE(t.place(Tool::Highlighter).top() - t.place(Tool::Pen).bottom() - 1, 0);
    t.dock.resize(96, 767);
    QCOMPARE(t.place(Tool::Pen).height(), 56);
    t.dock.resize(96, 560);
    QVERIFY(t.dock.moreButton()->isVisible());
    QCOMPARE(t.place(Tool::Pen).height(), 44);
    QVERIFY(t.dock.minimumSizeHint().height() <= 484);
}

void TestDock::colorsOfThePenStandInTheOneBar()
{
    BoardDriver board;
    board::MainWindow &window = board.window();
    auto *colors = window.findChild<board::PenColors *>();
    QVERIFY(!colors->isVisible());
    window.setDockEdge(Qt::BottomEdge);
    QCoreApplication::processEvents();
    QVERIFY(colors->isVisible());
    const auto buttons = colors->findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), window.toolSettings()->colors(Tool::Pen).size());
    const QRect place = colors->geometry();
    QVERIFY(place.left() > window.dock()->insertButton()->geometry().right());
    QVERIFY(window.dock()->rect().contains(place));
    window.resize(960, 540);
    QCoreApplication::processEvents();
    QVERIFY(!colors->isVisible());
}

void TestDock::aColourInTheBarTakesThePen()
{
    BoardDriver board;
    board::MainWindow &window = board.window();
    window.setDockEdge(Qt::BottomEdge);
    const auto buttons = window.findChild<board::PenColors *>()->findChildren<QToolButton *>();
    const QVector<QColor> offered = window.toolSettings()->colors(Tool::Pen);
    clickOn(buttons.at(2));
    QCOMPARE(window.tools()->tool(), Tool::Pen);
    QCOMPARE(window.toolSettings()->color(Tool::Pen), offered.at(2));
    QVERIFY(buttons.at(2)->isChecked());
    clickOn(buttons.at(3));
    QVERIFY(!buttons.at(2)->isChecked());
    QVERIFY(buttons.at(3)->isChecked());
    // A press on the present one keeps it.
    clickOn(buttons.at(3));
    QVERIFY(buttons.at(3)->isChecked());
    window.tools()->choose(Tool::Select);
    QVERIFY(!buttons.at(3)->isChecked());
}

void TestDock::firstTouchOffersLargeToolsOnce()
{
    BoardDriver board;
    QTouchDevice *screen = QTest::createTouchDevice();
    const auto touch = [&](QWidget *button) {
        QTest::touchEvent(button, screen).press(0, button->rect().center(), button);
        QTest::touchEvent(button, screen).release(0, button->rect().center(), button);
        QCoreApplication::processEvents();
    };
    clickOn(board.window().dock()->buttonOf(Tool::Pen));
    QCoreApplication::processEvents();
    QVERIFY(!board.button("Large buttons"));
    touch(board.window().dock()->buttonOf(Tool::Text));
    QVERIFY(board.button("Large buttons"));
    QTest::mouseClick(board.button("Large buttons"), Qt::LeftButton);
    QVERIFY(board::areSizesLarge());
    board.window().setLargeTools(false);
    touch(board.window().dock()->buttonOf(Tool::Pen));
    QVERIFY(!board.button("Large buttons"));
}

QTEST_MAIN(TestDock)
#include "test_dock.moc"
