#include <support/listed.h>
#include <support/shapefixture.h>

#include <svgobj/csvgpropitem.h>

#include <QtTest/QtTest>

using support::controlPointsText;
using support::ShapeFixture;
using support::svgText;
using support::TestObject;
using support::TestShape;
using support::twoPointTemplate;

/// A core's life: what it is when it is made, loading its template, finding its control points, its end.
class TestDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewCoreHasItsDefaults();
    void aNewCoreTakesItsZoomFromTheObject();
    void aCoreWithoutObjectHasZoomOne();
    void aCoreIsNeverCopied();

    void loadingTakesTheTemplateAsUtf8();
    void aTemplateThatDoesNotParseGivesTheFallback();
    void withoutATemplateTheFallbackIsLoaded();
    void theTemplateOfTheBaseIsEmptyButNotNull();
    void theFallbackIsTwentyByTwentyAndEmpty();
    void whenEvenTheFallbackFailsLoadingAnswersFalse();
    void aFailedLoadStillRedrawsAndNotifies();
    void aFailedLoadCanBeRepeated();
    void aSecondLoadKeepsTheDocument();
    void aSecondLoadFindsTheSamePointsAndItemsAgain();
    void aSecondLoadDoesNotAskForTheTemplate();

    void anExternallyFilledShapeInstallsACallback();
    void otherShapesInstallNoCallback();
    void theFlagActsOnlyAtTheNextLoad();
    void clearingTheFlagKeepsTheCallback();
    void theCallbackNeedsNoObject();

    void controlPointsAreFoundByNumber();
    void aGapHidesLaterControlPoints();
    void atMostThirtyTwoControlPointsAreFound();
    void aTemplateWithoutControlPointsHasNone();
    void controlPointsInsideGroupsAreFound();
    void controlPointsAreOutOfReachOfDocumentWideStyling();
    void otherNodesKeepTheirStyling();
    void controlPointsGetTheStoredSize();
    void controlPointsAreSizedWithoutResizingTheObject();
    void entriesBehindTheFirstGapAreLeftAlone();

    void initialValuesAreAskedForOnlyOnRequest();
    void initialValuesComeBeforeThePropertyItems();
    void flagsSetByInitialValuesShapeTheItems();
    void loadingEndsWithRedrawAndNotification();
    void loadingWithoutObjectCallsNobody();

    void mirrorFlagsAreStoredAsGiven();
    void aShapeWithoutAnimatorIsNotAnimating();
    void aNodeIsAddedToItsParentOrTheDocument();
    void aNodeIsRemovedFromItsParentOrTheDocument();
    void addingOrRemovingNoNodeDoesNothing();
    void hooksOfTheBaseDoNothing();

    void deletionTakesDocumentItemsAndAnimatorAlong();
    void deletionUnregistersTheAttributes();
    void deletingAnUnloadedCoreIsFine();
};

namespace {

QStringList lookups()
{
    QStringList ids;
    for (const recording::Call &call : support::listed(recording::calls({"namedNode"})))
        ids.append(call.arguments.value(0).toString());
    return ids;
}

constexpr char fallbackText[] =
    "<?xml version='1.0' encoding='utf-8'?><svg version='1.1' xmlns='http://www.w3.org/2000/svg' x='0px' y='0px' "
    "width='20px' height='20px' viewBox='0 0 20 20'></svg>";

} // namespace

void TestDocument::aNewCoreHasItsDefaults()
{
    const ShapeFixture fixture;
    const TestShape &shape = *fixture.shape;
    QVERIFY(!shape.belongDoc);
    QCOMPARE(static_cast<const CSVGObj *>(shape.owner), static_cast<const CSVGObj *>(&fixture.object));
    QVERIFY(!shape.document);
    QCOMPARE(shape.lastMousePos, QPointF());
    QVERIFY(!shape.activeControlPoint);
    QVERIFY(!shape.flipHorizontal);
    QVERIFY(!shape.flipVertical);
    QCOMPARE(shape.dragStartPos, QPointF());
    for (int i = 0; i < 32; ++i)
        QVERIFY(!shape.controlPoints[i]);
    QCOMPARE(shape.controlPointCount, 0u);
    QVERIFY(shape.propItems.isEmpty());
    QVERIFY(shape.propPenEnabled);
    QVERIFY(!shape.propPenStyleEnabled);
    QVERIFY(!shape.propPenWidthEnabled);
    QVERIFY(!shape.propFillEnabled);
    QVERIFY(!shape.outlineRegion);
    QVERIFY(!shape.keepOutlineRegion);
    QVERIFY(!shape.resizeRewritesSVG);
    QCOMPARE(shape.controlPointSize, 8.0);
    QCOMPARE(shape.dragXMin, -1000000.0);
    QCOMPARE(shape.dragXMax, 1000000.0);
    QCOMPARE(shape.dragYMin, -1000000.0);
    QCOMPARE(shape.dragYMax, 1000000.0);
    QVERIFY(shape.keepAspectRatio);
    QVERIFY(!shape.rawControlPoints);
    QVERIFY(!shape.externallyFilled);
    QVERIFY(!shape.animator);
    QVERIFY(shape.updateFinished);
    QCOMPARE(shape.savedPenStyleIndex, 0);
    QVERIFY(!shape.savedPenColor.isValid());
    QCOMPARE(shape.savedFillBrush, QBrush());
}

