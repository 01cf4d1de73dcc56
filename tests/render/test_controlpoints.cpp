#include <support/exact.h>
#include <support/mouse.h>
#include <support/shapefixture.h>

#include <framework/cundoredo.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::exact;
using support::moveTo;
using support::press;
using support::release;
using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;

/// Finding a control point under the mouse, and the press and release around a drag.
class TestControlPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPointIsHitWithinSixUnits_data();
    void aPointIsHitWithinSixUnits();
    void theMarginIsInDocumentUnitsAtAnyZoom_data();
    void theMarginIsInDocumentUnitsAtAnyZoom();
    void theMarginIsInDocumentUnitsAtAnySize();
    void aMirroredPointIsHitWhereItShows();
    void hiddenPointsAreNotHit();
    void aPointThatIsNowhereIsNotHit();
    void hitTestsIgnoreSelectionAndRectangle();
    void hitTestsChangeNothing();
    void hitTestsWithoutDocumentHitNothing();

    void aPressOnAPointStartsADrag();
    void aPressBesideAPointDoesNot();
    void aPressRemembersWhereItWas();
    void ofOverlappingPointsTheHigherNumberIsTaken();
    void limitsAreTakenAtThePress();
    void limitsOfAFixedAxisAreNotTaken();
    void limitsComeFromTheShape();
    void anUnselectedShapeIsNotDragged();
    void onlyTheSelectedStateCounts();
    void aPressOutsideTheObjectDoesNotDrag();
    void aPressOnAShapeWithoutDocumentDoesNotDrag();
    void aPressOnAShapeWithoutObjectDoesNotDrag();
    void everyPressClearsFinished();
    void aMissForgetsAnEarlierDrag();
    void aPressThatIsNotLookedAtKeepsAnEarlierDrag();

    void aReleaseMakesOneUndoStep();
    void aReleaseWithoutDragMakesNone();
    void aReleaseSetsFinishedAgain();
    void aReleaseFreesThePoint();
    void aReleaseRefreshesTheOutlineAfterTheUndoStep();
    void theUndoStepHoldsBothPositions();
    void theUndoStepIsNotAppliedWhilePushed();
    void aClickMakesAnUndoStepThatChangesNothing();

    void whileBlockedNothingHappens();
    void aBlockedReleaseKeepsTheDrag();
    void everyBlockingNumberBlocks();
    void withoutBelongingDocumentEditingIsAllowed();
    void theBelongingDocumentIsLookedUpOnce();
};

namespace {

/// A selected shape with control points of 8 × 8 at (10, 20) and (60, 30), drawn one to one.
struct Selected : ShapeFixture
{
    explicit Selected(const QString &text = twoPointTemplate(), int type = 27, double zoom = 1)
        : ShapeFixture(text, type, zoom)
    {
        load();
        select();
    }
};

QString onePoint(const QString &attributes)
{
    return svgText("0 0 100 50",
                   QStringLiteral("<rect id='control_1' x='10' y='20' width='8' height='8' %1/>").arg(attributes));
}

int undoSteps()
{
    return CUndoRedo::GetInstance()->stack()->count();
}

} // namespace

void TestControlPoints::aPointIsHitWithinSixUnits_data()
{
    // The rectangle (10, 20) to (18, 28) reaches from (4, 14) to (24, 34).
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<bool>("hit");
    QTest::newRow("centre") << QPointF(14, 24) << true;
    QTest::newRow("5.9 left") << QPointF(4.1, 24) << true;
    QTest::newRow("6.0 left") << QPointF(4, 24) << true;
    QTest::newRow("6.1 left") << QPointF(3.9, 24) << false;
    QTest::newRow("5.9 right") << QPointF(23.9, 24) << true;
    QTest::newRow("6.0 right") << QPointF(24, 24) << true;
    QTest::newRow("6.1 right") << QPointF(24.1, 24) << false;
    QTest::newRow("5.9 above") << QPointF(14, 14.1) << true;
    QTest::newRow("6.0 above") << QPointF(14, 14) << true;
    QTest::newRow("6.1 above") << QPointF(14, 13.9) << false;
    QTest::newRow("5.9 below") << QPointF(14, 33.9) << true;
    QTest::newRow("6.0 below") << QPointF(14, 34) << true;
    QTest::newRow("6.1 below") << QPointF(14, 34.1) << false;
    QTest::newRow("corner") << QPointF(4, 14) << true;
    QTest::newRow("second point") << QPointF(64, 34) << true;
}

