// The order in which boxes on a page are read.

#include <core/readingorder.h>

#include <QtTest/QtTest>

#include <limits>

using Boxes = QVector<QRectF>;
using Order = QVector<int>;

class TestReadingOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxes_data();
    void boxes();
};

Q_DECLARE_METATYPE(Boxes)
Q_DECLARE_METATYPE(Order)

void TestReadingOrder::boxes_data()
{
    QTest::addColumn<Boxes>("boxes");
    QTest::addColumn<Order>("expected");
    QTest::newRow("none") << Boxes{} << Order{};
    QTest::newRow("from top to bottom") << Boxes{{0, 50, 40, 20}, {0, 0, 40, 20}} << Order{1, 0};
    QTest::newRow("from left to right") << Boxes{{100, 0, 40, 20}, {0, 5, 40, 20}} << Order{1, 0};
    QTest::newRow("two rows") << Boxes{{100, 100, 40, 20}, {0, 102, 40, 20}, {100, 0, 40, 20}, {0, 1, 40, 20}}
                              << Order{3, 2, 1, 0};
    // The middle of the second one, 16, is below the first one, 15: another row.
    QTest::newRow("not quite beside") << Boxes{{100, 0, 40, 15}, {0, 6, 40, 20}} << Order{0, 1};
    // The tall one's middle, 100, is in neither of the others.
    QTest::newRow("column beside rows")
        << Boxes{{0, 0, 40, 200}, {50, 150, 40, 20}, {60, 10, 40, 20}} << Order{0, 2, 1};
    QTest::newRow("equal places keep their order") << Boxes{{0, 0, 40, 20}, {0, 0, 40, 20}} << Order{0, 1};
    QTest::newRow("places that are no numbers")
        << Boxes{{0, 0, 40, std::numeric_limits<double>::quiet_NaN()}} << Order{0};
}

void TestReadingOrder::boxes()
{
    QFETCH(Boxes, boxes);
    QFETCH(Order, expected);
    QCOMPARE(board::readingOrder(boxes), expected);
}

QTEST_APPLESS_MAIN(TestReadingOrder)
#include "test_readingorder.moc"