void TestDocument::aNewCoreTakesItsZoomFromTheObject()
{
    const ShapeFixture fixture({}, 27, 2.5);
    QCOMPARE(fixture.shape->zoomRate, 2.5);
}

void TestDocument::aCoreWithoutObjectHasZoomOne()
{
    recording::framework().zoomRate = 3;
    const TestShape shape(nullptr);
    QCOMPARE(shape.zoomRate, 1.0);
}

void TestDocument::aCoreIsNeverCopied()
{
    QVERIFY(!std::is_copy_constructible<TestShape>::value);
    QVERIFY(!std::is_copy_assignable<TestShape>::value);
}

void TestDocument::loadingTakesTheTemplateAsUtf8()
{
    ShapeFixture fixture(svgText("0 0 30 20", QString::fromUtf8("<rect id='größe'/>")));
    QVERIFY(fixture.shape->loadSVG(false));
    QCOMPARE(recording::count("getSVG"), 1);
    QCOMPARE(recording::calls({"load"}).constFirst().arguments.first().toByteArray(),
             fixture.shape->templateText.toUtf8());
    QCOMPARE(recording::count("document", "load"), 1);
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(0, 0, 30, 20));
}

void TestDocument::aTemplateThatDoesNotParseGivesTheFallback()
{
    ShapeFixture fixture("<svg><g></svg>");
    QVERIFY(fixture.shape->loadSVG(false));
    QCOMPARE(recording::count("document", "load"), 2);
    QCOMPARE(recording::lastArguments("document", "load"), QVariantList({QByteArray(fallbackText)}));
    QCOMPARE(fixture.shape->controlPointCount, 0u);
}

void TestDocument::withoutATemplateTheFallbackIsLoaded()
{
    ShapeFixture fixture;
    QCOMPARE(fixture.shape->getSVG(), QString());
    QVERIFY(fixture.shape->loadSVG(false));
    QCOMPARE(recording::lastArguments("document", "load"), QVariantList({QByteArray(fallbackText)}));
}

void TestDocument::theFallbackIsTwentyByTwentyAndEmpty()
{
    ShapeFixture fixture;
    fixture.load();
    QCOMPARE(fixture.shape->document->viewBox(), QRectF(0, 0, 20, 20));
    QVERIFY(fixture.shape->document->children().isEmpty());
}

void TestDocument::theTemplateOfTheBaseIsEmptyButNotNull()
{
    const ShapeFixture fixture;
    const QString text = fixture.shape->CSVGBase::getSVG();
    QVERIFY(text.isEmpty());
    QVERIFY(!text.isNull());
}

void TestDocument::whenEvenTheFallbackFailsLoadingAnswersFalse()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->externallyFilled = true;
    recording::svg().failingLoads = 2;
    QVERIFY(!fixture.shape->loadSVG(true));
    QVERIFY(!fixture.shape->document);
    QCOMPARE(recording::count("namedNode"), 0);
    QCOMPARE(recording::count("setCallback"), 0);
    QCOMPARE(recording::count("initGlobalPropValues"), 0);
    QCOMPARE(recording::count("initPropItems"), 0);
}

