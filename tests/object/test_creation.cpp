#include "object/sceneevent.h"

#include <support/exact.h>
#include <support/mouse.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::drag;
using support::exact;
using support::moveTo;
using support::press;
using support::release;
using support::ShapeFixture;
using support::TestObject;
using support::twoPointTemplate;

/// The drag that draws a new object.
class TestCreation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aPressStartsAnEmptyRectangle();
    void aPressReadsTheItemPosition();
    void aMoveIsTakenRelativeToTheObjectsPosition();
    void aMoveWithoutCoreIsFollowedAsItIs();
    void aMoveLeftOfTheObjectIsIgnored();
    void aMoveAboveTheObjectIsIgnored();
    void aMoveOntoTheObjectsEdgeIsFollowed();
    void aMoveIsRaisedToTheMinimum();
    void aMoveKeepsTheAspectOfTheDefaultSize();
    void aMoveIsFreeWithoutAspect();
    void aRewritingShapeIsToldEachMove();
    void aScaledShapeIsNotToldMoves();
    void aMoveRefreshesTheOutlineByType_data();
    void aMoveRefreshesTheOutlineByType();
    void aMoveEndsWithTellingTheHost();

    void aClickGivesTheDefaultSizeOfTheShape();
    void aClickWithoutCoreGivesThirty();
    void aClickKnowsNeitherMinimumNorAspect();
    void aReleaseWithinRoundingOfThePressIsAClick();
    void aTinyDragIsRaisedToThirty();
    void aTinyDragKeepsTheAspect();
    void aReleaseGivesTheKeptAspectToTheLastBit();
    void aReleaseWithoutAspectTakesItsSizeFromTheTwoPoints();
    void aClickTakesItsSizeFromTheTwoPoints();
    void aMoveTakesItsSizeFromTheTwoPoints();
    void aReleaseIsTakenRelativeToTheObjectsPosition();
    void aReleaseLeftOfTheObjectEndsAtTheStart();
    void aReleaseAboveTheObjectCrossesTheStartsY();
    void aReleaseAboveAndLeftCrossesTheStartsY();
    void theAspectUsesTheRaisedSides();
    void aReleaseSetsRectangleAndBase();
    void aReleaseFinishesTheCreationInOrder();
    void aReleaseWithoutCoreFinishesTheCreation();
    void aReleaseRedrawsTheWholeScene();
    void aReleaseOffTheSceneIsFine();

    void theHostSeesNothingOfTheCreation();
    void theCoreSeesNoMouseUntilItIsCreated();
};

namespace {

/// An object that waits for the drag that creates it.
struct NewShape : ShapeFixture
{
    explicit NewShape(int type = 27)
        : ShapeFixture(twoPointTemplate(), type)
    {
        load();
        object.createFinished = false;
        object.place(QRectF());
    }
};

struct NewCoreless : TestObject
{
    NewCoreless() { recording::clear(); }
};

} // namespace

void TestCreation::init()
{
    recording::resetFramework();
}

void TestCreation::aPressStartsAnEmptyRectangle()
{
    NewShape fixture;
    press(fixture.object, {12, 34});
    QCOMPARE(exact(fixture.object.dragStart), exact(QPointF(12, 34)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(12, 34)));
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(12, 34, 0, 0)));
    QCOMPARE(recording::names(), QStringList({"object.updateAfterObjRectChanged"}));
    QCOMPARE(recording::lastArguments("updateAfterObjRectChanged"), QVariantList({false, true}));
    QVERIFY(!fixture.object.createFinished);
}

void TestCreation::aPressReadsTheItemPosition()
{
    NewCoreless object;
    SceneEvent event(QEvent::GraphicsSceneMousePress, {5, 6}, {700, 800});
    object.mousePressEvent(&event);
    QCOMPARE(exact(object.dragStart), exact(QPointF(5, 6)));
}

