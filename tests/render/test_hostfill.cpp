#include <support/shapefixture.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

using support::ShapeFixture;
using support::svgText;

/// The host's fill under a shape: which shapes get it, clipped by what, and what the core finds afterwards.
class TestHostFill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHostFillsByType_data();
    void theHostFillsByType();
    void otherTypesKeepPainterAndBrush();
    void theCoreGetsTheHostsPenAndHints();
    void theCoreGetsNoClip();
    void theFillStaysInsideTheOutline();
    void anEarlierClipIsReplaced();
    void withoutOutlineNothingIsFilled();
    void theFillCoversTheClientRectangle();
    void noBrushFillsNothing();
    void aBrushFillsAlsoWhenTheFillIsDisabled();
    void anObjectWithoutFillPropertyIsFilledByItsBrush();
    void overlappingItemsAreFilledToo();

    void aBrushThatDependsOnTheRectangleIsMadeAnew();
    void otherBrushesAreNotMadeAnew();
    void aPictureIsStretchedOverWholePixels();
    void aPictureFarFromTheOriginIsStretchedToo();
    void aDisabledPictureIsNotDrawn();
    void aMissingPictureFallsBackOnTheBrush();
    void aPictureOfAnotherFillTypeIsNotDrawn();
    void aPictureIsDrawnInsteadOfTheBrush();

    void theDocumentsBrushIsEmptiedBeforeItDraws();
    void theHostsBrushIsKept();
    void theFillIsPaintedInThePictureToo();
    void aShapeWithoutDocumentIsFilledWithNothing();
};

namespace {

/// A picture of 12 × 12 to paint on, transparent at first.
struct Canvas
{
    Canvas()
        : image(12, 12, QImage::Format_ARGB32)
    {
        image.fill(Qt::transparent);
        painter.begin(&image);
    }
    QRgb at(int x, int y) const { return image.pixel(x, y); }

    QImage image;
    QPainter painter;
};

/// A shape that paints nothing itself, over an object of 10 × 10, with a red host brush. The outline lies so far
/// out that it clips nothing, unless `content` says otherwise.
struct Filled : ShapeFixture
{
    explicit Filled(int type = 0, const QString &content = "<rect x='-500' y='-500' width='1000' height='1000'/>")
        : ShapeFixture(svgText("0 0 10 10", content), type)
    {
        shape->keepOutlineRegion = true;
        load();
        shape->updateOutlineRegion();
        object.paints = true;
        object.fillBrush = QBrush(Qt::red);
        recording::clear();
    }
    QPixmap picture(QColor color) const
    {
        QPixmap pixmap(3, 3);
        pixmap.fill(color);
        return pixmap;
    }
};

constexpr QRgb red = qRgba(255, 0, 0, 255);
constexpr QRgb blue = qRgba(0, 0, 255, 255);
constexpr QRgb nothing = qRgba(0, 0, 0, 0);

} // namespace

void TestHostFill::theHostFillsByType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("filled");
    for (int type : {-1, 0, 2, 25, 26, 1000})
        QTest::addRow("%d", type) << type << true;
    for (int type : {27, 999, 1001, 100000})
        QTest::addRow("%d", type) << type << false;
}

void TestHostFill::theHostFillsByType()
{
    QFETCH(const int, type);
    QFETCH(const bool, filled);
    Filled fixture(type);
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(5, 5), filled ? red : nothing);
    QCOMPARE(recording::count("setAllFillBrush"), filled ? 1 : 0);
}

void TestHostFill::otherTypesKeepPainterAndBrush()
{
    Filled fixture(27);
    Canvas canvas;
    canvas.painter.setPen(QPen(Qt::green, 7));
    canvas.painter.setClipRect(2, 2, 3, 3);
    QPen pen;
    QPainter::RenderHints hints;
    QRectF clip;
    fixture.shape->onPaint = [&](QPainter *painter, bool) {
        pen = painter->pen();
        hints = painter->renderHints();
        clip = painter->clipBoundingRect();
    };
    const QPainter::RenderHints hintsBefore = canvas.painter.renderHints();
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(pen, QPen(Qt::green, 7));
    QCOMPARE(hints, hintsBefore);
    QCOMPARE(clip, QRectF(2, 2, 3, 3));
    QCOMPARE(recording::count("needCreatBrush"), 0);
}

