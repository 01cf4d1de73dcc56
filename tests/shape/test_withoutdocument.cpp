#include <support/exact.h>
#include <support/mouse.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

using support::bytesOf;
using support::exact;
using support::Input;
using support::Output;
using support::ShapeFixture;
using support::twoPointTemplate;

/// A shape whose document could not be loaded, neither the template nor what stands in for it.
class TestWithoutDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void penAndFillHaveNoValue();
    void penAndFillAreNeitherSetNorRecorded();
    void theAttributeMapHasAllFourNames();
    void attributesAreApplied();
    void aSnapshotOfTheStyleChangesNothing();

    void everyFieldIsSaved_data();
    void everyFieldIsSaved();
    void everyKeyIsSaved_data();
    void everyKeyIsSaved();
    void theSavedStateComesBack();
    void theSavedKeysComeBack();
    void aCountThatWasLoadedIsNotSavedWithoutItsPoints();
    void thePageObjectIsSavedAndLoaded();

    void pointsAndLengthsAreMappedOntoNoViewBox();
    void theObjectKeepsItsSizeAndIsToldOfItsRectangle();
    void aSizeChangeIsPassedOn();
    void controlPointsOfOthersAreStillSized();
    void theOutlineIsEmpty();
    void nothingIsPaintedAtAnyZoom();
    void theMouseMovesNothing();
    void flagsAndItemsWork();
    void theAnimationPacesNothing();
    void nodesGoToTheirParentOrNowhere();
    void aNodeThatIsNoneHasTheDefaultLimits();
    void thePanelIsDescribed();
};

namespace {

/// 40 × 30 item units.
struct Bare : ShapeFixture
{
    Bare()
        : ShapeFixture(twoPointTemplate())
    {
        place({0, 0, 40, 30});
        shape->propPenStyleEnabled = true;
        shape->propPenWidthEnabled = true;
        shape->propFillEnabled = true;
        recording::svg().failingLoads = 2;
        if (shape->loadSVG(false))
            qFatal("a document was loaded");
        object.createFinished = true;
        recording::clear();
    }
};

/// A core without a document on a stream: no raw points, no point, a flag and a value for each kind of pen.
QByteArray savedWithoutDocument()
{
    return bytesOf(qint32(0), true, true, QColor(), true, qint32(0), true, qint32(0));
}

} // namespace

void TestWithoutDocument::penAndFillHaveNoValue()
{
    Bare bare;
    QVERIFY(!bare.shape->getPenColor().isValid());
    QCOMPARE(int(bare.shape->getPenStyle()), 0);
    QCOMPARE(bare.shape->getPenWidth(), 0);
    QCOMPARE(bare.shape->getFillBrush(), QBrush(Qt::NoBrush));
}

void TestWithoutDocument::penAndFillAreNeitherSetNorRecorded()
{
    Bare bare;
    bare.shape->rawControlPoints = true;
    bare.shape->setPenColor(Qt::red, true);
    bare.shape->setPenStyle(Qt::DashLine, true);
    bare.shape->setPenWidth(5, true);
    bare.shape->setFillBrush(QBrush(Qt::red), true, true);
    bare.shape->updateBrush(QBrush(Qt::red));
    QCOMPARE(recording::names({"RecordAction", "setFillProp", "updateAllControlPoints", "push"}), QStringList());
    QCOMPARE(exact(bare.shape->controlPointSize), exact(8.0));
    QVERIFY(!bare.shape->getPenColor().isValid());
}

void TestWithoutDocument::theAttributeMapHasAllFourNames()
{
    Bare bare;
    QMap<QString, QVariant> map;
    QVERIFY(bare.shape->getAllAttributes(map));
    QCOMPARE(map.keys(), QStringList({"fill_color", "pen_color", "pen_style", "pen_width"}));
    QCOMPARE(map["pen_width"], QVariant(0));
    QCOMPARE(map["pen_style"], QVariant(0));
    QVERIFY(!map["pen_color"].value<QColor>().isValid());
    QCOMPARE(map["fill_color"].value<QBrush>(), QBrush());
}

