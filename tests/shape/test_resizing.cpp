#include <support/exact.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::exact;
using support::ShapeFixture;
using support::svgText;
using support::TestShape;

/// Moving and growing the view box with the page object following.
class TestResizing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noChangeOnlyUpdatesTheRectangle();
    void growingAtOneToOneGrowsTheObjectAsMuch();
    void growingInHeightAtOneToOne();
    void growingAtAnotherScaleKeepsThatScale();
    void theScaledSideIsMultipliedFirst();
    void aSideThatDoesNotGrowKeepsTheObjectsSide();
    void aGrowthBelowTheToleranceIsNoGrowth();
    void aTinyGrowthBesideARealOneReachesTheViewBox();
    void growingShrinksToo();
    void theObjectIsResizedWithoutRecord();

    void movingTheViewBoxMovesTheObject();
    void movingAtAnotherScaleMovesTheObjectScaled();
    void aMoveBelowTheToleranceIsNoMove();
    void aMoveAtTheToleranceIsAMove();
    void aMoveThatIsTinyOnTheObjectMovesOnlyTheViewBox();
    void aMoveAlongOneAxisIsEnough();
    void thePressPositionMovesAlong();

    void growingAHorizontallyMirroredShapeMovesTheObjectLeft();
    void growingAVerticallyMirroredShapeMovesTheObjectUp();
    void growingAScaledMirroredShapeMovesByTheMappedAmount();
    void aMirroredMoveGoesTheOtherWay();
    void theViewBoxOfAMirroredShapeMovesUnmirrored();
    void aMirroredShapeWithoutChangeStaysPut();

    void withoutTheObjectOnlyTheViewBoxChanges();
    void withoutTheObjectThePressPositionStillMoves();
    void withoutTheObjectAMirroredGrowthLeavesItInPlace();
    void withoutTheObjectTheOutlineAndRectangleAreStillUpdated();

    void theOutlineIsRebuiltWhenTheViewBoxGrows();
    void theOutlineIsNotRebuiltDuringADrag();
    void theOutlineIsNotRebuiltByAMove();

    void aRotatedObjectEndsWithItsRotation();
    void aRotatedObjectIsUprightWhileItIsResized();
    void aRotatedObjectIsMovedUpright();
    void theCentreMovesByTheOffsetNotByTheGrowth();
    void theCentreCountsFromTheClientRectangle();
    void aRotatedObjectThatOnlyGrowsIsNotTurned();
    void aRotatedObjectIsLeftAloneWithoutUpdate();
    void aRotationBelowTheToleranceIsNone();
    void stepsComeInOrder();

    void aRectangleBecomesTheViewBox();
    void resizingIsGrowingWithoutOffset();
    void offsetsThatAreNoNumberCountAsZero();
    void anEndlessGrowthIsNone();
    void aRotatedObjectThatShowsNothingKeepsItsRotation();
    void aViewBoxWithoutWidthMovesTheObjectAlongItsHeight();
    void aViewBoxWithoutHeightMovesTheObjectAlongItsWidth();
    void theSizeChangeIsToldWithTextThatIsEmptyButNotNull();
    void aShapeWithoutObjectChangesItsViewBox();
};

namespace {

/// A view box of 100 × 50 with an object of the given size at scene position (200, 300).
class Placed : public ShapeFixture
{
public:
    explicit Placed(QSizeF size = {100, 50})
        : ShapeFixture(svgText("0 0 100 50", {}))
    {
        place(QRectF(QPointF(0, 0), size));
        load();
        object.setPos(QPointF(200, 300));
        recording::clear();
    }

    QRectF viewBox() const { return shape->document->viewBox(); }
    QSizeF size() const { return object.getClientRect().size(); }
};

const QStringList hostSteps{"setViewBox",          "setPos",  "setRotateByPoint",
                            "updateOutlineRegion", "setSize", "updateAfterObjRectChanged"};

} // namespace

