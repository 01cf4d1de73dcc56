#include "object/operations.h"
#include "object/sizerules.h"

#include <support/exact.h>

#include <QtTest/QtTest>

#include <limits>

using support::exact;

/// The arithmetic of sizes and the table of operations, without an object.
class TestRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAreRaised_data();
    void sizesAreRaised();
    void sizesAreBroughtToARatio_data();
    void sizesAreBroughtToARatio();
    void aRatioWithoutResultLeavesTheSize_data();
    void aRatioWithoutResultLeavesTheSize();
    void creatingDragsEnd_data();
    void creatingDragsEnd();
    void exactlyTheListedOperationsAreShapeOperations();
};

void TestRules::sizesAreRaised_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSizeF>("minimum");
    QTest::addColumn<QSizeF>("raised");
    QTest::newRow("large enough") << QSizeF(50, 60) << QSizeF(16, 16) << QSizeF(50, 60);
    QTest::newRow("exactly enough") << QSizeF(16, 17) << QSizeF(16, 17) << QSizeF(16, 17);
    QTest::newRow("too narrow") << QSizeF(15.9, 60) << QSizeF(16, 16) << QSizeF(16, 60);
    QTest::newRow("each by its own minimum") << QSizeF(15, 5) << QSizeF(20, 10) << QSizeF(20, 10);
    QTest::newRow("the other way round") << QSizeF(5, 15) << QSizeF(10, 20) << QSizeF(10, 20);
    QTest::newRow("too low") << QSizeF(50, 15.9) << QSizeF(16, 16) << QSizeF(50, 16);
    QTest::newRow("negative") << QSizeF(-50, -1) << QSizeF(16, 17) << QSizeF(16, 17);
    QTest::newRow("fractions do not count") << QSizeF(10, 100) << QSizeF(16.7, 16.2) << QSizeF(16, 100);
    QTest::newRow("between whole and fraction") << QSizeF(16.3, 16.1) << QSizeF(16.7, 16.2) << QSizeF(16.3, 16.1);
    const double endless = std::numeric_limits<double>::infinity();
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("endless minimum") << QSizeF(10, 20) << QSizeF(endless, endless) << QSizeF(10, 20);
    QTest::newRow("endless below") << QSizeF(10, 20) << QSizeF(-endless, -endless) << QSizeF(10, 20);
    QTest::newRow("no number") << QSizeF(10, 20) << QSizeF(noNumber, noNumber) << QSizeF(10, 20);
    QTest::newRow("endless in width alone") << QSizeF(10, 20) << QSizeF(endless, 30) << QSizeF(10, 30);
    QTest::newRow("endless in height alone") << QSizeF(10, 20) << QSizeF(30, endless) << QSizeF(30, 20);
    QTest::newRow("negative minimum, toward zero") << QSizeF(-2, -2) << QSizeF(-1.9, -0.5) << QSizeF(-1, 0);
}

void TestRules::sizesAreRaised()
{
    QFETCH(const QSizeF, size);
    QFETCH(const QSizeF, minimum);
    QFETCH(const QSizeF, raised);
    QCOMPARE(exact(SizeRules::raised(size, minimum)), exact(raised));
}

