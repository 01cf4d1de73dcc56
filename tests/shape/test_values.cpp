#include "properties/penstyle.h"
#include "shape/constants.h"
#include "shape/controlpoints.h"
#include "shape/controlpointsize.h"
#include "shape/shapetype.h"
#include "shape/viewbox.h"

#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::ShapeFixture;
using support::svgText;

/// The small rules that several parts of the library share.
class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typesThatTheHostFills_data();
    void typesThatTheHostFills();
    void controlPointsAreNamedByNumber();
    void controlPointsAreVisitedInOrder();
    void emptyEntriesAreSkipped();
    void aCountBeyondTheTableEndsAtTheTable();
    void lengthsAreComparedWithATolerance();
    void aZoomMustBeFiniteAndPositive_data();
    void aZoomMustBeFiniteAndPositive();
    void aZoomMustGivePixelsASize();
    void penStylesOutsideTheTypeAreSolid_data();
    void penStylesOutsideTheTypeAreSolid();
    void aViewBoxIsSettledOnlyWhenBothSidesAreZero();
    void numbersOfTheInterface();
};

void TestValues::typesThatTheHostFills_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("filled");
    QTest::newRow("-1") << -1 << true;
    QTest::newRow("0") << 0 << true;
    QTest::newRow("26") << 26 << true;
    QTest::newRow("27") << 27 << false;
    QTest::newRow("999") << 999 << false;
    QTest::newRow("1000") << 1000 << true;
    QTest::newRow("1001") << 1001 << false;
}

void TestValues::typesThatTheHostFills()
{
    QFETCH(int, type);
    QTEST(isHostFilled(type), "filled");
}

void TestValues::controlPointsAreNamedByNumber()
{
    QCOMPARE(controlPointId(1), QString("control_1"));
    QCOMPARE(controlPointId(32), QString("control_32"));
}

void TestValues::controlPointsAreVisitedInOrder()
{
    ShapeFixture fixture(svgText("0 0 9 9", support::controlPointsText(3)));
    fixture.load();
    QStringList visited;
    const auto visit = [&](const QZeSvgNode *node) { visited.append(node->nodeId()); };
    forEachControlPoint(fixture.shape->controlPoints, 2, visit);
    QCOMPARE(visited, QStringList({"control_1", "control_2"}));
}

void TestValues::emptyEntriesAreSkipped()
{
    ShapeFixture fixture(svgText("0 0 9 9", support::controlPointsText(3)));
    fixture.load();
    fixture.shape->controlPoints[1] = nullptr;
    QStringList visited;
    forEachControlPoint(fixture.shape->controlPoints, 3,
                        [&](const QZeSvgNode *node) { visited.append(node->nodeId()); });
    QCOMPARE(visited, QStringList({"control_1", "control_3"}));
}

void TestValues::aCountBeyondTheTableEndsAtTheTable()
{
    ShapeFixture fixture(svgText("0 0 9 9", support::controlPointsText(32)));
    fixture.load();
    int visited = 0;
    forEachControlPoint(fixture.shape->controlPoints, 33, [&](const QZeSvgNode *) { ++visited; });
    QCOMPARE(visited, 32);
}

void TestValues::lengthsAreComparedWithATolerance()
{
    QVERIFY(sameLength(1, 1));
    QVERIFY(sameLength(0, 9.9e-8));
    QVERIFY(sameLength(9.9e-8, 0));
    QVERIFY(!sameLength(0, 1e-7));
    QVERIFY(!sameLength(1e-7, 0));
    QVERIFY(!sameLength(qQNaN(), 1));
    QVERIFY(!sameLength(qInf(), qInf()));
}

void TestValues::aZoomMustBeFiniteAndPositive_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("used");
    QTest::newRow("half") << 0.5 << 0.5;
    QTest::newRow("tiny") << 1e-300 << 1e-300;
    QTest::newRow("zero") << 0.0 << 1.0;
    QTest::newRow("negative") << -2.0 << 1.0;
    QTest::newRow("not a number") << qQNaN() << 1.0;
    QTest::newRow("infinite") << qInf() << 1.0;
}

void TestValues::aZoomMustBeFiniteAndPositive()
{
    QFETCH(double, zoom);
    QTEST(usableZoom(zoom, 50), "used");
}

void TestValues::aZoomMustGivePixelsASize()
{
    QCOMPARE(usableZoom(1e-307, 8), 1e-307);
    QCOMPARE(usableZoom(1e-307, 50), 1.0); // 5e308 is more than a double holds
}

void TestValues::penStylesOutsideTheTypeAreSolid_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("style");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("dashes and two dots") << 5 << 5;
    QTest::newRow("custom") << 6 << 6;
    QTest::newRow("first above") << 7 << 1;
    QTest::newRow("most that the type holds") << 15 << 1;
    QTest::newRow("above the type") << 16 << 1;
    QTest::newRow("negative") << -1 << 1;
}

void TestValues::penStylesOutsideTheTypeAreSolid()
{
    QFETCH(int, number);
    QTEST(int(penStyleFromInt(number)), "style");
}

void TestValues::aViewBoxIsSettledOnlyWhenBothSidesAreZero()
{
    ShapeFixture fixture(svgText("0 0 9 9", "<rect x='1' y='2' width='30' height='40'/>"));
    fixture.load();
    QZeSvgTinyDocument *document = fixture.shape->document;
    document->setViewBox(QRectF(5, 5, 0, 7));
    QCOMPARE(settledViewBox(document), QRectF(5, 5, 0, 7));
    document->setViewBox(QRectF(5, 5, 7, 0));
    QCOMPARE(settledViewBox(document), QRectF(5, 5, 7, 0));
    document->setViewBox(QRectF(5, 5, 0, 0));
    QCOMPARE(settledViewBox(document), QRectF(1, 2, 30, 40));
    QCOMPARE(document->viewBox(), QRectF(1, 2, 30, 40));
}

void TestValues::numbersOfTheInterface()
{
    QCOMPARE(int(PROP_SVG_NONE), 0);
    QCOMPARE(int(PROP_SVG_PENCOLOR), 5002);
    QCOMPARE(int(PROP_SVG_PENSTYLE), 5003);
    QCOMPARE(int(PROP_SVG_PENWIDTH), 5004);
    QCOMPARE(int(PROP_SVG_FILLCOLOR), 5005);
    QCOMPARE(int(ACT_SVG_CONTROLPOINT), 1001);
    QCOMPARE(int(ACT_SVG_PENCOLOR), 1002);
    QCOMPARE(int(ACT_SVG_PENSTYLE), 1003);
    QCOMPARE(int(ACT_SVG_PENWIDTH), 1004);
    QCOMPARE(int(ACT_SVG_FILLCOLOR), 1005);
    QCOMPARE(int(ACT_SVG_STYLE_SNAPSHOT), 2804);
    QCOMPARE(int(ACT_SVG_STYLE_RESTORE), 2805);
}

QTEST_MAIN(TestValues)
#include "test_values.moc"