void TestControlPoints::aPointIsHitWithinSixUnits()
{
    QFETCH(const QPointF, pos);
    QFETCH(const bool, hit);
    Selected fixture;
    QCOMPARE(fixture.shape->CheckHitTestHandlers(pos), hit);
    QCOMPARE(press(*fixture.shape, pos), hit);
}

void TestControlPoints::theMarginIsInDocumentUnitsAtAnyZoom_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("0.5") << 0.5;
    QTest::newRow("3") << 3.0;
    QTest::newRow("100") << 100.0;
}

void TestControlPoints::theMarginIsInDocumentUnitsAtAnyZoom()
{
    QFETCH(const double, zoom);
    Selected fixture(twoPointTemplate(), 27, zoom);
    QVERIFY(fixture.shape->CheckHitTestHandlers({4.1, 24}));
    QVERIFY(!fixture.shape->CheckHitTestHandlers({3.9, 24}));
}

void TestControlPoints::theMarginIsInDocumentUnitsAtAnySize()
{
    Selected fixture;
    fixture.object.place({0, 0, 1000, 25}); // 10 units wide, half a unit high per document unit
    QVERIFY(fixture.shape->CheckHitTestHandlers({41, 12}));
    QVERIFY(!fixture.shape->CheckHitTestHandlers({39, 12}));
    QVERIFY(fixture.shape->CheckHitTestHandlers({140, 7}));
    QVERIFY(!fixture.shape->CheckHitTestHandlers({140, 6.9}));
}

void TestControlPoints::aMirroredPointIsHitWhereItShows()
{
    Selected fixture;
    fixture.shape->setFlipOn(true, false);
    QVERIFY(fixture.shape->CheckHitTestHandlers({86, 24}));
    QVERIFY(!fixture.shape->CheckHitTestHandlers({14, 24}));
    fixture.shape->setFlipOn(false, true);
    QVERIFY(fixture.shape->CheckHitTestHandlers({14, 26}));
    QVERIFY(!fixture.shape->CheckHitTestHandlers({14, 15.9}));
}

void TestControlPoints::hiddenPointsAreNotHit()
{
    for (const char *hidden : {"display='none'", "visibility='hidden'"}) {
        Selected fixture(onePoint(hidden));
        QVERIFY(!fixture.shape->CheckHitTestHandlers({14, 24}));
        QVERIFY(!press(*fixture.shape, {14, 24}));
    }
}

void TestControlPoints::aPointThatIsNowhereIsNotHit()
{
    Selected fixture;
    fixture.shape->point(1)->setAttribute("x", "nan");
    QVERIFY(!fixture.shape->CheckHitTestHandlers({14, 24}));
    QVERIFY(fixture.shape->CheckHitTestHandlers({64, 34}));
}

void TestControlPoints::hitTestsIgnoreSelectionAndRectangle()
{
    ShapeFixture fixture(svgText("0 0 100 50", "<rect id='control_1' x='0' y='0' width='8' height='8'/>"));
    fixture.load();                                         // not selected
    QVERIFY(fixture.shape->CheckHitTestHandlers({-5, -5})); // outside the object
}

void TestControlPoints::hitTestsChangeNothing()
{
    Selected fixture;
    fixture.shape->lastMousePos = QPointF(1, 2);
    fixture.shape->dragStartPos = QPointF(3, 4);
    QVERIFY(fixture.shape->CheckHitTestHandlers({14, 24}));
    QVERIFY(!fixture.shape->activeControlPoint);
    QCOMPARE(fixture.shape->lastMousePos, QPointF(1, 2));
    QCOMPARE(fixture.shape->dragStartPos, QPointF(3, 4));
    QVERIFY(fixture.shape->updateFinished);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
}

