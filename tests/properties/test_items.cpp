#include "properties/editorlists.h"

#include <support/shapefixture.h>
#include <support/streams.h>

#include <svgobj/csvgpropitem.h>

#include <QtTest/QtTest>

using support::bytesOf;
using support::Input;
using support::ShapeFixture;
using support::TestShape;
using support::twoPointTemplate;

/// Property items: the descriptors, the list that a shape builds, and its lookups.
class TestItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleLinesAreDrawnByTheHostOnce(); // first: they are kept for the whole process

    void anItemKeepsItsFields();
    void anItemCopiesItsExtraData();
    void extraDataIsTheItemsOwn();
    void anItemWithoutExtraDataHasNone();
    void emptyExtraDataCountsAsNone();

    void aShapeStartsWithoutItems();
    void aShapeThatChangesNothingOffersItsPenColour();
    void allFlagsGiveFourItemsInOrder();
    void eachFlagGivesItsItem_data();
    void eachFlagGivesItsItem();
    void withoutFlagsThereAreNoCommonItems();
    void aFlagActsAtTheNextBuild();
    void itemsAreBuiltWithoutAnObject();

    void theShapesOwnItemsComeFirst();
    void theShapesOwnItemsStartFromAnEmptyList();
    void commonItemsTakeTheirNamesFromTheShape();
    void onlyAttributesAreRegistered();
    void attributesAreRegisteredInListOrder();
    void aSecondBuildRegistersEachIdOnce();
    void clearingEmptiesTheList();
    void clearingUnregistersEveryItem();
    void clearingRemovesEveryOccurrence();
    void clearingLeavesOtherIdsRegistered();

    void namesOfTheCommonProperties_data();
    void namesOfTheCommonProperties();
    void anItemIsFoundByItsId();
    void theFirstItemOfAnIdIsFound();
    void anUnknownIdFindsNothing();
    void anItemIsRenamed();
    void renamingReachesTheFirstItemOnly();
    void renamingAnUnknownIdDoesNothing();
    void anActionLeadsToItsProperty();
    void theFirstItemOfAnActionCounts();
    void anActionWithoutItemLeadsNowhere();

    void theLineStyleListHasSixIconEntries();
    void theWidthListCountsToTheMaximum();
    void theWidthListOfTheBaseEndsAtEight();
    void theMaximumIsAskedForOnce();
    void aMaximumBelowOneGivesNoEntries();
};

namespace {

QList<int> idsOf(const TestShape &shape)
{
    QList<int> ids;
    for (const CSVGPropItem *item : shape.propItems)
        ids.append(item->propId);
    return ids;
}

void enableAll(TestShape &shape)
{
    shape.propPenEnabled = true;
    shape.propPenStyleEnabled = true;
    shape.propPenWidthEnabled = true;
    shape.propFillEnabled = true;
}

CSVGPropItem *newItem(int propId, int actionId = 2000, bool isAttribute = true)
{
    return new CSVGPropItem(propId, QString("own %1").arg(propId), actionId, DATA_TYPE_INT, nullptr, isAttribute);
}

} // namespace

void TestItems::sampleLinesAreDrawnByTheHostOnce()
{
    recording::clear();
    EditorLists::lineStyles();
    const QVector<recording::Call> icons = recording::calls({"genIconForLineStyle"});
    QCOMPARE(icons.size(), 6);
    for (int style = 0; style < 6; ++style)
        QCOMPARE(icons[style].arguments, QVariantList({80, 15, 3, style, QColor(Qt::black)}));
    EditorLists::lineStyles();
    QCOMPARE(recording::count("genIconForLineStyle"), 6);
}

void TestItems::anItemKeepsItsFields()
{
    QByteArray extra("abc");
    const CSVGPropItem item(7, "name", 8, DATA_TYPE_REAL, &extra, true);
    QCOMPARE(item.propId, 7);
    QCOMPARE(item.propName, QString("name"));
    QCOMPARE(item.actionId, 8);
    QCOMPARE(int(item.dataType), 2);
    QCOMPARE(item.extraData, QByteArray("abc"));
    QVERIFY(item.isAttribute);
    const CSVGPropItem other(7, "name", 8, DATA_TYPE_5, nullptr, false);
    QCOMPARE(int(other.dataType), 5);
    QVERIFY(!other.isAttribute);
}

