#include "shape/travel.h"

#include <support/exact.h>
#include <support/shapefixture.h>

#include <QtTest/QtTest>

using support::exact;
using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;

/// Control points that follow a size change of the page object.
class TestTravel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPointMovesInProportionToTheFreeTravel();
    void aPointMovesAlongTheHeightToo();
    void theViewBoxOriginCancelsOut();
    void theViewBoxOriginIsThatOfTheAxis();
    void aPointWithHardlyAnyTravelStillMoves();
    void aPointWithoutFreeTravelStaysWhereTheSideDoes();
    void evaluationKeepsItsOrder();
    void sidesAreComparedExactly();
    void anUnchangedSizeWritesThePositionAllTheSame();
    void aPointWithoutFreeTravelIsCentredOnZero_data();
    void aPointWithoutFreeTravelIsCentredOnZero();
    void xIsWrittenBeforeY();
    void theShapeHearsAboutEachPointInOrder();
    void theOffsetIsZeroWhereBoundsFollow();
    void theOffsetIsTheRestWhereBoundsLag();
    void aMissingViewBoxIsSettledFirst();
    void aViewBoxWithOneSideIsKept_data();
    void aViewBoxWithOneSideIsKept();
    void anEmptyDocumentIsSettledToNothing();
    void aSizeChangeEndsWithRedrawAndNotification();
    void aShapeWithoutPointsIsRedrawnToo();
    void entriesWithoutNodeAreSkipped();
    void aCountBeyondTheTableEndsAtTheTable();
    void aSizeChangeWithoutObjectCallsNobody();
};

namespace {

/// One control point of the given rectangle in a view box of 100 × 50.
class OnePoint : public ShapeFixture
{
public:
    explicit OnePoint(QRectF point, const QString &viewBox = "0 0 100 50")
        : ShapeFixture(svgText(viewBox, support::controlPointsText(1)))
    {
        load();
        setRect(1, point);
        recording::clear();
    }

    void setRect(int number, QRectF rect)
    {
        QZeSvgNode *node = shape->point(number);
        node->setNumericAttribute("x", rect.x());
        node->setNumericAttribute("y", rect.y());
        node->setNumericAttribute("width", rect.width());
        node->setNumericAttribute("height", rect.height());
    }
};

} // namespace

void TestTravel::aPointMovesInProportionToTheFreeTravel()
{
    // Free travel 80 becomes 130; the centre 50 goes to (50 − 10) × 130 ÷ 80 + 130 × 10 ÷ 80 = 81.25.
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {150, 50});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(71.25, 10, 20, 10)));
}

void TestTravel::aPointMovesAlongTheHeightToo()
{
    // Free travel 40 becomes 90; the centre 15 goes to (15 − 5) × 90 ÷ 40 + 90 × 5 ÷ 40 = 33.75.
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {100, 100});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(40, 28.75, 20, 10)));
}

void TestTravel::theViewBoxOriginCancelsOut()
{
    // (50 − 20) × 130 ÷ 80 + 130 × 20 ÷ 80 − 10
    OnePoint fixture({40, 30, 20, 10}, "10 20 100 50");
    fixture.shape->setSize({100, 50}, {150, 50});
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(71.25, 30, 20, 10)));
}

void TestTravel::theViewBoxOriginIsThatOfTheAxis()
{
    // So far out that 4 is lost beside the origin 2^56, and 14 counts as 16: free travel 64 becomes 128, and
    // (14 − 2^56) × 2 + 2^56 × 2 − 4 is 28. At the origin 0 the result is 24.
    constexpr double farOut = 72057594037927936.0;
    OnePoint fixture({10, 10, 8, 8});
    fixture.shape->document->setViewBox({farOut, 0, 72, 72});
    fixture.shape->setSize({72, 72}, {136, 136});
    QCOMPARE(exact(fixture.shape->pointRect(1).topLeft()), exact(QPointF(28, 24)));
    fixture.setRect(1, {10, 10, 8, 8});
    fixture.shape->document->setViewBox({0, farOut, 72, 72});
    fixture.shape->setSize({72, 72}, {136, 136});
    QCOMPARE(exact(fixture.shape->pointRect(1).topLeft()), exact(QPointF(24, 28)));
}