void TestControlPoints::hitTestsWithoutDocumentHitNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place({0, 0, 100, 50});
    QVERIFY(!fixture.shape->CheckHitTestHandlers({14, 24}));
}

void TestControlPoints::aPressOnAPointStartsADrag()
{
    Selected fixture;
    QVERIFY(press(*fixture.shape, {14, 24}));
    QCOMPARE(fixture.shape->activeControlPoint, fixture.shape->point(1));
    release(*fixture.shape, {14, 24});
    QVERIFY(press(*fixture.shape, {64, 34}));
    QCOMPARE(fixture.shape->activeControlPoint, fixture.shape->point(2));
}

void TestControlPoints::aPressBesideAPointDoesNot()
{
    Selected fixture;
    QVERIFY(!press(*fixture.shape, {40, 10}));
    QVERIFY(!fixture.shape->activeControlPoint);
}

void TestControlPoints::aPressRemembersWhereItWas()
{
    Selected fixture;
    fixture.object.place({0, 0, 200, 50});
    press(*fixture.shape, {27, 25});
    QCOMPARE(exact(fixture.shape->lastMousePos), exact(QPointF(27, 25))); // item coordinates
    QCOMPARE(exact(fixture.shape->dragStartPos), exact(QPointF(10, 20))); // document units
}

void TestControlPoints::ofOverlappingPointsTheHigherNumberIsTaken()
{
    const QString text = svgText("0 0 100 50", "<rect id='control_2' x='14' y='20' width='8' height='8'/>"
                                               "<rect id='control_1' x='10' y='20' width='8' height='8'/>"
                                               "<rect id='control_3' x='90' y='20' width='8' height='8'/>");
    Selected fixture(text);
    QVERIFY(press(*fixture.shape, {12, 24}));
    QCOMPARE(fixture.shape->activeControlPoint, fixture.shape->point(2));
    QCOMPARE(fixture.shape->dragStartPos, QPointF(14, 20));
}

void TestControlPoints::limitsAreTakenAtThePress()
{
    Selected fixture(onePoint("x_from='1' x_to='2' y_from='3' y_to='4'"));
    press(*fixture.shape, {14, 24});
    QCOMPARE(fixture.shape->dragXMin, 1.0);
    QCOMPARE(fixture.shape->dragXMax, 2.0);
    QCOMPARE(fixture.shape->dragYMin, 3.0);
    QCOMPARE(fixture.shape->dragYMax, 4.0);
}

void TestControlPoints::limitsOfAFixedAxisAreNotTaken()
{
    const QString limits("x_from='1' x_to='2' y_from='3' y_to='4' ");
    Selected upright(onePoint(limits + "x_move='0'"));
    press(*upright.shape, {14, 24});
    QCOMPARE(upright.shape->dragXMin, -1000000.0);
    QCOMPARE(upright.shape->dragXMax, 1000000.0);
    QCOMPARE(upright.shape->dragYMin, 3.0);
    QCOMPARE(upright.shape->dragYMax, 4.0);
    Selected level(onePoint(limits + "y_move='0'"));
    press(*level.shape, {14, 24});
    QCOMPARE(level.shape->dragXMin, 1.0);
    QCOMPARE(level.shape->dragXMax, 2.0);
    QCOMPARE(level.shape->dragYMin, -1000000.0);
    QCOMPARE(level.shape->dragYMax, 1000000.0);
}

void TestControlPoints::limitsComeFromTheShape()
{
    Selected fixture(onePoint("x_from='1'"));
    QZeSvgNode *asked = nullptr;
    fixture.shape->onGetXMin = [&](QZeSvgNode *node) {
        asked = node;
        return 9.0;
    };
    press(*fixture.shape, {14, 24});
    QCOMPARE(fixture.shape->dragXMin, 9.0);
    QCOMPARE(asked, fixture.shape->point(1));
}

