#include "render/messagecatcher.h"

#include <support/mouse.h>
#include <support/shapefixture.h>

#include <QtGui/QPixmap>
#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsView>

#include <cstring>
#include <limits>
#include <memory>

using support::ShapeFixture;
using support::svgText;
using support::TestShape;
using support::twoPointTemplate;

/// How the core has its document drawn: where, at which scale, with or without control points, clipped or not; and
/// the small operations around it.
class TestCorePainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintingIsScaledPaintingAtScaleOne();
    void theDocumentIsDrawnIntoTheClientRectangle();
    void theDocumentSettlesBeforeItDraws();
    void withoutDocumentNothingIsDrawn();
    void withoutObjectNothingIsDrawn();

    void theViewFlag_data();
    void theViewFlag();
    void theDocumentIsLookedUpOnce();
    void withoutAnyDocumentTheViewFlagIsKept();

    void aScaledDrawingIsDrawnAtItsStoredScale_data();
    void aScaledDrawingIsDrawnAtItsStoredScale();
    void aScaledDrawingWithoutStoredScaleIsDrawnAsAsked();
    void otherTypesAreDrawnAsAsked();

    void drawingIsNotClippedWithoutAnimation();
    void whileAnimatingTheDrawingIsClipped();
    void whileAnimatingTheClipReplacesAnother();
    void thePaintersStateComesBack();
    void animationThatEndsWhileDrawingLeavesThePainterAsItWas();
    void animationThatStartsWhileDrawingLeavesThePainterAsItWas();

    void invalidatingRendersThenNotifies();
    void invalidatingWithoutObjectDoesNothing();
    void selectingWritesTheDocumentsState();
    void selectingWithoutDocumentDoesNothing();
    void selectingWithoutObjectOnlyWritesTheState();
    void theBelongingDocumentIsThePages();
    void withoutPageItIsTheFrameworksCurrent();
    void aPageWithoutDocumentFallsBackOnTheFramework();
    void aPageWithoutDocumentOverwritesWhatWasKnown();
    void withoutPageWhatWasKnownStays();
    void aDocumentThatDiesIsForgottenByEveryShape();
    void anotherDocumentThatDiesLeavesShapesAlone();
    void aShapeThatIsGoneIsNotTouched();
    void aLivingDocumentStaysKnownOnAnotherPage();
    void theNewLookIsToldWithTextThatIsEmptyButNotNull();
    void theFirstVisibleViewIsTheHosts();
};

namespace {

/// A painter on an image of 100 × 50.
struct Canvas
{
    Canvas()
        : image(100, 50, QImage::Format_ARGB32)
        , painter(&image)
    {
    }
    QImage image;
    QPainter painter;
};

struct Loaded : ShapeFixture
{
    explicit Loaded(int type = 27)
        : ShapeFixture(twoPointTemplate(), type)
    {
        load();
    }
};

/// An animated shape whose animation runs.
struct Animated : ShapeFixture
{
    Animated()
        : ShapeFixture(svgText("0 0 100 50", "<rect width='10' height='10'><animate/></rect>"))
    {
        place({5, 6, 70, 30});
        load();
        shape->startAnimate();
        recording::clear();
    }
};

} // namespace

void TestCorePainting::paintingIsScaledPaintingAtScaleOne()
{
    Loaded fixture;
    for (bool toCache : {true, false}) {
        QPainter *given = nullptr;
        fixture.shape->onPaintEx = [&](QPainter *painter, float, bool) { given = painter; };
        Canvas canvas;
        fixture.shape->paint(&canvas.painter, toCache);
        QCOMPARE(given, &canvas.painter);
        QCOMPARE(recording::lastArguments("paintEx"), QVariantList({1.0f, toCache}));
    }
}