void TestCreation::aMoveIsTakenRelativeToTheObjectsPosition()
{
    NewCoreless object;
    object.QGraphicsItem::setPos(100, 200);
    press(object, {10, 20});
    SceneEvent event(QEvent::GraphicsSceneMouseMove, {-1, -1}, {150, 290});
    object.mouseMoveEvent(&event);
    QCOMPARE(exact(object.dragEnd), exact(QPointF(50, 90)));
    QCOMPARE(exact(object.clientRect), exact(QRectF(10, 20, 40, 70)));
}

void TestCreation::aMoveWithoutCoreIsFollowedAsItIs()
{
    NewCoreless object;
    press(object, {10, 20});
    moveTo(object, {4, 19});
    QCOMPARE(exact(object.dragEnd), exact(QPointF(4, 19)));
    QCOMPARE(exact(object.clientRect), exact(QRectF(10, 20, -6, -1)));
}

void TestCreation::aMoveLeftOfTheObjectIsIgnored()
{
    NewShape fixture;
    press(fixture.object, {0, 0});
    moveTo(fixture.object, {200, 100});
    recording::clear();
    moveTo(fixture.object, {-0.5, 70});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(0, 0, 200, 100)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(200, 100)));
    QCOMPARE(recording::names(), QStringList());
}

void TestCreation::aMoveAboveTheObjectIsIgnored()
{
    NewShape fixture;
    press(fixture.object, {0, 0});
    moveTo(fixture.object, {200, 100});
    recording::clear();
    moveTo(fixture.object, {70, -0.5});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(0, 0, 200, 100)));
    QCOMPARE(recording::names(), QStringList());
}

void TestCreation::aMoveOntoTheObjectsEdgeIsFollowed()
{
    NewCoreless object;
    press(object, {10, 20});
    moveTo(object, {0, 0});
    QCOMPARE(exact(object.clientRect), exact(QRectF(10, 20, -10, -20)));
}

void TestCreation::aMoveIsRaisedToTheMinimum()
{
    NewShape fixture; // a shape with control points: at least 16 × 16
    fixture.shape->keepAspectRatio = false;
    press(fixture.object, {5, 5});
    moveTo(fixture.object, {8, 60});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(5, 5, 16, 55)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(21, 60)));
}

void TestCreation::aMoveKeepsTheAspectOfTheDefaultSize()
{
    NewShape fixture; // 100 × 50 by default
    fixture.object.baseSize = QSizeF(10, 90);
    press(fixture.object, {5, 5});
    moveTo(fixture.object, {15, 105}); // 10 × 100, raised to 16 × 100, then 2:1
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(5, 5, 16, 8)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(21, 13)));
    moveTo(fixture.object, {205, 45}); // 200 × 40
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(5, 5, 80, 40)));
}

void TestCreation::aMoveIsFreeWithoutAspect()
{
    NewShape fixture;
    fixture.shape->keepAspectRatio = false;
    press(fixture.object, {5, 5});
    moveTo(fixture.object, {205, 45});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(5, 5, 200, 40)));
}

void TestCreation::aRewritingShapeIsToldEachMove()
{
    NewShape fixture;
    fixture.shape->resizeRewritesSVG = true;
    fixture.shape->keepAspectRatio = false;
    QRectF duringRewrite;
    fixture.shape->onSetSize = [&](QSizeF, QSizeF) { duringRewrite = fixture.object.clientRect; };
    press(fixture.object, {5, 5});
    moveTo(fixture.object, {205, 45});
    QCOMPARE(recording::lastArguments("shape", "setSize"), QVariantList({QSizeF(0, 0), QSizeF(200, 40)}));
    QCOMPARE(duringRewrite, QRectF(5, 5, 200, 40));
    moveTo(fixture.object, {105, 105});
    QCOMPARE(recording::lastArguments("shape", "setSize"), QVariantList({QSizeF(200, 40), QSizeF(100, 100)}));
    moveTo(fixture.object, {105, 105}); // also a size that stays
    QCOMPARE(recording::lastArguments("shape", "setSize"), QVariantList({QSizeF(100, 100), QSizeF(100, 100)}));
    QCOMPARE(recording::count("shape", "setSize"), 3);
}