void TestTravel::aPointWithHardlyAnyTravelStillMoves()
{
    // Free travel 0.5 becomes 1, so the centre goes from 7 to 14.
    const AxisTravel travel{0, 8.5, 3, 8, 10, 10.5};
    QCOMPARE(exact(travel.newStart()), exact(10.0));
}

void TestTravel::aPointWithoutFreeTravelStaysWhereTheSideDoes()
{
    const AxisTravel travel{0, 8, 3, 8, 10, 10};
    QCOMPARE(exact(travel.newStart()), exact(3.0));
}

void TestTravel::evaluationKeepsItsOrder()
{
    // With free travel d = 59.3 − 7.9, k = (54.3 + d) − 162.1, c0 = 0.5 × 7.9 + 17.2 and c = 26.5 + 0.5 × 7.9 this
    // is
    // ((c − c0) × k) ÷ d + (k × c0) ÷ d − 0.5 × 7.9. Every other order of the same arithmetic ends in other bits.
    const AxisTravel travel{17.2, 59.3, 26.5, 7.9, 162.1, 54.3};
    QCOMPARE(exact(travel.newStart()), exact(-37.36206225680935));
}

void TestTravel::sidesAreComparedExactly()
{
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {100 + 1e-9, 50});
    QVERIFY(fixture.shape->pointRect(1).x() > 40);
    QCOMPARE(exact(fixture.shape->pointRect(1).y()), exact(10.0));
}

void TestTravel::anUnchangedSizeWritesThePositionAllTheSame()
{
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {100, 50});
    const QVector<recording::Call> writes = recording::calls({"setNumericAttribute"});
    QCOMPARE(writes.size(), 2);
    QCOMPARE(writes[0].arguments, QVariantList({"x", 40.0}));
    QCOMPARE(writes[1].arguments, QVariantList({"y", 10.0}));
    QCOMPARE(recording::count("updateSVG"), 1);
}

void TestTravel::aPointWithoutFreeTravelIsCentredOnZero_data()
{
    QTest::addColumn<double>("side");
    QTest::addColumn<double>("start");
    QTest::newRow("as wide as the view box") << 100.0 << -50.0;
    QTest::newRow("wider than the view box") << 120.0 << -60.0;
    QTest::newRow("narrower by less than the tolerance") << 100 - 5e-8 << -0.5 * (100 - 5e-8);
}

void TestTravel::aPointWithoutFreeTravelIsCentredOnZero()
{
    QFETCH(double, side);
    QFETCH(double, start);
    const AxisTravel travel{0, 100, 3, side, 100, 150};
    QCOMPARE(exact(travel.newStart()), exact(start));
    OnePoint fixture({3, 4, side, side}, "0 0 100 100");
    fixture.shape->setSize({100, 100}, {150, 150});
    QCOMPARE(exact(fixture.shape->pointRect(1).topLeft()), exact(QPointF(start, start)));
}

void TestTravel::xIsWrittenBeforeY()
{
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {150, 100});
    const QVector<recording::Call> writes = recording::calls({"setNumericAttribute"});
    QCOMPARE(writes.size(), 2);
    QCOMPARE(writes[0].arguments, QVariantList({"x", 71.25}));
    QCOMPARE(writes[1].arguments, QVariantList({"y", 28.75}));
}

void TestTravel::theShapeHearsAboutEachPointInOrder()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setSize({100, 50}, {150, 50});
    QCOMPARE(recording::names({"setNumericAttribute", "updateSVG"}),
             QStringList({"control_1.setNumericAttribute", "control_1.setNumericAttribute", "shape.updateSVG",
                          "control_2.setNumericAttribute", "control_2.setNumericAttribute", "shape.updateSVG"}));
    const QVector<recording::Call> updates = recording::calls({"updateSVG"});
    QCOMPARE(updates[0].arguments[0].toString(), QString("control_1"));
    QCOMPARE(updates[1].arguments[0].toString(), QString("control_2"));
    QCOMPARE(updates[0].arguments[2].toBool(), false);
}

void TestTravel::theOffsetIsZeroWhereBoundsFollow()
{
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {150, 100});
    QCOMPARE(exact(recording::lastArguments("updateSVG").at(1).toPointF()), exact(QPointF(0, 0)));
}

