#include <support/exact.h>
#include <support/mouse.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtTest/QtTest>

#include <limits>

using support::bytesOf;
using support::exact;
using support::moveTo;
using support::press;
using support::release;
using support::ShapeFixture;
using support::svgText;
using support::twoPointTemplate;

/// Effects of a drag's moves on the control point and the shape.
class TestDragging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePointFollowsTheMouse();
    void thePointFollowsInDocumentUnits();
    void thePointOfAMirroredShapeFollowsTheMouse_data();
    void thePointOfAMirroredShapeFollowsTheMouse();
    void positionsAreCountedFromTheStart();
    void movesToTheStartDoNothing();
    void withoutDragMovesAreDeclined();
    void thePointStaysInItsRange_data();
    void thePointStaysInItsRange();
    void eachAxisHasItsRange();
    void anImpossibleRangeTestsTheMinimumFirst();
    void anImpossiblePlaceIsTheMinimum();
    void anUprightPointIgnoresSidewaysMotion();
    void aLevelPointIgnoresUpAndDown();
    void aFixedPointStays();
    void aFixedAxisIsNotBroughtIntoItsRange();
    void aFixedAxisIgnoresTheRangeOfAnEarlierDrag();
    void aRefusedPlaceLeavesThePoint();
    void theShapeIsAskedForTheLimitedPlace();
    void aMoveIsRecordedAndRefreshed();
    void duringAMoveTheShapeSeesItUnfinished();
    void afterAMoveFinishedIsSet();
    void whatTheShapeAnswersDoesNotEndTheDrag();
    void aMoveRefreshesTheOutlineByType_data();
    void aMoveRefreshesTheOutlineByType();
    void aMoveRefreshesTheOutlineAfterThePoint();
};

namespace {

/// A selected shape whose one control point of 8 × 8 is at (20, 20) and held at its centre.
struct Held : ShapeFixture
{
    explicit Held(const QString &attributes = {}, int type = 27)
        : ShapeFixture(
              svgText(
                  "0 0 100 50",
                  QStringLiteral("<rect id='control_1' x='20' y='20' width='8' height='8' %1/>").arg(attributes)),
              type)
    {
        load();
        select();
        press(*shape, {24, 24});
        recording::clear();
    }
    QRectF rect() const { return shape->pointRect(1); }
};

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

void TestDragging::thePointFollowsTheMouse()
{
    Held fixture;
    QVERIFY(moveTo(*fixture.shape, {54, 14}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(50, 10, 8, 8)));
}

void TestDragging::thePointFollowsInDocumentUnits()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.place({0, 0, 200, 200});
    fixture.select();
    press(*fixture.shape, {28, 96}); // document (14, 24)
    moveTo(*fixture.shape, {48, 116});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(20, 25, 8, 8)));
}

void TestDragging::thePointOfAMirroredShapeFollowsTheMouse_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("corner");
    QTest::newRow("sideways") << true << false << QPointF(76, 24) << QPointF(10, 25);
    QTest::newRow("upside down") << false << true << QPointF(24, 26) << QPointF(30, 15);
    QTest::newRow("both") << true << true << QPointF(76, 26) << QPointF(10, 15);
}

void TestDragging::thePointOfAMirroredShapeFollowsTheMouse()
{
    QFETCH(const bool, horizontal);
    QFETCH(const bool, vertical);
    QFETCH(const QPointF, from);
    QFETCH(const QPointF, corner);
    Held fixture;
    release(*fixture.shape, {24, 24});
    fixture.shape->setFlipOn(horizontal, vertical);
    QVERIFY(press(*fixture.shape, from));
    moveTo(*fixture.shape, from + QPointF(10, 5));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(corner, QSizeF(8, 8))));
}

void TestDragging::positionsAreCountedFromTheStart()
{
    Held fixture("x_to='30'");
    moveTo(*fixture.shape, {84, 24}); // far beyond the limit
    QCOMPARE(exact(fixture.rect()), exact(QRectF(30, 20, 8, 8)));
    moveTo(*fixture.shape, {29, 24}); // five from the start, whatever came between
    QCOMPARE(exact(fixture.rect()), exact(QRectF(25, 20, 8, 8)));
}

