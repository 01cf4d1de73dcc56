#include <support/exact.h>
#include <support/shapefixture.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <cmath>
#include <limits>

using support::exact;
using support::ShapeFixture;
using support::twoPointTemplate;

/// Control points keep their size on screen: painting at another zoom sizes them anew.
class TestZoom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlPointsFollowTheZoom_data();
    void controlPointsFollowTheZoom();
    void controlPointsKeepTheirCentres();
    void everyControlPointFollows();
    void thePenWidthIsTheShapesOwn();
    void anUnchangedZoomLeavesControlPointsAlone();
    void theZoomIsFollowedOnce();
    void aTinyChangeOfZoomCounts();
    void aZoomThatIsNoneIsStoredButNotFollowed_data();
    void aZoomThatIsNoneIsStoredButNotFollowed();
    void aZoomMayHoldTheSizeOfOnePenAndNotOfAnother();
    void aZoomThatIsNoNumberIsDifferentEachTime();
    void afterNoZoomTheNextOneIsFollowed();
    void withoutBelongingDocumentNothingFollows();
    void theObjectKeepsItsSize();
    void controlPointsAreSizedBeforeTheDrawing();
};

namespace {

struct Zoomed : ShapeFixture
{
    Zoomed(double zoomAtCreation, double zoomNow)
        : ShapeFixture(twoPointTemplate(), 27, zoomAtCreation)
    {
        load();
        document.zoom = zoomNow;
    }
    void paint()
    {
        QImage image(10, 10, QImage::Format_ARGB32);
        QPainter painter(&image);
        shape->paintEx(&painter, 1, false);
    }
};

} // namespace

void TestZoom::controlPointsFollowTheZoom_data()
{
    QTest::addColumn<double>("zoomBefore");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<int>("penWidth");
    QTest::addColumn<double>("size");
    QTest::newRow("thin pen at 2") << 1.0 << 2.0 << 3 << 4.0;
    QTest::newRow("wide pen at 1") << 2.0 << 1.0 << 80 << 50.0;
    QTest::newRow("lower bound") << 1.0 << 2.0 << 8 << 4.0;
    QTest::newRow("just above") << 1.0 << 2.0 << 9 << 4.5;
    QTest::newRow("upper bound") << 1.0 << 2.0 << 50 << 25.0;
    QTest::newRow("just above the upper") << 1.0 << 2.0 << 51 << 25.0;
    QTest::newRow("zoomed out") << 1.0 << 0.5 << 20 << 40.0;
    QTest::newRow("negative pen") << 1.0 << 2.0 << -5 << 4.0;
}

void TestZoom::controlPointsFollowTheZoom()
{
    QFETCH(const double, zoomBefore);
    QFETCH(const double, zoom);
    QFETCH(const int, penWidth);
    QFETCH(const double, size);
    Zoomed fixture(zoomBefore, zoom);
    fixture.shape->document->setAllStrokeWidth(penWidth);
    fixture.paint();
    QCOMPARE(exact(fixture.shape->controlPointSize), exact(size));
    QCOMPARE(exact(fixture.shape->pointRect(1).size()), exact(QSizeF(size, size)));
    QCOMPARE(exact(fixture.shape->zoomRate), exact(zoom));
}

void TestZoom::controlPointsKeepTheirCentres()
{
    Zoomed fixture(1, 2);
    fixture.paint();
    QCOMPARE(exact(fixture.shape->pointRect(1)), exact(QRectF(12, 22, 4, 4)));
    QCOMPARE(exact(fixture.shape->pointRect(2)), exact(QRectF(62, 32, 4, 4)));
}

void TestZoom::everyControlPointFollows()
{
    ShapeFixture fixture(support::svgText("0 0 400 50", support::controlPointsText(32)));
    fixture.load();
    fixture.document.zoom = 2;
    QImage image(10, 10, QImage::Format_ARGB32);
    QPainter painter(&image);
    fixture.shape->paintEx(&painter, 1, false);
    for (int number = 1; number <= 32; ++number)
        QCOMPARE(exact(fixture.shape->pointRect(number)), exact(QRectF(10 * number + 2, 2, 4, 4)));
}

void TestZoom::thePenWidthIsTheShapesOwn()
{
    Zoomed fixture(1, 2);
    fixture.shape->onGetPenWidth = [] { return 30; };
    fixture.paint();
    QCOMPARE(exact(fixture.shape->controlPointSize), exact(15.0));
}