void TestCorePainting::theDocumentIsDrawnIntoTheClientRectangle()
{
    Loaded fixture;
    fixture.object.place({3, 4, 55.5, 66.25});
    Canvas canvas;
    QPainter *given = nullptr;
    recording::svg().drawHook = [&](QPainter *painter) { given = painter; };
    fixture.shape->paintEx(&canvas.painter, 1.5f, false);
    QCOMPARE(fixture.shape->document->lastDraw().target, QRectF(3, 4, 55.5, 66.25));
    QCOMPARE(fixture.shape->document->lastDraw().scale, 1.5f);
    QCOMPARE(given, &canvas.painter);
    QCOMPARE(recording::count("draw"), 1);
}

void TestCorePainting::theDocumentSettlesBeforeItDraws()
{
    Loaded fixture;
    Canvas canvas;
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(recording::names({"setBeforeDraw", "draw"}), QStringList({"document.setBeforeDraw", "document.draw"}));
    QCOMPARE(recording::lastArguments("draw").value(4), QVariant(true));
}

void TestCorePainting::withoutDocumentNothingIsDrawn()
{
    ShapeFixture fixture;
    fixture.place({0, 0, 10, 10});
    recording::framework().zoomRate = 3;
    fixture.document.zoom = 3;
    Canvas canvas;
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(recording::count("draw"), 0);
    QCOMPARE(fixture.shape->zoomRate, 1.0);
}

void TestCorePainting::withoutObjectNothingIsDrawn()
{
    recording::resetFramework();
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    recording::clear();
    Canvas canvas;
    shape.paintEx(&canvas.painter, 1, true);
    QCOMPARE(recording::count("draw"), 0);
}

void TestCorePainting::theViewFlag_data()
{
    QTest::addColumn<QString>("view");
    QTest::addColumn<bool>("onPixmap");
    QTest::addColumn<bool>("toCache");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("expected");
    const QString main("mainGraphicsView");
    QTest::newRow("editing view") << main << false << false << false << true;
    QTest::newRow("editing view, selected") << main << false << false << true << true;
    QTest::newRow("editing view, its pixmap") << main << true << false << false << true;
    QTest::newRow("other case") << "maingraphicsview" << false << false << false << false;
    QTest::newRow("other view") << "thumbnail" << false << false << false << false;
    QTest::newRow("other view, selected") << "thumbnail" << false << false << true << false;
    QTest::newRow("other view, cache") << "thumbnail" << false << true << false << true;
    QTest::newRow("pixmap") << "thumbnail" << true << false << false << false;
    QTest::newRow("pixmap, selected") << "thumbnail" << true << false << true << true;
    QTest::newRow("pixmap, cache") << "thumbnail" << true << true << false << true;
    QTest::newRow("no view") << "" << false << false << false << false;
    QTest::newRow("no view, cache") << "" << false << true << false << true;
    QTest::newRow("no view, pixmap, selected") << "" << true << false << true << true;
}

void TestCorePainting::theViewFlag()
{
    QFETCH(const QString, view);
    QFETCH(const bool, onPixmap);
    QFETCH(const bool, toCache);
    QFETCH(const bool, selected);
    QFETCH(const bool, expected);
    for (int state : {0, 1, -1}) {
        Loaded fixture;
        fixture.document.state = state;
        fixture.object.setSelected(selected);
        recording::framework().viewName = view;
        QPixmap pixmap(10, 10);
        QImage image(10, 10, QImage::Format_ARGB32);
        QPainter painter(onPixmap ? static_cast<QPaintDevice *>(&pixmap) : &image);
        fixture.shape->paintEx(&painter, 1, toCache);
        QCOMPARE(fixture.shape->document->lastDraw().viewFlag, expected && state == 0);
    }
}

void TestCorePainting::theDocumentIsLookedUpOnce()
{
    Loaded fixture;
    Canvas canvas;
    for (int i = 0; i < 3; ++i)
        fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(recording::count("GetPage"), 1);
    QCOMPARE(fixture.shape->belongDoc, static_cast<IDocument *>(&fixture.document));
}

void TestCorePainting::withoutAnyDocumentTheViewFlagIsKept()
{
    Loaded fixture;
    fixture.object.SetPage(nullptr);
    recording::framework().currentDocument = nullptr;
    Canvas canvas;
    fixture.shape->paintEx(&canvas.painter, 1, true);
    QVERIFY(!fixture.shape->belongDoc);
    QVERIFY(fixture.shape->document->lastDraw().viewFlag);
}

