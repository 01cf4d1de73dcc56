#include <board/boarddriver.h>

#include <core/commands.h>
#include <core/windowmemory.h>
#include <page/pageview.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <QtCore/QSettings>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QUndoStack>

using namespace boardtest;
using board::Command;

class TestSnapActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawnShapesCatchWhileSnappingIsOn();
    void movedShapeCatchesAtAShape();
    void controlDragsACopyInOneStep();
    void bubbleTellsPlaceSizeAndAngle();
    void spaceMovesTheStartInsteadOfTheView();
    void everyPageSnapsAlike();
    void gridIsShownOnEveryPage();
    void choicesAreRemembered();
};

void TestSnapActions::drawnShapesCatchWhileSnappingIsOn()
{
    BoardDriver board;
    board.draw(rectangle, {500, 300}, {700, 420});
    board.key(Qt::Key_N);
    QCOMPARE(board.placeOf(board.draw(rectangle, {703, 425}, {900, 600})), QRectF(700, 420, 200, 180));
    board.key(Qt::Key_N);
    QCOMPARE(board.placeOf(board.draw(rectangle, {103, 425}, {300, 600})), QRectF(103, 425, 197, 175));
}

void TestSnapActions::movedShapeCatchesAtAShape()
{
    BoardDriver board;
    board.draw(rectangle, {500, 300}, {700, 420});
    CBaseObject *moved = board.draw(rectangle, {150, 500}, {250, 570});
    board.key(Qt::Key_N);
    board.drag({160, 560}, {513, 564});
    QCOMPARE(board.placeOf(moved), QRectF(500, 504, 100, 70));
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(board.placeOf(moved), QRectF(150, 500, 100, 70));
}

void TestSnapActions::controlDragsACopyInOneStep()
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {500, 300}, {700, 420});
    board.drag({600, 400}, {650, 500}, Qt::ControlModifier);
    QCOMPARE(board.page().objectCount(), 2);
    QCOMPARE(board.placeOf(shape), QRectF(500, 300, 200, 120));
    CBaseObject *copy = board.page().objects().last();
    QCOMPARE(board.placeOf(copy), QRectF(550, 400, 200, 120));
    QCOMPARE(board.selection(), QVector<CBaseObject *>{copy});
    QCOMPARE(board.history().count(), 2);
    board.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(board.only(), shape);
    QCOMPARE(board.placeOf(shape), QRectF(500, 300, 200, 120));
}

void TestSnapActions::bubbleTellsPlaceSizeAndAngle()
{
    BoardDriver board;
    board.draw(rectangle, {500, 300}, {700, 420});
    board.hold({600, 400}, {621, 433});
    QCOMPARE(QToolTip::text(), QStringLiteral("521, 333"));
    board.release({621, 433});
    const QPointF corner = board.handle(CObjAction::ACT_ResizeBottomRight);
    board.hold(corner, corner + QPointF(10, 30));
    QCOMPARE(QToolTip::text(), QStringLiteral("210 × 150"));
    board.key(Qt::Key_Escape);
    board.release(corner);
    board.hold(board.handle(CObjAction::ACT_Rotate), {621 + 150, 393});
    QCOMPARE(QToolTip::text(), QStringLiteral("90°"));
    board.release({621 + 150, 393});
}

void TestSnapActions::spaceMovesTheStartInsteadOfTheView()
{
    BoardDriver board;
    board.pick(rectangle);
    const QPointF corner = board.view().mapToScene(0, 0);
    board.press({300, 300});
    board.moveTo({360, 340});
    QTest::keyPress(&board.view(), Qt::Key_Space);
    board.moveTo({380, 330});
    QTest::keyRelease(&board.view(), Qt::Key_Space);
    board.moveTo({420, 390});
    board.release({420, 390});
    QCOMPARE(board.placeOf(board.only()), QRectF(320, 290, 100, 100));
    QCOMPARE(board.view().mapToScene(0, 0), corner);
}

void TestSnapActions::everyPageSnapsAlike()
{
    BoardDriver board;
    board.key(Qt::Key_N);
    QVERIFY(board.scene().isSnapping());
    board.window().commands()->action(Command::AddPage)->trigger();
    QVERIFY(board.scene().isSnapping());
    board.key(Qt::Key_N);
    board.window().commands()->action(Command::PreviousPage)->trigger();
    QVERIFY(!board.scene().isSnapping());
}

void TestSnapActions::gridIsShownOnEveryPage()
{
    BoardDriver board;
    QCOMPARE(board.scene().grid(), 0.0);
    board.key(Qt::Key_G);
    QCOMPARE(board.scene().grid(), 32.0);
    board.window().commands()->action(Command::AddPage)->trigger();
    QCOMPARE(board.scene().grid(), 32.0);
    board.key(Qt::Key_G);
    QCOMPARE(board.scene().grid(), 0.0);
}

void TestSnapActions::choicesAreRemembered()
{
    useOwnFolders();
    QSettings().clear();
    QVERIFY(board::remembersSnapping());
    QVERIFY(!board::remembersGrid());
    BoardDriver driver;
    QVERIFY(!board::remembersSnapping());
    driver.key(Qt::Key_G);
    driver.key(Qt::Key_N);
    const board::MainWindow next(&driver.workspace());
    QVERIFY(next.commands()->action(Command::Snapping)->isChecked());
    QVERIFY(next.commands()->action(Command::Grid)->isChecked());
}

QTEST_MAIN(TestSnapActions)
#include "test_snapactions.moc"
