#include "svgbase/svgdrawing.h"

#include <QtGui/QPicture>
#include <QtTest>

namespace {

const QString cross =
    QStringLiteral("<path d='M0 0H10V10H0z' fill='red'/><path d='M10 10H20V20H10z' fill='blue'/>");

QImage canvas(const QSize &size = QSize(100, 100))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

/// The rectangle that is not transparent.
QRect paintedArea(const QImage &image)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > 0)
                area |= QRect(x, y, 1, 1);
    }
    return area;
}

} // namespace

class TestDrawing : public QObject
{
    Q_OBJECT

private slots:
    void viewBoxIsStretchedOverTheTarget();
    void contentOutsideTheViewBoxIsNotCut();
    void scaleMagnifiesAboutTheCentre_data();
    void scaleMagnifiesAboutTheCentre();
    void viewBoxOriginIsSubtracted();
    void strokesAreDistortedWithTheirShape();
    void painterTransformCounts();
    void rotatedPainterDrawsRotated();
    void painterStateIsRestored();
    void painterOpacityAndClipCount();
    void callbackComesFirstInDocumentUnits();
    void callbackCanBeTakenAway();
    void callbackCannotDisturbThePainter();
    void callbackMayRestyleTheDocument();
    void impossibleDrawsDrawNothing_data();
    void impossibleDrawsDrawNothing();
    void everyDrawIsRemembered();
    void beforeDrawFlagIsCleared();
    void selectionStateIsKept();
    void unchangedDocumentDrawsTheSameAgain();
    void drawingAtAnotherSizeAndBack();
    void drawsOnAPicture();
    void highResolutionDeviceGetsEveryPixel();
    void layersOnHighResolutionDevices();
    void viewBoxMayChange();
    void opaqueBackgroundShowsThrough();
};

void TestDrawing::viewBoxIsStretchedOverTheTarget()
{
    const DocumentPointer document = loadContent(cross, "0 0 20 20");
    QImage image = canvas();
    QPainter painter(&image);
    document->draw(&painter, QRectF(10, 20, 80, 40), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(10, 20, 80, 40));
    QCOMPARE(image.pixelColor(49, 39), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(50, 40), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(50, 39).alpha(), 0);
}

void TestDrawing::contentOutsideTheViewBoxIsNotCut()
{
    const DocumentPointer document = loadContent("<rect x='-5' y='5' width='30' height='10'/>", "0 0 20 20");
    QImage image = canvas();
    QPainter painter(&image);
    document->draw(&painter, QRectF(40, 40, 20, 20), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(35, 45, 30, 10));
}

void TestDrawing::scaleMagnifiesAboutTheCentre_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<QRect>("area");
    // The document covers the target (30, 20, 40, 20), whose centre is (50, 30).
    QTest::newRow("1") << 1.f << QRect(30, 20, 40, 20);
    QTest::newRow("2") << 2.f << QRect(10, 10, 80, 40);
    QTest::newRow("half") << 0.5f << QRect(40, 25, 20, 10);
}

void TestDrawing::scaleMagnifiesAboutTheCentre()
{
    QFETCH(float, scale);
    const DocumentPointer document = loadContent("<rect width='20' height='20'/>", "0 0 20 20");
    QImage image = canvas();
    QPainter painter(&image);
    document->draw(&painter, QRectF(30, 20, 40, 20), scale, false);
    painter.end();
    QTEST(paintedArea(image), "area");
}

void TestDrawing::viewBoxOriginIsSubtracted()
{
    const DocumentPointer document = loadContent("<rect x='105' y='-45' width='5' height='5'/>", "100 -50 20 20");
    QCOMPARE(paintedArea(drawn(*document)), QRect(25, 25, 25, 25));
}