void TestCorePainting::aScaledDrawingIsDrawnAtItsStoredScale_data()
{
    QTest::addColumn<double>("stored");
    QTest::addColumn<float>("asked");
    QTest::addColumn<float>("expected");
    QTest::newRow("2") << 2.0 << 1.0f << 0.5f;
    QTest::newRow("2, asked for more") << 2.0 << 3.0f << 0.5f;
    QTest::newRow("a quarter") << 0.25 << 1.0f << 4.0f;
    QTest::newRow("3") << 3.0 << 1.0f << float(1.0 / 3.0);
    QTest::newRow("0") << 0.0 << 1.0f << 1.0f;
    QTest::newRow("negative") << -2.0 << 1.0f << 1.0f;
    QTest::newRow("negative, asked for more") << -2.0 << 3.0f << 3.0f;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 1.0f << 1.0f;
    QTest::newRow("reciprocal that no float holds") << 1e-39 << 3.0f << 3.0f;
    QTest::newRow("reciprocal that no double holds") << 5e-324 << 3.0f << 3.0f;
    QTest::newRow("reciprocal that a float just holds") << 1e-38 << 3.0f << float(1 / 1e-38);
}

void TestCorePainting::aScaledDrawingIsDrawnAtItsStoredScale()
{
    QFETCH(const double, stored);
    QFETCH(const float, asked);
    QFETCH(const float, expected);
    Loaded fixture(26);
    fixture.shape->onGetSpecialProperty = [stored](int, QDataStream &out) {
        out << stored;
        return true;
    };
    Canvas canvas;
    fixture.shape->paintEx(&canvas.painter, asked, false);
    QVERIFY(fixture.shape->document->lastDraw().scale == expected);
    QCOMPARE(recording::lastArguments("shape", "GetSpecialProperty"), QVariantList({26}));
}

void TestCorePainting::aScaledDrawingWithoutStoredScaleIsDrawnAsAsked()
{
    Loaded fixture(26);
    fixture.shape->onGetSpecialProperty = [](int, QDataStream &) { return false; };
    Canvas canvas;
    fixture.shape->paintEx(&canvas.painter, 3, false);
    QCOMPARE(fixture.shape->document->lastDraw().scale, 3.0f);
}

void TestCorePainting::otherTypesAreDrawnAsAsked()
{
    for (int type : {0, 25, 27, 1000}) {
        Loaded fixture(type);
        Canvas canvas;
        fixture.shape->paintEx(&canvas.painter, 3, false);
        QCOMPARE(fixture.shape->document->lastDraw().scale, 3.0f);
        QCOMPARE(recording::count("GetSpecialProperty"), 0);
    }
}

void TestCorePainting::drawingIsNotClippedWithoutAnimation()
{
    Loaded fixture;
    Canvas canvas;
    bool clipped = true;
    recording::svg().drawHook = [&](QPainter *painter) { clipped = painter->hasClipping(); };
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QVERIFY(!clipped);
}

void TestCorePainting::whileAnimatingTheDrawingIsClipped()
{
    Animated fixture;
    Canvas canvas;
    QRectF clip;
    recording::svg().drawHook = [&](QPainter *painter) { clip = painter->clipBoundingRect(); };
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(clip, QRectF(5, 6, 70, 30));
    QVERIFY(!canvas.painter.hasClipping());
}

void TestCorePainting::whileAnimatingTheClipReplacesAnother()
{
    Animated fixture;
    Canvas canvas;
    canvas.painter.setClipRect(QRectF(90, 40, 5, 5));
    QRectF clip;
    recording::svg().drawHook = [&](QPainter *painter) { clip = painter->clipBoundingRect(); };
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(clip, QRectF(5, 6, 70, 30));
}