void TestWithoutDocument::attributesAreApplied()
{
    Bare bare;
    QVERIFY(bare.shape->setAllAttributes({{"pen_width", 3}, {"fill_color", QColor(Qt::red)}}, false));
    QCOMPARE(recording::count("OnQPainterDraw"), 1);
    QVERIFY(!bare.shape->setAllAttributes({{"pen_width", 0}, {"pen_style", 0}}, false));
}

void TestWithoutDocument::aSnapshotOfTheStyleChangesNothing()
{
    Bare bare;
    QVERIFY(!bare.shape->SetAttribute(2804, Input({}), true, true));
    QVERIFY(!bare.shape->SetAttribute(2805, Input({}), true, true));
    QCOMPARE(bare.shape->savedPenStyleIndex, 0);
    QCOMPARE(recording::names({"RecordAction", "push"}), QStringList());
}

void TestWithoutDocument::everyFieldIsSaved_data()
{
    QTest::addColumn<bool>("raw");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << false << savedWithoutDocument();
    QTest::newRow("raw control points") << true << bytesOf(QRectF(0, 0, 0, 0)) + savedWithoutDocument();
}

void TestWithoutDocument::everyFieldIsSaved()
{
    QFETCH(const bool, raw);
    QFETCH(const QByteArray, bytes);
    Bare bare;
    bare.shape->rawControlPoints = raw;
    Output out;
    QVERIFY(bare.shape->save(out));
    QCOMPARE(out.bytes(), bytes);
}

void TestWithoutDocument::everyKeyIsSaved_data()
{
    QTest::addColumn<bool>("raw");
    QTest::newRow("plain") << false;
    QTest::newRow("raw control points") << true;
}

void TestWithoutDocument::everyKeyIsSaved()
{
    QFETCH(const bool, raw);
    Bare bare;
    bare.shape->rawControlPoints = raw;
    QJsonObject json;
    QVERIFY(bare.shape->saveJson(json));
    QJsonObject expected{{"SVG_ControlCount", 0},           {"SVG_PropFillEnabled", true},
                         {"SVG_PropPenEnabled", true},      {"SVG_PenColor", "#ff000000"},
                         {"SVG_PropPenStyleEnabled", true}, {"SVG_PenStyle", 0},
                         {"SVG_PropPenWidthEnabled", true}, {"SVG_PenWidth", 0}};
    if (raw)
        expected["SVG_viewBox"] = QJsonObject{{"x", 0}, {"y", 0}, {"width", 0}, {"height", 0}};
    QCOMPARE(json, expected);
}

void TestWithoutDocument::theSavedStateComesBack()
{
    for (const bool raw : {false, true}) {
        Bare bare;
        bare.shape->rawControlPoints = raw;
        Output out;
        bare.shape->SavePropertyForPlayback(out);
        Input in(out.bytes());
        QVERIFY(bare.shape->LoadPropertyForPlayback(in));
        QCOMPARE(in.consumed(), qint64(out.bytes().size()));
        QCOMPARE(in.status(), QDataStream::Ok);
    }
}

void TestWithoutDocument::theSavedKeysComeBack()
{
    Bare bare;
    bare.shape->rawControlPoints = true;
    QJsonObject json;
    bare.shape->saveJson(json);
    const QJsonObject saved = json;
    QVERIFY(bare.shape->loadJson(json));
    QCOMPARE(json, saved);
}

void TestWithoutDocument::aCountThatWasLoadedIsNotSavedWithoutItsPoints()
{
    Bare bare;
    QVERIFY(bare.shape->load(Input(bytesOf(qint32(2), 1.0, 2.0, 3.0, 4.0, false, false, false, false))));
    Output out;
    bare.shape->save(out);
    QCOMPARE(out.bytes(), savedWithoutDocument());
    QJsonObject json;
    bare.shape->saveJson(json);
    QCOMPARE(json["SVG_ControlCount"], QJsonValue(0));
}