void TestHostFill::theCoreGetsTheHostsPenAndHints()
{
    Filled fixture;
    fixture.object.myPen = QPen(QColor(1, 2, 3), 4);
    Canvas canvas;
    canvas.painter.setRenderHints(canvas.painter.renderHints(), false);
    QPen pen;
    QPainter::RenderHints hints;
    fixture.shape->onPaint = [&](QPainter *painter, bool) {
        pen = painter->pen();
        hints = painter->renderHints();
    };
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(pen, QPen(QColor(1, 2, 3), 4));
    QCOMPARE(int(hints), 7); // antialiasing, text antialiasing, smooth pixmaps
}

void TestHostFill::theCoreGetsNoClip()
{
    Filled fixture;
    Canvas canvas;
    canvas.painter.setClipRect(2, 2, 3, 3);
    bool clipped = true;
    fixture.shape->onPaint = [&](QPainter *painter, bool) { clipped = painter->hasClipping(); };
    fixture.object.OnQPainterDraw(&canvas.painter);
    QVERIFY(!clipped);
}

void TestHostFill::theFillStaysInsideTheOutline()
{
    Filled fixture(0, "<rect x='2' y='3' width='4' height='5'/>");
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool inside = x >= 2 && x < 6 && y >= 3 && y < 8;
            QCOMPARE(canvas.at(x, y), inside ? red : nothing);
        }
    }
}

void TestHostFill::anEarlierClipIsReplaced()
{
    Filled fixture(0, "<rect x='2' y='3' width='4' height='5'/>");
    Canvas canvas;
    canvas.painter.setClipRect(8, 8, 2, 2);
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(3, 4), red);
    QCOMPARE(canvas.at(8, 8), nothing);
}

void TestHostFill::withoutOutlineNothingIsFilled()
{
    Filled fixture;
    delete fixture.shape->outlineRegion;
    fixture.shape->outlineRegion = nullptr;
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 12; ++x)
            QCOMPARE(canvas.at(x, y), nothing);
    QCOMPARE(recording::count("setAllFillBrush"), 1);
}

void TestHostFill::theFillCoversTheClientRectangle()
{
    Filled fixture;
    fixture.object.place({1, 2, 9, 8});
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool inside = x >= 1 && x < 10 && y >= 2 && y < 10;
            QCOMPARE(canvas.at(x, y), inside ? red : nothing);
        }
    }
}

void TestHostFill::noBrushFillsNothing()
{
    Filled fixture;
    fixture.object.fillBrush = QBrush(Qt::NoBrush);
    fixture.object.fillProp->setFillEnable(true);
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(5, 5), nothing);
}

void TestHostFill::aBrushFillsAlsoWhenTheFillIsDisabled()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(false);
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(5, 5), red);
}

void TestHostFill::anObjectWithoutFillPropertyIsFilledByItsBrush()
{
    Filled fixture;
    CPageBgProp *const prop = fixture.object.fillProp;
    fixture.object.fillProp = nullptr;
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    fixture.object.fillProp = prop;
    QCOMPARE(canvas.at(5, 5), red);
}

void TestHostFill::overlappingItemsAreFilledToo()
{
    // Two squares that share the middle: the outline winds, so the middle belongs to it.
    Filled fixture;
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    outline.addRect(1, 1, 6, 6);
    outline.addRect(4, 4, 6, 6);
    *fixture.shape->outlineRegion = outline;
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(2, 2), red);
    QCOMPARE(canvas.at(5, 5), red);
    QCOMPARE(canvas.at(9, 9), red);
    QCOMPARE(canvas.at(9, 2), nothing);
}

void TestHostFill::aBrushThatDependsOnTheRectangleIsMadeAnew()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillType(CPageBgProp::GradientFill);
    fixture.object.fillProp->setFillColor(Qt::blue);
    fixture.object.place({1, 2, 9, 8});
    recording::clear();
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(recording::lastArguments("needCreatBrush"), QVariantList({QRectF(1, 2, 9, 8)}));
    QCOMPARE(recording::lastArguments("createBrushByProp"), QVariantList({QRectF(1, 2, 9, 8), false}));
    QCOMPARE(fixture.object.fillBrush, QBrush(Qt::blue));
    QCOMPARE(canvas.at(5, 5), blue);
}

