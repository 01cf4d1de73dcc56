#include <pages/snapping.h>

#include <QtTest/QtTest>

using namespace pagehost;

namespace {

constexpr SnapReach reach{6, 10, 3};
/// Nothing of the page is near.
const QRectF farPage(-10000, -10000, 90000, 90000);

SnapGround groundOf(const QVector<QRectF> &boxes)
{
    SnapGround ground{{}, farPage, 0};
    for (const QRectF &box : boxes)
        ground.partners.append({box, {}});
    return ground;
}

QPointF snapped(const SnapSubject &subject, const SnapGround &ground, const SnapCatches &held = {})
{
    return offsetTo(findCatches(subject, ground, reach, held), subject);
}

SnapGuides guidesAfter(SnapSubject subject, const SnapGround &ground)
{
    const SnapCatches catches = findCatches(subject, ground, reach, {});
    subject.box.translate(offsetTo(catches, subject));
    return guidesOf(subject, ground, catches);
}

SnapSubject rightSide(const QRectF &box)
{
    return {box, FarPart, 0};
}

} // namespace

class TestSnapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edgesAndCentresCatch_data();
    void edgesAndCentresCatch();
    void catchesAtSixAndNotBeyond();
    void letsGoAtTen();
    void axesAreApart();
    void nearestOfARankWins();
    void lowerRankWinsOnlyByThree_data();
    void lowerRankWinsOnlyByThree();
    void pointsOfPartnersCatch();
    void equalGapBetween();
    void equalGapAfter();
    void equalGapBefore();
    void gapsNeedNeighboursOfTheSameRow();
    void resizedSideTakesTheSizeOfAPartner();
    void onlyDraggedPartsCatch();
    void pageCentreAndEdgesCatch_data();
    void pageCentreAndEdgesCatch();
    void gridCatchesTheNearSide();
    void guideGoesThroughAllPartners();
    void guidesOfEqualGaps();
    void gridHasNoGuides();
    void catchThatWasNotReachedIsForgotten();
};

void TestSnapping::edgesAndCentresCatch_data()
{
    // The partner reaches from 100 to 200 across; the moved box is 40 wide.
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("offset");
    QTest::newRow("left at left") << 103.0 << -3.0;
    QTest::newRow("right at left") << 62.0 << -2.0;
    QTest::newRow("centre at left") << 85.0 << -5.0;
    QTest::newRow("centre at centre") << 132.0 << -2.0;
    QTest::newRow("left at centre") << 146.0 << 4.0;
    QTest::newRow("right at right") << 158.0 << 2.0;
    QTest::newRow("left at right") << 204.0 << -4.0;
    QTest::newRow("nothing near") << 117.0 << 0.0;
}

void TestSnapping::edgesAndCentresCatch()
{
    QFETCH(double, left);
    QFETCH(double, offset);
    const SnapSubject across{{left, 500, 40, 30}};
    QCOMPARE(snapped(across, groundOf({{100, 100, 100, 60}})), QPointF(offset, 0));
    const SnapSubject down{{500, left, 30, 40}};
    QCOMPARE(snapped(down, groundOf({{100, 100, 60, 100}})), QPointF(0, offset));
}

void TestSnapping::catchesAtSixAndNotBeyond()
{
    const SnapGround ground = groundOf({{100, 100, 100, 60}});
    QCOMPARE(snapped({{206, 500, 40, 30}}, ground), QPointF(-6, 0));
    QCOMPARE(snapped({{206.5, 500, 40, 30}}, ground), QPointF(0, 0));
}

void TestSnapping::letsGoAtTen()
{
    const SnapGround ground = groundOf({{100, 100, 100, 60}});
    const SnapCatches held = findCatches({{203, 500, 40, 30}}, ground, reach, {});
    QCOMPARE(snapped({{209.5, 500, 40, 30}}, ground, held), QPointF(-9.5, 0));
    QCOMPARE(snapped({{210, 500, 40, 30}}, ground, held), QPointF(0, 0));
    // Only what was caught is held, not the right side at the same edge.
    QCOMPARE(snapped({{200 - 40 - 9, 500, 40, 30}, FarPart, 0}, ground, held), QPointF(0, 0));
}

void TestSnapping::axesAreApart()
{
    const SnapGround ground = groundOf({{100, 100, 100, 60}, {400, 300, 70, 90}});
    QCOMPARE(snapped({{203, 297, 40, 30}}, ground), QPointF(-3, 3));
}

void TestSnapping::nearestOfARankWins()
{
    const SnapGround ground = groundOf({{0, 0, 100, 10}, {0, 20, 103, 10}});
    QCOMPARE(snapped({{104, 500, 40, 30}}, ground), QPointF(-1, 0));
    QCOMPARE(snapped({{101, 500, 40, 30}}, ground), QPointF(-1, 0));
}

void TestSnapping::lowerRankWinsOnlyByThree_data()
{
    QTest::addColumn<double>("pageLeft");
    QTest::addColumn<double>("offset");
    // The partner's right edge is 4 to the left of the box.
    QTest::newRow("as near") << 208.0 << -4.0;
    QTest::newRow("nearer by two") << 206.0 << -4.0;
    QTest::newRow("nearer by three") << 205.0 << 1.0;
}

void TestSnapping::lowerRankWinsOnlyByThree()
{
    QFETCH(double, pageLeft);
    QFETCH(double, offset);
    SnapGround ground = groundOf({{100, 100, 100, 60}});
    ground.page = QRectF(pageLeft, -10000, 90000, 90000);
    QCOMPARE(snapped({{204, 500, 40, 30}, AllParts, 0}, ground), QPointF(offset, 0));
}