void TestDrawing::strokesAreDistortedWithTheirShape()
{
    // 2 units of stroke are 20 pixels across and 4 pixels down.
    const DocumentPointer document = loadContent(
        "<rect x='2' y='5' width='6' height='10' fill='none' stroke='red' stroke-width='2'/>", "0 0 10 50");
    const QImage image = drawn(*document);
    QCOMPARE(paintedArea(image), QRect(10, 8, 80, 24));
    QCOMPARE(image.pixelColor(29, 20).alpha(), 255);
    QCOMPARE(image.pixelColor(31, 20).alpha(), 0);
    QCOMPARE(image.pixelColor(50, 11).alpha(), 255);
    QCOMPARE(image.pixelColor(50, 13).alpha(), 0);
}

void TestDrawing::painterTransformCounts()
{
    const DocumentPointer document = loadContent("<rect width='20' height='20'/>", "0 0 20 20");
    QImage image = canvas();
    QPainter painter(&image);
    painter.translate(10, 20);
    painter.scale(2, 0.5);
    document->draw(&painter, QRectF(5, 10, 20, 40), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(20, 25, 40, 20));
}

void TestDrawing::rotatedPainterDrawsRotated()
{
    const DocumentPointer document =
        loadContent("<rect width='20' height='10' stroke='red' stroke-width='2'/>", "0 0 20 20");
    QImage image = canvas();
    QPainter painter(&image);
    painter.translate(50, 50);
    painter.rotate(90);
    document->draw(&painter, QRectF(0, 0, 20, 20), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(39, 49, 12, 22));
}

void TestDrawing::painterStateIsRestored()
{
    const DocumentPointer document = loadContent("<g opacity='.5'>" + cross + "</g>");
    QImage image = canvas();
    QPainter painter(&image);
    const QPen pen(Qt::green, 3, Qt::DotLine);
    const QBrush brush(Qt::yellow, Qt::Dense4Pattern);
    const QTransform transform = QTransform().translate(3, 4).rotate(5);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setTransform(transform);
    painter.setOpacity(0.75);
    painter.setBrushOrigin(3, 3);
    painter.setRenderHints(painter.renderHints(), false);
    painter.setClipRect(QRect(1, 2, 30, 40));
    const QPainterPath clip = painter.clipPath();
    document->draw(&painter, QRectF(0, 0, 50, 50), 1, true);
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), brush);
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.opacity(), 0.75);
    QCOMPARE(painter.brushOrigin(), QPoint(3, 3));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
    QVERIFY(painter.hasClipping());
    QCOMPARE(painter.clipPath(), clip);
}

void TestDrawing::painterOpacityAndClipCount()
{
    const DocumentPointer document = loadContent("<rect width='100' height='100' fill='red'/>");
    QImage image = canvas();
    QPainter painter(&image);
    painter.setOpacity(0.2);
    painter.setClipRect(QRect(10, 10, 20, 20));
    document->draw(&painter, QRectF(0, 0, 100, 100), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(10, 10, 20, 20));
    QCOMPARE(image.pixelColor(15, 15).alpha(), 51);
}

void TestDrawing::callbackComesFirstInDocumentUnits()
{
    const DocumentPointer document = loadContent("<rect width='10' height='10' fill='red'/>", "0 0 20 20");
    document->setCallback([](QPainter *painter) { painter->fillRect(QRectF(0, 0, 20, 20), Qt::blue); });
    QImage image = canvas();
    QPainter painter(&image);
    document->draw(&painter, QRectF(10, 10, 40, 80), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(10, 10, 40, 80));
    QCOMPARE(image.pixelColor(20, 20), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(40, 70), QColor(0, 0, 255));
}

void TestDrawing::callbackCanBeTakenAway()
{
    const DocumentPointer document = loadContent("");
    int calls = 0;
    document->setCallback([&](QPainter *) { ++calls; });
    drawn(*document);
    QCOMPARE(calls, 1);
    document->setCallback({});
    drawn(*document);
    QCOMPARE(calls, 1);
}

