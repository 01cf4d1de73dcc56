#include <support/listed.h>
#include <support/shapefixture.h>

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <memory>

using support::ShapeFixture;
using support::TestObject;
using support::twoPointTemplate;

/// The page object's life: what it is when it is made, the end of its creation, its end, and what it says it is.
class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theBaseGetsTheArgumentsAndNoPage();
    void aNewObjectHasItsDefaults();
    void constructionAsksTheHostInOrder();
    void attributesThatShapesDoNotOfferAreTakenOut();
    void otherAttributesOfTheHostStay();
    void theEdgeHandlesAreDisabled();
    void theDefaultPenIsTranslucentBlue();
    void aConfiguredPenColorIsTaken();
    void theObjectRemembersItsThread();

    void deletionTakesTheCoreAlong();
    void theCoreIsDeletedBeforeTheHostBase();
    void everyBaseDeletesTheWholeObject();

    void creationEndsInOrder();
    void creationIsFinishedBeforeTheOutlineIsAsked();
    void creationEndsWithoutCoreToo();

    void theTypeIsTheSameForEveryShape();
    void theHostTypeIsTheTypeWithoutUserType();
    void operationsOfShapesAreAnsweredWithoutTheHost_data();
    void operationsOfShapesAreAnsweredWithoutTheHost();
    void otherOperationsAreAnsweredByTheHost_data();
    void otherOperationsAreAnsweredByTheHost();

    void paintingGoesThroughTheHostBase();
    void selectingReachesTheCoreBeforeTheHost();
    void deselectingReachesTheCoreBeforeTheHost();
    void theItemsOwnStateCountsNotTheValue();
    void otherChangesDoNotReachTheCore();
    void selectingWithoutCoreReachesTheHost();
    void theHostAnswersItemChanges();

    void aChangedRectangleIsToldWithTheItem();
    void aChangedOutlineRegeneratesTheRegion();
    void theDocumentsCallbackDoesNothing();
    void anAttributeIdIsAppendedEachTime();
    void removingAnAttributeIdRemovesEveryOccurrence();
};

namespace {

/// Lays the forwarders of a concrete object open that tests ask about themselves.
class RegionObject : public TestObject
{
public:
    void regenRegionShape(QGraphicsItem *item) override { regenerations.append(item); }
    QList<QGraphicsItem *> regenerations;
};

const QList<int> notOffered{2001, 2002, 2003, 2004, 2050, 2051};

} // namespace

void TestShell::init()
{
    recording::resetSvg();
    recording::resetFramework();
    recording::clear();
}

void TestShell::theBaseGetsTheArgumentsAndNoPage()
{
    TestObject parent;
    TestObject object(42, false, &parent);
    QCOMPARE(recording::lastArguments("object", "CBaseObject"), QVariantList({42, false, true, false}));
    TestObject selectable(7, true, nullptr);
    QCOMPARE(recording::lastArguments("object", "CBaseObject"), QVariantList({7, true, false, false}));
}

void TestShell::aNewObjectHasItsDefaults()
{
    TestObject object;
    QVERIFY(!object.svgBase);
    QCOMPARE(object.baseSize, QSizeF(-1.0, -1.0));
    QVERIFY(object.cacheImage.isNull());
    QVERIFY(object.cacheMutex.tryLock());
    QVERIFY2(!object.cacheMutex.tryLock(), "the mutex must not be recursive");
    object.cacheMutex.unlock();
    QCOMPARE(object.getObjName(), QString(""));
    QVERIFY(!object.getObjName().isNull());
    QVERIFY(!object.createFinished);
}

void TestShell::constructionAsksTheHostInOrder()
{
    const TestObject object;
    QCOMPARE(recording::names({"CBaseObject", "setHandlesDisable", "colorSetting", "setMyPenColor"}),
             QStringList({"object.CBaseObject", "object.setHandlesDisable", "object.setHandlesDisable",
                          "object.setHandlesDisable", "object.setHandlesDisable", "framework.colorSetting",
                          "object.setMyPenColor"}));
}

void TestShell::attributesThatShapesDoNotOfferAreTakenOut()
{
    recording::framework().attributeIds = notOffered + notOffered;
    const TestObject object;
    QCOMPARE(object.attributeIds, QList<int>());
}

void TestShell::otherAttributesOfTheHostStay()
{
    recording::framework().attributeIds = {2000, 2001, 2005, 2050, 2049, 2001, 2052, 7, 7};
    const TestObject object;
    QCOMPARE(object.attributeIds, QList<int>({2000, 2005, 2049, 2052, 7, 7}));
}

void TestShell::theEdgeHandlesAreDisabled()
{
    const TestObject object;
    QVariantList handles;
    for (const recording::Call &call : support::listed(recording::calls("object", "setHandlesDisable"))) {
        handles.append(call.arguments.value(0));
        QCOMPARE(call.arguments.value(1), QVariant(true));
    }
    QCOMPARE(handles, QVariantList({22, 24, 25, 27}));
}

