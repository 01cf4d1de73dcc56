#include "render/messagecatcher.h"

#include <support/shapefixture.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <limits>

using support::ShapeFixture;
using support::TestObject;
using support::twoPointTemplate;

/// Where the page object's picture goes: straight onto a painter, or into the off-screen picture.
class TestObjectPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aPainterIsPaintedOnDirectly();
    void directPaintingGivesTheCoreThatPainter();
    void directPaintingTakesNoLock();
    void directPaintingLeavesThePictureAlone();
    void directPaintingOfAnEmptyObjectIsOnlyBracketed_data();
    void directPaintingOfAnEmptyObjectIsOnlyBracketed();
    void directPaintingWithoutCoreIsOnlyBracketed();

    void withoutPainterThePictureIsMade();
    void thePictureHasWholePixels();
    void thePictureStartsTransparent();
    void thePictureIsMadeAnewEachTime();
    void aPictureThatSomebodyHoldsStaysAsItWas();
    void aPictureOfTheSameSizeTakesTheMemoryOfTheOneBefore();
    void theCorePaintsIntoThePicture();
    void renderingHoldsTheLockThroughout();
    void renderingLetsTheLockGo();
    void aPictureWithoutCoreIsTransparent();
    void anEmptyObjectHasNoPicture_data();
    void anEmptyObjectHasNoPicture();
    void halfAPixelGivesNoPictureAndNoWarning_data();
    void halfAPixelGivesNoPictureAndNoWarning();
    void anEnormousObjectHasNoPicture_data();
    void anEnormousObjectHasNoPicture();

    void aNestedRequestIsRepeatedOnce_data();
    void aNestedRequestIsRepeatedOnce();
    void aNestedRequestReturnsAtOnce();
    void aNestedRequestIsRepeatedAfterTheUnlock();
    void aShapeThatAlwaysAsksForRenderingEnds();
    void aRequestForAnotherObjectIsServedAtOnce();
    void anObjectCanBeRenderedAgainAfterANestedRequest();
    void invalidatingWhileRenderingNotifiesAtOnce();
};

namespace {

/// A loaded shape that really paints.
struct Painting : ShapeFixture
{
    explicit Painting(QRectF rect = {0, 0, 40, 20})
        : ShapeFixture(twoPointTemplate())
    {
        place(rect);
        load();
        object.paints = true;
    }
};

bool isUnlocked(QMutex &mutex)
{
    if (!mutex.tryLock())
        return false;
    mutex.unlock();
    return true;
}

QImage transparentPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    return picture;
}

} // namespace

void TestObjectPainting::init()
{
    recording::resetSvg();
    recording::resetFramework();
    recording::clear();
}