void TestResizing::noChangeOnlyUpdatesTheRectangle()
{
    Placed placed;
    placed.shape->resizeSVG(0, 0, true);
    QCOMPARE(recording::names(hostSteps), QStringList("object.updateAfterObjRectChanged"));
    QCOMPARE(recording::lastArguments("updateAfterObjRectChanged"), QVariantList({true, true}));
    QCOMPARE(placed.viewBox(), QRectF(0, 0, 100, 50));
    QCOMPARE(placed.shape->lastMousePos, QPointF());
}

void TestResizing::growingAtOneToOneGrowsTheObjectAsMuch()
{
    Placed placed;
    placed.shape->resizeSVG(10, 0, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 110, 50)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(110, 50)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(200, 300)));
    QCOMPARE(recording::count("setPos"), 0);
}

void TestResizing::growingInHeightAtOneToOne()
{
    Placed placed;
    placed.shape->resizeSVG(0, 10, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 100, 60)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(100, 60)));
}

void TestResizing::growingAtAnotherScaleKeepsThatScale()
{
    Placed placed({200, 25});
    placed.shape->resizeSVG(10, 20, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 110, 70)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(220, 35)));
}

void TestResizing::theScaledSideIsMultipliedFirst()
{
    // 9 × 3 ÷ 7, not 9 × (3 ÷ 7) nor (9 ÷ 7) × 3, which end in ...568 and ...577.
    ShapeFixture fixture(svgText("0 0 7 7", {}));
    fixture.place({0, 0, 9, 9});
    fixture.load();
    fixture.shape->resizeSVG(-4, -4, true);
    QCOMPARE(exact(fixture.object.getClientRect().size()), exact(QSizeF(3.857142857142857, 3.857142857142857)));
}

void TestResizing::aSideThatDoesNotGrowKeepsTheObjectsSide()
{
    Placed placed({200, 70});
    placed.shape->resizeSVG(10, 0, true);
    QCOMPARE(exact(placed.size()), exact(QSizeF(220, 70)));
    placed.shape->resizeSVG(0, 5, true);
    QCOMPARE(exact(placed.size()), exact(QSizeF(220, 77)));
}

void TestResizing::aGrowthBelowTheToleranceIsNoGrowth()
{
    Placed placed;
    placed.shape->resizeSVG(9e-8, -9e-8, true);
    QCOMPARE(recording::names(hostSteps), QStringList("object.updateAfterObjRectChanged"));
    placed.shape->resizeSVG(1e-7, 0, true);
    QCOMPARE(recording::count("setViewBox"), 1);
    placed.shape->resizeSVG(0, -1e-7, true);
    QCOMPARE(recording::count("setViewBox"), 2);
}

void TestResizing::aTinyGrowthBesideARealOneReachesTheViewBox()
{
    // At one to one the object's side follows the view box even then; at another scale it keeps its side.
    Placed oneToOne;
    oneToOne.shape->resizeSVG(10, 5e-8, true);
    QCOMPARE(exact(oneToOne.viewBox().height()), exact(50 + 5e-8));
    QCOMPARE(exact(oneToOne.size().height()), exact(50 + 5e-8));
    Placed scaled({100, 70});
    scaled.shape->resizeSVG(10, 5e-8, true);
    QCOMPARE(exact(scaled.viewBox().height()), exact(50 + 5e-8));
    QCOMPARE(exact(scaled.size().height()), exact(70.0));
}

void TestResizing::growingShrinksToo()
{
    Placed placed;
    placed.shape->resizeSVG(-30, -10, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 70, 40)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(70, 40)));
}

void TestResizing::theObjectIsResizedWithoutRecord()
{
    Placed placed;
    placed.shape->resizeSVG(10, 0, true);
    QCOMPARE(recording::lastArguments("object", "setSize"), QVariantList({QSizeF(110, 50), false, true}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({105, QString("")}));
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 1);
}

void TestResizing::movingTheViewBoxMovesTheObject()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(5, -7), 0, 0, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(5, -7, 100, 50)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(205, 293)));
    QCOMPARE(recording::lastArguments("setPos"), QVariantList({QPointF(205, 293), false}));
    QCOMPARE(recording::count("object", "setSize"), 0);
}

