// Several selected shapes in one frame, which is dragged in the board's window.

#include <board/boarddriver.h>

#include <page/pageview.h>

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

namespace {

const QRectF firstPlace(400, 200, 100, 60);
const QRectF secondPlace(600, 300, 100, 100);

/// Two selected shapes in a frame from (400, 200) to (700, 400).
struct Pair : BoardDriver
{
    Pair()
    {
        page().select({first, second});
        history().clear();
    }
    CBaseObject *first = draw(rectangle, firstPlace.topLeft(), firstPlace.bottomRight());
    CBaseObject *second = draw(rectangle, secondPlace.topLeft(), secondPlace.bottomRight());
};

} // namespace

class TestCommonFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void severalShapesHaveEightGripsAndOneToTurn();
    void cornerScalesAllTogether();
    void sideScalesAlongOneAxis();
    void shiftKeepsTheProportionsOfAll();
    void turnGripTurnsAllAboutTheMiddle();
    void turningAllCatchesAtFifteenDegrees();
    void escapePutsAllBack();
};

void TestCommonFrame::severalShapesHaveEightGripsAndOneToTurn()
{
    const Pair t;
    for (const auto action :
         {CObjAction::ACT_ResizeTopLeft, CObjAction::ACT_ResizeTop, CObjAction::ACT_ResizeTopRight,
          CObjAction::ACT_ResizeLeft, CObjAction::ACT_ResizeRight, CObjAction::ACT_ResizeBottomLeft,
          CObjAction::ACT_ResizeBottom, CObjAction::ACT_ResizeBottomRight, CObjAction::ACT_Rotate})
        QVERIFY2(!t.handle(action).isNull(), qPrintable(QString::number(action)));
    const QPointF turn = t.handle(CObjAction::ACT_Rotate);
    QCOMPARE(turn.x(), 550.0);
    QVERIFY(turn.y() < 200);
}

void TestCommonFrame::cornerScalesAllTogether()
{
    Pair t;
    const QPointF corner = t.handle(CObjAction::ACT_ResizeBottomRight);
    t.drag(corner, corner + QPointF(150, 100));
    QCOMPARE(t.placeOf(t.first), QRectF(400, 200, 150, 90));
    QCOMPARE(t.placeOf(t.second), QRectF(700, 350, 150, 150));
    QCOMPARE(t.history().count(), 1);
    t.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.placeOf(t.first), firstPlace);
    QCOMPARE(t.placeOf(t.second), secondPlace);
    t.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(t.placeOf(t.second), QRectF(700, 350, 150, 150));
}

void TestCommonFrame::sideScalesAlongOneAxis()
{
    Pair t;
    const QPointF side = t.handle(CObjAction::ACT_ResizeLeft);
    // The frame becomes 150 wide; its right side stays at 700.
    t.drag(side, side + QPointF(150, 40));
    QCOMPARE(t.placeOf(t.first), QRectF(550, 200, 50, 60));
    QCOMPARE(t.placeOf(t.second), QRectF(650, 300, 50, 100));
}

void TestCommonFrame::shiftKeepsTheProportionsOfAll()
{
    Pair t;
    const QPointF corner = t.handle(CObjAction::ACT_ResizeBottomRight);
    t.drag(corner, corner + QPointF(150, 10), Qt::ShiftModifier);
    QCOMPARE(t.placeOf(t.first), QRectF(400, 200, 150, 90));
    QCOMPARE(t.placeOf(t.second), QRectF(700, 350, 150, 150));
}

void TestCommonFrame::turnGripTurnsAllAboutTheMiddle()
{
    Pair t;
    const QPointF middle(550, 300);
    const QPointF turn = t.handle(CObjAction::ACT_Rotate);
    t.drag(turn, middle + QPointF(middle.y() - turn.y(), 0));
    // A quarter clockwise: what was (dx, dy) from the middle is (-dy, dx).
    const auto centre = [](const CBaseObject *shape) { return shape->mapToScene(shape->getClientRect().center()); };
    for (const CBaseObject *shape : {t.first, t.second})
        QVERIFY(qAbs(shape->rotation() - 90) < 1e-6);
    QVERIFY(QLineF(centre(t.first), QPointF(620, 200)).length() < 1e-6);
    QVERIFY(QLineF(centre(t.second), QPointF(500, 400)).length() < 1e-6);
    QCOMPARE(t.history().count(), 1);
    t.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(t.first->rotation(), 0.0);
    QCOMPARE(t.placeOf(t.first), firstPlace);
    QCOMPARE(t.placeOf(t.second), secondPlace);
}

void TestCommonFrame::turningAllCatchesAtFifteenDegrees()
{
    Pair t;
    t.key(Qt::Key_N);
    const QPointF middle(550, 300);
    // 29° clockwise from the top.
    t.drag(t.handle(CObjAction::ACT_Rotate), middle + 200 * QPointF(0.48481, -0.87462));
    QCOMPARE(t.first->rotation(), 30.0);
    QCOMPARE(t.second->rotation(), 30.0);
}

void TestCommonFrame::escapePutsAllBack()
{
    Pair t;
    const QPointF corner = t.handle(CObjAction::ACT_ResizeTopLeft);
    t.hold(corner, corner + QPointF(60, 50));
    QVERIFY(t.placeOf(t.first) != firstPlace);
    t.key(Qt::Key_Escape);
    t.release(corner + QPointF(60, 50));
    QCOMPARE(t.placeOf(t.first), firstPlace);
    QCOMPARE(t.placeOf(t.second), secondPlace);
    QCOMPARE(t.history().count(), 0);
}

QTEST_MAIN(TestCommonFrame)
#include "test_commonframe.moc"
