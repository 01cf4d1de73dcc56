#include "framework/editor.h"
#include "framework/handlepoints.h"

namespace {

/// Two selected objects in a frame from (100, 100) to (400, 300), and one far from them.
struct Pair : Editor
{
    Pair()
        : first(add(QSizeF(100, 60), QPointF(100, 100)))
        , second(add(QSizeF(100, 100), QPointF(300, 200)))
        , other(add(QSizeF(50, 50), QPointF(800, 600)))
    {
        page->select({first, second});
    }

    /// Centre of a grip of the frame; `side` is -1 to 1 per axis.
    static QPointF grip(const QPointF &side)
    {
        return {250 + side.x() * (150 + frameMargin), 200 + side.y() * (100 + frameMargin)};
    }
    static QPointF turnGrip() { return {250, 100 - frameMargin - stem}; }
    CObjAction::ACT_Def gripAt(const QPointF &pos) const
    {
        const pagehost::Grip found = page->scene()->gripAt(pos);
        return found.kind == pagehost::Grip::FrameHandle ? found.action : CObjAction::ACT_None;
    }
    static QRectF placeOf(const TestObject *object) { return {object->getPos(), object->getClientRect().size()}; }
    static QPointF centreOf(const TestObject *object)
    {
        return object->mapToScene(object->getClientRect().center());
    }

    TestObject *first;
    TestObject *second;
    TestObject *other;
};

const QRectF firstPlace(100, 100, 100, 60);
const QRectF secondPlace(300, 200, 100, 100);

} // namespace

class TestCommonFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void severalObjectsHaveEightGripsAndOneToTurn();
    void cornerScalesAllTogether();
    void sideScalesAlongOneAxis();
    void shiftKeepsProportionsOfTheFrame();
    void objectTurnedByAQuarterGrowsAsItIsSeen();
    void frameCantBeTurnedInsideOut();
    void turnGripTurnsAllAboutTheMiddle();
    void turningTheFrameCatchesAtFifteenDegrees();
    void draggedSideCatches();
    void clickOnAGripChangesNothing();
    void lockedObjectsStay();
    void everythingIsRecorded();
    void escapePutsAllBack();
    void removedObjectEndsTheDrag();
    void figuresOfTheDrag();
    void frameIsSeen();
};

void TestCommonFrame::severalObjectsHaveEightGripsAndOneToTurn()
{
    Pair pair;
    QCOMPARE(pair.gripAt(Pair::grip({-1, -1})), CObjAction::ACT_ResizeTopLeft);
    QCOMPARE(pair.gripAt(Pair::grip({0, -1})), CObjAction::ACT_ResizeTop);
    QCOMPARE(pair.gripAt(Pair::grip({1, -1})), CObjAction::ACT_ResizeTopRight);
    QCOMPARE(pair.gripAt(Pair::grip({-1, 0})), CObjAction::ACT_ResizeLeft);
    QCOMPARE(pair.gripAt(Pair::grip({1, 0})), CObjAction::ACT_ResizeRight);
    QCOMPARE(pair.gripAt(Pair::grip({-1, 1})), CObjAction::ACT_ResizeBottomLeft);
    QCOMPARE(pair.gripAt(Pair::grip({0, 1})), CObjAction::ACT_ResizeBottom);
    QCOMPARE(pair.gripAt(Pair::grip({1, 1})), CObjAction::ACT_ResizeBottomRight);
    QCOMPARE(pair.gripAt(Pair::turnGrip()), CObjAction::ACT_Rotate);
    QCOMPARE(int(pair.page->scene()->cursorAt(Pair::grip({1, 1})).shape()), int(Qt::SizeFDiagCursor));
    pair.page->select({pair.first});
    QCOMPARE(pair.gripAt(Pair::grip({1, 1})), CObjAction::ACT_None);
}

void TestCommonFrame::cornerScalesAllTogether()
{
    Pair pair;
    const QPointF corner = Pair::grip({1, 1});
    pair.drag(corner, corner + QPointF(300, 200));
    QCOMPARE(Pair::placeOf(pair.first), QRectF(100, 100, 200, 120));
    QCOMPARE(Pair::placeOf(pair.second), QRectF(500, 300, 200, 200));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_RESIZE")});
    QCOMPARE(pair.page->selectedObjects().size(), 2);
    undoStack()->undo();
    QCOMPARE(Pair::placeOf(pair.first), firstPlace);
    QCOMPARE(Pair::placeOf(pair.second), secondPlace);
    undoStack()->redo();
    QCOMPARE(Pair::placeOf(pair.second), QRectF(500, 300, 200, 200));
}

