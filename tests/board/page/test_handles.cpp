// Moving, resizing and turning with the mouse, each with undo and redo.

#include <board/boarddriver.h>

#include <page/pageview.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// One selected rectangle, 200 × 120 at (500, 300).
struct OneShape
{
    BoardDriver board;
    CBaseObject *shape = board.draw(rectangle, {500, 300}, {700, 420});

    QRectF place() const { return board.placeOf(shape); }
    void undo() { board.key(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
};

class TestHandles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void draggingTheBodyMoves();
    void draggingAnUnselectedShapeSelectsAndMovesIt();
    void draggingMovesAllSelectedShapes();
    void quickSecondPressDragsToo();
    void escapeDuringAMovePutsItBack();
    void cornerHandlesResize_data();
    void cornerHandlesResize();
    void escapeDuringAResizePutsItBack();
    void shiftKeepsProportionsAtACorner_data();
    void shiftKeepsProportionsAtACorner();
    void rotationHandleTurnsAboutTheCentre();
    void resizingATurnedShapeKeepsTheOppositeCorner();
    void mirroringIsACommand_data();
    void mirroringIsACommand();
    void clickOnANeighbourSelectsTheNeighbour();
    void handlesKeepTheirSizeOnScreen();
    void cursorShowsWhatAPressWouldDo();
    void cursorFollowsTheRotation();
    void undoDuringADragCancelsTheDrag();
    void draggingAControlPointTellsItsValue();
};

void TestHandles::draggingTheBodyMoves()
{
    OneShape t;
    t.board.drag({600, 360}, {633, 341});
    QCOMPARE(t.place(), QRectF(533, 281, 200, 120));
    QCOMPARE(t.board.history().count(), 2);
    t.undo();
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    t.redo();
    QCOMPARE(t.place(), QRectF(533, 281, 200, 120));
}

void TestHandles::draggingAnUnselectedShapeSelectsAndMovesIt()
{
    OneShape t;
    t.board.page().select({});
    t.board.drag({600, 360}, {610, 370});
    QCOMPARE(t.place(), QRectF(510, 310, 200, 120));
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.shape});
}

void TestHandles::draggingMovesAllSelectedShapes()
{
    OneShape t;
    CBaseObject *other = t.board.draw(arrow, {800, 300}, {900, 400});
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    const int steps = t.board.history().count();
    t.board.drag({600, 360}, {590, 350});
    QCOMPARE(t.place(), QRectF(490, 290, 200, 120));
    QCOMPARE(t.board.placeOf(other), QRectF(790, 290, 100, 100));
    QCOMPARE(t.board.history().count(), steps + 1);
    t.undo();
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    QCOMPARE(t.board.placeOf(other), QRectF(800, 300, 100, 100));
}

void TestHandles::quickSecondPressDragsToo()
{
    OneShape t;
    t.board.pressTwice({600, 360});
    t.board.moveTo({620, 365});
    t.board.moveTo({640, 370});
    t.board.release({640, 370});
    QCOMPARE(t.place(), QRectF(540, 310, 200, 120));
}

void TestHandles::escapeDuringAMovePutsItBack()
{
    OneShape t;
    t.board.hold({600, 360}, {700, 400});
    QCOMPARE(t.place(), QRectF(600, 340, 200, 120));
    t.board.key(Qt::Key_Escape);
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    t.board.release({700, 400});
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    QCOMPARE(t.board.history().count(), 1);
}

void TestHandles::cornerHandlesResize_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QRectF>("place");
    QTest::newRow("bottom right") << int(CObjAction::ACT_ResizeBottomRight) << QPointF(40, 30)
                                  << QRectF(500, 300, 240, 150);
    QTest::newRow("top left") << int(CObjAction::ACT_ResizeTopLeft) << QPointF(40, 30) << QRectF(540, 330, 160, 90);
    QTest::newRow("top right") << int(CObjAction::ACT_ResizeTopRight) << QPointF(20, -10)
                               << QRectF(500, 290, 220, 130);
    QTest::newRow("bottom left") << int(CObjAction::ACT_ResizeBottomLeft) << QPointF(-20, 10)
                                 << QRectF(480, 300, 220, 130);
}

