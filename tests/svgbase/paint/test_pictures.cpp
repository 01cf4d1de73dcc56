#include "paint/keptpicture.h"
#include "svgbase/svgdrawing.h"

#include <QtTest>

// A finished drawing that is used again must be what painting would give, pixel for pixel.
class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void everyDrawLooksLikeTheFirst_data();
    void everyDrawLooksLikeTheFirst();
    void changesShowAfterManyDraws();
    void selectionShowsAfterManyDraws();
    void whatIsUnderneathShowsAfterManyDraws();
    void clipAndOpacityCountAfterManyDraws();
    void anotherPlaceCountsAfterManyDraws();
    void callbackPaintsEveryTime();
    void documentsDoNotShareDrawings();
    void secondDrawingIsKept();
    void keptDrawingIsForItsPlaceAlone_data();
    void keptDrawingIsForItsPlaceAlone();
    void keptDrawingIsCopiedAroundWhatIsRepainted();
    void changesBelowAreFound();
    void drawingIsNotKeptForOtherPainters_data();
    void drawingIsNotKeptForOtherPainters();
    void drawingIsKeptForPlainPainters();
};

namespace {

const QString content = QStringLiteral(
    "<linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='blue' stop-opacity='.5'/>"
    "</linearGradient><g opacity='.5'><rect x='20' y='10' width='50' height='70' fill='url(#g)' stroke='black'/>"
    "<path id='p' d='M10 30C80 10 80 90 10 70z' fill='lime' fill-opacity='.3'/></g>"
    "<circle id='c' cx='60' cy='55' r='25' fill='none' stroke='navy' stroke-width='3' stroke-dasharray='5 3'/>"
    "<text x='5' y='95' font-size='20'>Text</text><rect id='control_1' x='3' y='3' width='8' height='8' "
    "fill='gold'/>");

constexpr int manyDraws = 5;

QImage canvas(QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(120, 90, format);
    image.fill(Qt::transparent);
    return image;
}

void draw(QZeSvgTinyDocument &document, QImage &image, const QRectF &target = QRectF(10, 5, 100, 80))
{
    QPainter painter(&image);
    document.draw(&painter, target, 1, true);
}

QImage drawnOn(QZeSvgTinyDocument &document, QImage image = canvas())
{
    draw(document, image);
    return image;
}

void drawOften(QZeSvgTinyDocument &document)
{
    for (int i = 0; i < manyDraws; ++i)
        drawnOn(document);
}

} // namespace

void TestPictures::everyDrawLooksLikeTheFirst_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("ARGB32") << int(QImage::Format_ARGB32);
    QTest::newRow("premultiplied") << int(QImage::Format_ARGB32_Premultiplied);
    QTest::newRow("without alpha") << int(QImage::Format_RGB32);
}

void TestPictures::everyDrawLooksLikeTheFirst()
{
    QFETCH(int, format);
    const DocumentPointer document = loadContent(content);
    const QImage blank = canvas(QImage::Format(format));
    const QImage first = drawnOn(*document, blank);
    QVERIFY(first != blank);
    for (int i = 0; i < manyDraws; ++i)
        QCOMPARE(drawnOn(*document, blank), first);
}

void TestPictures::changesShowAfterManyDraws()
{
    const DocumentPointer document = loadContent(content);
    drawOften(*document);
    document->namedNode("c")->setNumericAttribute("x", 5);
    document->setAllStrokeWidth(4);
    const DocumentPointer expected = loadContent(content);
    expected->namedNode("c")->setNumericAttribute("x", 5);
    expected->setAllStrokeWidth(4);
    QCOMPARE(drawnOn(*document), drawnOn(*expected));
}

void TestPictures::selectionShowsAfterManyDraws()
{
    const DocumentPointer document = loadContent(content);
    drawOften(*document);
    document->setSelectionState(1);
    for (int i = 0; i < manyDraws; ++i)
        QCOMPARE(drawnOn(*document).pixelColor(17, 11), QColor("gold"));
    document->setSelectionState(0);
    for (int i = 0; i < manyDraws; ++i)
        QCOMPARE(drawnOn(*document).pixelColor(17, 11).alpha(), 0);
}

