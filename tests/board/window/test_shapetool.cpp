// The tool that draws shapes, and how it takes turns with selecting.

#include <board/boarddriver.h>

#include <core/toolchoice.h>
#include <window/mainwindow.h>

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtTest/QtTest>

using namespace boardtest;
using board::Tool;

class TestShapeTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectAndShapeAreOffered();
    void shapeFromThePaletteTakesTheToolUntilItIsDrawn();
    void keptToolDrawsOneShapeAfterAnother();
    void escapeEndsAKeptTool();
    void anotherToolPutsAWaitingShapeAway();
    void toolWithoutAKindTakesTheOneDrawnLast();
};

static board::ToolChoice &tools(const BoardDriver &board)
{
    return *board.window().tools();
}

void TestShapeTool::selectAndShapeAreOffered()
{
    BoardDriver board;
    QVERIFY(tools(board).isOffered(Tool::Select));
    QVERIFY(tools(board).isOffered(Tool::Shape));
    QCOMPARE(tools(board).tool(), Tool::Select);
}

void TestShapeTool::shapeFromThePaletteTakesTheToolUntilItIsDrawn()
{
    BoardDriver board;
    board.pick(rectangle);
    QCOMPARE(tools(board).tool(), Tool::Shape);
    board.drag({500, 300}, {700, 420});
    QCOMPARE(tools(board).tool(), Tool::Select);
    QCOMPARE(board.page().objectCount(), 1);
}

void TestShapeTool::keptToolDrawsOneShapeAfterAnother()
{
    BoardDriver board;
    board.pick(arrow);
    tools(board).keep(true);
    board.drag({100, 100}, {200, 180});
    board.drag({300, 100}, {400, 180});
    QCOMPARE(tools(board).tool(), Tool::Shape);
    QCOMPARE(board.page().objectCount(), 2);
    QCOMPARE(pagehost::kindIdOf(board.page().objects().last()), arrow);
    QCOMPARE(board.placeOf(board.page().objects().last()), QRectF(300, 100, 100, 80));
}

void TestShapeTool::escapeEndsAKeptTool()
{
    BoardDriver board;
    board.pick(arrow);
    tools(board).keep(true);
    board.drag({100, 100}, {200, 180});
    board.key(Qt::Key_Escape);
    QCOMPARE(tools(board).tool(), Tool::Select);
    QVERIFY(!tools(board).isKept());
    board.drag({300, 100}, {400, 180});
    QCOMPARE(board.page().objectCount(), 1);
}

void TestShapeTool::anotherToolPutsAWaitingShapeAway()
{
    BoardDriver board;
    board.pick(rectangle);
    tools(board).choose(Tool::Select);
    board.drag({500, 300}, {700, 420});
    QCOMPARE(board.page().objectCount(), 0);
}

void TestShapeTool::toolWithoutAKindTakesTheOneDrawnLast()
{
    BoardDriver board;
    board.draw(arrow, {100, 100}, {200, 180});
    tools(board).choose(Tool::Shape);
    board.drag({300, 100}, {400, 180});
    QCOMPARE(board.page().objectCount(), 2);
    QCOMPARE(pagehost::kindIdOf(board.page().objects().last()), arrow);
}

QTEST_MAIN(TestShapeTool)
#include "test_shapetool.moc"
