#include "render/cachepicture.h"
#include "render/cacherendering.h"
#include "render/draglimits.h"
#include "shape/controlpointsize.h"
#include "shape/shapetype.h"

#include <support/exact.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtTest/QtTest>

#include <limits>
#include <memory>

using support::exact;

/// The small rules of rendering and editing, each on its own.
class TestRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreLimited_data();
    void valuesAreLimited();
    void nodesAreHitWithTheirMargin();
    void hiddenAndImpossibleNodesAreNotHit();
    void picturesHaveWholePixels_data();
    void picturesHaveWholePixels();
    void picturesAreAsLargeAsAnImageCanBe();
    void smallPicturesAreCopiedWithoutTools();
    void somePicturesAreNotMade_data();
    void somePicturesAreNotMade();
    void controlPointPixelsFollowThePen_data();
    void controlPointPixelsFollowThePen();
    void unusableZoomsCountAsOne_data();
    void unusableZoomsCountAsOne();
    void typesOfHostFilledShapes();

    void renderingHappensOnce();
    void aNestedRenderingDoesNotHappen();
    void aNestedRequestRepeatsTheRenderingOnce();
    void requestsOfOtherObjectsAreTheirOwn();
    void requestsAreFoundThroughOtherObjects();
    void anEndedRenderingIsForgotten();
};

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double inf = std::numeric_limits<double>::infinity();

/// A document with one rectangle; null when it cannot be parsed.
std::unique_ptr<QZeSvgTinyDocument> documentWith(const QByteArray &attributes)
{
    return std::unique_ptr<QZeSvgTinyDocument>(QZeSvgTinyDocument::load(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'><rect id='r' " + attributes + "/></svg>"));
}

// Rendering compares objects by their address alone.
const CSVGObj *objectAt(const char &place)
{
    return reinterpret_cast<const CSVGObj *>(&place);
}

} // namespace

void TestRules::valuesAreLimited_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 30.0 << 10.0 << 50.0 << 30.0;
    QTest::newRow("minimum") << 10.0 << 10.0 << 50.0 << 10.0;
    QTest::newRow("maximum") << 50.0 << 10.0 << 50.0 << 50.0;
    QTest::newRow("below") << 9.0 << 10.0 << 50.0 << 10.0;
    QTest::newRow("above") << 51.0 << 10.0 << 50.0 << 50.0;
    QTest::newRow("one value") << 51.0 << 10.0 << 10.0 << 10.0;
    QTest::newRow("turned round, between") << 30.0 << 50.0 << 10.0 << 50.0;
    QTest::newRow("turned round, above") << 60.0 << 50.0 << 10.0 << 10.0;
    QTest::newRow("turned round, below") << 5.0 << 50.0 << 10.0 << 50.0;
    QTest::newRow("no number") << notANumber << 10.0 << 50.0 << 10.0;
    QTest::newRow("endless") << inf << 10.0 << 50.0 << 50.0;
    QTest::newRow("endless the other way") << -inf << 10.0 << 50.0 << 10.0;
    QTest::newRow("endless range") << 1e300 << -inf << inf << 1e300;
    QTest::newRow("no minimum, below") << 30.0 << notANumber << 50.0 << 50.0;
    QTest::newRow("no minimum, above") << 60.0 << notANumber << 50.0 << 50.0;
    QTest::newRow("no maximum, above") << 30.0 << 10.0 << notANumber << notANumber;
    QTest::newRow("no maximum, below") << 5.0 << 10.0 << notANumber << 10.0;
}

void TestRules::valuesAreLimited()
{
    QFETCH(const double, value);
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const double, expected);
    QCOMPARE(exact(limited(value, minimum, maximum)), exact(expected));
}

void TestRules::nodesAreHitWithTheirMargin()
{
    const auto document = documentWith("x='10' y='20' width='4' height='2'");
    const QZeSvgNode &node = *document->namedNode("r");
    QVERIFY(isControlPointHit(node, {4, 14}));
    QVERIFY(isControlPointHit(node, {20, 28}));
    QVERIFY(!isControlPointHit(node, {3.999, 21}));
    QVERIFY(!isControlPointHit(node, {20.001, 21}));
    QVERIFY(!isControlPointHit(node, {12, 13.999}));
    QVERIFY(!isControlPointHit(node, {12, 28.001}));
}

