#include "scene/controlpoints.h"
#include "svgbase/svgdrawing.h"

#include <QPainter>
#include <QtTest>

namespace {

const QString point = QStringLiteral("<rect id='control_1' x='16' y='6' width='8' height='8' fill='red'/>");

QRect areaOf(const QImage &image, const QColor &color)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                area |= QRect(x, y, 1, 1);
    }
    return area;
}

QImage drawnSelected(const QString &content, const QSize &size, const QString &viewBox)
{
    const DocumentPointer document = loadContent(content, viewBox);
    document->setSelectionState(1);
    return drawn(*document, size, true);
}

const QColor red(255, 0, 0);

} // namespace

class TestControlPoints : public QObject
{
    Q_OBJECT

private slots:
    void ids_data();
    void ids();
    void shownOnlyWhileSelectedInAView_data();
    void shownOnlyWhileSelectedInAView();
    void drawnAboveEverything();
    void keepTheirSizeInAStretchedObject_data();
    void keepTheirSizeInAStretchedObject();
    void magnifiedDrawingKeepsTheirSize();
    void painterZoomSizesThem();
    void theirLineIsAsWideAtEveryZoom_data();
    void theirLineIsAsWideAtEveryZoom();
    void groupTransformPlacesThem();
    void keepTheirStyleWhileDisabled();
    void hiddenOnesAreNotDrawn();
    void boundsStayInDocumentUnits();
    void followAMove();
    void definitionIsNoControlPoint();
};

void TestControlPoints::ids_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("isControlPoint");
    QTest::newRow("first") << "control_1" << true;
    QTest::newRow("last") << "control_32" << true;
    QTest::newRow("too high") << "control_33" << false;
    QTest::newRow("zero") << "control_0" << false;
    QTest::newRow("leading zero") << "control_01" << false;
    QTest::newRow("no number") << "control_" << false;
    QTest::newRow("letter") << "control_1a" << false;
    QTest::newRow("sign") << "control_+1" << false;
    QTest::newRow("upper case") << "Control_1" << false;
    QTest::newRow("other") << "path_1" << false;
    QTest::newRow("empty") << "" << false;
}

void TestControlPoints::ids()
{
    QFETCH(QString, id);
    QTEST(Svg::isControlPointId(id), "isControlPoint");
}

void TestControlPoints::shownOnlyWhileSelectedInAView_data()
{
    QTest::addColumn<bool>("viewFlag");
    QTest::addColumn<int>("selection");
    QTest::addColumn<bool>("shown");
    QTest::newRow("selected in a view") << true << 1 << true;
    QTest::newRow("selected, no view") << false << 1 << false;
    QTest::newRow("not selected") << true << 0 << false;
    QTest::newRow("another state") << true << 2 << false;
}

void TestControlPoints::shownOnlyWhileSelectedInAView()
{
    QFETCH(bool, viewFlag);
    QFETCH(int, selection);
    const DocumentPointer document = loadContent(point, "0 0 40 20");
    document->setSelectionState(selection);
    QTEST(!areaOf(drawn(*document, QSize(40, 20), viewFlag), red).isNull(), "shown");
}

void TestControlPoints::drawnAboveEverything()
{
    const QImage image =
        drawnSelected(point + "<rect width='40' height='20' fill='blue'/>", QSize(40, 20), "0 0 40 20");
    QCOMPARE(areaOf(image, red), QRect(16, 6, 8, 8));
}

void TestControlPoints::keepTheirSizeInAStretchedObject_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("area");
    // The centre (20, 10) goes where the stretch takes it; the sides stay 8.
    QTest::newRow("as designed") << QSize(40, 20) << QRect(16, 6, 8, 8);
    QTest::newRow("wide") << QSize(120, 20) << QRect(56, 6, 8, 8);
    QTest::newRow("tall") << QSize(40, 60) << QRect(16, 26, 8, 8);
    QTest::newRow("shrunk") << QSize(20, 10) << QRect(6, 1, 8, 8);
}

void TestControlPoints::keepTheirSizeInAStretchedObject()
{
    QFETCH(QSize, size);
    QTEST(areaOf(drawnSelected(point, size, "0 0 40 20"), red), "area");
}