void TestCommonFrame::sideScalesAlongOneAxis()
{
    Pair pair;
    const QPointF side = Pair::grip({-1, 0});
    // The frame becomes 150 wide; its right side stays at 400.
    pair.drag(side, side + QPointF(150, 40));
    QCOMPARE(Pair::placeOf(pair.first), QRectF(250, 100, 50, 60));
    QCOMPARE(Pair::placeOf(pair.second), QRectF(350, 200, 50, 100));
}

void TestCommonFrame::shiftKeepsProportionsOfTheFrame()
{
    Pair pair;
    const QPointF corner = Pair::grip({1, 1});
    pair.drag(corner, corner + QPointF(300, 10), Qt::ShiftModifier);
    QCOMPARE(Pair::placeOf(pair.first), QRectF(100, 100, 200, 120));
    QCOMPARE(Pair::placeOf(pair.second), QRectF(500, 300, 200, 200));
}

void TestCommonFrame::objectTurnedByAQuarterGrowsAsItIsSeen()
{
    Pair pair;
    pair.first->setRotateByPoint(90, {30, 30}, false);
    // It is seen from (100, 100), 60 wide and 100 high, so that the frame stays.
    const QRectF seen = pair.first->mapRectToScene(pair.first->getClientRect());
    QVERIFY(isNear(seen.topLeft(), QPointF(100, 100)) && isNear(seen.bottomRight(), QPointF(160, 200)));
    const QPointF side = Pair::grip({1, 0});
    pair.drag(side, side + QPointF(300, 0));
    const QRectF grown = pair.first->mapRectToScene(pair.first->getClientRect());
    QVERIFY(isNear(grown.topLeft(), QPointF(100, 100), 1e-6));
    QVERIFY(isNear(grown.bottomRight(), QPointF(220, 200), 1e-6));
}

void TestCommonFrame::frameCantBeTurnedInsideOut()
{
    Pair pair;
    const QPointF side = Pair::grip({1, 0});
    pair.drag(side, side + QPointF(-700, 0));
    QCOMPARE(pair.first->getClientRect().size(), QSizeF(1, 60));
    QVERIFY(pair.first->getPos().x() >= 99 && pair.second->getPos().x() <= 101);
}

void TestCommonFrame::turnGripTurnsAllAboutTheMiddle()
{
    Pair pair;
    pair.drag(Pair::turnGrip(), {250 + 132, 200});
    QCOMPARE(pair.first->rotation(), 90.0);
    QCOMPARE(pair.second->rotation(), 90.0);
    // From the middle the centres lay at (-100, -70) and (100, 50).
    QVERIFY(isNear(Pair::centreOf(pair.first), QPointF(320, 100), 1e-6));
    QVERIFY(isNear(Pair::centreOf(pair.second), QPointF(200, 300), 1e-6));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_ROTATE")});
    undoStack()->undo();
    QCOMPARE(pair.first->rotation(), 0.0);
    QCOMPARE(Pair::placeOf(pair.first), firstPlace);
    QCOMPARE(Pair::placeOf(pair.second), secondPlace);
}

void TestCommonFrame::turningTheFrameCatchesAtFifteenDegrees()
{
    Pair pair;
    pair.page->scene()->setSnapping(true);
    pair.press(Pair::turnGrip());
    // Two degrees beyond a quarter.
    pair.moveTo({250 + 300, 200 + 10});
    QCOMPARE(pair.first->rotation(), 90.0);
    pair.moveTo({250 + 300, 200 + 10}, Qt::AltModifier);
    QVERIFY(pair.first->rotation() > 91 && pair.first->rotation() < 93);
}

void TestCommonFrame::draggedSideCatches()
{
    Pair pair;
    pair.page->scene()->setSnapping(true);
    const QPointF side = Pair::grip({1, 0});
    pair.press(side);
    // The right side comes to 797, near the other object at 800.
    pair.moveTo(side + QPointF(397, 0));
    QVERIFY(isNear(pair.second->mapToScene(pair.second->getClientRect().bottomRight()), QPointF(800, 300)));
}

