#include <support/shapefixture.h>

#include <QtTest/QtTest>

#include <limits>

using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;

/// The outline that a shape keeps, and the region that it gives its page object.
class TestOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShapeThatKeepsNoneNeverHasAnOutline();
    void aShapeThatKeepsOneBuildsIt();
    void aRebuiltOutlineReplacesTheOldOne();
    void switchingItOffKeepsTheLastOutline();
    void anOutlineDoesNotFollowByItself();

    void theRegionIsWidenedByThePen();
    void theRegionHasMitredCorners();
    void openEndsOfTheRegionAreRound();
    void theRegionsPenIsTheShapesOwn();
    void aHoleInTheRegionGetsItsBorder();
    void withoutOutlineTheRegionIsRefused();
    void anEmptyObjectsRegionIsRefused();
    void aTemplateWithoutContentHasAnEmptyRegion_data();
    void aTemplateWithoutContentHasAnEmptyRegion();
    void anObjectWithoutContentHasAnEmptyRegion();
    void withoutObjectTheRegionIsRefused();
    void controlPointsAreNotAddedToTheRegion();
    void anyPenWidthGivesARegion_data();
    void anyPenWidthGivesARegion();

    void aBorderIsAddedToAnotherPath();
    void aBorderOfOrToNothingIsNothing();
    void controlPointsAreAddedOnRequest();
    void coveredControlPointsAddNothing();
    void controlPointsAreNotAddedToNothing();
    void missingControlPointsAreSkipped();
    void noMorePointsAreAddedThanThereCanBe();
    void theHooksDoNothing();
};

namespace {

QPainterPath pathOf(const QRectF &rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

/// A loaded shape whose outline is given, one to one with the object; pen width 4.
struct Outlined : ShapeFixture
{
    explicit Outlined(const QPainterPath &outline = pathOf({10, 10, 60, 30}))
        : ShapeFixture(twoPointTemplate())
    {
        load();
        shape->document->setAllStrokeWidth(4);
        shape->outlineRegion = new QPainterPath(outline);
        recording::clear();
    }
    QPainterPath region()
    {
        QPainterPath path;
        if (!shape->getOutlinePath(&path))
            qFatal("no region");
        return path;
    }
};

} // namespace

void TestOutline::aShapeThatKeepsNoneNeverHasAnOutline()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    for (int i = 0; i < 3; ++i) {
        fixture.shape->updateOutlineRegion();
        QVERIFY(!fixture.shape->outlineRegion);
        QPainterPath path;
        QVERIFY(!fixture.shape->getOutlinePath(&path));
    }
}

void TestOutline::aShapeThatKeepsOneBuildsIt()
{
    ShapeFixture fixture(svgText("0 0 100 50", "<rect x='1' y='2' width='3' height='4'/>"));
    fixture.shape->keepOutlineRegion = true;
    fixture.load();
    QVERIFY(!fixture.shape->outlineRegion); // not by loading
    fixture.shape->updateOutlineRegion();
    QPainterPath expected = pathOf({1, 2, 3, 4});
    expected.setFillRule(Qt::WindingFill);
    QCOMPARE(*fixture.shape->outlineRegion, expected);
}

void TestOutline::aRebuiltOutlineReplacesTheOldOne()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->keepOutlineRegion = true;
    fixture.load();
    fixture.shape->updateOutlineRegion();
    fixture.shape->node("body")->setNumericAttribute("width", 200);
    fixture.shape->updateOutlineRegion();
    QPainterPath expected;
    expected.setFillRule(Qt::WindingFill);
    for (const QRectF &rect : {QRectF(0, 0, 200, 50), QRectF(10, 20, 8, 8), QRectF(60, 30, 8, 8)})
        expected.addRect(rect);
    QCOMPARE(*fixture.shape->outlineRegion, expected);
}

void TestOutline::switchingItOffKeepsTheLastOutline()
{
    Outlined fixture;
    fixture.shape->keepOutlineRegion = false;
    fixture.shape->updateOutlineRegion();
    QCOMPARE(*fixture.shape->outlineRegion, pathOf({10, 10, 60, 30}));
}

void TestOutline::anOutlineDoesNotFollowByItself()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->keepOutlineRegion = true;
    fixture.load();
    fixture.shape->updateOutlineRegion();
    const QPainterPath before = *fixture.shape->outlineRegion;
    fixture.shape->updateSVGControlPoint(fixture.shape->point(1), {40, 40}, true, false, false);
    QCOMPARE(*fixture.shape->outlineRegion, before);
}

