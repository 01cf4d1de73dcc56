#include "history/outlinebuilder.h"

#include <support/exact.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

#include <limits>

using support::exact;
using support::ShapeFixture;
using support::svgText;

/// How the outline (document units) comes to lie in the object (item coordinates).
class TestMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outlinesAreMapped_data();
    void outlinesAreMapped();
    void equalRectanglesLeaveTheOutlineAsItIs();
    void nearlyEqualSidesAreNotScaled();

    void aShapeMapsItsOutlineIntoItsRectangle();
    void aMirroredShapesOutlineIsNotMirrored();
    void withoutOutlineThereIsNoRegion();
    void anEmptyObjectHasNoRegion_data();
    void anEmptyObjectHasNoRegion();
    void anEmptyObjectLeavesTheViewBoxAlone();
    void anObjectSmallerThanAUnitHasARegion();
    void aMissingViewBoxIsSettledFirst();
    void aFlatViewBoxHasNoRegion_data();
    void aFlatViewBoxHasNoRegion();
    void anOutlineThatReachesTooFarIsNone_data();
    void anOutlineThatReachesTooFarIsNone();
    void theStoredOutlineStays();
    void anEarlierPathIsReplaced();
};

namespace {

QPainterPath pathOf(const QRectF &rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

/// All corners with all digits: QPainterPath compares with a tolerance.
QString corners(const QPainterPath &path)
{
    QString text;
    for (int i = 0; i < path.elementCount(); ++i)
        text += exact(QPointF(path.elementAt(i))) + "; ";
    return text;
}

/// A shape of view box 100 × 50 whose outline is `outline` (document units).
struct Outlined : ShapeFixture
{
    explicit Outlined(const QRectF &outline, const QString &viewBox = "0 0 100 50")
        : ShapeFixture(svgText(viewBox, "<rect x='10' y='20' width='30' height='5'/>"))
    {
        load();
        shape->outlineRegion = new QPainterPath(pathOf(outline));
    }
};

} // namespace

void TestMapping::outlinesAreMapped_data()
{
    QTest::addColumn<QRectF>("viewBox");
    QTest::addColumn<QRectF>("client");
    QTest::addColumn<QRectF>("mapped");
    // The outline is (10, 20) to (40, 40).
    QTest::newRow("equal") << QRectF(0, 0, 100, 50) << QRectF(0, 0, 100, 50) << QRectF(10, 20, 30, 20);
    QTest::newRow("equal, moved both") << QRectF(7, 8, 100, 50) << QRectF(7, 8, 100, 50) << QRectF(10, 20, 30, 20);
    QTest::newRow("same size elsewhere")
        << QRectF(2, 3, 100, 50) << QRectF(5, 1, 100, 50) << QRectF(13, 18, 30, 20);
    QTest::newRow("twice as wide") << QRectF(0, 0, 100, 50) << QRectF(0, 0, 200, 50) << QRectF(20, 20, 60, 20);
    QTest::newRow("half as high") << QRectF(0, 0, 100, 50) << QRectF(0, 0, 100, 25) << QRectF(10, 10, 30, 10);
    QTest::newRow("both") << QRectF(0, 0, 100, 50) << QRectF(0, 0, 200, 25) << QRectF(20, 10, 60, 10);
    // (20, 10) is where the scaled view box begins
    QTest::newRow("both, elsewhere") << QRectF(10, 20, 100, 50) << QRectF(5, 7, 200, 25) << QRectF(5, 7, 60, 10);
    QTest::newRow("wider, elsewhere") << QRectF(10, 20, 100, 50) << QRectF(5, 7, 200, 50) << QRectF(5, 7, 60, 20);
}

void TestMapping::outlinesAreMapped()
{
    QFETCH(const QRectF, viewBox);
    QFETCH(const QRectF, client);
    QFETCH(const QRectF, mapped);
    const QPainterPath result = OutlineBuilder::mapped(pathOf({10, 20, 30, 20}), viewBox, client);
    QCOMPARE(corners(result), corners(pathOf(mapped)));
}

void TestMapping::equalRectanglesLeaveTheOutlineAsItIs()
{
    // 1e6 and 1e6 + 1e-7 are equal as rectangles are compared: nothing is moved by that little.
    const QPainterPath outline = pathOf({1e6, 0, 10, 10});
    const QPainterPath result = OutlineBuilder::mapped(outline, {1e6, 0, 100, 50}, {1e6 + 1e-7, 0, 100, 50});
    QCOMPARE(corners(result), corners(outline));
}

void TestMapping::nearlyEqualSidesAreNotScaled()
{
    const QPainterPath outline = pathOf({10, 20, 30, 20});
    const QPainterPath both = OutlineBuilder::mapped(outline, {0, 0, 100, 50}, {1, 2, 100 + 5e-8, 50 - 5e-8});
    QCOMPARE(corners(both), corners(pathOf({11, 22, 30, 20})));
    const QPainterPath width = OutlineBuilder::mapped(outline, {0, 0, 100, 50}, {0, 0, 100 + 5e-8, 100});
    QCOMPARE(corners(width), corners(pathOf({10, 40, 30, 40})));
    const QPainterPath height = OutlineBuilder::mapped(outline, {0, 0, 100, 50}, {0, 0, 200, 50 + 5e-8});
    QCOMPARE(corners(height), corners(pathOf({20, 20, 60, 20})));
}

void TestMapping::aShapeMapsItsOutlineIntoItsRectangle()
{
    Outlined fixture({10, 20, 30, 20});
    fixture.object.place({5, 7, 200, 25});
    QPainterPath path;
    QVERIFY(fixture.shape->getOutlineRegion(&path));
    QCOMPARE(corners(path), corners(pathOf({25, 17, 60, 10})));
}

void TestMapping::aMirroredShapesOutlineIsNotMirrored()
{
    Outlined fixture({10, 20, 30, 20});
    fixture.object.place({0, 0, 200, 50});
    fixture.shape->setFlipOn(true, true);
    QPainterPath path;
    QVERIFY(fixture.shape->getOutlineRegion(&path));
    QCOMPARE(corners(path), corners(pathOf({20, 20, 60, 20})));
}

void TestMapping::withoutOutlineThereIsNoRegion()
{
    ShapeFixture fixture(svgText("0 0 100 50", "<rect width='10' height='10'/>"));
    fixture.load();
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(!fixture.shape->getOutlineRegion(&path));
    QCOMPARE(path, pathOf({1, 2, 3, 4}));
}

void TestMapping::anEmptyObjectHasNoRegion_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("no width") << QSizeF(0, 50);
    QTest::newRow("no height") << QSizeF(100, 0);
    QTest::newRow("negative width") << QSizeF(-100, 50);
    QTest::newRow("negative height") << QSizeF(100, -50);
}

