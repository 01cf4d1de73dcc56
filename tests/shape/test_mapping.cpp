#include "shape/viewmapping.h"

#include <support/exact.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::exact;
using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;

/// Object coordinates to document units and back, limits of control points, default and minimum size.
class TestMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atTheViewBoxSizePointsOnlyShift();
    void atTheViewBoxSizeLengthsStay();
    void sidesThatDifferByLessThanTheToleranceCountAsEqual();
    void sidesThatDifferByTheToleranceAreScaled();
    void axesAreScaledOnTheirOwn();
    void pointsMultiplyBeforeTheyDivide();
    void lengthsDivideBeforeTheyMultiply();
    void lengthsToTheObjectDivideBeforeTheyMultiply();
    void aHorizontallyMirroredPointIsTurnedOver();
    void aVerticallyMirroredPointIsTurnedOver();
    void theOriginIsAddedAfterMirroring();
    void aMirroredLengthIsNegated();
    void aMirroredLengthAtOneToOneIsNegatedToo();
    void lengthsToTheObjectIgnoreTheMirror();
    void lengthsDoNotMoveWithTheOrigin();
    void aSideThatIsNoNumberIsNotPassedThrough();
    void anEmptyViewBoxGivesInfiniteObjectLengths();
    void aMissingViewBoxComesFromTheContentOnce();
    void withoutObjectTheViewBoxStandsForIt();
    void theObjectsPositionDoesNotMatter();

    void limitsAreReadFromTheNode_data();
    void limitsAreReadFromTheNode();
    void eachLimitHasItsOwnAttribute();

    void theDefaultSizeIsTheViewBoxSize();
    void withoutDocumentTheDefaultSizeIsAHundred();
    void withControlPointsTheMinimumIsSixteen();
    void withoutControlPointsTheMinimumIsOne();
    void onlyTheFirstEntryDecidesTheMinimum();
};

namespace {

/// A view box of 100 × 50 at (10, 20), drawn over an object of the given size.
class Mapped : public ShapeFixture
{
public:
    explicit Mapped(QSizeF objectSize, bool flipHorizontal = false, bool flipVertical = false)
        : ShapeFixture(svgText("10 20 100 50", {}))
    {
        place(QRectF(QPointF(0, 0), objectSize));
        load();
        shape->setFlipOn(flipHorizontal, flipVertical);
    }
};

} // namespace

void TestMapping::atTheViewBoxSizePointsOnlyShift()
{
    Mapped mapped({100, 50});
    QCOMPARE(exact(mapped.shape->mapToSVG({3, 4})), exact(QPointF(13, 24)));
    QCOMPARE(exact(mapped.shape->mapToSVG({-3, 400})), exact(QPointF(7, 420)));
}

void TestMapping::atTheViewBoxSizeLengthsStay()
{
    Mapped mapped({100, 50});
    QCOMPARE(exact(mapped.shape->mapXToSVG(0.1)), exact(0.1));
    QCOMPARE(exact(mapped.shape->mapYToSVG(0.1)), exact(0.1));
    QCOMPARE(exact(mapped.shape->mapXToObject(-0.1)), exact(-0.1));
    QCOMPARE(exact(mapped.shape->mapYToObject(-0.1)), exact(-0.1));
}

void TestMapping::sidesThatDifferByLessThanTheToleranceCountAsEqual()
{
    Mapped mapped({100 + 9e-8, 50 - 9e-8});
    QCOMPARE(exact(mapped.shape->mapToSVG({1e6, 1e6})), exact(QPointF(1e6 + 10, 1e6 + 20)));
    QCOMPARE(exact(mapped.shape->mapXToSVG(1e6)), exact(1e6));
    QCOMPARE(exact(mapped.shape->mapYToSVG(1e6)), exact(1e6));
    QCOMPARE(exact(mapped.shape->mapXToObject(1e6)), exact(1e6));
    QCOMPARE(exact(mapped.shape->mapYToObject(1e6)), exact(1e6));
}