void TestResizing::movingAtAnotherScaleMovesTheObjectScaled()
{
    Placed placed({200, 25});
    placed.shape->adjustSvgPosition(QPointF(5, 8), 0, 0, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(5, 8, 100, 50)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(210, 304)));
}

void TestResizing::aMoveBelowTheToleranceIsNoMove()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(9e-8, -9e-8), 0, 0, true);
    QCOMPARE(recording::names(hostSteps), QStringList("object.updateAfterObjRectChanged"));
    QCOMPARE(exact(placed.shape->lastMousePos), exact(QPointF(0, 0)));
}

void TestResizing::aMoveAtTheToleranceIsAMove()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(1e-7, 0), 0, 0, true);
    placed.shape->adjustSvgPosition(QPointF(0, -1e-7), 0, 0, true);
    QCOMPARE(recording::count("setViewBox"), 2);
    QCOMPARE(recording::count("setPos"), 2);
}

void TestResizing::aMoveThatIsTinyOnTheObjectMovesOnlyTheViewBox()
{
    Placed placed({10, 5});
    placed.shape->adjustSvgPosition(QPointF(5e-7, 0), 0, 0, true);
    QCOMPARE(exact(placed.viewBox().x()), exact(5e-7));
    QCOMPARE(recording::count("setPos"), 0);
    QCOMPARE(exact(placed.shape->lastMousePos.x()), exact(-(0.1 * 5e-7)));
}

void TestResizing::aMoveAlongOneAxisIsEnough()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(0, 3), 0, 0, true);
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(200, 303)));
    placed.shape->adjustSvgPosition(QPointF(3, 0), 0, 0, true);
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(203, 303)));
}

void TestResizing::thePressPositionMovesAlong()
{
    Placed placed({200, 25});
    placed.shape->lastMousePos = QPointF(50, 60);
    placed.shape->adjustSvgPosition(QPointF(5, 8), 0, 0, true);
    QCOMPARE(exact(placed.shape->lastMousePos), exact(QPointF(40, 56)));
}

void TestResizing::growingAHorizontallyMirroredShapeMovesTheObjectLeft()
{
    Placed placed;
    placed.shape->setFlipOn(true, false);
    placed.shape->resizeSVG(10, 0, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 110, 50)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(110, 50)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(190, 300)));
    QCOMPARE(exact(placed.shape->lastMousePos), exact(QPointF(10, 0)));
}

void TestResizing::growingAVerticallyMirroredShapeMovesTheObjectUp()
{
    Placed placed;
    placed.shape->setFlipOn(false, true);
    placed.shape->resizeSVG(10, 20, true);
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(200, 280)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(110, 70)));
}

void TestResizing::growingAScaledMirroredShapeMovesByTheMappedAmount()
{
    // The move is mapped with the view box as it was before it grew: 200 ÷ 100 × −10.
    Placed placed({200, 100});
    placed.shape->setFlipOn(true, false);
    placed.shape->resizeSVG(10, 0, true);
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(180, 300)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(220, 100)));
}

void TestResizing::aMirroredMoveGoesTheOtherWay()
{
    Placed placed;
    placed.shape->setFlipOn(true, true);
    placed.shape->adjustSvgPosition(QPointF(3, 4), 10, 20, true);
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(200 - 13, 300 - 24)));
}

void TestResizing::theViewBoxOfAMirroredShapeMovesUnmirrored()
{
    Placed placed;
    placed.shape->setFlipOn(true, true);
    placed.shape->adjustSvgPosition(QPointF(3, 4), 10, 20, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(3, 4, 110, 70)));
}

void TestResizing::aMirroredShapeWithoutChangeStaysPut()
{
    Placed placed;
    placed.shape->setFlipOn(true, true);
    placed.shape->resizeSVG(0, 0, true);
    QCOMPARE(placed.viewBox(), QRectF(0, 0, 100, 50));
    QCOMPARE(recording::names({"setPos", "setSize", "updateAfterObjRectChanged"}),
             QStringList("object.updateAfterObjRectChanged"));
}