void TestObjectPainting::aPainterIsPaintedOnDirectly()
{
    Painting fixture;
    QImage image(40, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    fixture.object.OnQPainterDraw(&painter);
    QCOMPARE(recording::names({"beginPaint", "paint", "endPaint"}),
             QStringList({"object.beginPaint", "shape.paint", "object.endPaint"}));
    QCOMPARE(recording::lastArguments("shape", "paint"), QVariantList({false}));
}

void TestObjectPainting::directPaintingGivesTheCoreThatPainter()
{
    Painting fixture;
    QImage image(40, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    QPainter *given = nullptr;
    fixture.shape->onPaint = [&](QPainter *target, bool) { given = target; };
    fixture.object.OnQPainterDraw(&painter);
    QCOMPARE(given, &painter);
}

void TestObjectPainting::directPaintingTakesNoLock()
{
    Painting fixture;
    bool unlocked = false;
    fixture.shape->onPaint = [&](QPainter *, bool) { unlocked = isUnlocked(fixture.object.cacheMutex); };
    QImage image(40, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    fixture.object.OnQPainterDraw(&painter);
    QVERIFY(unlocked);
}

void TestObjectPainting::directPaintingLeavesThePictureAlone()
{
    Painting fixture;
    QImage image(40, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    fixture.object.OnQPainterDraw(&painter);
    QVERIFY(fixture.object.cacheImage.isNull());
}

void TestObjectPainting::directPaintingOfAnEmptyObjectIsOnlyBracketed_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("no width") << QSizeF(0, 20);
    QTest::newRow("no height") << QSizeF(40, 0);
    QTest::newRow("negative width") << QSizeF(-1, 20);
    QTest::newRow("negative height") << QSizeF(40, -1);
    QTest::newRow("no number") << QSizeF(std::numeric_limits<double>::quiet_NaN(), 20);
}

void TestObjectPainting::directPaintingOfAnEmptyObjectIsOnlyBracketed()
{
    QFETCH(const QSizeF, size);
    Painting fixture(QRectF(QPointF(0, 0), size));
    QImage image(40, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    fixture.object.OnQPainterDraw(&painter);
    QCOMPARE(recording::names({"beginPaint", "paint", "endPaint"}),
             QStringList({"object.beginPaint", "object.endPaint"}));
}

void TestObjectPainting::directPaintingWithoutCoreIsOnlyBracketed()
{
    TestObject object;
    object.paints = true;
    object.place({0, 0, 40, 20});
    recording::clear();
    QImage image(40, 20, QImage::Format_ARGB32);
    QPainter painter(&image);
    object.OnQPainterDraw(&painter);
    QCOMPARE(recording::names(), QStringList({"object.OnQPainterDraw", "object.beginPaint", "object.endPaint"}));
}

void TestObjectPainting::withoutPainterThePictureIsMade()
{
    Painting fixture;
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(recording::names({"beginPaint", "paint", "endPaint"}),
             QStringList({"object.beginPaint", "shape.paint", "object.endPaint"}));
    QCOMPARE(recording::lastArguments("shape", "paint"), QVariantList({true}));
    QCOMPARE(recording::lastArguments("beginPaint"), QVariantList({true}));
    QCOMPARE(recording::lastArguments("endPaint"), QVariantList({true}));
}

void TestObjectPainting::thePictureHasWholePixels()
{
    Painting fixture({0, 0, 40.9, 20.2});
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(fixture.object.cacheImage.size(), QSize(40, 20));
    QCOMPARE(fixture.object.cacheImage.format(), QImage::Format_ARGB32);
}

void TestObjectPainting::thePictureStartsTransparent()
{
    Painting fixture({0, 0, 40.9, 20.2});
    QImage atStart;
    fixture.shape->onPaint = [&](QPainter *, bool) { atStart = fixture.object.cacheImage.copy(); };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(atStart, transparentPicture(40, 20));
}

void TestObjectPainting::thePictureIsMadeAnewEachTime()
{
    Painting fixture;
    fixture.shape->onPaint = [](QPainter *painter, bool) { painter->fillRect(0, 0, 40, 20, Qt::red); };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(fixture.object.cacheImage.pixel(39, 19), qRgba(255, 0, 0, 255));
    fixture.shape->onPaint = [](QPainter *, bool) {};
    fixture.object.place({0, 0, 10, 12});
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(fixture.object.cacheImage, transparentPicture(10, 12));
}

void TestObjectPainting::aPictureThatSomebodyHoldsStaysAsItWas()
{
    Painting fixture;
    fixture.shape->onPaint = [](QPainter *painter, bool) { painter->fillRect(0, 0, 40, 20, Qt::red); };
    fixture.object.OnQPainterDraw(nullptr);
    const QImage held = fixture.object.cacheImage;
    fixture.shape->onPaint = [](QPainter *, bool) {};
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(held.pixel(39, 19), qRgba(255, 0, 0, 255));
    QCOMPARE(fixture.object.cacheImage, transparentPicture(40, 20));
}

void TestObjectPainting::aPictureOfTheSameSizeTakesTheMemoryOfTheOneBefore()
{
    Painting fixture({0, 0, 256, 256});
    fixture.shape->onPaint = [](QPainter *painter, bool) { painter->fillRect(0, 0, 256, 256, Qt::red); };
    fixture.object.OnQPainterDraw(nullptr);
    const uchar *const pixels = fixture.object.cacheImage.constBits();
    fixture.shape->onPaint = [](QPainter *, bool) {};
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(fixture.object.cacheImage.constBits(), pixels);
    QCOMPARE(fixture.object.cacheImage, transparentPicture(256, 256));
}

void TestObjectPainting::theCorePaintsIntoThePicture()
{
    Painting fixture;
    fixture.shape->onPaint = [](QPainter *painter, bool) { painter->fillRect(3, 4, 2, 1, QColor(9, 8, 7)); };
    fixture.object.OnQPainterDraw(nullptr);
    QImage expected = transparentPicture(40, 20);
    expected.setPixel(3, 4, qRgba(9, 8, 7, 255));
    expected.setPixel(4, 4, qRgba(9, 8, 7, 255));
    QCOMPARE(fixture.object.cacheImage, expected);
}

void TestObjectPainting::renderingHoldsTheLockThroughout()
{
    Painting fixture;
    bool unlocked = true;
    fixture.shape->onPaint = [&](QPainter *, bool) { unlocked = isUnlocked(fixture.object.cacheMutex); };
    fixture.object.OnQPainterDraw(nullptr);
    QVERIFY(!unlocked);
}

void TestObjectPainting::renderingLetsTheLockGo()
{
    Painting fixture;
    fixture.object.OnQPainterDraw(nullptr);
    QVERIFY(isUnlocked(fixture.object.cacheMutex));
    fixture.object.place({0, 0, 0, 0});
    fixture.object.OnQPainterDraw(nullptr);
    QVERIFY(isUnlocked(fixture.object.cacheMutex));
}

void TestObjectPainting::aPictureWithoutCoreIsTransparent()
{
    TestObject object;
    object.paints = true;
    object.place({0, 0, 40, 20});
    recording::clear();
    object.OnQPainterDraw(nullptr);
    QCOMPARE(object.cacheImage, transparentPicture(40, 20));
    QCOMPARE(recording::names(), QStringList({"object.OnQPainterDraw", "object.beginPaint", "object.endPaint"}));
    QVERIFY(isUnlocked(object.cacheMutex));
}

void TestObjectPainting::anEmptyObjectHasNoPicture_data()
{
    directPaintingOfAnEmptyObjectIsOnlyBracketed_data();
}

void TestObjectPainting::anEmptyObjectHasNoPicture()
{
    QFETCH(const QSizeF, size);
    Painting fixture;
    fixture.object.OnQPainterDraw(nullptr);
    fixture.object.place(QRectF(QPointF(0, 0), size));
    recording::clear();
    const MessageCatcher catcher;
    fixture.object.OnQPainterDraw(nullptr);
    QVERIFY(fixture.object.cacheImage.isNull());
    QCOMPARE(recording::names({"beginPaint", "paint", "endPaint"}),
             QStringList({"object.beginPaint", "object.endPaint"}));
    QCOMPARE(catcher.messages(), QStringList());
}

void TestObjectPainting::halfAPixelGivesNoPictureAndNoWarning_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("animated");
    QTest::newRow("narrow") << 27 << QSizeF(0.5, 20) << false;
    QTest::newRow("low") << 27 << QSizeF(40, 0.5) << false;
    QTest::newRow("with the host's fill") << 0 << QSizeF(0.5, 20) << false;
    QTest::newRow("animated") << 27 << QSizeF(0.5, 20) << true;
}

void TestObjectPainting::halfAPixelGivesNoPictureAndNoWarning()
{
    QFETCH(const int, type);
    QFETCH(const QSizeF, size);
    QFETCH(const bool, animated);
    Painting fixture(QRectF(QPointF(0, 0), size));
    fixture.shape->type = type;
    fixture.shape->keepOutlineRegion = true;
    fixture.shape->updateOutlineRegion();
    fixture.object.fillBrush = QBrush(Qt::red);
    if (animated) {
        fixture.shape->animator = new CSVGAnimate(nullptr, fixture.shape);
        fixture.object.paints = false;
        fixture.shape->animator->startAnimate(); // its first frame would paint already
        fixture.object.paints = true;
    }
    recording::clear();
    const MessageCatcher catcher;
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(catcher.messages(), QStringList());
    QVERIFY(fixture.object.cacheImage.isNull());
    QCOMPARE(recording::names({"beginPaint", "paint", "endPaint"}),
             QStringList({"object.beginPaint", "shape.paint", "object.endPaint"}));
    QCOMPARE(recording::lastArguments("beginPaint"), QVariantList({false}));
    QCOMPARE(recording::lastArguments("endPaint"), QVariantList({false}));
}

void TestObjectPainting::anEnormousObjectHasNoPicture_data()
{
    QTest::addColumn<QSizeF>("size");
    // More bits in a line than an int can count.
    QTest::newRow("longer than an image can be") << QSizeF(100000000, 1);
    QTest::newRow("beyond whole numbers") << QSizeF(1e18, 1);
    QTest::newRow("endless") << QSizeF(std::numeric_limits<double>::infinity(), 10);
}

void TestObjectPainting::anEnormousObjectHasNoPicture()
{
    QFETCH(const QSizeF, size);
    Painting fixture(QRectF(QPointF(0, 0), size));
    fixture.object.OnQPainterDraw(nullptr);
    QVERIFY(fixture.object.cacheImage.isNull());
    QVERIFY(isUnlocked(fixture.object.cacheMutex));
}

void TestObjectPainting::aNestedRequestIsRepeatedOnce_data()
{
    QTest::addColumn<int>("requests");
    QTest::addColumn<int>("renderings");
    QTest::newRow("no request") << 0 << 1;
    QTest::newRow("one request") << 1 << 2;
    QTest::newRow("three requests at once") << 3 << 2;
}

void TestObjectPainting::aNestedRequestIsRepeatedOnce()
{
    QFETCH(const int, requests);
    QFETCH(const int, renderings);
    Painting fixture;
    int left = requests;
    fixture.shape->onPaint = [&](QPainter *, bool) {
        for (; left > 0; --left)
            fixture.object.OnQPainterDraw(nullptr);
    };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(recording::count("shape", "paint"), renderings);
    QCOMPARE(recording::count("beginPaint"), renderings);
    QCOMPARE(recording::count("endPaint"), renderings);
    QVERIFY(isUnlocked(fixture.object.cacheMutex));
}

void TestObjectPainting::aNestedRequestReturnsAtOnce()
{
    Painting fixture;
    int beginsDuringRequest = -1;
    fixture.shape->onPaint = [&](QPainter *, bool) {
        if (beginsDuringRequest >= 0)
            return;
        fixture.object.OnQPainterDraw(nullptr);
        beginsDuringRequest = recording::count("beginPaint");
    };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(beginsDuringRequest, 1);
}

void TestObjectPainting::aNestedRequestIsRepeatedAfterTheUnlock()
{
    Painting fixture;
    int rendering = 0;
    fixture.shape->onPaint = [&](QPainter *painter, bool) {
        if (++rendering == 1)
            fixture.object.OnQPainterDraw(nullptr);
        else
            painter->fillRect(0, 0, 40, 20, Qt::blue);
    };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(fixture.object.cacheImage.pixel(5, 5), qRgba(0, 0, 255, 255));
    QCOMPARE(recording::names({"beginPaint", "endPaint"}),
             QStringList({"object.beginPaint", "object.endPaint", "object.beginPaint", "object.endPaint"}));
}

void TestObjectPainting::aShapeThatAlwaysAsksForRenderingEnds()
{
    Painting fixture;
    fixture.shape->onPaint = [&](QPainter *, bool) { fixture.object.OnQPainterDraw(nullptr); };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(recording::count("shape", "paint"), 2);
    QVERIFY(isUnlocked(fixture.object.cacheMutex));
}

void TestObjectPainting::aRequestForAnotherObjectIsServedAtOnce()
{
    Painting fixture;
    TestObject other;
    other.paints = true;
    other.place({0, 0, 5, 6});
    bool served = false;
    fixture.shape->onPaint = [&](QPainter *, bool) {
        other.OnQPainterDraw(nullptr);
        served = !other.cacheImage.isNull();
    };
    fixture.object.OnQPainterDraw(nullptr);
    QVERIFY(served);
    QCOMPARE(recording::count("shape", "paint"), 1);
}

void TestObjectPainting::anObjectCanBeRenderedAgainAfterANestedRequest()
{
    Painting fixture;
    fixture.shape->onPaint = [&](QPainter *, bool) { fixture.object.OnQPainterDraw(nullptr); };
    fixture.object.OnQPainterDraw(nullptr);
    fixture.shape->onPaint = [](QPainter *, bool) {};
    recording::clear();
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(recording::count("shape", "paint"), 1);
}

void TestObjectPainting::invalidatingWhileRenderingNotifiesAtOnce()
{
    Painting fixture;
    int notifications = 0;
    fixture.shape->onPaint = [&](QPainter *, bool) {
        if (recording::count("notifyObjPropertyChanged") > 0)
            return;
        fixture.shape->invalidate();
        notifications = recording::count("notifyObjPropertyChanged");
    };
    fixture.object.OnQPainterDraw(nullptr);
    QCOMPARE(notifications, 1);
    QCOMPARE(recording::count("shape", "paint"), 2);
}

QTEST_MAIN(TestObjectPainting)

#include "test_objectpainting.moc"