void TestMapping::sidesThatDifferByTheToleranceAreScaled()
{
    Mapped mapped({100 + 2e-7, 50 - 2e-7});
    QVERIFY(mapped.shape->mapXToSVG(1e6) < 1e6);
    QVERIFY(mapped.shape->mapYToSVG(1e6) > 1e6);
    QVERIFY(mapped.shape->mapXToObject(1e6) > 1e6);
    QVERIFY(mapped.shape->mapYToObject(1e6) < 1e6);
    QVERIFY(mapped.shape->mapToSVG({1e6, 0}).x() < 1e6 + 10);
    QVERIFY(mapped.shape->mapToSVG({0, 1e6}).y() > 1e6 + 20);
}

void TestMapping::axesAreScaledOnTheirOwn()
{
    Mapped mapped({200, 50});
    QCOMPARE(exact(mapped.shape->mapToSVG({30, 30})), exact(QPointF(25, 50)));
    QCOMPARE(exact(mapped.shape->mapXToSVG(30)), exact(15.0));
    QCOMPARE(exact(mapped.shape->mapYToSVG(30)), exact(30.0));
    QCOMPARE(exact(mapped.shape->mapXToObject(15)), exact(30.0));
    QCOMPARE(exact(mapped.shape->mapYToObject(15)), exact(15.0));
    Mapped tall({100, 25});
    QCOMPARE(exact(tall.shape->mapToSVG({30, 10})), exact(QPointF(40, 40)));
    QCOMPARE(exact(tall.shape->mapYToSVG(10)), exact(20.0));
    QCOMPARE(exact(tall.shape->mapYToObject(10)), exact(5.0));
}

// 9 × 3 ÷ 7 in its three orders of evaluation: 27 ÷ 7, (3 ÷ 7) × 9 and (9 ÷ 7) × 3 differ in the last bits.
constexpr double multipliedFirst = 3.857142857142857;
constexpr double factorFirst = 3.8571428571428568;

void TestMapping::pointsMultiplyBeforeTheyDivide()
{
    const ViewMapping mapping{{0, 0, 3, 3}, {7, 7}};
    QCOMPARE(exact(mapping.toDocument({9, 9})), exact(QPointF(multipliedFirst, multipliedFirst)));
}

void TestMapping::lengthsDivideBeforeTheyMultiply()
{
    const ViewMapping mapping{{0, 0, 3, 3}, {7, 7}};
    QCOMPARE(exact(mapping.xToDocument(9)), exact(factorFirst));
    QCOMPARE(exact(mapping.yToDocument(9)), exact(factorFirst));
}

void TestMapping::lengthsToTheObjectDivideBeforeTheyMultiply()
{
    const ViewMapping mapping{{0, 0, 7, 7}, {3, 3}};
    QCOMPARE(exact(mapping.xToObject(9)), exact(factorFirst));
    QCOMPARE(exact(mapping.yToObject(9)), exact(factorFirst));
}

void TestMapping::aHorizontallyMirroredPointIsTurnedOver()
{
    Mapped mapped({200, 50}, true, false);
    QCOMPARE(exact(mapped.shape->mapToSVG({0, 7})), exact(QPointF(110, 27)));
    QCOMPARE(exact(mapped.shape->mapToSVG({200, 7})), exact(QPointF(10, 27)));
}

void TestMapping::aVerticallyMirroredPointIsTurnedOver()
{
    Mapped mapped({100, 100}, false, true);
    QCOMPARE(exact(mapped.shape->mapToSVG({7, 0})), exact(QPointF(17, 70)));
    QCOMPARE(exact(mapped.shape->mapToSVG({7, 100})), exact(QPointF(17, 20)));
}

void TestMapping::theOriginIsAddedAfterMirroring()
{
    Mapped mapped({100, 50}, true, true);
    // 100 − 30 + 10 and 50 − 5 + 20; the origin mirrored along would give 60 and 25.
    QCOMPARE(exact(mapped.shape->mapToSVG({30, 5})), exact(QPointF(80, 65)));
}