void TestRules::hiddenAndImpossibleNodesAreNotHit()
{
    const QByteArray place("x='10' y='20' width='4' height='2' ");
    QVERIFY(!isControlPointHit(*documentWith(place + "display='none'")->namedNode("r"), {12, 21}));
    QVERIFY(!isControlPointHit(*documentWith(place + "visibility='hidden'")->namedNode("r"), {12, 21}));
    for (const char *attributes : {"x='nan' y='20' width='4' height='2'", "x='10' y='nan' width='4' height='2'",
                                   "x='10' y='20' width='nan' height='2'", "x='10' y='20' width='4' height='nan'"})
        QVERIFY(!isControlPointHit(*documentWith(attributes)->namedNode("r"), {12, 21}));
    QVERIFY(!isControlPointHit(*documentWith(place)->namedNode("r"), {notANumber, 21}));
    QVERIFY(!isControlPointHit(*documentWith(place)->namedNode("r"), {12, notANumber}));
}

void TestRules::picturesHaveWholePixels_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("fractions") << QSizeF(40.9, 20.2) << QSize(40, 20);
    QTest::newRow("whole") << QSizeF(7, 5) << QSize(7, 5);
    QTest::newRow("one pixel") << QSizeF(1, 1.99) << QSize(1, 1);
    QTest::newRow("a line") << QSizeF(20, 1) << QSize(20, 1);
    // Its width squared would be too many pixels.
    QTest::newRow("a long line") << QSizeF(20000, 2) << QSize(20000, 2);
    QTest::newRow("a high line") << QSizeF(2, 20000) << QSize(2, 20000);
}

void TestRules::picturesHaveWholePixels()
{
    QFETCH(const QSizeF, size);
    QFETCH(const QSize, pixels);
    QImage expected(pixels, QImage::Format_ARGB32);
    expected.fill(qRgba(0, 0, 0, 0));
    const QImage picture = emptyCachePicture(size);
    QCOMPARE(picture.format(), QImage::Format_ARGB32);
    QCOMPARE(picture, expected);
}

/// 2 GiB and more; no picture is made here.
void TestRules::picturesAreAsLargeAsAnImageCanBe()
{
    QCOMPARE(cachePictureSize({23171.9, 23171}), QSize(23171, 23171));
    QCOMPARE(cachePictureSize({2147483647, 1}), QSize(2147483647, 1));
    QCOMPARE(cachePictureSize({1, 2147483647}), QSize(1, 2147483647));
    QVERIFY(!cachePictureSize({2147483648.0, 1}).isValid());
    QVERIFY(!cachePictureSize({1, 2147483648.0}).isValid());
}

void TestRules::smallPicturesAreCopiedWithoutTools()
{
    // 64 KB are 128 x 128 pixels.
    QImage small(128, 128, QImage::Format_ARGB32);
    small.fill(qRgba(10, 20, 30, 40));
    const QImage copy = withoutPaintingTools(small);
    QCOMPARE(copy, small);
    QCOMPARE(copy.format(), QImage::Format_ARGB32);
    QVERIFY(copy.constBits() != small.constBits());
    QImage large(129, 128, QImage::Format_ARGB32);
    large.fill(qRgba(10, 20, 30, 40));
    QCOMPARE(withoutPaintingTools(large).constBits(), large.constBits());
    QVERIFY(withoutPaintingTools(QImage()).isNull());
}

void TestRules::somePicturesAreNotMade_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("half a pixel wide") << QSizeF(0.5, 10);
    QTest::newRow("half a pixel high") << QSizeF(10, 0.5);
    QTest::newRow("nothing") << QSizeF(0, 0);
    QTest::newRow("negative") << QSizeF(-10, 10);
    QTest::newRow("both negative") << QSizeF(-10, -10);
    QTest::newRow("no number") << QSizeF(notANumber, 10);
    QTest::newRow("no number high") << QSizeF(10, notANumber);
    QTest::newRow("endless") << QSizeF(inf, 10);
    QTest::newRow("more than an image holds") << QSizeF(2147483647, 2147483647);
    QTest::newRow("too long a line") << QSizeF(3e9, 1);
}

