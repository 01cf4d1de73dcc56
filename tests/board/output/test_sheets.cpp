// Places of pages on sheets of paper.

#include <output/sheets.h>

#include <QtTest/QtTest>

using board::sheetPlaces;

class TestSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onePageIsCentredAtItsAspectRatio();
    void twoWidePagesStandBelowEachOtherOnATallSheet();
    void twoTallPagesStandBesideEachOtherOnAWideSheet();
    void sixPagesGoInReadingOrder();
    void gapsLieBetweenPagesOnly();
    void everyCountHasThatManyPlacesOnTheSheet();
    void nothingFitsBetweenGapsTooWide();
    void emptySizesHaveNoPlaces();
};

void TestSheets::onePageIsCentredAtItsAspectRatio()
{
    QCOMPARE(sheetPlaces({10, 20, 200, 400}, 1, {100, 50}, 8), QVector<QRectF>{QRectF(10, 170, 200, 100)});
}

void TestSheets::twoWidePagesStandBelowEachOtherOnATallSheet()
{
    QCOMPARE(sheetPlaces({0, 0, 200, 300}, 2, {160, 90}, 0),
             (QVector<QRectF>{QRectF(0, 18.75, 200, 112.5), QRectF(0, 168.75, 200, 112.5)}));
}

void TestSheets::twoTallPagesStandBesideEachOtherOnAWideSheet()
{
    QCOMPARE(sheetPlaces({0, 0, 300, 200}, 2, {50, 100}, 0),
             (QVector<QRectF>{QRectF(25, 0, 100, 200), QRectF(175, 0, 100, 200)}));
}

void TestSheets::sixPagesGoInReadingOrder()
{
    QCOMPARE(sheetPlaces({0, 0, 300, 200}, 6, {10, 10}, 0),
             (QVector<QRectF>{QRectF(0, 0, 100, 100), QRectF(100, 0, 100, 100), QRectF(200, 0, 100, 100),
                              QRectF(0, 100, 100, 100), QRectF(100, 100, 100, 100), QRectF(200, 100, 100, 100)}));
}

void TestSheets::gapsLieBetweenPagesOnly()
{
    QCOMPARE(sheetPlaces({0, 0, 210, 210}, 4, {10, 10}, 10),
             (QVector<QRectF>{QRectF(0, 0, 100, 100), QRectF(110, 0, 100, 100), QRectF(0, 110, 100, 100),
                              QRectF(110, 110, 100, 100)}));
}

void TestSheets::everyCountHasThatManyPlacesOnTheSheet()
{
    const QRectF sheet(5, 5, 1000, 700);
    const QVector<int> counts = board::sheetCounts();
    QCOMPARE(counts, (QVector<int>{1, 2, 4, 6, 9, 16}));
    for (const int count : counts) {
        const QVector<QRectF> places = sheetPlaces(sheet, count, {128, 72}, 12);
        QCOMPARE(places.size(), count);
        for (int i = 0; i < count; ++i) {
            QVERIFY(sheet.contains(places[i]));
            for (int other = 0; other < i; ++other)
                QVERIFY(!places[i].intersects(places[other]));
        }
    }
}

void TestSheets::nothingFitsBetweenGapsTooWide()
{
    QCOMPARE(sheetPlaces({0, 0, 20, 20}, 4, {10, 10}, 30), QVector<QRectF>());
}

void TestSheets::emptySizesHaveNoPlaces()
{
    QCOMPARE(sheetPlaces({0, 0, 20, 20}, 1, {0, 10}, 0), QVector<QRectF>());
    QCOMPARE(sheetPlaces({0, 0, 0, 20}, 1, {10, 10}, 0), QVector<QRectF>());
}

QTEST_APPLESS_MAIN(TestSheets)
#include "test_sheets.moc"