void TestItems::anItemCopiesItsExtraData()
{
    QByteArray extra("abc");
    CSVGPropItem item(7, "name", 8, DATA_TYPE_INT, &extra, true);
    extra[0] = 'x';
    QCOMPARE(*item.getExtraData(), QByteArray("abc"));
}

void TestItems::extraDataIsTheItemsOwn()
{
    QByteArray extra("abc");
    CSVGPropItem item(7, "name", 8, DATA_TYPE_INT, &extra, true);
    QCOMPARE(item.getExtraData(), &item.extraData);
}

void TestItems::anItemWithoutExtraDataHasNone()
{
    CSVGPropItem item(7, "name", 8, DATA_TYPE_INT, nullptr, true);
    QVERIFY(!item.getExtraData());
}

void TestItems::emptyExtraDataCountsAsNone()
{
    QByteArray extra("");
    CSVGPropItem item(7, "name", 8, DATA_TYPE_INT, &extra, true);
    QVERIFY(!item.getExtraData());
}

void TestItems::aShapeStartsWithoutItems()
{
    const ShapeFixture fixture(twoPointTemplate());
    QVERIFY(fixture.shape->propItems.isEmpty());
}

void TestItems::aShapeThatChangesNothingOffersItsPenColour()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QCOMPARE(idsOf(*fixture.shape), QList<int>({5002}));
    QCOMPARE(fixture.object.attributeIds, QList<int>({5002}));
}

void TestItems::allFlagsGiveFourItemsInOrder()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.load();
    QCOMPARE(idsOf(*fixture.shape), QList<int>({5005, 5002, 5003, 5004}));
}

void TestItems::eachFlagGivesItsItem_data()
{
    QTest::addColumn<int>("propId");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("actionId");
    QTest::addColumn<int>("dataType");
    QTest::addColumn<bool>("hasExtraData");
    QTest::newRow("pen colour") << 5002 << "IDS_SVG_PENCOLOR" << 1002 << 3 << false;
    QTest::newRow("pen style") << 5003 << "IDS_SVG_PENSTYLE" << 1003 << 1 << true;
    QTest::newRow("pen width") << 5004 << "IDS_SVG_PENWIDTH" << 1004 << 1 << true;
    QTest::newRow("fill") << 5005 << "IDS_SVG_FILLCOLOR" << 1005 << 3 << false;
}

void TestItems::eachFlagGivesItsItem()
{
    QFETCH(int, propId);
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenEnabled = propId == 5002;
    fixture.shape->propPenStyleEnabled = propId == 5003;
    fixture.shape->propPenWidthEnabled = propId == 5004;
    fixture.shape->propFillEnabled = propId == 5005;
    fixture.load();
    QCOMPARE(idsOf(*fixture.shape), QList<int>({propId}));
    CSVGPropItem &item = *fixture.shape->propItems.first();
    QTEST(item.propName, "name");
    QTEST(item.actionId, "actionId");
    QTEST(int(item.dataType), "dataType");
    QTEST(item.getExtraData() != nullptr, "hasExtraData");
    QVERIFY(item.isAttribute);
}

void TestItems::withoutFlagsThereAreNoCommonItems()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenEnabled = false;
    fixture.load();
    QVERIFY(fixture.shape->propItems.isEmpty());
    QVERIFY(fixture.object.attributeIds.isEmpty());
}

void TestItems::aFlagActsAtTheNextBuild()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->propFillEnabled = true;
    QVERIFY(!fixture.shape->findPropItemByPropID(5005));
    fixture.shape->initPropItems();
    QVERIFY(fixture.shape->findPropItemByPropID(5005));
}

void TestItems::itemsAreBuiltWithoutAnObject()
{
    TestShape shape(nullptr, twoPointTemplate());
    shape.loadSVG(false);
    QCOMPARE(idsOf(shape), QList<int>({5002}));
    shape.clearPropItems();
    QVERIFY(shape.propItems.isEmpty());
}

void TestItems::theShapesOwnItemsComeFirst()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.shape->onInitSpecialPropItems = [&] { fixture.shape->propItems << newItem(26) << newItem(27); };
    fixture.load();
    QCOMPARE(idsOf(*fixture.shape), QList<int>({26, 27, 5005, 5002, 5003, 5004}));
}

void TestItems::theShapesOwnItemsStartFromAnEmptyList()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->initPropItems();
    QCOMPARE(recording::lastArguments("initSpecialPropItems"), QVariantList({0}));
    QCOMPARE(recording::count("initSpecialPropItems"), 1);
}