void TestRules::somePicturesAreNotMade()
{
    QFETCH(const QSizeF, size);
    QVERIFY(emptyCachePicture(size).isNull());
}

void TestRules::controlPointPixelsFollowThePen_data()
{
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<int>("pixels");
    for (const auto &row : {std::pair(-100, 8), std::pair(0, 8), std::pair(7, 8), std::pair(8, 8), std::pair(9, 9),
                            std::pair(49, 49), std::pair(50, 50), std::pair(51, 50), std::pair(2000000000, 50)})
        QTest::addRow("%d", row.first) << row.first << row.second;
}

void TestRules::controlPointPixelsFollowThePen()
{
    QFETCH(const int, penWidth);
    QFETCH(const int, pixels);
    QCOMPARE(controlPointPixels(penWidth), pixels);
}

void TestRules::unusableZoomsCountAsOne_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("used");
    QTest::newRow("plain") << 2.5 << 2.5;
    QTest::newRow("tiny") << 1e-300 << 1e-300;
    QTest::newRow("none") << 0.0 << 1.0;
    QTest::newRow("negative") << -2.0 << 1.0;
    QTest::newRow("no number") << notANumber << 1.0;
    QTest::newRow("endless") << inf << 1.0;
}

void TestRules::unusableZoomsCountAsOne()
{
    QFETCH(const double, zoom);
    QFETCH(const double, used);
    QCOMPARE(exact(usableZoom(zoom, maxControlPointPixels)), exact(used));
    QCOMPARE(isUsableZoom(zoom, maxControlPointPixels), zoom == used);
}

void TestRules::typesOfHostFilledShapes()
{
    for (int type = -50; type <= 2000; ++type)
        QVERIFY2(isHostFilled(type) == (type <= 26 || type == 1000), QByteArray::number(type));
    QVERIFY(isHostFilled(std::numeric_limits<int>::min()));
    QVERIFY(!isHostFilled(std::numeric_limits<int>::max()));
}

void TestRules::renderingHappensOnce()
{
    const char place{};
    CacheRendering rendering(objectAt(place));
    QVERIFY(rendering.next());
    QVERIFY(!rendering.next());
    QVERIFY(!rendering.next());
}

void TestRules::aNestedRenderingDoesNotHappen()
{
    const char place{};
    CacheRendering outer(objectAt(place));
    QVERIFY(outer.next());
    CacheRendering nested(objectAt(place));
    QVERIFY(!nested.next());
    QVERIFY(!nested.next());
}

void TestRules::aNestedRequestRepeatsTheRenderingOnce()
{
    const char place{};
    CacheRendering outer(objectAt(place));
    QVERIFY(outer.next());
    CacheRendering(objectAt(place)).next();
    QVERIFY(outer.next());
    CacheRendering(objectAt(place)).next(); // while repeating: dropped
    QVERIFY(!outer.next());
}

void TestRules::requestsOfOtherObjectsAreTheirOwn()
{
    const char places[2]{};
    CacheRendering outer(objectAt(places[0]));
    QVERIFY(outer.next());
    {
        CacheRendering other(objectAt(places[1]));
        QVERIFY(other.next());
        QVERIFY(!other.next());
    }
    QVERIFY(!outer.next());
}

void TestRules::requestsAreFoundThroughOtherObjects()
{
    const char places[2]{};
    CacheRendering outer(objectAt(places[0]));
    QVERIFY(outer.next());
    {
        CacheRendering other(objectAt(places[1]));
        QVERIFY(other.next());
        CacheRendering back(objectAt(places[0]));
        QVERIFY(!back.next());
        QVERIFY(!other.next());
    }
    QVERIFY(outer.next());
}

void TestRules::anEndedRenderingIsForgotten()
{
    const char place{};
    {
        CacheRendering first(objectAt(place));
        QVERIFY(first.next());
    }
    CacheRendering second(objectAt(place));
    QVERIFY(second.next());
}

QTEST_MAIN(TestRules)

#include "test_rules.moc"