void TestCreation::aScaledShapeIsNotToldMoves()
{
    NewShape fixture(0);
    press(fixture.object, {5, 5});
    moveTo(fixture.object, {205, 45});
    QCOMPARE(recording::count("shape", "setSize"), 0);
}

void TestCreation::aMoveRefreshesTheOutlineByType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("refreshes");
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("26") << 26 << 1;
    QTest::newRow("1000") << 1000 << 1;
    QTest::newRow("27") << 27 << 0;
    QTest::newRow("999") << 999 << 0;
    QTest::newRow("1001") << 1001 << 0;
}

void TestCreation::aMoveRefreshesTheOutlineByType()
{
    QFETCH(const int, type);
    QFETCH(const int, refreshes);
    for (bool rewrites : {false, true}) {
        NewShape fixture(type);
        fixture.shape->resizeRewritesSVG = rewrites;
        press(fixture.object, {5, 5});
        moveTo(fixture.object, {205, 45});
        QCOMPARE(recording::count("updateOutlineRegion"), refreshes);
    }
}

void TestCreation::aMoveEndsWithTellingTheHost()
{
    NewShape fixture(26);
    fixture.shape->resizeRewritesSVG = true;
    fixture.shape->onSetSize = [](QSizeF, QSizeF) {};
    press(fixture.object, {5, 5});
    recording::clear();
    moveTo(fixture.object, {205, 45});
    QCOMPARE(recording::names({"setSize", "updateOutlineRegion", "updateAfterObjRectChanged", "update"}),
             QStringList({"shape.setSize", "shape.updateOutlineRegion", "object.updateAfterObjRectChanged",
                          "object.update"}));
    QCOMPARE(recording::lastArguments("updateAfterObjRectChanged"), QVariantList({false, true}));
}

void TestCreation::aClickGivesTheDefaultSizeOfTheShape()
{
    NewShape fixture;
    press(fixture.object, {7, 9});
    release(fixture.object, {7, 9});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(7, 9, 100, 50)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(107, 59)));
    QCOMPARE(exact(fixture.object.baseSize), exact(QSizeF(100, 50)));
}

void TestCreation::aClickWithoutCoreGivesThirty()
{
    NewCoreless object;
    press(object, {7, 9});
    release(object, {7, 9});
    QCOMPARE(exact(object.clientRect), exact(QRectF(7, 9, 30, 30)));
}

void TestCreation::aClickKnowsNeitherMinimumNorAspect()
{
    NewShape fixture;
    fixture.shape->onGetDefaultSVGSize = [] { return QSizeF(5, 3); };
    press(fixture.object, {7, 9});
    release(fixture.object, {300, 300}); // where the button goes up does not matter without a move
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(7, 9, 5, 3)));
}

void TestCreation::aReleaseWithinRoundingOfThePressIsAClick()
{
    NewShape fixture;
    fixture.shape->keepAspectRatio = false;
    press(fixture.object, {100, 100});
    fixture.object.dragEnd = QPointF(100 + 5e-11, 100); // 5e-11 · 1e12 ≤ 100
    release(fixture.object, {190, 190});
    QCOMPARE(fixture.object.clientRect.size(), QSizeF(100, 50));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(100 + 5e-11 + 100, 150)));

    NewShape dragged;
    dragged.shape->keepAspectRatio = false;
    press(dragged.object, {100, 100});
    dragged.object.dragEnd = QPointF(100 + 2e-10, 100);
    release(dragged.object, {190, 190});
    QCOMPARE(exact(dragged.object.clientRect), exact(QRectF(100, 100, 90, 90)));
}

void TestCreation::aTinyDragIsRaisedToThirty()
{
    NewShape fixture;
    fixture.shape->keepAspectRatio = false;
    press(fixture.object, {40, 60});
    moveTo(fixture.object, {50, 72});
    release(fixture.object, {50, 72});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(40, 60, 30, 30)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(70, 90)));
}

void TestCreation::aTinyDragKeepsTheAspect()
{
    NewShape fixture; // 100 × 50 by default
    press(fixture.object, {40, 60});
    moveTo(fixture.object, {50, 72});
    release(fixture.object, {50, 72});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(40, 60, 30, 15)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(70, 75)));
}