void TestPictures::whatIsUnderneathShowsAfterManyDraws()
{
    const DocumentPointer fresh = loadContent(content);
    const DocumentPointer used = loadContent(content);
    drawOften(*used);
    QImage background = canvas();
    background.fill(QColor(255, 220, 0));
    QCOMPARE(drawnOn(*used, background), drawnOn(*fresh, background));
    QImage oneDot = canvas();
    oneDot.setPixelColor(60, 50, QColor(0, 200, 0, 100));
    QCOMPARE(drawnOn(*used, oneDot), drawnOn(*fresh, oneDot));
}

void TestPictures::clipAndOpacityCountAfterManyDraws()
{
    const auto drawnFaintly = [](QZeSvgTinyDocument &document) {
        QImage image = canvas();
        QPainter painter(&image);
        painter.setClipRect(QRect(30, 20, 40, 40));
        painter.setOpacity(0.5);
        document.draw(&painter, QRectF(10, 5, 100, 80), 1, true);
        return image;
    };
    const DocumentPointer fresh = loadContent(content);
    const DocumentPointer used = loadContent(content);
    drawOften(*used);
    QCOMPARE(drawnFaintly(*used), drawnFaintly(*fresh));
}

void TestPictures::anotherPlaceCountsAfterManyDraws()
{
    const DocumentPointer fresh = loadContent(content);
    const DocumentPointer used = loadContent(content);
    drawOften(*used);
    for (const QRectF &target : {QRectF(11, 5, 100, 80), QRectF(10, 5, 100, 60), QRectF(90, 70, 100, 80)}) {
        QImage found = canvas();
        QImage expected = canvas();
        draw(*used, found, target);
        draw(*fresh, expected, target);
        QCOMPARE(found, expected);
    }
}

void TestPictures::callbackPaintsEveryTime()
{
    const DocumentPointer document = loadContent(content);
    document->setCallback([](QPainter *painter) { painter->fillRect(QRectF(40, 40, 20, 20), Qt::yellow); });
    const QImage first = drawnOn(*document);
    for (int i = 0; i < manyDraws; ++i)
        QCOMPARE(drawnOn(*document), first);
}

void TestPictures::documentsDoNotShareDrawings()
{
    const DocumentPointer one = loadContent(content);
    const DocumentPointer other = loadContent(content);
    other->setAllFillBrush(QColor(Qt::cyan));
    const QImage first = drawnOn(*one);
    const QImage second = drawnOn(*other);
    QVERIFY(first != second);
    for (int i = 0; i < manyDraws; ++i) {
        QCOMPARE(drawnOn(*one), first);
        QCOMPARE(drawnOn(*other), second);
    }
}

void TestPictures::secondDrawingIsKept()
{
    Svg::KeptPicture kept;
    const QRect reach(10, 20, 30, 40);
    QImage image = canvas();
    QCOMPARE(kept.prepare(image, reach, false), Svg::KeptPicture::Paint);
    QCOMPARE(kept.bytes(), 0);
    // An eighth of each size and eight pixels of room all around, as far as there is picture.
    QCOMPARE(kept.area(), QRect(0, 7, 51, 66));
    QCOMPARE(kept.prepare(image, reach, false), Svg::KeptPicture::PaintAndKeep);
    image.fill(QColor(1, 2, 3, 100));
    kept.keep(image, kept.area());
    QCOMPARE(kept.bytes(), 51 * 66 * 4);
    QCOMPARE(kept.prepare(canvas(), reach, false), Svg::KeptPicture::Repair);
    QCOMPARE(kept.prepare(canvas(), QRect(5, 10, 40, 60), false), Svg::KeptPicture::Repair);
    kept.clear();
    QCOMPARE(kept.bytes(), 0);
}

void TestPictures::keptDrawingIsForItsPlaceAlone_data()
{
    QTest::addColumn<QRect>("reach");
    QTest::addColumn<bool>("withControlPoints");
    QTest::addColumn<int>("format");
    QTest::newRow("reaches further") << QRect(10, 20, 45, 40) << false << int(QImage::Format_ARGB32);
    QTest::newRow("control points") << QRect(10, 20, 30, 40) << true << int(QImage::Format_ARGB32);
    QTest::newRow("format") << QRect(10, 20, 30, 40) << false << int(QImage::Format_ARGB32_Premultiplied);
}