void TestResizing::withoutTheObjectOnlyTheViewBoxChanges()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(5, 6), 10, 20, false);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(5, 6, 110, 70)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(200, 300)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(100, 50)));
    QCOMPARE(recording::names({"setPos", "setSize", "setRotateByPoint"}), QStringList());
}

void TestResizing::withoutTheObjectThePressPositionStillMoves()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(5, 6), 0, 0, false);
    QCOMPARE(exact(placed.shape->lastMousePos), exact(QPointF(-5, -6)));
}

void TestResizing::withoutTheObjectAMirroredGrowthLeavesItInPlace()
{
    Placed placed;
    placed.shape->setFlipOn(true, false);
    placed.shape->resizeSVG(10, 0, false);
    QCOMPARE(recording::count("setPos"), 0);
    QCOMPARE(exact(placed.shape->lastMousePos), exact(QPointF(10, 0)));
}

void TestResizing::withoutTheObjectTheOutlineAndRectangleAreStillUpdated()
{
    Placed placed;
    placed.shape->resizeSVG(10, 0, false);
    QCOMPARE(recording::names({"updateOutlineRegion", "updateAfterObjRectChanged"}),
             QStringList({"shape.updateOutlineRegion", "object.updateAfterObjRectChanged"}));
}

void TestResizing::theOutlineIsRebuiltWhenTheViewBoxGrows()
{
    Placed placed;
    placed.shape->resizeSVG(0, 10, true);
    QCOMPARE(recording::count("updateOutlineRegion"), 1);
}

void TestResizing::theOutlineIsNotRebuiltDuringADrag()
{
    Placed placed;
    placed.shape->updateFinished = false;
    placed.shape->resizeSVG(10, 10, true);
    QCOMPARE(recording::count("updateOutlineRegion"), 0);
    QCOMPARE(exact(placed.size()), exact(QSizeF(110, 60)));
}

void TestResizing::theOutlineIsNotRebuiltByAMove()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(5, 6), 0, 0, true);
    QCOMPARE(recording::count("updateOutlineRegion"), 0);
}

void TestResizing::aRotatedObjectEndsWithItsRotation()
{
    Placed placed;
    placed.object.setPos(QPointF(0, 0));
    placed.object.setRotation(90);
    // The item point (50, 25) lies at (−25, 50). It stays there as the item point (40, 25), since the object moved
    // by 10 along x while it was upright.
    placed.shape->adjustSvgPosition(QPointF(10, 0), 0, 0, true);
    QCOMPARE(placed.object.rotation(), 90.0);
    QCOMPARE(placed.object.mapToScene(40, 25), QPointF(-25, 50));
}

void TestResizing::aRotatedObjectIsUprightWhileItIsResized()
{
    Placed placed;
    placed.object.setRotation(30);
    double rotationSeen = -1;
    placed.object.onNotify = [&](int) { rotationSeen = placed.object.rotation(); };
    placed.shape->adjustSvgPosition(QPointF(10, 0), 20, 0, true);
    QCOMPARE(rotationSeen, 0.0);
    QCOMPARE(placed.object.rotation(), 30.0);
}

void TestResizing::aRotatedObjectIsMovedUpright()
{
    Placed placed;
    placed.object.setPos(QPointF(0, 0));
    placed.object.setRotation(90);
    recording::clear();
    placed.shape->adjustSvgPosition(QPointF(10, 0), 0, 0, true);
    const QVector<recording::Call> moves = recording::calls({"setPos"});
    QCOMPARE(moves.size(), 2);
    QCOMPARE(moves[0].arguments[0].toPointF(), QPointF(-75, 25));
    QCOMPARE(moves[0].arguments[1].toBool(), false);
    QCOMPARE(moves[1].arguments[0].toPointF(), QPointF(-65, 25));
    QCOMPARE(moves[1].arguments[1].toBool(), false);
    QCOMPARE(recording::lastArguments("setRotateByPoint"), QVariantList({90.0, QPointF(40, 25), false}));
}