void TestTravel::theOffsetIsTheRestWhereBoundsLag()
{
    OnePoint fixture({40, 10, 20, 10});
    recording::svg().boundsFollow = false;
    fixture.shape->setSize({100, 50}, {150, 100});
    QCOMPARE(exact(recording::lastArguments("updateSVG").at(1).toPointF()), exact(QPointF(31.25, 18.75)));
}

void TestTravel::aMissingViewBoxIsSettledFirst()
{
    ShapeFixture fixture(svgText({}, "<rect id='body' x='0' y='0' width='108' height='58'/>"
                                     "<rect id='control_1' x='50' y='25' width='8' height='8'/>"));
    fixture.place({0, 0, 108, 58});
    fixture.load();
    fixture.shape->document->setViewBox(QRectF(3, 4, 0, 0));
    fixture.shape->setSize({108, 58}, {208, 58});
    // The content is 108 × 58 at (0, 0): free travel 100 becomes 200, the centre 54 becomes 108.
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(0, 0, 108, 58));
    QCOMPARE(exact(fixture.shape->pointRect(1).x()), exact(104.0));
}

void TestTravel::aViewBoxWithOneSideIsKept_data()
{
    QTest::addColumn<QRectF>("box");
    QTest::newRow("no width") << QRectF(5, 6, 0, 1);
    QTest::newRow("no height") << QRectF(5, 6, 1, 0);
}

void TestTravel::aViewBoxWithOneSideIsKept()
{
    QFETCH(const QRectF, box);
    OnePoint fixture({10, 10, 8, 8});
    fixture.shape->document->setViewBox(box);
    recording::clear();
    fixture.shape->setSize({100, 50}, {150, 60});
    QCOMPARE(fixture.shape->document->viewBox(), box);
    QCOMPARE(recording::count("document", "setViewBox"), 0);
}

void TestTravel::anEmptyDocumentIsSettledToNothing()
{
    ShapeFixture fixture(svgText({}, {}));
    fixture.load();
    recording::clear();
    fixture.shape->setSize({100, 50}, {150, 60});
    QCOMPARE(recording::lastArguments("document", "setViewBox"), QVariantList({QRectF()}));
}

void TestTravel::aSizeChangeEndsWithRedrawAndNotification()
{
    OnePoint fixture({40, 10, 20, 10});
    fixture.shape->setSize({100, 50}, {150, 50});
    QCOMPARE(recording::names({"updateSVG", "OnQPainterDraw", "notifyObjPropertyChanged"}),
             QStringList({"shape.updateSVG", "object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
    QCOMPARE(recording::lastArguments("OnQPainterDraw"), QVariantList({false}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({105, QString("")}));
}

void TestTravel::aShapeWithoutPointsIsRedrawnToo()
{
    ShapeFixture fixture(svgText("0 0 100 50", {}));
    fixture.load();
    fixture.shape->setSize({100, 50}, {150, 50});
    QCOMPARE(recording::names({"OnQPainterDraw", "notifyObjPropertyChanged"}),
             QStringList({"object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
}

void TestTravel::entriesWithoutNodeAreSkipped()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->controlPoints[0] = nullptr;
    fixture.shape->setSize({100, 50}, {150, 50});
    QCOMPARE(recording::count("updateSVG"), 1);
    QCOMPARE(recording::lastArguments("updateSVG").constFirst().toString(), QString("control_2"));
}

void TestTravel::aCountBeyondTheTableEndsAtTheTable()
{
    ShapeFixture fixture(svgText("0 0 500 50", support::controlPointsText(32)));
    fixture.load();
    fixture.shape->controlPointCount = 4000000000u;
    fixture.shape->setSize({500, 50}, {600, 50});
    QCOMPARE(recording::count("updateSVG"), 32);
}

void TestTravel::aSizeChangeWithoutObjectCallsNobody()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    recording::clear();
    shape.setSize({100, 50}, {192, 50});
    // Free travel 92 becomes 184, the centre 14 becomes 28.
    QCOMPARE(exact(shape.pointRect(1).x()), exact(24.0));
    QCOMPARE(recording::names().filter(QRegularExpression("^object\\.")), QStringList());
}

QTEST_MAIN(TestTravel)
#include "test_travel.moc"