void TestControlPoints::anUnselectedShapeIsNotDragged()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(!press(*fixture.shape, {14, 24}));
    QVERIFY(!fixture.shape->activeControlPoint);
}

void TestControlPoints::onlyTheSelectedStateCounts()
{
    for (int state : {0, 2, -1}) {
        Selected fixture;
        fixture.shape->document->setSelectionState(state);
        QVERIFY(!press(*fixture.shape, {14, 24}));
    }
}

void TestControlPoints::aPressOutsideTheObjectDoesNotDrag()
{
    Selected fixture(svgText("0 0 100 50", "<rect id='control_1' x='0' y='0' width='8' height='8'/>"));
    QVERIFY(!press(*fixture.shape, {-1, 4}));
    QVERIFY(!fixture.shape->activeControlPoint);
    QVERIFY(press(*fixture.shape, {0, 4}));
}

void TestControlPoints::aPressOnAShapeWithoutDocumentDoesNotDrag()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place({0, 0, 100, 50});
    QVERIFY(!press(*fixture.shape, {14, 24}));
    QVERIFY(!fixture.shape->updateFinished);
}

void TestControlPoints::aPressOnAShapeWithoutObjectDoesNotDrag()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    shape.setSelected(true);
    QVERIFY(!support::press(shape, {14, 24}));
    QVERIFY(!shape.activeControlPoint);
}

void TestControlPoints::everyPressClearsFinished()
{
    for (const QPointF pos : {QPointF(14, 24), QPointF(40, 10), QPointF(-50, -50)}) {
        Selected fixture;
        QVERIFY(fixture.shape->updateFinished);
        press(*fixture.shape, pos);
        QVERIFY(!fixture.shape->updateFinished);
    }
}

void TestControlPoints::aMissForgetsAnEarlierDrag()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    QVERIFY(!press(*fixture.shape, {40, 10}));
    QVERIFY(!fixture.shape->activeControlPoint);
}

void TestControlPoints::aPressThatIsNotLookedAtKeepsAnEarlierDrag()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    QVERIFY(!press(*fixture.shape, {-50, -50}));
    QCOMPARE(fixture.shape->activeControlPoint, fixture.shape->point(1));
    fixture.shape->document->setSelectionState(0);
    QVERIFY(!press(*fixture.shape, {40, 10}));
    QCOMPARE(fixture.shape->activeControlPoint, fixture.shape->point(1));
}

void TestControlPoints::aReleaseMakesOneUndoStep()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    moveTo(*fixture.shape, {20, 24});
    moveTo(*fixture.shape, {30, 26});
    QCOMPARE(undoSteps(), 0);
    QVERIFY(release(*fixture.shape, {30, 26}));
    QCOMPARE(undoSteps(), 1);
    QCOMPARE(recording::lastArguments("undo", "push"), QVariantList({"IDS_SVG_attribute_adjust"}));
}

void TestControlPoints::aReleaseWithoutDragMakesNone()
{
    Selected fixture;
    QVERIFY(!release(*fixture.shape, {14, 24}));
    press(*fixture.shape, {40, 10});
    QVERIFY(!release(*fixture.shape, {40, 10}));
    QCOMPARE(undoSteps(), 0);
    QCOMPARE(recording::count("updateOutlineRegion"), 0);
}

void TestControlPoints::aReleaseSetsFinishedAgain()
{
    for (const QPointF pos : {QPointF(14, 24), QPointF(40, 10)}) {
        Selected fixture;
        press(*fixture.shape, pos);
        QVERIFY(!fixture.shape->updateFinished);
        release(*fixture.shape, pos);
        QVERIFY(fixture.shape->updateFinished);
    }
}

void TestControlPoints::aReleaseFreesThePoint()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    release(*fixture.shape, {14, 24});
    QVERIFY(!fixture.shape->activeControlPoint);
    QVERIFY(!moveTo(*fixture.shape, {50, 24}));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(10, 20, 8, 8));
}