void TestItems::commonItemsTakeTheirNamesFromTheShape()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.shape->onGetPropName = [](int propId) { return QString("name of %1").arg(propId); };
    fixture.load();
    for (const CSVGPropItem *item : qAsConst(fixture.shape->propItems))
        QCOMPARE(item->propName, QString("name of %1").arg(item->propId));
}

void TestItems::onlyAttributesAreRegistered()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onInitSpecialPropItems = [&] { fixture.shape->propItems << newItem(26, 2000, false); };
    fixture.load();
    QCOMPARE(fixture.object.attributeIds, QList<int>({5002}));
}

void TestItems::attributesAreRegisteredInListOrder()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.shape->onInitSpecialPropItems = [&] { fixture.shape->propItems << newItem(27) << newItem(26); };
    fixture.object.addAttributeId(1);
    fixture.load();
    QCOMPARE(fixture.object.attributeIds, QList<int>({1, 27, 26, 5005, 5002, 5003, 5004}));
}

void TestItems::aSecondBuildRegistersEachIdOnce()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.load();
    fixture.shape->initPropItems();
    QCOMPARE(fixture.object.attributeIds, QList<int>({5005, 5002, 5003, 5004}));
    QCOMPARE(fixture.shape->propItems.size(), 4);
}

void TestItems::clearingEmptiesTheList()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->clearPropItems();
    QCOMPARE(fixture.shape->propItems.size(), 0);
    QVERIFY(fixture.object.attributeIds.isEmpty());
}

void TestItems::clearingUnregistersEveryItem()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onInitSpecialPropItems = [&] { fixture.shape->propItems << newItem(26, 2000, false); };
    fixture.load();
    fixture.object.addAttributeId(26);
    fixture.shape->clearPropItems();
    QVERIFY(fixture.object.attributeIds.isEmpty());
}

void TestItems::clearingRemovesEveryOccurrence()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.addAttributeId(5002);
    QCOMPARE(fixture.object.attributeIds, QList<int>({5002, 5002}));
    fixture.shape->clearPropItems();
    QVERIFY(fixture.object.attributeIds.isEmpty());
}

void TestItems::clearingLeavesOtherIdsRegistered()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.object.addAttributeId(5003);
    fixture.shape->clearPropItems();
    QCOMPARE(fixture.object.attributeIds, QList<int>({5003}));
}

void TestItems::namesOfTheCommonProperties_data()
{
    QTest::addColumn<int>("propId");
    QTest::addColumn<QString>("name");
    QTest::newRow("pen colour") << 5002 << "IDS_SVG_PENCOLOR";
    QTest::newRow("pen style") << 5003 << "IDS_SVG_PENSTYLE";
    QTest::newRow("pen width") << 5004 << "IDS_SVG_PENWIDTH";
    QTest::newRow("fill") << 5005 << "IDS_SVG_FILLCOLOR";
    QTest::newRow("none") << 0 << "";
    QTest::newRow("below") << 5001 << "";
    QTest::newRow("above") << 5006 << "";
    QTest::newRow("snapshot") << 2804 << "";
}

void TestItems::namesOfTheCommonProperties()
{
    QFETCH(int, propId);
    const ShapeFixture fixture;
    QTEST(fixture.shape->getPropName(propId), "name");
    QVERIFY(!fixture.shape->getPropName(propId).isNull());
}

void TestItems::anItemIsFoundByItsId()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.load();
    QCOMPARE(fixture.shape->findPropItemByPropID(5003), fixture.shape->propItems[2]);
}

void TestItems::theFirstItemOfAnIdIsFound()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.shape->onInitSpecialPropItems = [&] { fixture.shape->propItems << newItem(26) << newItem(5002); };
    fixture.load();
    QCOMPARE(fixture.shape->findPropItemByPropID(5002), fixture.shape->propItems[1]);
    QCOMPARE(fixture.shape->findPropItemByPropID(5002)->propName, QString("own 5002"));
}

void TestItems::anUnknownIdFindsNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(!fixture.shape->findPropItemByPropID(5005));
    QVERIFY(!fixture.shape->findPropItemByPropID(0));
    QVERIFY(!fixture.shape->findPropItemByPropID(1002));
}