void TestResizing::theCentreMovesByTheOffsetNotByTheGrowth()
{
    Placed placed;
    placed.object.setRotation(30);
    placed.shape->adjustSvgPosition(QPointF(10, 4), 20, 6, true);
    QCOMPARE(recording::lastArguments("setRotateByPoint"), QVariantList({30.0, QPointF(40, 21), false}));
}

void TestResizing::theCentreCountsFromTheClientRectangle()
{
    Placed placed;
    placed.place({5, 6, 100, 50});
    placed.object.setPos(QPointF(0, 0));
    placed.object.setRotation(90);
    recording::clear();
    placed.shape->adjustSvgPosition(QPointF(10, 0), 0, 0, true);
    // The centre (55, 31) lies at (−31, 55); half the size, not the centre, is taken off.
    QCOMPARE(recording::calls({"setPos"}).constFirst().arguments.first().toPointF(), QPointF(-81, 30));
    QCOMPARE(recording::lastArguments("setRotateByPoint"), QVariantList({90.0, QPointF(45, 31), false}));
}

void TestResizing::aRotatedObjectThatOnlyGrowsIsNotTurned()
{
    Placed placed;
    placed.object.setRotation(30);
    recording::clear();
    placed.shape->resizeSVG(10, 10, true);
    QCOMPARE(placed.object.rotation(), 30.0);
    QCOMPARE(recording::names({"setPos", "setRotateByPoint"}), QStringList());
}

void TestResizing::aRotatedObjectIsLeftAloneWithoutUpdate()
{
    Placed placed;
    placed.object.setRotation(30);
    recording::clear();
    placed.shape->adjustSvgPosition(QPointF(10, 0), 10, 0, false);
    QCOMPARE(placed.object.rotation(), 30.0);
    QCOMPARE(placed.object.pos(), QPointF(200, 300));
    QCOMPARE(recording::names({"setPos", "setRotateByPoint"}), QStringList());
}

void TestResizing::aRotationBelowTheToleranceIsNone()
{
    Placed placed;
    placed.object.setRotation(5e-8);
    recording::clear();
    placed.shape->adjustSvgPosition(QPointF(10, 0), 0, 0, true);
    QCOMPARE(recording::count("setPos"), 1);
    QCOMPARE(recording::count("setRotateByPoint"), 0);
    placed.object.setRotation(-1e-7);
    placed.shape->adjustSvgPosition(QPointF(10, 0), 0, 0, true);
    QCOMPARE(recording::count("setRotateByPoint"), 1);
}

void TestResizing::stepsComeInOrder()
{
    Placed placed;
    placed.object.setRotation(30);
    recording::clear();
    placed.shape->adjustSvgPosition(QPointF(10, 0), 10, 0, true);
    QCOMPARE(recording::names(hostSteps),
             QStringList({"document.setViewBox", "object.setPos", "object.setPos", "document.setViewBox",
                          "shape.updateOutlineRegion", "object.setSize", "object.setRotateByPoint",
                          "object.updateAfterObjRectChanged"}));
}

void TestResizing::aRectangleBecomesTheViewBox()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QRectF(-5, 8, 120, 30), true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(-5, 8, 120, 30)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(195, 308)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(120, 30)));
    placed.shape->adjustSvgPosition(QRectF(0, 0, 100, 50), false);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 100, 50)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(120, 30)));
}

void TestResizing::resizingIsGrowingWithoutOffset()
{
    Placed placed;
    placed.shape->resizeSVG(10, 20, false);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 0, 110, 70)));
    QCOMPARE(exact(placed.size()), exact(QSizeF(100, 50)));
    QCOMPARE(recording::count("setViewBox"), 1);
}