void TestWithoutDocument::thePageObjectIsSavedAndLoaded()
{
    Bare bare;
    Output out;
    QVERIFY(bare.object.save(out));
    QCOMPARE(out.bytes(), bytesOf(QRectF(0, 0, 40, 30), true, qint32(27)) + savedWithoutDocument());
    bare.object.onCreateCore = [](int, bool) {}; // the one that is there
    bare.object.paints = true;
    QVERIFY(bare.object.load(Input(out.bytes())));
    QCOMPARE(bare.object.cacheImage.size(), QSize(40, 30));
}

void TestWithoutDocument::pointsAndLengthsAreMappedOntoNoViewBox()
{
    Bare bare;
    QCOMPARE(exact(bare.shape->mapToSVG({10, 10})), exact(QPointF(0, 0)));
    QCOMPARE(exact(bare.shape->mapXToSVG(10)), exact(0.0));
    QVERIFY(qIsInf(bare.shape->mapYToObject(10)));
    QCOMPARE(exact(bare.shape->getDefaultSVGSize()), exact(QSizeF(100, 100)));
    QCOMPARE(exact(bare.shape->getMinimizeSize()), exact(QSizeF(1, 1)));
}

void TestWithoutDocument::theObjectKeepsItsSizeAndIsToldOfItsRectangle()
{
    Bare bare;
    bare.shape->setFlipOn(true, true);
    bare.shape->adjustSvgPosition(QPointF(5, 6), 7, 8, true);
    bare.shape->adjustSvgPosition(QRectF(1, 2, 3, 4), true);
    bare.shape->resizeSVG(1, 1, false);
    QCOMPARE(exact(bare.object.clientRect), exact(QRectF(0, 0, 40, 30)));
    QCOMPARE(exact(bare.object.pos()), exact(QPointF(0, 0)));
    QCOMPARE(exact(bare.shape->lastMousePos), exact(QPointF(0, 0)));
    QCOMPARE(recording::count("updateAfterObjRectChanged"), 3);
}

void TestWithoutDocument::aSizeChangeIsPassedOn()
{
    Bare bare;
    bare.shape->resizeRewritesSVG = true;
    bare.shape->keepAspectRatio = false;
    bare.object.setSize({80, 50}, false, true);
    QCOMPARE(exact(bare.object.clientRect), exact(QRectF(0, 0, 80, 50)));
    QCOMPARE(recording::count("shape", "setSize"), 1);
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 2); // of the shape and of the object
}

void TestWithoutDocument::controlPointsOfOthersAreStillSized()
{
    Bare bare;
    ShapeFixture other(twoPointTemplate());
    other.load();
    bare.shape->changeControlPointSize(other.shape->point(1), 4, false);
    QCOMPARE(exact(other.shape->pointRect(1)), exact(QRectF(12, 22, 4, 4)));
    QVERIFY(!bare.shape->updateSVGControlPoint(other.shape->point(1), {1, 2}, true, false, true));
    QCOMPARE(exact(other.shape->pointRect(1)), exact(QRectF(1, 2, 4, 4)));
}

void TestWithoutDocument::theOutlineIsEmpty()
{
    Bare bare;
    QPainterPath path;
    QVERIFY(!bare.shape->getOutlinePath(&path));
    bare.shape->keepOutlineRegion = true;
    bare.shape->updateOutlineRegion();
    QVERIFY(bare.shape->getOutlinePath(&path));
    bare.shape->addAllControlPointsRegionImpl(&path);
    QVERIFY(path.isEmpty());
    QPainterPath border;
    QPainterPath source;
    source.addRect(0, 0, 10, 10);
    bare.shape->addBorderPenWidthRegionImpl(&border, &source); // a pen of no width, and 2 to hit it
    QCOMPARE(border.boundingRect(), QRectF(-1, -1, 12, 12));
}