void TestItems::anItemIsRenamed()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->changePropName(5002, "IDS_EDGE");
    QCOMPARE(fixture.shape->propItems.first()->propName, QString("IDS_EDGE"));
}

void TestItems::renamingReachesTheFirstItemOnly()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onInitSpecialPropItems = [&] { fixture.shape->propItems << newItem(5002); };
    fixture.load();
    fixture.shape->changePropName(5002, "IDS_EDGE");
    QCOMPARE(fixture.shape->propItems[0]->propName, QString("IDS_EDGE"));
    QCOMPARE(fixture.shape->propItems[1]->propName, QString("IDS_SVG_PENCOLOR"));
}

void TestItems::renamingAnUnknownIdDoesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->changePropName(5003, "IDS_EDGE");
    QCOMPARE(fixture.shape->propItems.size(), 1);
    QCOMPARE(fixture.shape->propItems.first()->propName, QString("IDS_SVG_PENCOLOR"));
}

void TestItems::anActionLeadsToItsProperty()
{
    ShapeFixture fixture(twoPointTemplate());
    enableAll(*fixture.shape);
    fixture.load();
    QCOMPARE(fixture.shape->actionIdToPropId(1002), 5002);
    QCOMPARE(fixture.shape->actionIdToPropId(1003), 5003);
    QCOMPARE(fixture.shape->actionIdToPropId(1004), 5004);
    QCOMPARE(fixture.shape->actionIdToPropId(1005), 5005);
}

void TestItems::theFirstItemOfAnActionCounts()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->onInitSpecialPropItems = [&] {
        fixture.shape->propItems << newItem(26, 1002) << newItem(27, 1002);
    };
    fixture.load();
    QCOMPARE(fixture.shape->actionIdToPropId(1002), 26);
}

void TestItems::anActionWithoutItemLeadsNowhere()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QCOMPARE(fixture.shape->actionIdToPropId(1004), 0);
    QCOMPARE(fixture.shape->actionIdToPropId(1001), 0);
    QCOMPARE(fixture.shape->actionIdToPropId(5002), 0);
}

void TestItems::theLineStyleListHasSixIconEntries()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenStyleEnabled = true;
    fixture.load();
    const QByteArray bytes = *fixture.shape->findPropItemByPropID(5003)->getExtraData();
    QCOMPARE(bytes.left(8), bytesOf(qint32(6), qint32(2)));
    Input input(bytes.mid(8));
    QDataStream &stream = input;
    for (int style = 0; style < 6; ++style) {
        QString text = "x";
        QPixmap icon;
        stream >> text >> icon;
        QVERIFY(text.isEmpty());
        QVERIFY(!text.isNull());
        QCOMPARE(icon.size(), QSize(80, 15));
        QCOMPARE(icon.toImage().pixelColor(0, 0), QColor(style, 3, 0));
    }
    QVERIFY(stream.atEnd());
    QCOMPARE(bytes.mid(8, 4), QByteArray(4, '\0'));
}

void TestItems::theWidthListCountsToTheMaximum()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenWidthEnabled = true;
    fixture.shape->onGetMaxPenWidth = [] { return 3; };
    fixture.load();
    QCOMPARE(*fixture.shape->findPropItemByPropID(5004)->getExtraData(),
             bytesOf(qint32(3), qint32(0), QString("1"), QString("2"), QString("3")));
}

void TestItems::theWidthListOfTheBaseEndsAtEight()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenWidthEnabled = true;
    fixture.load();
    QCOMPARE(fixture.shape->getMaxPenWidth(), 8);
    QCOMPARE(*fixture.shape->findPropItemByPropID(5004)->getExtraData(),
             bytesOf(qint32(8), qint32(0), QString("1"), QString("2"), QString("3"), QString("4"), QString("5"),
                     QString("6"), QString("7"), QString("8")));
}

void TestItems::theMaximumIsAskedForOnce()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.shape->propPenWidthEnabled = true;
    fixture.shape->loadSVG(false);
    QCOMPARE(recording::count("getMaxPenWidth"), 1);
}

void TestItems::aMaximumBelowOneGivesNoEntries()
{
    QCOMPARE(EditorLists::penWidths(0), bytesOf(qint32(0), qint32(0)));
    QCOMPARE(EditorLists::penWidths(-4), bytesOf(qint32(-4), qint32(0)));
}

QTEST_MAIN(TestItems)
#include "test_items.moc"