void TestHostFill::otherBrushesAreNotMadeAnew()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillColor(Qt::blue);
    recording::clear();
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(recording::count("needCreatBrush"), 1);
    QCOMPARE(recording::count("createBrushByProp"), 0);
    QCOMPARE(canvas.at(5, 5), red);
}

void TestHostFill::aPictureIsStretchedOverWholePixels()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillType(CPageBgProp::PictureFill);
    fixture.object.fillProp->setPixmap(fixture.picture(Qt::blue));
    // left 0, top 1, right 10.6 → 11, bottom 10.3 → 10
    fixture.object.place({0.4, 0.6, 10.2, 9.7});
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool inside = x < 11 && y >= 1 && y < 10;
            QCOMPARE(canvas.at(x, y), inside ? blue : nothing);
        }
    }
}

void TestHostFill::aPictureFarFromTheOriginIsStretchedToo()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillType(CPageBgProp::PictureFill);
    fixture.object.fillProp->setPixmap(fixture.picture(Qt::blue));
    // left 4, top 2, right 8.7 → 9, bottom 10.1 → 10
    fixture.object.place({4.2, 1.7, 4.5, 8.4});
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool inside = x >= 4 && x < 9 && y >= 2 && y < 10;
            QCOMPARE(canvas.at(x, y), inside ? blue : nothing);
        }
    }
}

void TestHostFill::aDisabledPictureIsNotDrawn()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(false);
    fixture.object.fillProp->setFillType(CPageBgProp::PictureFill);
    fixture.object.fillProp->setPixmap(fixture.picture(Qt::blue));
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(5, 5), red);
}

void TestHostFill::aMissingPictureFallsBackOnTheBrush()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillType(CPageBgProp::PictureFill);
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(5, 5), red);
}

void TestHostFill::aPictureOfAnotherFillTypeIsNotDrawn()
{
    for (int type : {CPageBgProp::NoFill, CPageBgProp::SolidFill, CPageBgProp::PatternFill}) {
        Filled fixture;
        fixture.object.fillProp->setFillEnable(true);
        fixture.object.fillProp->setFillType(type);
        fixture.object.fillProp->setPixmap(fixture.picture(Qt::blue));
        Canvas canvas;
        fixture.object.OnQPainterDraw(&canvas.painter);
        QCOMPARE(canvas.at(5, 5), red);
    }
}

void TestHostFill::aPictureIsDrawnInsteadOfTheBrush()
{
    Filled fixture;
    fixture.object.fillProp->setFillEnable(true);
    fixture.object.fillProp->setFillType(CPageBgProp::PictureFill);
    fixture.object.fillProp->setPixmap(fixture.picture(Qt::transparent));
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(canvas.at(5, 5), nothing);
}

void TestHostFill::theDocumentsBrushIsEmptiedBeforeItDraws()
{
    Filled fixture;
    fixture.shape->document->setAllFillBrush(QBrush(Qt::green));
    recording::clear();
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(fixture.shape->document->getAllFillBrush(), QBrush(Qt::NoBrush));
    QCOMPARE(recording::names({"setAllFillBrush", "paint", "draw"}),
             QStringList({"document.setAllFillBrush", "shape.paint", "document.draw"}));
    QCOMPARE(recording::count("setFillProp"), 0);
    QCOMPARE(recording::count("RecordAction"), 0);
}

void TestHostFill::theHostsBrushIsKept()
{
    Filled fixture;
    Canvas canvas;
    fixture.object.OnQPainterDraw(&canvas.painter);
    QCOMPARE(fixture.object.fillBrush, QBrush(Qt::red));
}

void TestHostFill::theFillIsPaintedInThePictureToo()
{
    Filled fixture;
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(fixture.object.cacheImage.size(), QSize(10, 10));
    QCOMPARE(fixture.object.cacheImage.pixel(5, 5), red);
}

void TestHostFill::aShapeWithoutDocumentIsFilledWithNothing()
{
    ShapeFixture fixture({}, 0);
    fixture.place({0, 0, 10, 10});
    fixture.object.paints = true;
    fixture.object.fillBrush = QBrush(Qt::red);
    recording::svg().failingLoads = 2; // the template's and the fallback's
    QVERIFY(!fixture.shape->loadSVG(false));
    QVERIFY(!fixture.object.cacheImage.isNull());
    QCOMPARE(fixture.object.cacheImage.pixel(5, 5), nothing);
}

QTEST_MAIN(TestHostFill)

#include "test_hostfill.moc"