void TestDragging::movesToTheStartDoNothing()
{
    Held fixture;
    moveTo(*fixture.shape, {34, 24});
    recording::clear();
    QVERIFY(moveTo(*fixture.shape, {24, 24}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(30, 20, 8, 8)));
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("CanMoveControlPoint"), 0);
}

void TestDragging::withoutDragMovesAreDeclined()
{
    Held fixture;
    release(*fixture.shape, {24, 24});
    QVERIFY(!moveTo(*fixture.shape, {34, 24}));
    QVERIFY(!fixture.shape->moveControlPoint({34, 24}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(20, 20, 8, 8)));
}

void TestDragging::thePointStaysInItsRange_data()
{
    QTest::addColumn<double>("mouseX");
    QTest::addColumn<double>("x");
    QTest::newRow("beyond the end") << 74.0 << 50.0;
    QTest::newRow("at the end") << 54.0 << 50.0;
    QTest::newRow("inside") << 53.5 << 49.5;
    QTest::newRow("at the beginning") << 14.0 << 10.0;
    QTest::newRow("before the beginning") << 3.0 << 10.0;
}

void TestDragging::thePointStaysInItsRange()
{
    QFETCH(const double, mouseX);
    QFETCH(const double, x);
    Held fixture("x_from='10' x_to='50'");
    moveTo(*fixture.shape, {mouseX, 24});
    QCOMPARE(exact(fixture.rect()), exact(QRectF(x, 20, 8, 8)));
}

void TestDragging::eachAxisHasItsRange()
{
    Held fixture("x_from='15' x_to='25' y_from='18' y_to='33'");
    moveTo(*fixture.shape, {90, 90});
    QCOMPARE(exact(fixture.rect()), exact(QRectF(25, 33, 8, 8)));
    moveTo(*fixture.shape, {-90, -90});
    QCOMPARE(exact(fixture.rect()), exact(QRectF(15, 18, 8, 8)));
}

void TestDragging::anImpossibleRangeTestsTheMinimumFirst()
{
    Held fixture("x_from='50' x_to='10'");
    moveTo(*fixture.shape, {34, 24}); // 30
    QCOMPARE(exact(fixture.rect()), exact(QRectF(50, 20, 8, 8)));
    moveTo(*fixture.shape, {64, 24}); // 60
    QCOMPARE(exact(fixture.rect()), exact(QRectF(10, 20, 8, 8)));
}

void TestDragging::anImpossiblePlaceIsTheMinimum()
{
    Held fixture("x_from='10' x_to='50' y_from='5'");
    QVERIFY(moveTo(*fixture.shape, {notANumber, notANumber}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(10, 5, 8, 8)));
}

void TestDragging::anUprightPointIgnoresSidewaysMotion()
{
    Held fixture("x_move='0'");
    QVERIFY(moveTo(*fixture.shape, {54, 24}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(20, 20, 8, 8)));
    QCOMPARE(recording::count("RecordAction"), 0);
    QVERIFY(moveTo(*fixture.shape, {54, 30}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(20, 26, 8, 8)));
}

void TestDragging::aLevelPointIgnoresUpAndDown()
{
    Held fixture("y_move='0'");
    QVERIFY(moveTo(*fixture.shape, {24, 44}));
    QCOMPARE(recording::count("RecordAction"), 0);
    QVERIFY(moveTo(*fixture.shape, {30, 44}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(26, 20, 8, 8)));
}