void TestMapping::aMirroredLengthIsNegated()
{
    Mapped horizontal({200, 100}, true, false);
    QCOMPARE(exact(horizontal.shape->mapXToSVG(10)), exact(-5.0));
    QCOMPARE(exact(horizontal.shape->mapYToSVG(10)), exact(5.0));
    Mapped vertical({200, 100}, false, true);
    QCOMPARE(exact(vertical.shape->mapXToSVG(10)), exact(5.0));
    QCOMPARE(exact(vertical.shape->mapYToSVG(10)), exact(-5.0));
}

void TestMapping::aMirroredLengthAtOneToOneIsNegatedToo()
{
    Mapped mapped({100, 50}, true, true);
    QCOMPARE(exact(mapped.shape->mapXToSVG(10)), exact(-10.0));
    QCOMPARE(exact(mapped.shape->mapYToSVG(10)), exact(-10.0));
}

void TestMapping::lengthsToTheObjectIgnoreTheMirror()
{
    Mapped mapped({200, 100}, true, true);
    QCOMPARE(exact(mapped.shape->mapXToObject(-5)), exact(-10.0));
    QCOMPARE(exact(mapped.shape->mapYToObject(-5)), exact(-10.0));
    QCOMPARE(exact(mapped.shape->mapXToObject(5)), exact(10.0));
}

void TestMapping::lengthsDoNotMoveWithTheOrigin()
{
    Mapped mapped({200, 100});
    QCOMPARE(exact(mapped.shape->mapXToSVG(0)), exact(0.0));
    QCOMPARE(exact(mapped.shape->mapYToSVG(0)), exact(0.0));
}

void TestMapping::aSideThatIsNoNumberIsNotPassedThrough()
{
    const ViewMapping mapping{{0, 0, 100, 50}, {qQNaN(), 50}};
    QVERIFY(qIsNaN(mapping.toDocument({1, 1}).x()));
    QVERIFY(qIsNaN(mapping.xToDocument(1)));
    QVERIFY(qIsNaN(mapping.xToObject(1)));
    QCOMPARE(exact(mapping.yToDocument(1)), exact(1.0));
}

void TestMapping::anEmptyViewBoxGivesInfiniteObjectLengths()
{
    ShapeFixture fixture(svgText({}, {}));
    fixture.place({0, 0, 40, 30});
    fixture.load();
    QCOMPARE(exact(fixture.shape->mapToSVG({10, 10})), exact(QPointF(0, 0)));
    QCOMPARE(exact(fixture.shape->mapXToSVG(10)), exact(0.0));
    QVERIFY(qIsInf(fixture.shape->mapXToObject(10)));
    QVERIFY(qIsInf(fixture.shape->mapYToObject(10)));
}

void TestMapping::aMissingViewBoxComesFromTheContentOnce()
{
    ShapeFixture fixture(svgText({}, "<rect id='body' x='5' y='6' width='20' height='10'/>"));
    fixture.place({0, 0, 40, 10});
    fixture.load();
    QCOMPARE(exact(fixture.shape->mapToSVG({20, 3})), exact(QPointF(15, 9)));
    fixture.shape->node("body")->setNumericAttribute("width", 1000);
    QCOMPARE(exact(fixture.shape->mapToSVG({20, 3})), exact(QPointF(15, 9)));
}

void TestMapping::withoutObjectTheViewBoxStandsForIt()
{
    TestShape shape(nullptr, svgText("10 20 100 50", {}));
    shape.loadSVG(false);
    QCOMPARE(exact(shape.mapToSVG({3, 4})), exact(QPointF(13, 24)));
    QCOMPARE(exact(shape.mapXToObject(3)), exact(3.0));
}

void TestMapping::theObjectsPositionDoesNotMatter()
{
    Mapped mapped({200, 50});
    mapped.object.setPos(QPointF(1000, 2000));
    QCOMPARE(exact(mapped.shape->mapToSVG({30, 30})), exact(QPointF(25, 50)));
}