void TestResizing::offsetsThatAreNoNumberCountAsZero()
{
    Placed placed;
    placed.shape->adjustSvgPosition(QPointF(qQNaN(), qInf()), -qInf(), qQNaN(), true);
    QCOMPARE(recording::names(hostSteps), QStringList("object.updateAfterObjRectChanged"));
    placed.shape->adjustSvgPosition(QPointF(qQNaN(), 5), qInf(), 10, true);
    QCOMPARE(exact(placed.viewBox()), exact(QRectF(0, 5, 100, 60)));
    QCOMPARE(exact(placed.object.pos()), exact(QPointF(200, 305)));
}

void TestResizing::anEndlessGrowthIsNone()
{
    Placed placed;
    const QRectF box = placed.shape->document->viewBox();
    placed.shape->resizeSVG(10, qInf(), true);
    QCOMPARE(placed.shape->document->viewBox(), QRectF(box.x(), box.y(), box.width() + 10, box.height()));
    placed.shape->resizeSVG(-qInf(), 5, true);
    QCOMPARE(placed.shape->document->viewBox(), QRectF(box.x(), box.y(), box.width() + 10, box.height() + 5));
}

void TestResizing::aRotatedObjectThatShowsNothingKeepsItsRotation()
{
    ShapeFixture fixture(svgText({}, {})); // neither view box nor content
    fixture.place({0, 0, 100, 50});
    fixture.load();
    fixture.object.setPos(QPointF(200, 300));
    fixture.object.setRotation(30);
    fixture.shape->adjustSvgPosition(QPointF(10, 10), 0, 0, true);
    QCOMPARE(exact(fixture.object.rotation()), exact(30.0));
    QCOMPARE(exact(fixture.object.pos()), exact(QPointF(200, 300)));
    QCOMPARE(exact(fixture.shape->lastMousePos), exact(QPointF(0, 0)));
}

void TestResizing::aViewBoxWithoutWidthMovesTheObjectAlongItsHeight()
{
    ShapeFixture fixture(svgText("0 0 0 100", {}));
    fixture.place({0, 0, 50, 100});
    fixture.load();
    fixture.shape->adjustSvgPosition(QPointF(10, 10), 0, 0, true);
    QCOMPARE(exact(fixture.object.pos()), exact(QPointF(0, 10)));
    QCOMPARE(exact(fixture.shape->lastMousePos), exact(QPointF(0, -10)));
    QCOMPARE(exact(fixture.shape->document->viewBox()), exact(QRectF(10, 10, 0, 100)));
}

void TestResizing::aViewBoxWithoutHeightMovesTheObjectAlongItsWidth()
{
    ShapeFixture fixture(svgText("0 0 100 0", {}));
    fixture.place({0, 0, 200, 50});
    fixture.load();
    fixture.shape->adjustSvgPosition(QPointF(10, 0), 0, 0, true); // 0 units of no height are no number
    QCOMPARE(exact(fixture.object.pos()), exact(QPointF(20, 0)));
    QCOMPARE(exact(fixture.shape->lastMousePos), exact(QPointF(-20, 0)));
}

void TestResizing::theSizeChangeIsToldWithTextThatIsEmptyButNotNull()
{
    Placed placed;
    placed.shape->setSize({100, 50}, {120, 50});
    const QVariantList told = recording::lastArguments("notifyObjPropertyChanged");
    QCOMPARE(told, QVariantList({105, QString("")}));
    QVERIFY(!told[1].toString().isNull());
}

void TestResizing::aShapeWithoutObjectChangesItsViewBox()
{
    TestShape shape(nullptr, svgText("0 0 100 50", {}));
    shape.loadSVG(false);
    recording::clear();
    shape.adjustSvgPosition(QPointF(1, 2), 3, 4, true);
    QCOMPARE(exact(shape.document->viewBox()), exact(QRectF(1, 2, 103, 54)));
    QCOMPARE(recording::names().filter(QRegularExpression("^object\\.")), QStringList());
}

QTEST_MAIN(TestResizing)
#include "test_resizing.moc"