void TestShell::theDefaultPenIsTranslucentBlue()
{
    const TestObject object;
    QCOMPARE(recording::lastArguments("framework", "colorSetting"),
             QVariantList({1001, QColor(100, 100, 200, 200), false}));
    QCOMPARE(recording::lastArguments("object", "setMyPenColor"),
             QVariantList({QColor(100, 100, 200, 200), false}));
    QCOMPARE(object.myPen.color(), QColor(100, 100, 200, 200));
}

void TestShell::aConfiguredPenColorIsTaken()
{
    recording::framework().colors[1001] = QColor(1, 2, 3, 4);
    const TestObject object;
    QCOMPARE(recording::lastArguments("object", "setMyPenColor"), QVariantList({QColor(1, 2, 3, 4), false}));
}

void TestShell::theObjectRemembersItsThread()
{
    const TestObject object;
    QCOMPARE(object.createThreadId, QThread::currentThreadId());
}

void TestShell::deletionTakesTheCoreAlong()
{
    const int before = recording::documentCount();
    auto object = std::make_unique<TestObject>();
    object->makeCore(twoPointTemplate())->loadSVG(false);
    QCOMPARE(recording::documentCount(), before + 1);
    object.reset();
    QCOMPARE(recording::documentCount(), before);
}

void TestShell::theCoreIsDeletedBeforeTheHostBase()
{
    auto object = std::make_unique<TestObject>();
    object->makeCore(twoPointTemplate())->loadSVG(false);
    recording::clear();
    object.reset();
    QCOMPARE(recording::names({"delete"}), QStringList({"document.delete", "object.delete"}));
}

void TestShell::everyBaseDeletesTheWholeObject()
{
    const int before = recording::documentCount();
    const auto loaded = [] {
        auto *object = new TestObject;
        object->makeCore(twoPointTemplate())->loadSVG(false);
        return object;
    };
    delete static_cast<QObject *>(loaded());
    delete static_cast<QGraphicsItem *>(loaded());
    delete static_cast<CPSRootObject *>(loaded());
    QCOMPARE(recording::documentCount(), before);
    QCOMPARE(recording::count("object", "delete"), 3);
}

void TestShell::creationEndsInOrder()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.object.doAfterObjCreated();
    QCOMPARE(recording::names(), QStringList({"shape.updateOutlineRegion", "object.updateAfterObjRectChanged",
                                              "object.onCreateFinished", "object.OnQPainterDraw"}));
    QCOMPARE(recording::lastArguments("updateAfterObjRectChanged"), QVariantList({false, true}));
    QCOMPARE(recording::lastArguments("onCreateFinished"), QVariantList({false}));
    QCOMPARE(recording::lastArguments("OnQPainterDraw"), QVariantList({false}));
}

void TestShell::creationIsFinishedBeforeTheOutlineIsAsked()
{
    ShapeFixture fixture(twoPointTemplate());
    bool finished = false;
    fixture.shape->onUpdateOutlineRegion = [&] { finished = fixture.object.createFinished; };
    QVERIFY(!fixture.object.isCreateFinished());
    fixture.object.doAfterObjCreated();
    QVERIFY(finished);
    QVERIFY(fixture.object.isCreateFinished());
}

void TestShell::creationEndsWithoutCoreToo()
{
    TestObject object;
    recording::clear();
    object.doAfterObjCreated();
    QVERIFY(object.createFinished);
    QCOMPARE(recording::names(),
             QStringList({"object.updateAfterObjRectChanged", "object.onCreateFinished", "object.OnQPainterDraw"}));
}

void TestShell::theTypeIsTheSameForEveryShape()
{
    TestObject object;
    QCOMPARE(object.type(), 66537);
    for (int shapeType : {0, 26, 27, 1000}) {
        object.makeCore({}, shapeType);
        QCOMPARE(object.type(), 66537);
    }
    QCOMPARE(static_cast<const QGraphicsItem &>(object).type(), 66537);
    QCOMPARE(static_cast<const CBaseObject &>(object).type(), 66537);
}

void TestShell::theHostTypeIsTheTypeWithoutUserType()
{
    const TestObject object;
    QCOMPARE(object.GetType(), 1001);
}

void TestShell::operationsOfShapesAreAnsweredWithoutTheHost_data()
{
    QTest::addColumn<int>("operation");
    for (int operation : {0, 1, 2, 10, 11, 20, 21, 22, 23, 24, 30, 31, 32, 36, 100, 200, 1001, 1100, 1201})
        QTest::addRow("%d", operation) << operation;
}

void TestShell::operationsOfShapesAreAnsweredWithoutTheHost()
{
    QFETCH(const int, operation);
    TestObject object;
    QVERIFY(object.canDo(OperationType(operation)));
    QVERIFY(static_cast<CPSRootObject &>(object).canDo(OperationType(operation)));
    QCOMPARE(recording::count("object", "canDo"), 0);
}

void TestShell::otherOperationsAreAnsweredByTheHost_data()
{
    QTest::addColumn<int>("operation");
    for (int operation : {-1, 3, 9, 12, 19, 25, 29, 33, 35, 37, 99, 101, 199, 201, 1000, 1202})
        QTest::addRow("%d", operation) << operation;
}