void TestWithoutDocument::nothingIsPaintedAtAnyZoom()
{
    Bare bare;
    bare.document.zoom = 2;
    QImage image(40, 30, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const QImage before = image;
    QPainter painter(&image);
    bare.shape->paint(&painter, false);
    bare.shape->setSelected(true);
    QCOMPARE(image, before);
    QCOMPARE(exact(bare.shape->zoomRate), exact(1.0));
    QCOMPARE(recording::count("clearLayerEffectCache"), 0);
}

void TestWithoutDocument::theMouseMovesNothing()
{
    Bare bare;
    QVERIFY(!press(*bare.shape, {14, 24}));
    QVERIFY(!bare.shape->updateFinished);
    QVERIFY(!moveTo(*bare.shape, {20, 24}));
    QVERIFY(!bare.shape->CheckHitTestHandlers({14, 24}));
    QVERIFY(!release(*bare.shape, {20, 24}));
    QVERIFY(bare.shape->updateFinished);
    QVERIFY(!bare.shape->DoPlaybackActionEx(1001, Input(bytesOf(QString("control_1"), QPointF(1, 1)))));
}

void TestWithoutDocument::flagsAndItemsWork()
{
    Bare bare;
    bare.shape->setFlipOn(true, false);
    bare.shape->setExternalFilled(true);
    QVERIFY(bare.shape->flipHorizontal && !bare.shape->flipVertical && bare.shape->externallyFilled);
    bare.shape->initPropItems();
    QVector<int> ids;
    for (const CSVGPropItem *item : qAsConst(bare.shape->propItems))
        ids.append(item->propId);
    QCOMPARE(ids, QVector<int>({5005, 5002, 5003, 5004}));
    QCOMPARE(bare.shape->actionIdToPropId(1004), 5004);
    bare.shape->clearPropItems();
    QVERIFY(bare.shape->propItems.isEmpty());
}

void TestWithoutDocument::theAnimationPacesNothing()
{
    Bare bare;
    QVERIFY(!bare.shape->startAnimate());
    QVERIFY(!bare.shape->stopAnimate());
    QVERIFY(!bare.shape->isAnimating());
    CSVGAnimate pacemaker(nullptr, bare.shape);
    pacemaker.startAnimate();
    pacemaker.startAnimate();
    QVERIFY(pacemaker.isRunning());
    QCOMPARE(recording::count("OnQPainterDraw"), 2);
    QCOMPARE(recording::count("startAnimate") + recording::count("stopAnimate"), 0);
}

void TestWithoutDocument::nodesGoToTheirParentOrNowhere()
{
    Bare bare;
    ShapeFixture other(support::svgText("0 0 9 9", "<g id='group'><rect id='inner'/></g><rect id='outer'/>"));
    other.load();
    recording::clear();
    bare.shape->addNode(other.shape->node("outer"), "new");
    bare.shape->removeNode(other.shape->node("outer"));
    QCOMPARE(recording::names({"addChild", "removeChild"}), QStringList());
    bare.shape->removeNode(other.shape->node("inner"));
    QVERIFY(!other.shape->node("inner"));
    QVERIFY(other.shape->node("outer"));
}

void TestWithoutDocument::aNodeThatIsNoneHasTheDefaultLimits()
{
    Bare bare;
    QCOMPARE(bare.shape->getXMin(nullptr), -1000000.0);
    QCOMPARE(bare.shape->getXMax(nullptr), 1000000.0);
    QCOMPARE(bare.shape->getYMin(nullptr), -1000000.0);
    QCOMPARE(bare.shape->getYMax(nullptr), 1000000.0);
}

void TestWithoutDocument::thePanelIsDescribed()
{
    Bare bare;
    QString text;
    QVERIFY(bare.shape->GetSettingJson(text));
    QVERIFY(text.contains("settings"));
    recording::framework().settings = {{"idLineStyle", "1"}, {"idFillColor", "#800000ff"}};
    QVERIFY(bare.shape->SetSettingJson(QString(), true, true));
    QCOMPARE(recording::names({"push", "RecordAction"}), QStringList());
}

QTEST_MAIN(TestWithoutDocument)
#include "test_withoutdocument.moc"