void TestDocument::aFailedLoadStillRedrawsAndNotifies()
{
    ShapeFixture fixture(twoPointTemplate());
    recording::svg().failingLoads = 2;
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::names({"OnQPainterDraw", "notifyObjPropertyChanged"}),
             QStringList({"object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
}

void TestDocument::aFailedLoadCanBeRepeated()
{
    ShapeFixture fixture(twoPointTemplate());
    recording::svg().failingLoads = 2;
    QVERIFY(!fixture.shape->loadSVG(false));
    QVERIFY(fixture.shape->loadSVG(false));
    QCOMPARE(fixture.shape->controlPointCount, 2u);
}

void TestDocument::aSecondLoadKeepsTheDocument()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    const QZeSvgTinyDocument *document = fixture.shape->document;
    fixture.shape->templateText = svgText("0 0 1 1", "");
    QVERIFY(fixture.shape->loadSVG(false));
    QCOMPARE(static_cast<const QZeSvgTinyDocument *>(fixture.shape->document), document);
    QCOMPARE(recording::count("document", "load"), 0);
}

void TestDocument::aSecondLoadFindsTheSamePointsAndItemsAgain()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    const QZeSvgNode *first = fixture.shape->point(1);
    fixture.shape->loadSVG(false);
    QCOMPARE(fixture.shape->controlPointCount, 2u);
    QCOMPARE(static_cast<const QZeSvgNode *>(fixture.shape->point(1)), first);
    QCOMPARE(recording::count("initPropItems"), 1);
    QCOMPARE(fixture.object.attributeIds, QList<int>({5002}));
}

void TestDocument::aSecondLoadDoesNotAskForTheTemplate()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::count("getSVG"), 0);
}

void TestDocument::anExternallyFilledShapeInstallsACallback()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->setExternalFilled(true);
    QVERIFY(fixture.shape->externallyFilled);
    fixture.shape->loadSVG(false);
    QVERIFY(recording::hasCallback(fixture.shape->document));
    // The installed function runs; what it reaches in the page object does nothing.
    recording::callCallback(fixture.shape->document, nullptr);
}

void TestDocument::otherShapesInstallNoCallback()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::count("setCallback"), 0);
    QVERIFY(!recording::hasCallback(fixture.shape->document));
}

void TestDocument::theFlagActsOnlyAtTheNextLoad()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->setExternalFilled(true);
    QVERIFY(!recording::hasCallback(fixture.shape->document));
    fixture.shape->loadSVG(false);
    QVERIFY(recording::hasCallback(fixture.shape->document));
}

void TestDocument::clearingTheFlagKeepsTheCallback()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->setExternalFilled(true);
    fixture.load();
    fixture.shape->setExternalFilled(false);
    QVERIFY(!fixture.shape->externallyFilled);
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::count("setCallback"), 0);
    QVERIFY(recording::hasCallback(fixture.shape->document));
}

void TestDocument::theCallbackNeedsNoObject()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.setExternalFilled(true);
    QVERIFY(shape.loadSVG(false));
    recording::callCallback(shape.document, nullptr);
    QVERIFY(recording::hasCallback(shape.document));
}

void TestDocument::controlPointsAreFoundByNumber()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->loadSVG(false);
    QCOMPARE(lookups(), QStringList({"control_1", "control_2", "control_3"}));
    QCOMPARE(fixture.shape->controlPointCount, 2u);
    QCOMPARE(fixture.shape->point(1)->nodeId(), QString("control_1"));
    QCOMPARE(fixture.shape->point(2)->nodeId(), QString("control_2"));
    QVERIFY(!fixture.shape->point(3));
}

void TestDocument::aGapHidesLaterControlPoints()
{
    ShapeFixture fixture(svgText("0 0 100 50", "<rect id='control_1' width='8' height='8'/>"
                                               "<rect id='control_2' width='8' height='8'/>"
                                               "<rect id='control_4' width='8' height='8'/>"));
    fixture.shape->loadSVG(false);
    QCOMPARE(fixture.shape->controlPointCount, 2u);
    QVERIFY(!lookups().contains("control_4"));
    QVERIFY(fixture.shape->node("control_4")->isFillEnabled());
}

void TestDocument::atMostThirtyTwoControlPointsAreFound()
{
    ShapeFixture fixture(svgText("0 0 500 50", controlPointsText(40)));
    fixture.shape->loadSVG(false);
    QCOMPARE(fixture.shape->controlPointCount, 32u);
    QCOMPARE(fixture.shape->point(32)->nodeId(), QString("control_32"));
    QCOMPARE(lookups().constLast(), QString("control_32"));
    QVERIFY(fixture.shape->node("control_33")->isStrokeEnabled());
}

