// The lines of strokes, and the parts that an eraser leaves of them.

#include <ink/core/strokepath.h>

#include <QtCore/QLineF>
#include <QtTest/QtTest>

using ink::StrokePoint;
using Points = QVector<StrokePoint>;

class TestStrokePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCurvePassesThroughEveryPoint();
    void aDotIsALineThatRoundCapsMakeVisible();
    void twoPointsAreAStraightLine();
    void pressureMakesTheLineWider();
    void pressedLinesCoverTheirPoints();
    void boundsHoldThePointsAndTheMargin();
    void linesThatCrossHaveNoDistance();
    void anEraserBesideTheStrokeLeavesItWhole();
    void anEraserAcrossTheMiddleLeavesTwoParts();
    void anEraserOverAnEndLeavesOnePart();
    void anEraserOverAllLeavesNothing();
};

void TestStrokePath::theCurvePassesThroughEveryPoint()
{
    // Control points a sixth of the way between the neighbours from each point.
    const Points points{{QPointF(0, 0)}, {QPointF(60, 0)}, {QPointF(60, 60)}};
    QCOMPARE(ink::linePath(points), QStringLiteral("M0 0 C10 0 50 -10 60 0 C70 10 60 50 60 60 "));
}

void TestStrokePath::aDotIsALineThatRoundCapsMakeVisible()
{
    QCOMPARE(ink::linePath({{QPointF(3, 4)}}), QStringLiteral("M3 4 L3.01 4 "));
    QVERIFY(ink::linePath({}).isEmpty());
}

void TestStrokePath::twoPointsAreAStraightLine()
{
    QCOMPARE(ink::linePath({{QPointF(0, 0)}, {QPointF(60, 30)}}), QStringLiteral("M0 0 C10 5 50 25 60 30 "));
}

void TestStrokePath::pressureMakesTheLineWider()
{
    QCOMPARE(ink::widthUnder(-1), 1.0);
    QCOMPARE(ink::widthUnder(0), 0.4);
    QCOMPARE(ink::widthUnder(0.5), 1.0);
    QCOMPARE(ink::widthUnder(1), ink::largestWidth);
}

void TestStrokePath::pressedLinesCoverTheirPoints()
{
    // Along x with full pressure: 1.6 pen widths of 10 are 8 to each side.
    const QString path = ink::pressedPath({{QPointF(0, 0), 1}, {QPointF(40, 0), 1}}, 10);
    QVERIFY2(path.contains(QStringLiteral("M0 -8 L20 -8 L40 -8 L40 8 L20 8 L0 8 Z")), qPrintable(path));
}

void TestStrokePath::boundsHoldThePointsAndTheMargin()
{
    QCOMPARE(ink::boundsOf({{{QPointF(5, 40)}, {QPointF(-10, 20)}}, 2}), QRectF(-12, 18, 19, 24));
}

void TestStrokePath::linesThatCrossHaveNoDistance()
{
    QCOMPARE(ink::distanceOf({0, 0, 10, 10}, {0, 10, 10, 0}), 0.0);
    QCOMPARE(ink::distanceOf({0, 0, 10, 0}, {3, 4, 5, 9}), 4.0);
    QCOMPARE(ink::distanceOf({0, 0, 0, 0}, {3, 4, 3, 4}), 5.0);
}

void TestStrokePath::anEraserBesideTheStrokeLeavesItWhole()
{
    const Points points{{QPointF(0, 0)}, {QPointF(100, 0)}};
    const auto parts = ink::partsBeside(points, {50, 11, 50, 30}, 10);
    QCOMPARE(parts.size(), 1);
    QVERIFY(parts.first() == points);
}

void TestStrokePath::anEraserAcrossTheMiddleLeavesTwoParts()
{
    const auto parts = ink::partsBeside({{QPointF(0, 0)}, {QPointF(100, 0)}}, {50, -30, 50, 30}, 10);
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts[0].first().place, QPointF(0, 0));
    QCOMPARE(parts[1].last().place, QPointF(100, 0));
    // Cut to a quarter of the eraser.
    QVERIFY(parts[0].last().place.x() < 40 && parts[0].last().place.x() > 35);
    QVERIFY(parts[1].first().place.x() > 60 && parts[1].first().place.x() < 65);
}

void TestStrokePath::anEraserOverAnEndLeavesOnePart()
{
    const auto parts = ink::partsBeside({{QPointF(0, 0)}, {QPointF(100, 0)}}, {0, 0, 0, 0}, 10);
    QCOMPARE(parts.size(), 1);
    QVERIFY(parts[0].first().place.x() > 10 && parts[0].first().place.x() < 15);
    QCOMPARE(parts[0].last().place, QPointF(100, 0));
}

void TestStrokePath::anEraserOverAllLeavesNothing()
{
    QVERIFY(ink::partsBeside({{QPointF(0, 0)}, {QPointF(8, 0)}}, {0, 0, 8, 0}, 10).isEmpty());
    QVERIFY(ink::partsBeside({{QPointF(0, 0)}}, {3, 0, 3, 0}, 10).isEmpty());
}

QTEST_MAIN(TestStrokePath)
#include "test_strokepath.moc"