void TestOutline::theRegionIsWidenedByThePen()
{
    Outlined fixture; // pen 4: a border of 6, 3 to each side
    const QPainterPath region = fixture.region();
    QVERIFY(region.contains(QPointF(40, 25)));
    QVERIFY(region.contains(QPointF(7.1, 25)));
    QVERIFY(!region.contains(QPointF(6.9, 25)));
    QVERIFY(region.contains(QPointF(40, 42.9)));
    QVERIFY(!region.contains(QPointF(40, 43.1)));
    QCOMPARE(region.boundingRect(), QRectF(7, 7, 66, 36));
}

void TestOutline::theRegionHasMitredCorners()
{
    Outlined fixture;
    QVERIFY(fixture.region().contains(QPointF(7.1, 7.1)));
}

void TestOutline::openEndsOfTheRegionAreRound()
{
    QPainterPath line;
    line.moveTo(20, 20);
    line.lineTo(60, 20);
    Outlined fixture(line);
    const QPainterPath region = fixture.region();
    QVERIFY(region.contains(QPointF(17.2, 20)));
    QVERIFY(!region.contains(QPointF(17.5, 17.5)));
}

void TestOutline::theRegionsPenIsTheShapesOwn()
{
    Outlined fixture;
    fixture.shape->onGetPenWidth = [] { return 8; };
    QCOMPARE(fixture.region().boundingRect(), QRectF(5, 5, 70, 40));
}

void TestOutline::aHoleInTheRegionGetsItsBorder()
{
    QPainterPath frame = pathOf({10, 5, 60, 40});
    frame.addRect(20, 15, 40, 20);
    Outlined fixture(frame);
    const QPainterPath region = fixture.region();
    QVERIFY(!region.contains(QPointF(40, 25)));
    QVERIFY(region.contains(QPointF(22.9, 25)));
    QVERIFY(!region.contains(QPointF(23.1, 25)));
}

void TestOutline::withoutOutlineTheRegionIsRefused()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(!fixture.shape->getOutlinePath(&path));
    QCOMPARE(path, pathOf({1, 2, 3, 4}));
}

void TestOutline::anEmptyObjectsRegionIsRefused()
{
    Outlined fixture;
    fixture.object.place({0, 0, 0, 50});
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(!fixture.shape->getOutlinePath(&path));
    QCOMPARE(path, pathOf({1, 2, 3, 4}));
}

void TestOutline::aTemplateWithoutContentHasAnEmptyRegion_data()
{
    QTest::addColumn<QString>("viewBox");
    QTest::newRow("as large as the object") << "0 0 100 50";
    QTest::newRow("larger than the object") << "7 8 300 200";
    QTest::newRow("no view box") << "";
    QTest::newRow("no width") << "0 0 0 50";
    QTest::newRow("no height") << "0 0 100 0";
}

void TestOutline::aTemplateWithoutContentHasAnEmptyRegion()
{
    QFETCH(const QString, viewBox);
    ShapeFixture fixture(svgText(viewBox, {}));
    fixture.shape->keepOutlineRegion = true;
    fixture.place({0, 0, 100, 50});
    fixture.load();
    fixture.shape->updateOutlineRegion();
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(fixture.shape->getOutlinePath(&path));
    QVERIFY(path.isEmpty());
}

void TestOutline::anObjectWithoutContentHasAnEmptyRegion()
{
    ShapeFixture fixture(svgText({}, {}));
    fixture.shape->keepOutlineRegion = true;
    fixture.place({0, 0, 100, 50});
    fixture.load();
    fixture.shape->updateOutlineRegion();
    fixture.object.regenRegionShape(nullptr);
    QVERIFY(fixture.object.regionPath);
    QVERIFY(fixture.object.regionPath->isEmpty());
}

void TestOutline::withoutObjectTheRegionIsRefused()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.keepOutlineRegion = true;
    QVERIFY(shape.loadSVG(false));
    shape.updateOutlineRegion();
    QVERIFY(shape.outlineRegion && !shape.outlineRegion->isEmpty());
    QPainterPath path = pathOf({1, 2, 3, 4});
    QVERIFY(!shape.getOutlinePath(&path));
    QCOMPARE(path, pathOf({1, 2, 3, 4}));
}

void TestOutline::controlPointsAreNotAddedToTheRegion()
{
    Outlined fixture(pathOf({80, 0, 10, 10})); // far from both points
    const QPainterPath region = fixture.region();
    QVERIFY(!region.contains(QPointF(14, 24)));
    QVERIFY(!region.contains(QPointF(64, 34)));
}