void TestCorePainting::thePaintersStateComesBack()
{
    Animated fixture;
    Canvas canvas;
    canvas.painter.setClipRect(QRectF(90, 40, 5, 5));
    canvas.painter.setPen(Qt::green);
    recording::svg().drawHook = [](QPainter *painter) { painter->setPen(Qt::red); };
    const MessageCatcher catcher;
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(canvas.painter.clipBoundingRect(), QRectF(90, 40, 5, 5));
    QCOMPARE(canvas.painter.pen(), QPen(Qt::green));
    canvas.painter.end();
    QCOMPARE(catcher.messages(), QStringList());
}

void TestCorePainting::animationThatEndsWhileDrawingLeavesThePainterAsItWas()
{
    Animated fixture;
    Canvas canvas;
    recording::svg().drawHook = [&](QPainter *) { fixture.shape->stopAnimate(); };
    const MessageCatcher catcher;
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QVERIFY(!fixture.shape->isAnimating());
    QVERIFY(!canvas.painter.hasClipping());
    canvas.painter.end();
    QCOMPARE(catcher.messages(), QStringList());
}

void TestCorePainting::animationThatStartsWhileDrawingLeavesThePainterAsItWas()
{
    Animated fixture;
    fixture.shape->stopAnimate();
    Canvas canvas;
    canvas.painter.setPen(Qt::green);
    canvas.painter.save(); // the caller's own, not to be taken
    canvas.painter.setPen(Qt::blue);
    recording::svg().drawHook = [&](QPainter *) { fixture.shape->startAnimate(); };
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QVERIFY(fixture.shape->isAnimating());
    QCOMPARE(canvas.painter.pen(), QPen(Qt::blue));
    canvas.painter.restore();
    QCOMPARE(canvas.painter.pen(), QPen(Qt::green));
}

void TestCorePainting::invalidatingRendersThenNotifies()
{
    Loaded fixture;
    fixture.shape->invalidate();
    QCOMPARE(recording::names(), QStringList({"object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
    QCOMPARE(recording::lastArguments("OnQPainterDraw"), QVariantList({false}));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({1002, ""}));
}

void TestCorePainting::invalidatingWithoutObjectDoesNothing()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    recording::clear();
    shape.invalidate();
    QCOMPARE(recording::names(), QStringList());
}

void TestCorePainting::selectingWritesTheDocumentsState()
{
    Loaded fixture;
    for (bool selected : {true, false}) {
        recording::clear();
        static_cast<CSVGBase *>(fixture.shape)->setSelected(selected);
        QCOMPARE(recording::names(), QStringList({"document.setSelectionState", "object.clearLayerEffectCache"}));
        QCOMPARE(fixture.shape->document->selectionState(), selected ? 1 : 0);
        QCOMPARE(recording::lastArguments("clearLayerEffectCache"), QVariantList({2}));
    }
}

void TestCorePainting::selectingWithoutDocumentDoesNothing()
{
    ShapeFixture fixture;
    fixture.shape->setSelected(true);
    QCOMPARE(recording::names(), QStringList());
}

void TestCorePainting::selectingWithoutObjectOnlyWritesTheState()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    shape.setSelected(true);
    QCOMPARE(shape.document->selectionState(), 1);
}

void TestCorePainting::theBelongingDocumentIsThePages()
{
    Loaded fixture;
    recording::Document current;
    recording::framework().currentDocument = &current;
    QCOMPARE(fixture.shape->getBelongDoc(), static_cast<IDocument *>(&fixture.document));
    QCOMPARE(fixture.shape->belongDoc, static_cast<IDocument *>(&fixture.document));
}

void TestCorePainting::withoutPageItIsTheFrameworksCurrent()
{
    Loaded fixture;
    recording::Document current;
    recording::framework().currentDocument = &current;
    fixture.object.SetPage(nullptr);
    QCOMPARE(fixture.shape->getBelongDoc(), static_cast<IDocument *>(&current));
    QCOMPARE(fixture.shape->belongDoc, static_cast<IDocument *>(&current));
}

void TestCorePainting::aPageWithoutDocumentFallsBackOnTheFramework()
{
    Loaded fixture;
    recording::Document current;
    recording::framework().currentDocument = &current;
    fixture.page.belongsTo = nullptr;
    QCOMPARE(fixture.shape->getBelongDoc(), static_cast<IDocument *>(&current));
}