void TestDrawing::callbackCannotDisturbThePainter()
{
    const DocumentPointer document = loadContent(cross);
    const QImage expected = drawn(*document);
    document->setCallback([](QPainter *painter) {
        painter->setOpacity(0.1);
        painter->setClipRect(0, 0, 1, 1);
        painter->scale(3, 3);
        painter->setCompositionMode(QPainter::CompositionMode_Clear);
    });
    QCOMPARE(drawn(*document), expected);
}

void TestDrawing::callbackMayRestyleTheDocument()
{
    const DocumentPointer document = loadContent("<rect width='100' height='100' fill='red'/>");
    document->setCallback([&](QPainter *) { document->setAllFillBrush(QColor(0, 0, 255)); });
    QCOMPARE(drawn(*document).pixelColor(5, 5), QColor(0, 0, 255));
}

void TestDrawing::impossibleDrawsDrawNothing_data()
{
    QTest::addColumn<QRectF>("target");
    QTest::addColumn<float>("scale");
    QTest::addColumn<QRectF>("viewBox");
    const QRectF good(0, 0, 100, 100);
    QTest::newRow("target without width") << QRectF(0, 0, 0, 100) << 1.f << good;
    QTest::newRow("target of negative height") << QRectF(0, 0, 100, -1) << 1.f << good;
    QTest::newRow("target of NaN") << QRectF(0, 0, qQNaN(), 100) << 1.f << good;
    QTest::newRow("target at infinity") << QRectF(qInf(), 0, 100, 100) << 1.f << good;
    QTest::newRow("scale 0") << good << 0.f << good;
    QTest::newRow("negative scale") << good << -1.f << good;
    QTest::newRow("scale NaN") << good << float(qQNaN()) << good;
    QTest::newRow("infinite scale") << good << float(qInf()) << good;
    QTest::newRow("view box without height") << good << 1.f << QRectF(0, 0, 100, 0);
    QTest::newRow("negative view box") << good << 1.f << QRectF(0, 0, -100, 100);
    QTest::newRow("view box of NaN") << good << 1.f << QRectF(0, 0, qQNaN(), 100);
}

void TestDrawing::impossibleDrawsDrawNothing()
{
    QFETCH(QRectF, target);
    QFETCH(float, scale);
    QFETCH(QRectF, viewBox);
    const DocumentPointer document = loadContent("<rect width='100' height='100'/>");
    document->setViewBox(viewBox);
    bool called = false;
    document->setCallback([&](QPainter *) { called = true; });
    QImage image = canvas();
    QPainter painter(&image);
    document->draw(&painter, target, scale, false);
    painter.end();
    QCOMPARE(image, canvas());
    QVERIFY(!called);
}

void TestDrawing::everyDrawIsRemembered()
{
    const DocumentPointer document = loadContent("");
    QCOMPARE(document->lastDraw().target, QRectF());
    QImage image = canvas();
    QPainter painter(&image);
    document->draw(&painter, QRectF(1, 2, 3, 4), 1.5f, true);
    QCOMPARE(document->lastDraw().target, QRectF(1, 2, 3, 4));
    QCOMPARE(document->lastDraw().scale, 1.5f);
    QVERIFY(document->lastDraw().viewFlag);
    document->draw(nullptr, QRectF(0, 0, 0, 9), 0.f, false);
    QCOMPARE(document->lastDraw().target, QRectF(0, 0, 0, 9));
    QCOMPARE(document->lastDraw().scale, 0.f);
    QVERIFY(!document->lastDraw().viewFlag);
}

void TestDrawing::beforeDrawFlagIsCleared()
{
    const DocumentPointer document = loadContent("<rect id='a' width='10' height='10'/>");
    QVERIFY(!document->isBeforeDraw());
    document->namedNode("a")->setNumericAttribute("width", 50);
    document->setBeforeDraw(true);
    QVERIFY(document->isBeforeDraw());
    QCOMPARE(paintedArea(drawn(*document)), QRect(0, 0, 50, 10));
    QVERIFY(!document->isBeforeDraw());
}