void TestOutline::anyPenWidthGivesARegion_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -1000;
    QTest::newRow("enormous") << std::numeric_limits<int>::max();
    QTest::newRow("enormous negative") << std::numeric_limits<int>::min();
}

void TestOutline::anyPenWidthGivesARegion()
{
    QFETCH(const int, width);
    Outlined fixture;
    fixture.shape->onGetPenWidth = [width] { return width; };
    QVERIFY(fixture.region().contains(QPointF(40, 25)));
}

void TestOutline::aBorderIsAddedToAnotherPath()
{
    Outlined fixture;
    QPainterPath target = pathOf({200, 200, 5, 5});
    const QPainterPath source = pathOf({10, 10, 60, 30});
    fixture.shape->addBorderPenWidthRegionImpl(&target, &source);
    QVERIFY(target.contains(QPointF(202, 202)));
    QVERIFY(target.contains(QPointF(10, 25)));
    QVERIFY(!target.contains(QPointF(40, 25))); // only the border of the source
    QVERIFY(!target.contains(QPointF(13.1, 25)));
    QCOMPARE(source, pathOf({10, 10, 60, 30}));
}

void TestOutline::aBorderOfOrToNothingIsNothing()
{
    Outlined fixture;
    QPainterPath path = pathOf({10, 10, 60, 30});
    fixture.shape->addBorderPenWidthRegionImpl(nullptr, &path);
    fixture.shape->addBorderPenWidthRegionImpl(&path, nullptr);
    QCOMPARE(path, pathOf({10, 10, 60, 30}));
}

void TestOutline::controlPointsAreAddedOnRequest()
{
    Outlined fixture;
    QPainterPath path = pathOf({80, 0, 10, 10});
    fixture.shape->addAllControlPointsRegionImpl(&path);
    QVERIFY(path.contains(QRectF(10.1, 20.1, 7.8, 7.8)));
    QVERIFY(path.contains(QRectF(60.1, 30.1, 7.8, 7.8)));
    QVERIFY(path.contains(QPointF(85, 5)));
    QVERIFY(!path.contains(QPointF(9.9, 24)));
    QVERIFY(!path.contains(QPointF(40, 24)));
}

void TestOutline::coveredControlPointsAddNothing()
{
    Outlined fixture;
    QPainterPath covering = pathOf({0, 0, 100, 50});
    covering.addRect(0, 0, 50, 50); // a union would merge the two
    covering.setFillRule(Qt::WindingFill);
    QPainterPath path = covering;
    fixture.shape->addAllControlPointsRegionImpl(&path);
    QCOMPARE(path, covering);

    QPainterPath first = pathOf({5, 15, 30, 20}); // covers the first point alone
    fixture.shape->addAllControlPointsRegionImpl(&first);
    QVERIFY(first.contains(QPointF(64, 34)));
    QCOMPARE(first.boundingRect(), QRectF(5, 15, 63, 23));
}

void TestOutline::controlPointsAreNotAddedToNothing()
{
    Outlined fixture;
    fixture.shape->addAllControlPointsRegionImpl(nullptr);
    fixture.shape->controlPointCount = 0;
    QPainterPath path;
    fixture.shape->addAllControlPointsRegionImpl(&path);
    QCOMPARE(path, QPainterPath());
}

void TestOutline::missingControlPointsAreSkipped()
{
    Outlined fixture;
    fixture.shape->controlPoints[0] = nullptr;
    QPainterPath path;
    fixture.shape->addAllControlPointsRegionImpl(&path);
    QCOMPARE(path.boundingRect(), QRectF(60, 30, 8, 8));
}

void TestOutline::noMorePointsAreAddedThanThereCanBe()
{
    Outlined fixture;
    fixture.shape->controlPointCount = 4000000000u;
    QPainterPath path;
    fixture.shape->addAllControlPointsRegionImpl(&path);
    QCOMPARE(path.boundingRect(), QRectF(10, 20, 58, 18));
}

void TestOutline::theHooksDoNothing()
{
    Outlined fixture;
    QPainterPath path = pathOf({80, 0, 10, 10});
    const QPainterPath source = pathOf({0, 0, 100, 50});
    fixture.shape->addBorderPenWidthRegion(&path, &source);
    fixture.shape->addAllControlPointsRegion(&path);
    QCOMPARE(path, pathOf({80, 0, 10, 10}));
}

QTEST_MAIN(TestOutline)

#include "test_outline.moc"