void TestMapping::anEmptyObjectHasNoRegion()
{
    QFETCH(const QSizeF, size);
    Outlined fixture({10, 20, 30, 20});
    fixture.object.place(QRectF(QPointF(0, 0), size));
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(!fixture.shape->getOutlineRegion(&path));
    QCOMPARE(path, pathOf({1, 2, 3, 4}));
}

void TestMapping::anEmptyObjectLeavesTheViewBoxAlone()
{
    Outlined fixture({10, 20, 30, 5});
    fixture.shape->document->setViewBox(QRectF());
    fixture.object.place({0, 0, 0, 50});
    QPainterPath path;
    fixture.shape->getOutlineRegion(&path);
    fixture.shape->document->children().constFirst()->setNumericAttribute("width", 90);
    // Settled only now, from the wider drawing.
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(10, 20, 90, 5));
}

void TestMapping::anObjectSmallerThanAUnitHasARegion()
{
    Outlined outlined(QRectF(10, 20, 40, 20));
    outlined.place(QRectF(0, 0, 0.5, 0.25)); // 1 / 200 of the view box
    QPainterPath region;
    QVERIFY(outlined.shape->getOutlineRegion(&region));
    QCOMPARE(corners(region), corners(pathOf(QRectF(10 * 0.005, 20 * 0.005, 40 * 0.005, 20 * 0.005))));
}