void TestZoom::anUnchangedZoomLeavesControlPointsAlone()
{
    Zoomed fixture(2, 2);
    fixture.shape->document->setAllStrokeWidth(30);
    fixture.shape->controlPointSize = 11;
    recording::clear();
    fixture.paint();
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::count("getPenWidth"), 0);
    QCOMPARE(fixture.shape->controlPointSize, 11.0);
}

void TestZoom::theZoomIsFollowedOnce()
{
    Zoomed fixture(1, 2);
    fixture.paint();
    recording::clear();
    fixture.paint();
    QCOMPARE(recording::count("setNumericAttribute"), 0);
}

void TestZoom::aTinyChangeOfZoomCounts()
{
    Zoomed fixture(1, std::nextafter(1.0, 2.0));
    fixture.shape->document->setAllStrokeWidth(30);
    fixture.paint();
    QCOMPARE(exact(fixture.shape->zoomRate), exact(std::nextafter(1.0, 2.0)));
    QCOMPARE(exact(fixture.shape->controlPointSize), exact(30 / std::nextafter(1.0, 2.0)));
}

void TestZoom::aZoomThatIsNoneIsStoredButNotFollowed_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("0") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity();
    QTest::newRow("so small that points would be endless") << 1e-310;
}

void TestZoom::aZoomThatIsNoneIsStoredButNotFollowed()
{
    QFETCH(const double, zoom);
    Zoomed fixture(1, zoom);
    recording::clear();
    fixture.paint();
    QCOMPARE(exact(fixture.shape->zoomRate), exact(zoom));
    QCOMPARE(fixture.shape->controlPointSize, 8.0);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::count("draw"), 1);
}

// 8 pixels at a zoom of 1e-307 are 8e307 units, 20 pixels are more than a double holds.
void TestZoom::aZoomMayHoldTheSizeOfOnePenAndNotOfAnother()
{
    for (const int width : {3, 20}) {
        Zoomed fixture(1, 1e-307);
        fixture.shape->document->setAllStrokeWidth(width);
        fixture.paint();
        QCOMPARE(exact(fixture.shape->controlPointSize), exact(width == 3 ? 8 / 1e-307 : 8.0));
    }
}

void TestZoom::aZoomThatIsNoNumberIsDifferentEachTime()
{
    Zoomed fixture(1, std::numeric_limits<double>::quiet_NaN());
    for (int i = 0; i < 2; ++i) {
        fixture.paint();
        QVERIFY(std::isnan(fixture.shape->zoomRate));
        QCOMPARE(fixture.shape->controlPointSize, 8.0);
    }
}

void TestZoom::afterNoZoomTheNextOneIsFollowed()
{
    for (double none : {0.0, std::numeric_limits<double>::quiet_NaN()}) {
        Zoomed fixture(1, none);
        fixture.shape->document->setAllStrokeWidth(20);
        fixture.paint();
        fixture.document.zoom = 1;
        fixture.paint();
        QCOMPARE(exact(fixture.shape->controlPointSize), exact(20.0));
    }
}

void TestZoom::withoutBelongingDocumentNothingFollows()
{
    Zoomed fixture(1, 2);
    fixture.object.SetPage(nullptr);
    recording::framework().currentDocument = nullptr;
    recording::clear();
    fixture.paint();
    QCOMPARE(fixture.shape->zoomRate, 1.0);
    QCOMPARE(recording::count("setNumericAttribute"), 0);
    QCOMPARE(recording::count("draw"), 1);
}

void TestZoom::theObjectKeepsItsSize()
{
    Zoomed fixture(1, 2);
    recording::clear();
    fixture.paint();
    QCOMPARE(recording::count("object", "setSize"), 0);
    QCOMPARE(exact(fixture.object.clientRect), exact(QRectF(0, 0, 100, 50)));
}

void TestZoom::controlPointsAreSizedBeforeTheDrawing()
{
    Zoomed fixture(1, 2);
    QRectF whileDrawing;
    recording::svg().drawHook = [&](QPainter *) { whileDrawing = fixture.shape->pointRect(1); };
    fixture.paint();
    QCOMPARE(exact(whileDrawing), exact(QRectF(12, 22, 4, 4)));
}

QTEST_MAIN(TestZoom)

#include "test_zoom.moc"