// 179.6 × 26, raised to 179.6 × 30, at 2:1. From 4.6 to 64.6 it is a little less than 60.
void TestCreation::aReleaseGivesTheKeptAspectToTheLastBit()
{
    NewShape fixture; // 100 × 50 by default
    drag(fixture.object, {4.6, 18.9}, {184.2, 44.9});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(4.6, 18.9, 60, 30)));
    QCOMPARE(exact(fixture.object.baseSize), exact(QSizeF(60, 30)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(4.6 + 60, 18.9 + 30)));
}

void TestCreation::aReleaseWithoutAspectTakesItsSizeFromTheTwoPoints()
{
    NewShape fixture;
    fixture.shape->keepAspectRatio = false;
    drag(fixture.object, {4.6, 18.9}, {64.6, 78.9});
    QVERIFY(64.6 - 4.6 < 60);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF(64.6 - 4.6, 78.9 - 18.9)));
    QCOMPARE(exact(fixture.object.baseSize), exact(QSizeF(64.6 - 4.6, 78.9 - 18.9)));
}

void TestCreation::aClickTakesItsSizeFromTheTwoPoints()
{
    NewShape fixture;
    fixture.shape->onGetDefaultSVGSize = [] { return QSizeF(60, 30); };
    press(fixture.object, {4.6, 18.9});
    release(fixture.object, {4.6, 18.9});
    QVERIFY((4.6 + 60) - 4.6 < 60);
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF((4.6 + 60) - 4.6, (18.9 + 30) - 18.9)));
    QCOMPARE(exact(fixture.object.baseSize), exact(QSizeF((4.6 + 60) - 4.6, (18.9 + 30) - 18.9)));
}

void TestCreation::aMoveTakesItsSizeFromTheTwoPoints()
{
    NewShape fixture;
    press(fixture.object, {4.6, 18.9});
    moveTo(fixture.object, {184.2, 48.9}); // 179.6 × 30 at 2:1
    QCOMPARE(exact(fixture.object.clientRect.size()), exact(QSizeF((4.6 + 60) - 4.6, (18.9 + 30) - 18.9)));
}

void TestCreation::aReleaseIsTakenRelativeToTheObjectsPosition()
{
    NewCoreless object;
    object.QGraphicsItem::setPos(100, 200);
    press(object, {10, 20});
    moveTo(object, {30, 40});
    SceneEvent event(QEvent::GraphicsSceneMouseRelease, {-1, -1}, {160, 295});
    object.mouseReleaseEvent(&event);
    QCOMPARE(exact(object.clientRect), exact(QRectF(10, 20, 50, 75)));
}

void TestCreation::aReleaseLeftOfTheObjectEndsAtTheStart()
{
    NewCoreless object;
    press(object, {10, 20});
    moveTo(object, {300, 40});
    release(object, {-5, 120});
    QCOMPARE(exact(object.clientRect), exact(QRectF(10, 20, 30, 100)));
}

void TestCreation::aReleaseAboveTheObjectCrossesTheStartsY()
{
    NewCoreless object;
    press(object, {5, 100});
    moveTo(object, {40, 120});
    release(object, {40, -20});
    QCOMPARE(exact(object.clientRect), exact(QRectF(5, 100, 95, 30)));
    QCOMPARE(exact(object.dragEnd), exact(QPointF(100, 130)));
}

void TestCreation::aReleaseAboveAndLeftCrossesTheStartsY()
{
    NewCoreless object;
    press(object, {5, 100});
    moveTo(object, {40, 120});
    release(object, {-40, -20});
    QCOMPARE(exact(object.clientRect), exact(QRectF(5, 100, 95, 30)));

    NewCoreless nearer;
    press(nearer, {60, 70});
    moveTo(nearer, {90, 90});
    release(nearer, {400, -1}); // the crossed end is 10 from the start
    QCOMPARE(exact(nearer.clientRect), exact(QRectF(60, 70, 30, 30)));
}