void TestMapping::aMissingViewBoxIsSettledFirst()
{
    Outlined fixture({10, 20, 30, 5}, {});
    fixture.shape->document->setViewBox(QRectF());
    fixture.object.place({0, 0, 60, 10});
    QPainterPath path;
    QVERIFY(fixture.shape->getOutlineRegion(&path));
    QCOMPARE(corners(path), corners(pathOf({0, 0, 60, 10})));
    fixture.shape->document->children().constFirst()->setNumericAttribute("width", 90);
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(10, 20, 30, 5)); // it stays
}

void TestMapping::aFlatViewBoxHasNoRegion_data()
{
    QTest::addColumn<QRectF>("viewBox");
    QTest::newRow("no width") << QRectF(0, 0, 0, 50);
    QTest::newRow("no height") << QRectF(0, 0, 100, 0);
}

void TestMapping::aFlatViewBoxHasNoRegion()
{
    QFETCH(const QRectF, viewBox);
    Outlined fixture({10, 20, 30, 20});
    fixture.object.place({0, 0, 100, 50});
    fixture.shape->document->setViewBox(viewBox);
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(!fixture.shape->getOutlineRegion(&path));
    QCOMPARE(path, pathOf({1, 2, 3, 4}));
}

void TestMapping::anOutlineThatReachesTooFarIsNone_data()
{
    QTest::addColumn<QRectF>("viewBox");
    QTest::addColumn<bool>("reaches");
    // The outline ends at (40, 40), the object is 100 × 50.
    QTest::newRow("to 10,000,000 along x") << QRectF(0, 0, 4e-4, 50) << true;
    QTest::newRow("beyond it along x") << QRectF(0, 0, 3.99e-4, 50) << false;
    QTest::newRow("to 10,000,000 along y") << QRectF(0, 0, 100, 2e-4) << true;
    QTest::newRow("beyond it along y") << QRectF(0, 0, 100, 1.99e-4) << false;
    QTest::newRow("beyond it backward") << QRectF(4e7, 0, 100, 50) << false;
    QTest::newRow("tiny") << QRectF(0, 0, 1e-300, 1e-300) << false;
    QTest::newRow("no number") << QRectF(0, 0, qQNaN(), 50) << false;
    QTest::newRow("endless at the left") << QRectF(-qInf(), 0, 100, 50) << false;
}

void TestMapping::anOutlineThatReachesTooFarIsNone()
{
    QFETCH(const QRectF, viewBox);
    QFETCH(const bool, reaches);
    Outlined fixture({10, 20, 30, 20});
    fixture.place({0, 0, 100, 50});
    fixture.shape->document->setViewBox(viewBox);
    const QPainterPath before = pathOf({1, 2, 3, 4});
    QPainterPath path = before;
    QCOMPARE(fixture.shape->getOutlineRegion(&path), reaches);
    QCOMPARE(path == before, !reaches);
    QCOMPARE(exact(fixture.shape->document->viewBox()), exact(viewBox)); // it stays as it was stored
}

void TestMapping::theStoredOutlineStays()
{
    Outlined fixture({10, 20, 30, 20});
    fixture.object.place({5, 7, 200, 25});
    QPainterPath path;
    fixture.shape->getOutlineRegion(&path);
    QCOMPARE(corners(*fixture.shape->outlineRegion), corners(pathOf({10, 20, 30, 20})));
}

void TestMapping::anEarlierPathIsReplaced()
{
    Outlined fixture({10, 20, 30, 20});
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(fixture.shape->getOutlineRegion(&path));
    QCOMPARE(path, pathOf({10, 20, 30, 20}));
}

QTEST_MAIN(TestMapping)

#include "test_outlinemapping.moc"