void TestControlPoints::aReleaseRefreshesTheOutlineAfterTheUndoStep()
{
    for (int type : {0, 27, 1000}) {
        Selected fixture(twoPointTemplate(), type);
        press(*fixture.shape, {14, 24});
        QZeSvgNode *dragged = nullptr;
        fixture.shape->onUpdateOutlineRegion = [&] { dragged = fixture.shape->activeControlPoint; };
        recording::clear();
        release(*fixture.shape, {14, 24});
        QCOMPARE(recording::names({"push", "updateOutlineRegion"}),
                 QStringList({"undo.push", "shape.updateOutlineRegion"}));
        QCOMPARE(dragged, fixture.shape->point(1));
    }
}

void TestControlPoints::theUndoStepHoldsBothPositions()
{
    Selected fixture;
    support::drag(*fixture.shape, {14, 24}, {44, 34});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(40, 30, 8, 8)));
    CUndoRedo::GetInstance()->stack()->undo();
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(10, 20, 8, 8)));
    CUndoRedo::GetInstance()->stack()->redo();
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(40, 30, 8, 8)));
}

void TestControlPoints::theUndoStepIsNotAppliedWhilePushed()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    moveTo(*fixture.shape, {44, 34});
    recording::clear();
    release(*fixture.shape, {44, 34});
    QCOMPARE(recording::count("DoPlaybackActionEx"), 0);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestControlPoints::aClickMakesAnUndoStepThatChangesNothing()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    QVERIFY(release(*fixture.shape, {14, 24}));
    QCOMPARE(undoSteps(), 1);
    recording::clear();
    CUndoRedo::GetInstance()->stack()->undo();
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(10, 20, 8, 8)));
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::count("updateSVG"), 0);
}

void TestControlPoints::whileBlockedNothingHappens()
{
    Selected fixture(twoPointTemplate(), 0);
    press(*fixture.shape, {14, 24});
    fixture.document.blocked = 1;
    recording::clear();
    QVERIFY(!press(*fixture.shape, {64, 34}));
    QVERIFY(!moveTo(*fixture.shape, {44, 34}));
    QVERIFY(!release(*fixture.shape, {44, 34}));
    QVERIFY(!fixture.shape->CheckHitTestHandlers({14, 24}));
    QCOMPARE(fixture.shape->activeControlPoint, fixture.shape->point(1));
    QCOMPARE(fixture.shape->lastMousePos, QPointF(14, 24));
    QVERIFY(!fixture.shape->updateFinished);
    QCOMPARE(recording::count("updateOutlineRegion"), 0);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(undoSteps(), 0);

    Selected idle;
    idle.document.blocked = 1;
    press(*idle.shape, {14, 24});
    QVERIFY(idle.shape->updateFinished);
}

void TestControlPoints::aBlockedReleaseKeepsTheDrag()
{
    Selected fixture;
    press(*fixture.shape, {14, 24});
    fixture.document.blocked = 1;
    release(*fixture.shape, {14, 24});
    fixture.document.blocked = 0;
    QVERIFY(moveTo(*fixture.shape, {24, 24}));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(20, 20, 8, 8));
    QVERIFY(release(*fixture.shape, {24, 24}));
}

void TestControlPoints::everyBlockingNumberBlocks()
{
    for (int blocked : {1, 2, -1}) {
        Selected fixture;
        fixture.document.blocked = blocked;
        QVERIFY(!press(*fixture.shape, {14, 24}));
    }
}

void TestControlPoints::withoutBelongingDocumentEditingIsAllowed()
{
    Selected fixture;
    fixture.object.SetPage(nullptr);
    recording::framework().currentDocument = nullptr;
    QVERIFY(press(*fixture.shape, {14, 24}));
    QVERIFY(!fixture.shape->belongDoc);
    QVERIFY(release(*fixture.shape, {14, 24}));
}

void TestControlPoints::theBelongingDocumentIsLookedUpOnce()
{
    Selected fixture;
    support::drag(*fixture.shape, {14, 24}, {44, 34});
    fixture.shape->CheckHitTestHandlers({14, 24});
    QCOMPARE(recording::count("GetPage"), 1);
}

QTEST_MAIN(TestControlPoints)

#include "test_controlpoints.moc"