void TestDrawing::selectionStateIsKept()
{
    const DocumentPointer document = loadContent("");
    QCOMPARE(document->selectionState(), 0);
    document->setSelectionState(1);
    QCOMPARE(document->selectionState(), 1);
}

void TestDrawing::unchangedDocumentDrawsTheSameAgain()
{
    const DocumentPointer document =
        loadContent("<g opacity='.5'>" + cross +
                    "</g><circle cx='60' cy='60' r='30' fill='none' stroke='red' stroke-dasharray='5'/>");
    const QImage first = drawn(*document);
    QCOMPARE(drawn(*document), first);
    QCOMPARE(drawn(*document), first);
}

void TestDrawing::drawingAtAnotherSizeAndBack()
{
    const DocumentPointer document = loadContent(cross + "<circle cx='60' cy='60' r='30' stroke='red'/>");
    const QImage first = drawn(*document);
    const QImage large = drawn(*document, QSize(150, 70));
    QVERIFY(large.pixelColor(90, 42).alpha() > 0);
    QCOMPARE(drawn(*document), first);
    QCOMPARE(drawn(*document, QSize(150, 70)), large);
}

void TestDrawing::drawsOnAPicture()
{
    const DocumentPointer document = loadContent("<g opacity='.5'>" + cross + "</g>", "0 0 20 20");
    QPicture picture;
    QPainter recorder(&picture);
    document->draw(&recorder, QRectF(0, 0, 100, 100), 1, false);
    recorder.end();
    QImage image = canvas();
    QPainter painter(&image);
    painter.drawPicture(0, 0, picture);
    painter.end();
    QVERIFY(qAbs(image.pixelColor(20, 20).alpha() - 128) <= 1);
}

void TestDrawing::highResolutionDeviceGetsEveryPixel()
{
    const DocumentPointer document = loadContent(cross, "0 0 20 20");
    QImage image = canvas();
    image.setDevicePixelRatio(2);
    QPainter painter(&image);
    document->draw(&painter, QRectF(0, 0, 50, 50), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(0, 0, 100, 100));
    QCOMPARE(image.pixelColor(49, 49), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(50, 50), QColor(0, 0, 255));
}

void TestDrawing::layersOnHighResolutionDevices()
{
    const DocumentPointer document = loadContent("<g opacity='.2'>" + cross + "</g>", "0 0 20 20");
    QImage image = canvas();
    image.setDevicePixelRatio(2);
    QPainter painter(&image);
    document->draw(&painter, QRectF(0, 0, 50, 50), 1, false);
    painter.end();
    QCOMPARE(paintedArea(image), QRect(0, 0, 100, 100));
    QVERIFY(qAbs(image.pixelColor(49, 49).alpha() - 51) <= 1);
    QCOMPARE(image.pixelColor(49, 50).alpha(), 0);
}

void TestDrawing::viewBoxMayChange()
{
    const DocumentPointer document = loadContent("<rect width='10' height='10'/>");
    QCOMPARE(paintedArea(drawn(*document)), QRect(0, 0, 10, 10));
    document->setViewBox(QRectF(0, 0, 20, 40));
    QCOMPARE(paintedArea(drawn(*document)), QRect(0, 0, 50, 25));
}

void TestDrawing::opaqueBackgroundShowsThrough()
{
    const DocumentPointer document = loadContent("<rect width='50' height='100' fill='red' fill-opacity='.5'/>");
    QImage image = canvas();
    image.fill(Qt::white);
    for (int i = 0; i < 2; ++i) {
        QPainter painter(&image);
        document->draw(&painter, QRectF(0, 0, 100, 100), 1, false);
    }
    QCOMPARE(image.pixelColor(75, 50), QColor(Qt::white));
    // Half of white, and half of that again.
    QVERIFY(qAbs(image.pixelColor(25, 50).green() - 63) <= 2);
}

QTEST_MAIN(TestDrawing)
#include "test_drawing.moc"