void TestControlPoints::magnifiedDrawingKeepsTheirSize()
{
    const DocumentPointer document =
        loadContent("<rect id='control_1' x='6' y='6' width='8' height='8' fill='red'/>", "0 0 40 20");
    document->setSelectionState(1);
    QImage image(80, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    document->draw(&painter, QRectF(20, 10, 40, 20), 2, true);
    painter.end();
    // The centre (10, 10) is 10 left of the document's; magnified it stands 20 left of (40, 20).
    QCOMPARE(areaOf(image, red), QRect(16, 16, 8, 8));
}

void TestControlPoints::painterZoomSizesThem()
{
    const DocumentPointer document = loadContent(point, "0 0 40 20");
    document->setSelectionState(1);
    QImage image(240, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(2, 2);
    document->draw(&painter, QRectF(0, 0, 120, 20), 1, true);
    painter.end();
    QCOMPARE(areaOf(image, red), QRect(112, 12, 16, 16));
}

void TestControlPoints::theirLineIsAsWideAtEveryZoom_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("half") << 0.5;
    QTest::newRow("one to one") << 1.0;
    QTest::newRow("threefold") << 3.0;
}

void TestControlPoints::theirLineIsAsWideAtEveryZoom()
{
    QFETCH(double, zoom);
    // The left edge of the square lies at x = 12 of the painter: a line of 2 covers 11 to 13.
    const QString square = QStringLiteral("<rect id='control_1' x='%1' y='0' width='%2' height='%2' fill='none' "
                                          "stroke='red' stroke-width='2'/>")
                               .arg(12 / zoom)
                               .arg(60 / zoom);
    const DocumentPointer document = loadContent(square, QStringLiteral("0 0 %1 %1").arg(80 / zoom));
    document->setSelectionState(1);
    QImage image(80, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(zoom, zoom);
    document->draw(&painter, QRectF(0, 0, 80 / zoom, 80 / zoom), 1, true);
    painter.end();
    QCOMPARE(image.pixelColor(10, 30).alpha(), 0);
    QCOMPARE(image.pixelColor(11, 30), red);
    QCOMPARE(image.pixelColor(12, 30), red);
    QCOMPARE(image.pixelColor(13, 30).alpha(), 0);
}

void TestControlPoints::groupTransformPlacesThem()
{
    const QImage image =
        drawnSelected("<g transform='translate(-6 2)'>" + point + "</g>", QSize(80, 20), "0 0 40 20");
    // The centre (14, 12) stands at (28, 12).
    QCOMPARE(areaOf(image, red), QRect(24, 8, 8, 8));
}

void TestControlPoints::keepTheirStyleWhileDisabled()
{
    const DocumentPointer document = loadContent(point + "<rect width='9' height='5' fill='lime'/>", "0 0 40 20");
    document->namedNode("control_1")->setFillEnabled(false);
    document->namedNode("control_1")->setStrokeEnabled(false);
    document->setAllFillBrush(QColor(0, 0, 255));
    document->setAllStrokeColor(QColor(0, 255, 255));
    document->setSelectionState(1);
    const QImage image = drawn(*document, QSize(40, 20), true);
    QCOMPARE(areaOf(image, red), QRect(16, 6, 8, 8));
    QCOMPARE(image.pixelColor(4, 3), QColor(0, 0, 255));
}

void TestControlPoints::hiddenOnesAreNotDrawn()
{
    for (const char *hiding : {"visibility='hidden'", "display='none'", "opacity='0'"}) {
        const QString content = QStringLiteral("<g %1>").arg(hiding) + point + "</g>";
        QVERIFY2(areaOf(drawnSelected(content, QSize(40, 20), "0 0 40 20"), red).isNull(), hiding);
    }
}

void TestControlPoints::boundsStayInDocumentUnits()
{
    const DocumentPointer document = loadContent(point, "0 0 40 20");
    document->setSelectionState(1);
    drawn(*document, QSize(400, 20), true);
    QCOMPARE(document->namedNode("control_1")->boundingRect(), QRectF(16, 6, 8, 8));
}

void TestControlPoints::followAMove()
{
    const DocumentPointer document = loadContent(point, "0 0 40 20");
    document->setSelectionState(1);
    drawn(*document, QSize(80, 20), true);
    document->namedNode("control_1")->setNumericAttribute("x", 26);
    QCOMPARE(areaOf(drawn(*document, QSize(80, 20), true), red), QRect(56, 6, 8, 8));
}

void TestControlPoints::definitionIsNoControlPoint()
{
    QVERIFY(areaOf(drawnSelected("<defs>" + point + "</defs>", QSize(40, 20), "0 0 40 20"), red).isNull());
}

QTEST_MAIN(TestControlPoints)
#include "test_controlpoints.moc"