void TestRules::sizesAreBroughtToARatio_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSizeF>("ratio");
    QTest::addColumn<QSizeF>("limited");
    QTest::newRow("too high") << QSizeF(300, 300) << QSizeF(200, 100) << QSizeF(300, 150);
    QTest::newRow("too wide") << QSizeF(300, 100) << QSizeF(200, 100) << QSizeF(200, 100);
    // Wider than high, but not than 2 : 1.
    QTest::newRow("lying, but too high") << QSizeF(150, 100) << QSizeF(200, 100) << QSizeF(150, 75);
    QTest::newRow("already there") << QSizeF(60, 30) << QSizeF(200, 100) << QSizeF(60, 30);
    QTest::newRow("never sized, higher") << QSizeF(50, 80) << QSizeF(-1, -1) << QSizeF(80, 80);
    QTest::newRow("never sized, wider") << QSizeF(80, 50) << QSizeF(-1, -1) << QSizeF(80, 80);
    QTest::newRow("no width in the ratio") << QSizeF(80, 50) << QSizeF(0, 10) << QSizeF(0, 50);
    QTest::newRow("no height in the ratio") << QSizeF(80, 50) << QSizeF(10, 0) << QSizeF(80, 0);
    // 49 · (1 ÷ 49) is not 1: the product comes first.
    QTest::newRow("width multiplied first") << QSizeF(1000, 49) << QSizeF(1, 49) << QSizeF(1, 49);
    // Both products are 136: not wider, so the height follows the width, to 17 · 8 ÷ 5.
    QTest::newRow("rounded to equality") << QSizeF(8, 17 * 1.6) << QSizeF(5, 17) << QSizeF(8, 27.2);
    QTest::newRow("height multiplied first") << QSizeF(49, 1000) << QSizeF(49, 1) << QSizeF(49, 1);
}

void TestRules::sizesAreBroughtToARatio()
{
    QFETCH(const QSizeF, size);
    QFETCH(const QSizeF, ratio);
    QFETCH(const QSizeF, limited);
    QCOMPARE(exact(SizeRules::withAspect(size, ratio)), exact(limited));
}

void TestRules::aRatioWithoutResultLeavesTheSize_data()
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    QTest::addColumn<QSizeF>("ratio");
    QTest::newRow("nothing") << QSizeF(0, 0);
    QTest::newRow("no numbers") << QSizeF(nan, nan);
    QTest::newRow("endless") << QSizeF(inf, inf);
    QTest::newRow("overflowing") << QSizeF(1e-300, 1e300);
    QTest::newRow("an endless width") << QSizeF(-1, 0);
    QTest::newRow("an endless height") << QSizeF(0, 1);
}

void TestRules::aRatioWithoutResultLeavesTheSize()
{
    QFETCH(const QSizeF, ratio);
    const QSizeF size(-1e10, 5);
    QCOMPARE(exact(SizeRules::withAspect(size, ratio)), exact(size));
}

void TestRules::creatingDragsEnd_data()
{
    QTest::addColumn<QPointF>("start");
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QPointF>("end");
    QTest::newRow("plain") << QPointF(10, 20) << QPointF(110, 70) << QPointF(110, 70);
    QTest::newRow("narrow and low") << QPointF(10, 20) << QPointF(20, 32) << QPointF(40, 50);
    QTest::newRow("just enough") << QPointF(10, 20) << QPointF(40, 50) << QPointF(40, 50);
    QTest::newRow("back to front") << QPointF(100, 200) << QPointF(20, 30) << QPointF(130, 230);
    QTest::newRow("on the edges") << QPointF(-50, -60) << QPointF(0, 0) << QPointF(0, 0);
    QTest::newRow("left of the object") << QPointF(-50, 20) << QPointF(-1, 70) << QPointF(-20, 70);
    QTest::newRow("above the object") << QPointF(5, 100) << QPointF(40, -20) << QPointF(100, 130);
    QTest::newRow("above, start lower still") << QPointF(5, -90) << QPointF(40, -20) << QPointF(35, -20);
    QTest::newRow("above and left") << QPointF(5, 100) << QPointF(-40, -20) << QPointF(100, 130);
}

void TestRules::creatingDragsEnd()
{
    QFETCH(const QPointF, start);
    QFETCH(const QPointF, pos);
    QFETCH(const QPointF, end);
    QCOMPARE(exact(SizeRules::releasedEnd(start, pos)), exact(end));
}

void TestRules::exactlyTheListedOperationsAreShapeOperations()
{
    const QSet<int> listed{0, 1, 2, 10, 11, 20, 21, 22, 23, 24, 30, 31, 32, 36, 100, 200};
    for (int operation = -300; operation <= 2500; ++operation) {
        const bool expected = listed.contains(operation) || (operation >= 1001 && operation <= 1201);
        QVERIFY2(isShapeOperation(operation) == expected, QByteArray::number(operation));
    }
}

QTEST_MAIN(TestRules)

#include "test_rules.moc"