void TestMapping::limitsAreReadFromTheNode_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("absent") << QString() << -1000000.0 << 1000000.0;
    QTest::newRow("empty") << "='' " << -1000000.0 << 1000000.0;
    QTest::newRow("number") << "='12.5'" << 12.5 << 12.5;
    QTest::newRow("negative") << "='-3'" << -3.0 << -3.0;
    QTest::newRow("exponent") << "='1e3'" << 1000.0 << 1000.0;
    QTest::newRow("no number") << "='abc'" << 0.0 << 0.0;
    QTest::newRow("blank") << "=' '" << 0.0 << 0.0;
    QTest::newRow("with a unit") << "='10px'" << 0.0 << 0.0;
    QTest::newRow("beyond doubles") << "='1e400'" << qInf() << qInf();
}

void TestMapping::limitsAreReadFromTheNode()
{
    QFETCH(QString, attribute);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QString attributes;
    for (const char *name : {"x_from", "x_to", "y_from", "y_to"})
        if (!attribute.isEmpty())
            attributes += QString(" %1%2").arg(name, attribute);
    ShapeFixture fixture(svgText("0 0 9 9", QString("<rect id='control_1'%1/>").arg(attributes)));
    fixture.load();
    QZeSvgNode *node = fixture.shape->point(1);
    QCOMPARE(exact(fixture.shape->getXMin(node)), exact(minimum));
    QCOMPARE(exact(fixture.shape->getXMax(node)), exact(maximum));
    QCOMPARE(exact(fixture.shape->getYMin(node)), exact(minimum));
    QCOMPARE(exact(fixture.shape->getYMax(node)), exact(maximum));
}

void TestMapping::eachLimitHasItsOwnAttribute()
{
    ShapeFixture fixture(svgText("0 0 9 9", "<rect id='control_1' x_from='1' x_to='2' y_from='3' y_to='4'/>"));
    fixture.load();
    QZeSvgNode *node = fixture.shape->point(1);
    QCOMPARE(fixture.shape->getXMin(node), 1.0);
    QCOMPARE(fixture.shape->getXMax(node), 2.0);
    QCOMPARE(fixture.shape->getYMin(node), 3.0);
    QCOMPARE(fixture.shape->getYMax(node), 4.0);
}

void TestMapping::theDefaultSizeIsTheViewBoxSize()
{
    ShapeFixture fixture(svgText("10 20 100 50", {}));
    fixture.place({0, 0, 7, 7});
    fixture.load();
    QCOMPARE(exact(fixture.shape->getDefaultSVGSize()), exact(QSizeF(100, 50)));
}

void TestMapping::withoutDocumentTheDefaultSizeIsAHundred()
{
    ShapeFixture fixture(svgText("10 20 100 50", {}));
    QCOMPARE(exact(fixture.shape->getDefaultSVGSize()), exact(QSizeF(100, 100)));
}

void TestMapping::withControlPointsTheMinimumIsSixteen()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QCOMPARE(exact(fixture.shape->getMinimizeSize()), exact(QSizeF(16, 16)));
}

void TestMapping::withoutControlPointsTheMinimumIsOne()
{
    ShapeFixture fixture(svgText("0 0 100 50", {}));
    fixture.load();
    QCOMPARE(exact(fixture.shape->getMinimizeSize()), exact(QSizeF(1, 1)));
}

void TestMapping::onlyTheFirstEntryDecidesTheMinimum()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->controlPointCount = 0;
    QCOMPARE(exact(fixture.shape->getMinimizeSize()), exact(QSizeF(16, 16)));
    fixture.shape->controlPointCount = 2;
    fixture.shape->controlPoints[0] = nullptr;
    QCOMPARE(exact(fixture.shape->getMinimizeSize()), exact(QSizeF(1, 1)));
}

QTEST_MAIN(TestMapping)
#include "test_mapping.moc"