void TestHandles::cornerHandlesResize()
{
    QFETCH(int, handle);
    QFETCH(QPointF, way);
    QFETCH(QRectF, place);
    OneShape t;
    const QPointF pos = t.board.handle(static_cast<CObjAction::ACT_Def>(handle));
    QVERIFY(!pos.isNull());
    t.board.drag(pos, pos + way);
    QCOMPARE(t.place(), place);
    QCOMPARE(t.board.history().count(), 2);
    t.undo();
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    t.redo();
    QCOMPARE(t.place(), place);
}

void TestHandles::escapeDuringAResizePutsItBack()
{
    OneShape t;
    const QPointF pos = t.board.handle(CObjAction::ACT_ResizeTopLeft);
    t.board.hold(pos, pos + QPointF(60, 50));
    QCOMPARE(t.place(), QRectF(560, 350, 140, 70));
    t.board.key(Qt::Key_Escape);
    t.board.release(pos + QPointF(60, 50));
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    QCOMPARE(t.board.history().count(), 1);
}

void TestHandles::shiftKeepsProportionsAtACorner_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<QPointF>("way");
    QTest::addColumn<QRectF>("place");
    // 200 × 120; the axis that grows more decides.
    QTest::newRow("across") << int(CObjAction::ACT_ResizeBottomRight) << QPointF(50, 6)
                            << QRectF(500, 300, 250, 150);
    QTest::newRow("down") << int(CObjAction::ACT_ResizeBottomRight) << QPointF(10, 60)
                          << QRectF(500, 300, 300, 180);
    QTest::newRow("top left") << int(CObjAction::ACT_ResizeTopLeft) << QPointF(-50, 0)
                              << QRectF(450, 270, 250, 150);
}

void TestHandles::shiftKeepsProportionsAtACorner()
{
    QFETCH(int, handle);
    QFETCH(QPointF, way);
    OneShape t;
    const QPointF pos = t.board.handle(static_cast<CObjAction::ACT_Def>(handle));
    t.board.drag(pos, pos + way, Qt::ShiftModifier);
    QTEST(t.place(), "place");
    t.undo();
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
}

void TestHandles::rotationHandleTurnsAboutTheCentre()
{
    OneShape t;
    const QPointF centre(600, 360);
    const QPointF pos = t.board.handle(CObjAction::ACT_Rotate);
    QCOMPARE(pos.x(), 600.0);
    // Outside the frame.
    QVERIFY(pos.y() < 290);
    const double radius = centre.y() - pos.y();
    t.board.drag(pos, centre + QPointF(radius, 0));
    QVERIFY(qAbs(t.shape->rotation() - 90) < 1e-6);
    QCOMPARE(t.shape->mapToScene(t.shape->getClientRect().center()), centre);
    t.undo();
    QCOMPARE(t.shape->rotation(), 0.0);
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    t.redo();
    QVERIFY(qAbs(t.shape->rotation() - 90) < 1e-6);
}

void TestHandles::resizingATurnedShapeKeepsTheOppositeCorner()
{
    OneShape t;
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(t.shape->rotation(), 90.0);
    // Turned by a quarter, the right bottom of the item stands left and low on the page.
    const QPointF fixedCorner = t.shape->mapToScene(t.shape->getClientRect().topLeft());
    const QPointF pos = t.board.handle(CObjAction::ACT_ResizeBottomRight);
    t.board.drag(pos, pos + QPointF(-30, 40));
    QCOMPARE(t.shape->getClientRect().size(), QSizeF(240, 150));
    const QPointF corner = t.shape->mapToScene(t.shape->getClientRect().topLeft());
    QVERIFY(QLineF(corner, fixedCorner).length() < 1e-6);
}

void TestHandles::mirroringIsACommand_data()
{
    QTest::addColumn<int>("handle");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("leftToRight");
    QTest::newRow("left to right") << int(CObjAction::ACT_MirrorHorizontal) << int(Qt::ControlModifier) << true;
    QTest::newRow("top to bottom") << int(CObjAction::ACT_MirrorVertical)
                                   << int(Qt::ControlModifier | Qt::ShiftModifier) << false;
}