void TestShell::otherOperationsAreAnsweredByTheHost()
{
    QFETCH(const int, operation);
    TestObject object;
    QVERIFY(!object.canDo(OperationType(operation)));
    recording::framework().baseAnswer = true;
    QVERIFY(object.canDo(OperationType(operation)));
    QCOMPARE(recording::count("object", "canDo"), 2);
    QCOMPARE(recording::lastArguments("object", "canDo"), QVariantList({operation}));
}

void TestShell::paintingGoesThroughTheHostBase()
{
    TestObject object;
    recording::clear();
    QImage image(4, 4, QImage::Format_ARGB32);
    QPainter painter(&image);
    object.paint(&painter, nullptr, nullptr);
    QCOMPARE(recording::names(), QStringList({"object.paint", "object.OnQPainterDraw"}));
    QCOMPARE(recording::lastArguments("OnQPainterDraw"), QVariantList({true}));
}

void TestShell::selectingReachesTheCoreBeforeTheHost()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.setSelected(true);
    const QVector<recording::Call> calls = recording::calls({"setSelectionState", "itemChange"});
    QCOMPARE(calls.size(), 3);
    QCOMPARE(calls[0].arguments, QVariantList({int(QGraphicsItem::ItemSelectedChange)}));
    QCOMPARE(calls[1].operation, QString("setSelectionState"));
    QCOMPARE(calls[1].arguments, QVariantList({1}));
    QCOMPARE(calls[2].arguments, QVariantList({int(QGraphicsItem::ItemSelectedHasChanged)}));
}

void TestShell::deselectingReachesTheCoreBeforeTheHost()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.setSelected(true);
    recording::clear();
    fixture.object.setSelected(false);
    const QVector<recording::Call> calls = recording::calls({"setSelectionState", "itemChange"});
    QCOMPARE(calls.size(), 3);
    QCOMPARE(calls[1].operation, QString("setSelectionState"));
    QCOMPARE(calls[1].arguments, QVariantList({0}));
    QCOMPARE(calls[2].arguments, QVariantList({int(QGraphicsItem::ItemSelectedHasChanged)}));
}

void TestShell::theItemsOwnStateCountsNotTheValue()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.itemChange(QGraphicsItem::ItemSelectedHasChanged, true);
    QCOMPARE(recording::lastArguments("document", "setSelectionState"), QVariantList({0}));
}

void TestShell::otherChangesDoNotReachTheCore()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    for (int change = 0; change <= QGraphicsItem::ItemTransformOriginPointHasChanged; ++change) {
        if (change == QGraphicsItem::ItemSelectedHasChanged)
            continue;
        fixture.object.itemChange(QGraphicsItem::GraphicsItemChange(change), QVariant());
        QCOMPARE(recording::lastArguments("object", "itemChange"), QVariantList({change}));
    }
    QCOMPARE(recording::count("setSelectionState"), 0);
}

void TestShell::selectingWithoutCoreReachesTheHost()
{
    TestObject object;
    recording::clear();
    object.itemChange(QGraphicsItem::ItemSelectedHasChanged, true);
    QCOMPARE(recording::names(), QStringList({"object.itemChange"}));
}

void TestShell::theHostAnswersItemChanges()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QCOMPARE(fixture.object.itemChange(QGraphicsItem::ItemSelectedHasChanged, 5), QVariant(5));
    QCOMPARE(fixture.object.itemChange(QGraphicsItem::ItemPositionChange, QPointF(3, 4)), QVariant(QPointF(3, 4)));
}

void TestShell::aChangedRectangleIsToldWithTheItem()
{
    TestObject object;
    recording::clear();
    object.updateRectChanged();
    QCOMPARE(recording::names(), QStringList({"object.updateAfterObjRectChanged"}));
    QCOMPARE(recording::lastArguments("updateAfterObjRectChanged"), QVariantList({true, true}));
}

void TestShell::aChangedOutlineRegeneratesTheRegion()
{
    RegionObject object;
    object.notifyOutlineRegionChanged();
    QCOMPARE(object.regenerations, QList<QGraphicsItem *>({nullptr}));
}

void TestShell::theDocumentsCallbackDoesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->setExternalFilled(true);
    fixture.load();
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    recording::callCallback(fixture.shape->document, &painter);
    painter.end();
    QCOMPARE(recording::names(), QStringList());
    QImage untouched(2, 2, QImage::Format_ARGB32);
    untouched.fill(Qt::green);
    QCOMPARE(image, untouched);
}

void TestShell::anAttributeIdIsAppendedEachTime()
{
    TestObject object;
    object.attributeIds = {4};
    object.addAttributeId(9);
    object.addAttributeId(4);
    QCOMPARE(object.attributeIds, QList<int>({4, 9, 4}));
}

void TestShell::removingAnAttributeIdRemovesEveryOccurrence()
{
    TestObject object;
    object.attributeIds = {4, 9, 4, 5};
    object.removeAttributeId(4);
    QCOMPARE(object.attributeIds, QList<int>({9, 5}));
    object.removeAttributeId(77);
    QCOMPARE(object.attributeIds, QList<int>({9, 5}));
}

QTEST_MAIN(TestShell)

#include "test_shell.moc"