void TestCommonFrame::clickOnAGripChangesNothing()
{
    Pair pair;
    pair.page->scene()->setSnapping(true);
    // Within the reach of the right side.
    pair.add(QSizeF(50, 50), QPointF(403, 600));
    pair.click(Pair::grip({1, 0}));
    pair.page->select({pair.second});
    pair.click(cornerHandle(*pair.second, {1, 0}));
    QCOMPARE(Pair::placeOf(pair.first), firstPlace);
    QCOMPARE(Pair::placeOf(pair.second), secondPlace);
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommonFrame::lockedObjectsStay()
{
    Pair pair;
    pair.other->setLocked(true);
    pair.page->select({pair.first, pair.second, pair.other});
    const QPointF corner = Pair::grip({1, 1});
    pair.drag(corner, corner + QPointF(300, 200));
    QCOMPARE(Pair::placeOf(pair.second), QRectF(500, 300, 200, 200));
    QCOMPARE(Pair::placeOf(pair.other), QRectF(800, 600, 50, 50));
}

/// An object to which all recorded actions are replayed is where the other one is.
void TestCommonFrame::everythingIsRecorded()
{
    Pair pair;
    const QPointF corner = Pair::grip({1, 1});
    pair.drag(corner, corner + QPointF(150, 100));
    // The frame is 450 × 300 now.
    pair.press({325, 100 - frameMargin - stem});
    pair.moveTo({600, 300});
    pair.release({600, 300});
    TestObject replayed(QSizeF(100, 60), QPointF(100, 100));
    for (const auto &record : qAsConst(pair.first->records)) {
        QDataStream in(record.second);
        replayed.DoPlaybackActionEx(record.first, in);
    }
    QVERIFY(pair.first->getPos() != QPointF(100, 100));
    QCOMPARE(replayed.getPos(), pair.first->getPos());
    QCOMPARE(replayed.getClientRect(), pair.first->getClientRect());
    QCOMPARE(replayed.rotation(), pair.first->rotation());
}

void TestCommonFrame::escapePutsAllBack()
{
    Pair pair;
    const QPointF corner = Pair::grip({1, 1});
    pair.press(corner);
    pair.moveTo(corner + QPointF(100, 90));
    QVERIFY(Pair::placeOf(pair.second) != secondPlace);
    pair.pressKey(Qt::Key_Escape);
    QCOMPARE(Pair::placeOf(pair.first), firstPlace);
    QCOMPARE(Pair::placeOf(pair.second), secondPlace);
    pair.release(corner + QPointF(100, 90));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommonFrame::removedObjectEndsTheDrag()
{
    Pair pair;
    const QPointF corner = Pair::grip({1, 1});
    pair.press(corner);
    pair.moveTo(corner + QPointF(100, 90));
    pair.page->removeObject(pair.first);
    QVERIFY(!pair.page->scene()->isDragging());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    pair.moveTo(corner + QPointF(120, 90));
    pair.release(corner + QPointF(120, 90));
    QCOMPARE(undoStack()->count(), 0);
}

void TestCommonFrame::figuresOfTheDrag()
{
    using Figures = pagehost::PageScene::DragFigures;
    Pair pair;
    const pagehost::PageScene &scene = *pair.page->scene();
    QCOMPARE(int(scene.dragFigures().kind), int(Figures::None));
    const QPointF corner = Pair::grip({1, 1});
    pair.press(corner);
    pair.moveTo(corner + QPointF(30, 20));
    QCOMPARE(int(scene.dragFigures().kind), int(Figures::Size));
    QCOMPARE(scene.dragFigures().size, QSizeF(330, 220));
    pair.pressKey(Qt::Key_Escape);
    pair.press({150, 130});
    pair.moveTo({151, 130});
    QCOMPARE(int(scene.dragFigures().kind), int(Figures::None));
    pair.moveTo({160, 150});
    QCOMPARE(int(scene.dragFigures().kind), int(Figures::Place));
    QCOMPARE(scene.dragFigures().place, QPointF(110, 120));
    pair.pressKey(Qt::Key_Escape);
    pair.press(Pair::turnGrip());
    pair.moveTo({250 + 132, 200});
    QCOMPARE(int(scene.dragFigures().kind), int(Figures::Turn));
    QCOMPARE(scene.dragFigures().degrees, 90.0);
}

void TestCommonFrame::frameIsSeen()
{
    Pair pair;
    const auto colorAt = [&pair](const QPointF &pos) {
        return pair.view.viewport()->grab().toImage().pixelColor(pair.at(pos));
    };
    // On the upper side of the frame, away from grips and objects.
    const QPointF upper(320, 100 - frameMargin);
    QVERIFY(colorAt(upper) != QColor(Qt::white));
    pair.page->select({pair.first});
    QCOMPARE(colorAt(upper), QColor(Qt::white));
}

QTEST_MAIN(TestCommonFrame)
#include "test_commonframe.moc"