void TestCreation::theAspectUsesTheRaisedSides()
{
    NewShape fixture; // 100 × 50 by default
    press(fixture.object, {5, 100});
    moveTo(fixture.object, {105, 150});
    release(fixture.object, {40, -20}); // 95 × 30
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(5, 100, 60, 30)));
    QCOMPARE(exact(fixture.object.dragEnd), exact(QPointF(65, 130)));
}

void TestCreation::aReleaseSetsRectangleAndBase()
{
    NewShape fixture;
    fixture.shape->keepAspectRatio = false;
    press(fixture.object, {10, 20});
    moveTo(fixture.object, {50, 60});
    release(fixture.object, {110, 65});
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(10, 20, 100, 45)));
    QCOMPARE(exact(fixture.object.baseSize), exact(QSizeF(100, 45)));
}

void TestCreation::aReleaseFinishesTheCreationInOrder()
{
    NewShape fixture;
    press(fixture.object, {10, 20});
    moveTo(fixture.object, {60, 45});
    recording::clear();
    bool rectangleWasThere = false;
    fixture.shape->onUpdateOutlineRegion = [&] {
        rectangleWasThere =
            fixture.object.clientRect == QRectF(10, 20, 200, 100) && fixture.object.baseSize == QSizeF(200, 100);
    };
    release(fixture.object, {210, 120});
    QVERIFY(rectangleWasThere);
    QVERIFY(fixture.object.createFinished);
    QCOMPARE(recording::names(), QStringList({"shape.updateOutlineRegion", "object.updateAfterObjRectChanged",
                                              "object.onCreateFinished", "object.OnQPainterDraw",
                                              "object.onCreateFinished", "shape.notifyObjectCreated"}));
    const QVector<recording::Call> finished = recording::calls("object", "onCreateFinished");
    QCOMPARE(finished.size(), 2);
    QCOMPARE(finished[0].arguments, QVariantList({false}));
    QCOMPARE(finished[1].arguments, QVariantList({true}));
}

void TestCreation::aReleaseWithoutCoreFinishesTheCreation()
{
    NewCoreless object;
    press(object, {10, 20});
    release(object, {10, 20});
    QVERIFY(object.createFinished);
    QCOMPARE(recording::lastArguments("onCreateFinished"), QVariantList({true}));
}

void TestCreation::aReleaseRedrawsTheWholeScene()
{
    NewShape fixture;
    fixture.scene.setSceneRect(-500, -400, 3000, 2000);
    QCoreApplication::processEvents();
    QList<QList<QRectF>> changes;
    connect(&fixture.scene, &QGraphicsScene::changed,
            [&](const QList<QRectF> &regions) { changes.append(regions); });
    press(fixture.object, {10, 20});
    release(fixture.object, {10, 20});
    QCoreApplication::processEvents();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0], QList<QRectF>({QRectF(-500, -400, 3000, 2000)}));
}

void TestCreation::aReleaseOffTheSceneIsFine()
{
    NewShape fixture;
    fixture.scene.removeItem(&fixture.object);
    press(fixture.object, {10, 20});
    release(fixture.object, {10, 20});
    QVERIFY(fixture.object.createFinished);
}

void TestCreation::theHostSeesNothingOfTheCreation()
{
    NewShape fixture;
    support::drag(fixture.object, {10, 20}, {200, 100});
    QCOMPARE(recording::names({"mousePressEvent", "mouseMoveEvent", "mouseReleaseEvent"}), QStringList());
}

void TestCreation::theCoreSeesNoMouseUntilItIsCreated()
{
    NewShape fixture;
    support::drag(fixture.object, {10, 20}, {200, 100});
    QCOMPARE(recording::count("shape", "mousePressEvent"), 0);
    support::drag(fixture.object, {300, 300}, {310, 310});
    QCOMPARE(recording::names({"mousePressEvent", "mouseMoveEvent", "mouseReleaseEvent"}),
             QStringList({"shape.mousePressEvent", "object.mousePressEvent", "shape.mouseMoveEvent",
                          "object.mouseMoveEvent", "shape.mouseReleaseEvent", "object.mouseReleaseEvent"}));
}

QTEST_MAIN(TestCreation)

#include "test_creation.moc"