void TestSnapping::pointsOfPartnersCatch()
{
    SnapGround ground = groundOf({{100, 100, 100, 60}});
    ground.partners.first().points = {QPointF(170, 120)};
    // The edge at 200 is 32 away, the point 2.
    QCOMPARE(snapped({{168, 500, 300, 30}}, ground), QPointF(2, 0));
    // A point wins over an edge that is nearer by less than three.
    ground.partners.first().points = {QPointF(205, 120)};
    QCOMPARE(snapped({{202, 500, 300, 30}}, ground), QPointF(3, 0));
}

void TestSnapping::equalGapBetween()
{
    // 200 free between the neighbours, 40 of them taken: 80 at either side.
    const SnapGround ground = groundOf({{0, 0, 100, 60}, {300, 0, 30, 60}});
    QCOMPARE(snapped({{182, 20, 40, 7}, AllParts, 0}, ground), QPointF(-2, 0));
}

void TestSnapping::equalGapAfter()
{
    // 53 between the neighbours, so the next one begins at 253 + 53.
    const SnapGround ground = groundOf({{0, 0, 100, 60}, {153, 0, 100, 60}});
    QCOMPARE(snapped({{303, 20, 41, 7}, AllParts, 0}, ground), QPointF(3, 0));
}

void TestSnapping::equalGapBefore()
{
    const SnapGround ground = groundOf({{500, 0, 100, 60}, {653, 0, 100, 60}});
    // It ends at 500 - 53.
    QCOMPARE(snapped({{404, 20, 41, 7}, AllParts, 0}, ground), QPointF(2, 0));
}

void TestSnapping::gapsNeedNeighboursOfTheSameRow()
{
    const SnapGround ground = groundOf({{0, 0, 100, 60}, {300, 0, 30, 60}});
    QCOMPARE(snapped({{182, 61, 40, 7}, AllParts, 0}, ground), QPointF(0, 0));
}

void TestSnapping::resizedSideTakesTheSizeOfAPartner()
{
    const SnapGround ground = groundOf({{1000, 1000, 77, 60}});
    QCOMPARE(snapped(rightSide({100, 100, 75, 30}), ground), QPointF(2, 0));
    QCOMPARE(snapped({{98, 100, 80, 30}, NearPart, 0}, ground), QPointF(3, 0));
}

void TestSnapping::onlyDraggedPartsCatch()
{
    const SnapGround ground = groundOf({{100, 100, 100, 60}});
    QCOMPARE(snapped({{103, 103, 500, 500}, FarPart, 0}, ground), QPointF(0, 0));
    QCOMPARE(snapped({{103, 103, 500, 500}, NearPart, 0}, ground), QPointF(-3, 0));
    QCOMPARE(snapped({{103, 103, 500, 500}, 0, NearPart}, ground), QPointF(0, -3));
}

void TestSnapping::pageCentreAndEdgesCatch_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("offset");
    QTest::newRow("left edge") << 4.0 << -4.0;
    QTest::newRow("centre") << 383.0 << -3.0;
    QTest::newRow("right edge") << 758.0 << 2.0;
}

void TestSnapping::pageCentreAndEdgesCatch()
{
    QFETCH(double, left);
    QFETCH(double, offset);
    SnapGround ground;
    ground.page = QRectF(0, 0, 800, 600);
    QCOMPARE(snapped({{left, 150, 40, 30}, AllParts, 0}, ground), QPointF(offset, 0));
}

void TestSnapping::gridCatchesTheNearSide()
{
    SnapGround ground = groundOf({});
    ground.grid = 32;
    QCOMPARE(snapped({{99, 61, 41, 41}}, ground), QPointF(-3, 3));
    QCOMPARE(snapped({{106, 80, 41, 41}}, ground), QPointF(0, 0));
    QCOMPARE(snapped(rightSide({100, 100, 62, 62}), ground), QPointF(-2, 0));
}

void TestSnapping::guideGoesThroughAllPartners()
{
    const SnapGround ground = groundOf({{100, 100, 50, 60}, {100, 700, 90, 60}, {300, 900, 90, 60}});
    const SnapGuides guides = guidesAfter({{102, 400, 300, 30}}, ground);
    QCOMPARE(guides.lines, QVector<QLineF>{QLineF(100, 100, 100, 760)});
    QVERIFY(guides.spans.isEmpty());
}

void TestSnapping::guidesOfEqualGaps()
{
    const SnapGround ground = groundOf({{0, 0, 100, 60}, {300, 0, 30, 60}});
    const SnapGuides guides = guidesAfter({{182, 20, 40, 10}, AllParts, 0}, ground);
    const QVector<QLineF> gaps{{100, 25, 180, 25}, {220, 25, 300, 25}};
    QCOMPARE(guides.spans, gaps);
    QVERIFY(guides.lines.isEmpty());
}

void TestSnapping::gridHasNoGuides()
{
    SnapGround ground = groundOf({});
    ground.grid = 32;
    const SnapGuides guides = guidesAfter({{99, 61, 41, 41}}, ground);
    QVERIFY(guides.lines.isEmpty() && guides.spans.isEmpty());
}

void TestSnapping::catchThatWasNotReachedIsForgotten()
{
    const SnapGround ground = groundOf({{100, 100, 100, 60}});
    const SnapCatches catches = findCatches({{203, 97, 40, 30}}, ground, reach, {});
    const SnapCatches left = fulfilled(catches, {{200, 99, 40, 30}});
    QVERIFY(left.across && !left.down);
}

QTEST_APPLESS_MAIN(TestSnapping)
#include "test_snapping.moc"