void TestDocument::aTemplateWithoutControlPointsHasNone()
{
    ShapeFixture fixture(svgText("0 0 100 50", "<rect id='body'/>"));
    QVERIFY(fixture.shape->loadSVG(false));
    QCOMPARE(fixture.shape->controlPointCount, 0u);
    QVERIFY(!fixture.shape->point(1));
}

void TestDocument::controlPointsInsideGroupsAreFound()
{
    ShapeFixture fixture(svgText("0 0 100 50", "<g>" + controlPointsText(1) + "</g>"));
    fixture.shape->loadSVG(false);
    QCOMPARE(fixture.shape->controlPointCount, 1u);
}

void TestDocument::controlPointsAreOutOfReachOfDocumentWideStyling()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->loadSVG(false);
    for (int number = 1; number <= 2; ++number) {
        QVERIFY(!fixture.shape->point(number)->isFillEnabled());
        QVERIFY(!fixture.shape->point(number)->isStrokeEnabled());
    }
}

void TestDocument::otherNodesKeepTheirStyling()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->loadSVG(false);
    QVERIFY(fixture.shape->node("body")->isFillEnabled());
    QVERIFY(fixture.shape->node("body")->isStrokeEnabled());
}

void TestDocument::controlPointsGetTheStoredSize()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->controlPointSize = 12;
    fixture.shape->loadSVG(false);
    // Both keep their centres, (14, 24) and (64, 34).
    QCOMPARE(fixture.shape->pointRect(1), QRectF(8, 18, 12, 12));
    QCOMPARE(fixture.shape->pointRect(2), QRectF(58, 28, 12, 12));
}

void TestDocument::controlPointsAreSizedWithoutResizingTheObject()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->controlPointSize = 12;
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::count("object", "setSize"), 0);
}

void TestDocument::entriesBehindTheFirstGapAreLeftAlone()
{
    ShapeFixture fixture(svgText("0 0 100 50", controlPointsText(3)));
    fixture.load();
    const QZeSvgNode *third = fixture.shape->point(3);
    fixture.shape->removeNode(fixture.shape->point(2));
    fixture.shape->loadSVG(false);
    QCOMPARE(fixture.shape->controlPointCount, 1u);
    QVERIFY(!fixture.shape->point(2));
    QCOMPARE(static_cast<const QZeSvgNode *>(fixture.shape->point(3)), third);
}

void TestDocument::initialValuesAreAskedForOnlyOnRequest()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::count("initGlobalPropValues"), 0);
    fixture.shape->loadSVG(true);
    QCOMPARE(recording::count("initGlobalPropValues"), 1);
}

void TestDocument::initialValuesComeBeforeThePropertyItems()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->externallyFilled = true;
    fixture.shape->loadSVG(true);
    QCOMPARE(recording::names({"getSVG", "load", "setCallback", "namedNode", "initGlobalPropValues",
                               "initPropItems", "OnQPainterDraw", "notifyObjPropertyChanged"}),
             QStringList({"shape.getSVG", "document.load", "document.setCallback", "document.namedNode",
                          "document.namedNode", "document.namedNode", "shape.initGlobalPropValues",
                          "shape.initPropItems", "object.OnQPainterDraw", "object.notifyObjPropertyChanged"}));
}

void TestDocument::flagsSetByInitialValuesShapeTheItems()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onInitGlobalPropValues = [&] { fixture.shape->propFillEnabled = true; };
    fixture.shape->loadSVG(true);
    QVERIFY(fixture.shape->findPropItemByPropID(5005));
}

void TestDocument::loadingEndsWithRedrawAndNotification()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::calls().constLast().operation, QString("notifyObjPropertyChanged"));
    QCOMPARE(recording::lastArguments("notifyObjPropertyChanged"), QVariantList({1002, QString("")}));
    QCOMPARE(recording::lastArguments("OnQPainterDraw"), QVariantList({false}));
    QCOMPARE(recording::count("OnQPainterDraw"), 1);
    QCOMPARE(recording::count("notifyObjPropertyChanged"), 1);
}

void TestDocument::loadingWithoutObjectCallsNobody()
{
    TestShape shape(nullptr, twoPointTemplate());
    recording::clear();
    QVERIFY(shape.loadSVG(true));
    QCOMPARE(shape.controlPointCount, 2u);
    QCOMPARE(recording::names().filter(QRegularExpression("^object\\.")), QStringList());
}

