// The course of lines and curves.

#include <line/core/linecourse.h>

#include <QtTest/QtTest>

using line::LineCourse;

class TestLineCourse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewLineIsStraight();
    void aCurvePassesThroughItsBend();
    void aBendNextToTheWayMakesTheLineStraight();
    void theBendOfAShortLineIsLimited();
    void theBendFollowsTheEnds();
    void boundsHoldTheTopOfTheCurve();
    void aLineWithoutLengthHasADirection();
    void stepsAreOfFifteenDegrees();
    void aStretchedCurveStillPassesThroughItsBend();
    void aBendThatIsPutBackIsTheSame();
    void damagedDataAreNoCourse();
};

void TestLineCourse::aNewLineIsStraight()
{
    const LineCourse course{{0, 0}, {100, 60}};
    QVERIFY(course.isStraight());
    QCOMPARE(course.bendPoint(), QPointF(50, 30));
    QCOMPARE(course.bounds(), QRectF(0, 0, 100, 60));
}

void TestLineCourse::aCurvePassesThroughItsBend()
{
    LineCourse course{{0, 0}, {100, 0}};
    course.bendThrough({50, -20});
    QCOMPARE(course.bendPoint(), QPointF(50, -20));
    // The middle of a quadratic curve is halfway between its control point and the middle of its ends.
    QCOMPARE(course.controlPoint(), QPointF(50, -40));
    QCOMPARE((course.controlPoint() + QPointF(50, 0)) / 2, course.bendPoint());
    QCOMPARE(course.directionAtEnd(), QPointF(50, 40) / std::hypot(50, 40));
}

void TestLineCourse::aBendNextToTheWayMakesTheLineStraight()
{
    LineCourse course{{0, 0}, {100, 0}};
    course.bendThrough({30, 1.5});
    QVERIFY(course.isStraight());
    QCOMPARE(course.bendPoint(), QPointF(50, 0));
    course.bendThrough({30, 1.6});
    QVERIFY(!course.isStraight());
}

/// It would be far away when the line becomes long again.
void TestLineCourse::theBendOfAShortLineIsLimited()
{
    LineCourse course{{0, 0}, {1, 0}};
    course.bendThrough({0.5, 300});
    course.end = {100, 0};
    QCOMPARE(course.bendPoint(), QPointF(50, 800));
}

void TestLineCourse::theBendFollowsTheEnds()
{
    LineCourse course{{0, 0}, {100, 0}};
    course.bendThrough({50, -20});
    course.end = {0, 200};
    QCOMPARE(course.bendPoint(), QPointF(40, 100));
}

void TestLineCourse::boundsHoldTheTopOfTheCurve()
{
    LineCourse course{{0, 0}, {100, 0}};
    course.bendThrough({50, -20});
    QCOMPARE(course.bounds(), QRectF(0, -20, 100, 20));
}

void TestLineCourse::aLineWithoutLengthHasADirection()
{
    LineCourse course{{5, 5}, {5, 5}};
    QCOMPARE(course.directionAtEnd(), QPointF(1, 0));
    course.bendThrough({50, -20});
    QVERIFY(course.isStraight());
}

void TestLineCourse::stepsAreOfFifteenDegrees()
{
    QCOMPARE(line::inSteps({0, 0}, {100, 10}), QPointF(100, 0));
    QCOMPARE(line::inSteps({10, 10}, {110, 100}), QPointF(105, 105));
    const QPointF thirty = line::inSteps({0, 0}, {100, 55});
    QCOMPARE(thirty.y() / thirty.x(), std::tan(qDegreesToRadians(30.0)));
}

void TestLineCourse::aStretchedCurveStillPassesThroughItsBend()
{
    LineCourse course{{0, 0}, {100, 0}};
    course.bendThrough({50, -20});
    const LineCourse stretched = course.stretchedTo({200, 40});
    QCOMPARE(stretched.bounds(), QRectF(0, -20, 200, 40));
    QCOMPARE(stretched.bendPoint(), QPointF(100, -20));
    // A level line has no height that could be stretched.
    const LineCourse level = LineCourse{{0, 0}, {100, 0}}.stretchedTo({50, 70});
    QCOMPARE(level.bounds(), QRectF(0, 0, 50, 0));
}

void TestLineCourse::aBendThatIsPutBackIsTheSame()
{
    LineCourse course{{0, 0}, {97, 31}};
    course.bendThrough({40, 60});
    course = course.rounded();
    const QPointF bend = course.bend;
    const QPointF point = course.bendPoint();
    course.bendThrough({10, 70});
    QVERIFY(course.bend != bend);
    course.bendThrough(point + QPointF(1e-6, -1e-6));
    QVERIFY(course.rounded().bend.x() == bend.x() && course.rounded().bend.y() == bend.y());
}

void TestLineCourse::damagedDataAreNoCourse()
{
    const LineCourse course{{1, 2}, {30, 40}, {0.5, 0.25}};
    const QByteArray bytes = encoded(course);
    const auto read = line::decoded(bytes);
    QVERIFY(read);
    QCOMPARE(read->start, course.start);
    QCOMPARE(read->end, course.end);
    QCOMPARE(read->bend, course.bend);
    QVERIFY(!line::decoded(bytes.left(bytes.size() - 1)));
    QVERIFY(!line::decoded(encoded(LineCourse{{1, 2}, {2e5, 40}})));
    QVERIFY(!line::decoded(encoded(LineCourse{{1, 2}, {qQNaN(), 40}})));
    QVERIFY(!line::decoded(encoded(LineCourse{{1, 2}, {30, 40}, {0.5, 9}})));
}

QTEST_MAIN(TestLineCourse)
#include "test_linecourse.moc"