void TestCorePainting::aPageWithoutDocumentOverwritesWhatWasKnown()
{
    Loaded fixture;
    recording::Document known;
    fixture.shape->belongDoc = &known;
    fixture.page.belongsTo = nullptr;
    recording::framework().currentDocument = nullptr;
    QVERIFY(!fixture.shape->getBelongDoc());
    QVERIFY(!fixture.shape->belongDoc);
}

void TestCorePainting::withoutPageWhatWasKnownStays()
{
    Loaded fixture;
    recording::Document known;
    fixture.shape->belongDoc = &known;
    fixture.object.SetPage(nullptr);
    QCOMPARE(fixture.shape->getBelongDoc(), static_cast<IDocument *>(&known));
}

void TestCorePainting::aDocumentThatDiesIsForgottenByEveryShape()
{
    Loaded fixture;
    TestShape other(&fixture.object, twoPointTemplate());
    auto former = std::make_unique<recording::Document>();
    recording::framework().currentDocument = former.get();
    fixture.object.SetPage(nullptr);
    fixture.shape->getBelongDoc();
    other.belongDoc = former.get(); // however it came to know it
    recording::framework().currentDocument = nullptr;
    former.reset();
    QVERIFY(!fixture.shape->belongDoc);
    QVERIFY(!other.belongDoc);
    fixture.object.SetPage(&fixture.page);
    fixture.document.blocked = 1;
    QVERIFY(!press(*fixture.shape, {14, 24}));
    QCOMPARE(fixture.shape->belongDoc, static_cast<IDocument *>(&fixture.document));
}

void TestCorePainting::anotherDocumentThatDiesLeavesShapesAlone()
{
    Loaded fixture;
    fixture.shape->getBelongDoc();
    {
        const recording::Document other;
    }
    QCOMPARE(fixture.shape->belongDoc, static_cast<IDocument *>(&fixture.document));
}

void TestCorePainting::aShapeThatIsGoneIsNotTouched()
{
    auto document = std::make_unique<recording::Document>();
    alignas(TestShape) char memory[sizeof(TestShape)];
    auto *shape = new (memory) TestShape(nullptr);
    shape->belongDoc = document.get();
    IDocument *const *known = &shape->belongDoc;
    const auto offset = reinterpret_cast<const char *>(known) - memory;
    shape->~TestShape();
    const auto address = reinterpret_cast<quintptr>(document.get());
    std::memcpy(memory + offset, &address, sizeof address);
    document.reset();
    QVERIFY(!std::memcmp(memory + offset, &address, sizeof address)); // the memory is somebody else's by now
}

void TestCorePainting::aLivingDocumentStaysKnownOnAnotherPage()
{
    Loaded fixture;
    recording::Document former;
    recording::framework().currentDocument = &former;
    fixture.object.SetPage(nullptr);
    fixture.shape->getBelongDoc();
    fixture.object.SetPage(&fixture.page);
    Canvas canvas;
    fixture.shape->paintEx(&canvas.painter, 1, false);
    QCOMPARE(fixture.shape->belongDoc, static_cast<IDocument *>(&former));
}

void TestCorePainting::theNewLookIsToldWithTextThatIsEmptyButNotNull()
{
    Loaded fixture;
    fixture.shape->invalidate();
    const QVariantList told = recording::lastArguments("notifyObjPropertyChanged");
    QCOMPARE(told, QVariantList({1002, QString("")}));
    QVERIFY(!told[1].toString().isNull());
}

void TestCorePainting::theFirstVisibleViewIsTheHosts()
{
    Loaded fixture;
    QGraphicsView hidden;
    QGraphicsView shown;
    QGraphicsView later;
    shown.show();
    later.show();
    QList<QGraphicsView *> views{nullptr, &hidden, &shown, &later};
    QCOMPARE(fixture.shape->findFirstVisibleView(views), &shown);
    QList<QGraphicsView *> none{&hidden};
    QVERIFY(!fixture.shape->findFirstVisibleView(none));
}

QTEST_MAIN(TestCorePainting)

#include "test_corepainting.moc"