void TestDocument::mirrorFlagsAreStoredAsGiven()
{
    ShapeFixture fixture;
    fixture.shape->setFlipOn(true, false);
    QVERIFY(fixture.shape->flipHorizontal);
    QVERIFY(!fixture.shape->flipVertical);
    fixture.shape->setFlipOn(false, true);
    QVERIFY(!fixture.shape->flipHorizontal);
    QVERIFY(fixture.shape->flipVertical);
}

void TestDocument::aShapeWithoutAnimatorIsNotAnimating()
{
    ShapeFixture fixture;
    QVERIFY(!fixture.shape->isAnimating());
}

void TestDocument::aNodeIsAddedToItsParentOrTheDocument()
{
    ShapeFixture fixture(svgText("0 0 9 9", "<g id='group'><rect id='inner'/></g><rect id='outer'/>"));
    fixture.load();
    fixture.shape->addNode(fixture.shape->node("inner")->clone(), "first");
    QCOMPARE(recording::names({"addChild"}), QStringList("group.addChild"));
    QCOMPARE(recording::lastArguments("addChild"), QVariantList({"first"}));
    fixture.shape->addNode(fixture.shape->node("outer")->clone(), "second");
    QCOMPARE(recording::names({"addChild"}), QStringList({"group.addChild", "document.addChild"}));
    QVERIFY(fixture.shape->node("second"));
}

void TestDocument::aNodeIsRemovedFromItsParentOrTheDocument()
{
    ShapeFixture fixture(svgText("0 0 9 9", "<g id='group'><rect id='inner'/></g><rect id='outer'/>"));
    fixture.load();
    fixture.shape->removeNode(fixture.shape->node("inner"));
    fixture.shape->removeNode(fixture.shape->node("outer"));
    QCOMPARE(recording::names({"removeChild"}), QStringList({"group.removeChild", "document.removeChild"}));
    QVERIFY(!fixture.shape->node("inner"));
    QVERIFY(!fixture.shape->node("outer"));
}

void TestDocument::addingOrRemovingNoNodeDoesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->addNode(nullptr, "control_3");
    fixture.shape->removeNode(nullptr);
    QCOMPARE(recording::names(), QStringList());
}

void TestDocument::hooksOfTheBaseDoNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CSVGBase &shape = *fixture.shape;
    QJsonArray settings;
    QMap<QString, QString> values;
    QVERIFY(!shape.updateAllControlPoints(true, true));
    QVERIFY(!shape.updateSVG(fixture.shape->point(1), QPointF(1, 1), true));
    QVERIFY(!shape.updateSVG(true));
    QVERIFY(!shape.mouseDoubleClickEvent(nullptr));
    QVERIFY(shape.GetSettingArray(settings));
    QVERIFY(settings.isEmpty());
    QVERIFY(shape.SetSettingArray(values, true, true));
    QVERIFY(shape.CanMoveControlPoint(fixture.shape->point(1), QPointF(1e9, -1e9)));
    shape.keyPressEvent(nullptr);
    shape.notifyObjectCreated();
    shape.initGlobalPropValues();
    shape.PopupObjectMenu(nullptr);
    QCOMPARE(recording::names().filter(QRegularExpression("^(object|document|undo|control_1)\\.")), QStringList());
}

void TestDocument::deletionTakesDocumentItemsAndAnimatorAlong()
{
    const int alive = recording::documentCount();
    recording::resetFramework();
    TestObject object;
    TestShape *shape = object.makeCore(twoPointTemplate());
    shape->loadSVG(false);
    shape->keepOutlineRegion = true;
    shape->updateOutlineRegion();
    QPointer<CSVGAnimate> animator = new CSVGAnimate(nullptr, shape);
    shape->animator = animator;
    QCOMPARE(recording::documentCount(), alive + 1);
    recording::clear();
    delete shape;
    object.svgBase = nullptr;
    QCOMPARE(recording::documentCount(), alive);
    QVERIFY(!animator);
}

void TestDocument::deletionUnregistersTheAttributes()
{
    recording::resetFramework();
    TestObject object;
    object.makeCore(twoPointTemplate())->loadSVG(false);
    object.addAttributeId(7);
    QCOMPARE(object.attributeIds, QList<int>({5002, 7}));
    delete object.svgBase;
    object.svgBase = nullptr;
    QCOMPARE(object.attributeIds, QList<int>({7}));
}

void TestDocument::deletingAnUnloadedCoreIsFine()
{
    recording::clear();
    {
        const TestShape shape(nullptr);
    }
    QCOMPARE(recording::count("document", "delete"), 0);
}

QTEST_MAIN(TestDocument)
#include "test_document.moc"