void TestPictures::keptDrawingIsForItsPlaceAlone()
{
    QFETCH(QRect, reach);
    QFETCH(bool, withControlPoints);
    QFETCH(int, format);
    Svg::KeptPicture kept;
    kept.prepare(canvas(), QRect(10, 20, 30, 40), false);
    kept.prepare(canvas(), QRect(10, 20, 30, 40), false);
    kept.keep(canvas(), kept.area());
    const QImage target = canvas(QImage::Format(format));
    QCOMPARE(kept.prepare(target, reach, withControlPoints), Svg::KeptPicture::Paint);
}

void TestPictures::keptDrawingIsCopiedAroundWhatIsRepainted()
{
    Svg::KeptPicture kept;
    const QRect reach(40, 30, 20, 20);
    QImage background = canvas();
    background.fill(QColor(0, 0, 200));
    kept.prepare(background, reach, false);
    QCOMPARE(kept.prepare(background, reach, false), Svg::KeptPicture::PaintAndKeep);
    kept.keepBelow(background);
    QImage drawing = canvas();
    drawing.fill(QColor(0, 200, 0));
    kept.keep(drawing, kept.area());

    QImage target = background;
    kept.restore(&target, {QRect(45, 35, 5, 6)});
    for (const QPoint &inside : {QPoint(30, 20), QPoint(44, 35), QPoint(50, 40), QPoint(69, 59)})
        QCOMPARE(target.pixelColor(inside), QColor(0, 200, 0));
    for (const QPoint &left : {QPoint(45, 35), QPoint(49, 40), QPoint(29, 20), QPoint(70, 59)})
        QCOMPARE(target.pixelColor(left), QColor(0, 0, 200));
}

void TestPictures::changesBelowAreFound()
{
    Svg::KeptPicture kept;
    const QRect reach(20, 20, 70, 50);
    kept.prepare(canvas(), reach, false);
    kept.prepare(canvas(), reach, false);
    kept.keep(canvas(), kept.area());
    QCOMPARE(kept.area(), QRect(4, 6, 102, 78));
    QVERIFY(kept.changedBelow(canvas()).isEmpty());
    QImage dotted = canvas();
    dotted.setPixel(40, 30, 0x01000000);
    dotted.setPixel(80, 50, 0x01000000);
    // Outside of the area.
    dotted.setPixel(3, 30, 0x01000000);
    dotted.setPixel(50, 84, 0x01000000);
    QCOMPARE(kept.changedBelow(dotted), QRect(QPoint(40, 30), QPoint(80, 50)));
    QVERIFY(kept.changedBelow(dotted).isEmpty());
    dotted.setPixel(105, 83, 0x01000000);
    dotted.setPixel(4, 83, 0x01000000);
    QCOMPARE(kept.changedBelow(dotted), QRect(4, 83, 102, 1));
}

void TestPictures::drawingIsNotKeptForOtherPainters_data()
{
    QTest::addColumn<QString>("difference");
    for (const char *difference : {"clip", "opacity", "composition", "resolution", "format", "window"})
        QTest::newRow(difference) << QString::fromLatin1(difference);
}

void TestPictures::drawingIsNotKeptForOtherPainters()
{
    QFETCH(QString, difference);
    QImage image = canvas(difference == "format" ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (difference == "resolution")
        image.setDevicePixelRatio(2);
    QPainter painter(&image);
    if (difference == "clip")
        painter.setClipRect(QRect(0, 0, 50, 50));
    else if (difference == "opacity")
        painter.setOpacity(0.5);
    else if (difference == "composition")
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    else if (difference == "window")
        painter.setWindow(0, 0, 50, 50);
    QVERIFY(!Svg::plainTarget(&painter));
}

void TestPictures::drawingIsKeptForPlainPainters()
{
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied}) {
        QImage image = canvas(format);
        QPainter painter(&image);
        QCOMPARE(Svg::plainTarget(&painter), &image);
    }
}

QTEST_MAIN(TestPictures)
#include "test_pictures.moc"