void TestDragging::aFixedPointStays()
{
    Held fixture("x_move='0' y_move='0'");
    QVERIFY(moveTo(*fixture.shape, {54, 44}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(20, 20, 8, 8)));
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestDragging::aFixedAxisIsNotBroughtIntoItsRange()
{
    Held fixture("x_move='0' x_from='40' x_to='60'");
    moveTo(*fixture.shape, {24, 30});
    QCOMPARE(exact(fixture.rect()), exact(QRectF(20, 26, 8, 8)));
}

void TestDragging::aFixedAxisIgnoresTheRangeOfAnEarlierDrag()
{
    for (const char *fixed : {"x_move", "y_move"}) {
        ShapeFixture fixture(svgText(
            "0 0 100 50", QStringLiteral("<rect id='control_1' x='20' y='20' width='8' height='8' x_from='15' "
                                         "x_to='25' y_from='15' y_to='25'/>"
                                         "<rect id='control_2' x='60' y='30' width='8' height='8' %1='0'/>")
                              .arg(fixed)));
        fixture.load();
        fixture.select();
        support::drag(*fixture.shape, {24, 24}, {25, 25});
        press(*fixture.shape, {64, 34});
        moveTo(*fixture.shape, {69, 39});
        const QPointF corner = *fixed == 'x' ? QPointF(60, 35) : QPointF(65, 30);
        QCOMPARE(exact(fixture.shape->pointRect(2)), exact(QRectF(corner, QSizeF(8, 8))));
    }
}

void TestDragging::aRefusedPlaceLeavesThePoint()
{
    Held fixture;
    fixture.shape->onCanMoveControlPoint = [](QZeSvgNode *, QPointF) { return false; };
    QVERIFY(fixture.shape->moveControlPoint({54, 24}));
    QCOMPARE(exact(fixture.rect()), exact(QRectF(20, 20, 8, 8)));
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("updateSVG"), 0);
}

void TestDragging::theShapeIsAskedForTheLimitedPlace()
{
    Held fixture("x_to='50'");
    moveTo(*fixture.shape, {84, 14});
    QCOMPARE(recording::lastArguments("CanMoveControlPoint"), QVariantList({"control_1", QPointF(50, 10)}));
}

void TestDragging::aMoveIsRecordedAndRefreshed()
{
    Held fixture;
    moveTo(*fixture.shape, {54, 14});
    QCOMPARE(recording::lastArguments("RecordAction"),
             QVariantList({1001, bytesOf(QString("control_1"), QPointF(50, 10))}));
    QCOMPARE(recording::lastArguments("updateSVG"), QVariantList({"control_1", QPointF(30, -10), true, false}));
    moveTo(*fixture.shape, {56, 14});
    QCOMPARE(recording::count("RecordAction"), 2);
    QCOMPARE(recording::lastArguments("updateSVG"), QVariantList({"control_1", QPointF(2, 0), true, false}));
}

void TestDragging::duringAMoveTheShapeSeesItUnfinished()
{
    Held fixture;
    for (double x : {54.0, 60.0}) {
        bool finished = true;
        fixture.shape->onUpdateNode = [&](QZeSvgNode *, QPointF, bool) {
            finished = fixture.shape->updateFinished;
            return true;
        };
        moveTo(*fixture.shape, {x, 24});
        QVERIFY(!finished);
    }
}

void TestDragging::afterAMoveFinishedIsSet()
{
    Held fixture;
    QVERIFY(!fixture.shape->updateFinished);
    moveTo(*fixture.shape, {24, 24});
    QVERIFY(!fixture.shape->updateFinished);
    moveTo(*fixture.shape, {54, 24});
    QVERIFY(fixture.shape->updateFinished);
}

void TestDragging::whatTheShapeAnswersDoesNotEndTheDrag()
{
    for (bool answer : {true, false}) {
        Held fixture;
        fixture.shape->onUpdateNode = [answer](QZeSvgNode *, QPointF, bool) { return answer; };
        QVERIFY(moveTo(*fixture.shape, {54, 24}));
    }
}

void TestDragging::aMoveRefreshesTheOutlineByType_data()
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

void TestDragging::aMoveRefreshesTheOutlineByType()
{
    QFETCH(const int, type);
    QFETCH(const int, refreshes);
    Held fixture({}, type);
    moveTo(*fixture.shape, {54, 24});
    QCOMPARE(recording::count("updateOutlineRegion"), refreshes);
    moveTo(*fixture.shape, {24, 24}); // nothing moves
    QCOMPARE(recording::count("updateOutlineRegion"), 2 * refreshes);
    release(*fixture.shape, {24, 24});
    recording::clear();
    moveTo(*fixture.shape, {30, 24}); // nothing is held
    QCOMPARE(recording::count("updateOutlineRegion"), refreshes);
}

void TestDragging::aMoveRefreshesTheOutlineAfterThePoint()
{
    Held fixture({}, 0);
    moveTo(*fixture.shape, {54, 24});
    QCOMPARE(recording::names({"updateSVG", "updateOutlineRegion"}),
             QStringList({"shape.updateSVG", "shape.updateOutlineRegion"}));
}

QTEST_MAIN(TestDragging)

#include "test_dragging.moc"