void TestHandles::mirroringIsACommand()
{
    QFETCH(int, handle);
    QFETCH(int, modifiers);
    QFETCH(bool, leftToRight);
    OneShape t;
    const auto mirrored = [&] { return qMakePair(t.shape->isMirrored(), t.shape->isFlipped()); };
    QVERIFY(t.board.handle(static_cast<CObjAction::ACT_Def>(handle)).isNull());
    t.board.key(Qt::Key_M, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(mirrored(), qMakePair(leftToRight, !leftToRight));
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
    t.undo();
    QCOMPARE(mirrored(), qMakePair(false, false));
    t.redo();
    QCOMPARE(mirrored(), qMakePair(leftToRight, !leftToRight));
}

/// 26 beside the frame there used to be a handle to mirror the selected shape.
void TestHandles::clickOnANeighbourSelectsTheNeighbour()
{
    OneShape t;
    CBaseObject *neighbour = t.board.draw(rectangle, {715, 330}, {800, 400});
    t.board.click({600, 360});
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{t.shape});
    t.board.click({732, 360});
    QCOMPARE(t.board.selection(), QVector<CBaseObject *>{neighbour});
    QVERIFY(!t.shape->isMirrored());
}

void TestHandles::handlesKeepTheirSizeOnScreen()
{
    OneShape t;
    const auto answerPixels = [&] {
        const QPointF handle = t.board.handle(CObjAction::ACT_ResizeBottomRight);
        int count = 0;
        // Outwards from the handle, in screen pixels.
        for (int i = 0; i < 60; ++i) {
            const QPointF pos = handle + QPointF(i, i) / t.board.view().zoom();
            count += t.board.scene().gripAt(pos).action == CObjAction::ACT_ResizeBottomRight;
        }
        return count;
    };
    const int atFull = answerPixels();
    QVERIFY(atFull >= 5);
    t.board.view().setZoom(2);
    QVERIFY(qAbs(answerPixels() - atFull) <= 1);
}

void TestHandles::cursorShowsWhatAPressWouldDo()
{
    OneShape t;
    const auto cursorAt = [&](const QPointF &pos) {
        t.board.hover(pos);
        return t.board.view().viewport()->cursor().shape();
    };
    QCOMPARE(cursorAt({300, 600}), Qt::ArrowCursor);
    QCOMPARE(cursorAt({600, 380}), Qt::SizeAllCursor);
    QCOMPARE(cursorAt(t.board.handle(CObjAction::ACT_ResizeBottomRight)), Qt::SizeFDiagCursor);
    QCOMPARE(cursorAt(t.board.handle(CObjAction::ACT_ResizeTopRight)), Qt::SizeBDiagCursor);
    t.board.pick(rectangle);
    QCOMPARE(cursorAt({300, 600}), Qt::CrossCursor);
}

void TestHandles::cursorFollowsTheRotation()
{
    OneShape t;
    t.board.key(Qt::Key_R, Qt::ControlModifier);
    t.board.hover(t.board.handle(CObjAction::ACT_ResizeBottomRight));
    QCOMPARE(t.board.view().viewport()->cursor().shape(), Qt::SizeBDiagCursor);
}

void TestHandles::undoDuringADragCancelsTheDrag()
{
    OneShape t;
    t.board.hold({600, 360}, {700, 400});
    t.undo();
    t.board.release({700, 400});
    QCOMPARE(t.board.only(), t.shape);
    QCOMPARE(t.place(), QRectF(500, 300, 200, 120));
}

void TestHandles::draggingAControlPointTellsItsValue()
{
    BoardDriver board;
    board.draw(QStringLiteral("declared.cross"), {500, 300}, {700, 500});
    // The corner of the arms is at 33 of 100 along both sides.
    board.press({566, 366});
    board.moveTo({571, 366});
    board.moveTo({576, 366});
    QCOMPARE(QToolTip::text(), QStringLiteral("48 \u00d7 68"));
    board.release({576, 366});
    QVERIFY(!QToolTip::isVisible() || QToolTip::text().isEmpty());
}

QTEST_MAIN(TestHandles)
#include "test_handles.moc"
