#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtCore/QBuffer>
#include <QtTest/QtTest>

using support::bytesOf;
using support::Input;
using support::inputOf;
using support::Output;
using support::ShapeFixture;
using support::TestObject;
using support::twoPointTemplate;

/// Joint answers of page object and core: attributes by id and as a map, the fill, the region.
class TestAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void anAttributeOfTheCoreIsNotAskedOfTheHost();
    void anAttributeThatTheCoreDeclinesIsTheHosts();
    void attributesWithoutCoreAreTheHosts();
    void aCoreIsAlwaysAskedForAnUndoStep();
    void aTakenAttributeLeavesZeroAtTheStart();
    void aDeclinedAttributeIsSetOnTheHost();
    void settingWithoutCoreIsTheHosts();

    void theMapIsFilledByHostThenCore();
    void theCoreAnswersForTheMap();
    void theMapWithoutCoreIsFilledButFalse();
    void aStateOfEditingAppliesOnlyTheSelection();
    void aStateOfEditingWithoutCoreIsSwallowed();
    void mapsAreGivenToHostAndCore_data();
    void mapsAreGivenToHostAndCore();
    void mapsWithoutCoreAreTheHosts();

    void theDocumentFollowsTheHostsFill();
    void theHostTakesTheFillBeforeTheCore();
    void aFillWithoutCoreIsTheHosts();

    void anEmptyObjectsRegionIsLeftToTheHost_data();
    void anEmptyObjectsRegionIsLeftToTheHost();
    void theRegionIsTheOutline();
    void theRegionIsMadeAnewEachTime();
    void withoutOutlineTheRegionIsTheRectangle();
    void typeTwoAlwaysUsesTheRectangle();
    void withoutCoreTheRegionIsTheRectangle();
    void theHostIsToldTheRegionsItem();
    void theStyleSnapshotReachesTheHostToo();
    void aTakenAttributeOfAStreamThatEndedLeavesNothing();
    void aTakenAttributeOfAStreamWithoutDeviceIsFine();
    void theSmallestObjectHasARegion_data();
    void theSmallestObjectHasARegion();
};

namespace {

QPainterPath pathOf(const QRectF &rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

} // namespace

void TestAttributes::init()
{
    recording::resetSvg();
    recording::resetFramework();
    recording::clear();
}

void TestAttributes::anAttributeOfTheCoreIsNotAskedOfTheHost()
{
    ShapeFixture fixture;
    fixture.shape->onGetAttribute = [](int, QDataStream &out) {
        out << 5;
        return true;
    };
    Output out;
    QVERIFY(fixture.object.GetAttribute(5002, out));
    QCOMPARE(out.bytes(), bytesOf(5));
    QCOMPARE(recording::names(), QStringList({"shape.GetAttribute"}));
    QCOMPARE(recording::lastArguments("GetAttribute"), QVariantList({5002}));
}

void TestAttributes::anAttributeThatTheCoreDeclinesIsTheHosts()
{
    ShapeFixture fixture;
    fixture.shape->onGetAttribute = [](int, QDataStream &) { return false; };
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = answer;
        recording::clear();
        Output out;
        QCOMPARE(fixture.object.GetAttribute(2100, out), answer);
        QCOMPARE(recording::names(), QStringList({"shape.GetAttribute", "object.GetAttribute"}));
        QCOMPARE(recording::lastArguments("object", "GetAttribute"), QVariantList({2100}));
    }
}

void TestAttributes::attributesWithoutCoreAreTheHosts()
{
    TestObject object;
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = answer;
        Output out;
        QCOMPARE(object.GetAttribute(2100, out), answer);
    }
    QCOMPARE(recording::count("object", "GetAttribute"), 2);
}

void TestAttributes::aCoreIsAlwaysAskedForAnUndoStep()
{
    ShapeFixture fixture;
    fixture.shape->onSetAttribute = [](int, QDataStream &, bool, bool) { return true; };
    for (bool record : {true, false}) {
        QBuffer buffer;
        buffer.setData(bytesOf(7));
        buffer.open(QIODevice::ReadWrite);
        QDataStream in(&buffer);
        QVERIFY(fixture.object.SetAttribute(5004, in, record));
        QCOMPARE(recording::lastArguments("shape", "SetAttribute"), QVariantList({5004, record, true}));
    }
    QCOMPARE(recording::count("object", "SetAttribute"), 0);
}

void TestAttributes::aTakenAttributeLeavesZeroAtTheStart()
{
    ShapeFixture fixture;
    fixture.shape->onSetAttribute = [](int, QDataStream &in, bool, bool) {
        qint32 read = 0;
        in >> read >> read;
        return read == 0x11223344;
    };
    QBuffer buffer;
    buffer.setData(QByteArray::fromHex("aabbccdd"
                                       "11223344"
                                       "55"));
    buffer.open(QIODevice::ReadWrite);
    QDataStream in(&buffer);
    QVERIFY(fixture.object.SetAttribute(5004, in, true));
    QCOMPARE(buffer.data(), QByteArray::fromHex("00000000"
                                                "11223344"
                                                "55"));
}

void TestAttributes::aDeclinedAttributeIsSetOnTheHost()
{
    ShapeFixture fixture;
    fixture.shape->onSetAttribute = [](int, QDataStream &, bool, bool) { return false; };
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = answer;
        recording::clear();
        QBuffer buffer;
        buffer.setData(bytesOf(7));
        buffer.open(QIODevice::ReadWrite);
        QDataStream in(&buffer);
        QCOMPARE(fixture.object.SetAttribute(2100, in, answer), answer);
        QCOMPARE(recording::names(), QStringList({"shape.SetAttribute", "object.SetAttribute"}));
        QCOMPARE(recording::lastArguments("object", "SetAttribute"), QVariantList({2100, answer}));
        QCOMPARE(buffer.data(), bytesOf(7));
    }
}

void TestAttributes::settingWithoutCoreIsTheHosts()
{
    TestObject object;
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = answer;
        Input in = inputOf(7);
        QCOMPARE(object.SetAttribute(2100, in, true), answer);
    }
    QCOMPARE(recording::lastArguments("object", "SetAttribute"), QVariantList({2100, true}));
}

void TestAttributes::theMapIsFilledByHostThenCore()
{
    ShapeFixture fixture;
    fixture.shape->onGetAllAttributes = [](QMap<QString, QVariant> &map) {
        map["hostWasFirst"] = map.contains("host");
        return true;
    };
    QMap<QString, QVariant> map;
    QVERIFY(fixture.object.getAllAttributes(map));
    QCOMPARE(map, (QMap<QString, QVariant>{{"host", true}, {"hostWasFirst", true}}));
}

void TestAttributes::theCoreAnswersForTheMap()
{
    ShapeFixture fixture;
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = !answer;
        fixture.shape->onGetAllAttributes = [answer](QMap<QString, QVariant> &) { return answer; };
        QMap<QString, QVariant> map;
        QCOMPARE(fixture.object.getAllAttributes(map), answer);
    }
}

void TestAttributes::theMapWithoutCoreIsFilledButFalse()
{
    recording::framework().baseAnswer = true;
    TestObject object;
    QMap<QString, QVariant> map;
    QVERIFY(!object.getAllAttributes(map));
    QCOMPARE(map, (QMap<QString, QVariant>{{"host", true}}));
}

void TestAttributes::aStateOfEditingAppliesOnlyTheSelection()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QVERIFY(fixture.object.setAllAttributes({{"doc_state_edit", true}, {"pen_width", 7}}, true));
    QCOMPARE(recording::names(), QStringList({"document.setSelectionState", "object.clearLayerEffectCache"}));
    QCOMPARE(fixture.shape->document->selectionState(), 1);
    QVERIFY(fixture.object.setAllAttributes({{"doc_state_edit", false}}, true));
    QCOMPARE(fixture.shape->document->selectionState(), 0);
}

void TestAttributes::aStateOfEditingWithoutCoreIsSwallowed()
{
    TestObject object;
    recording::clear();
    QVERIFY(object.setAllAttributes({{"doc_state_edit", true}, {"pen_width", 7}}, true));
    QCOMPARE(recording::names(), QStringList());
}

void TestAttributes::mapsAreGivenToHostAndCore_data()
{
    QTest::addColumn<bool>("host");
    QTest::addColumn<bool>("core");
    QTest::newRow("neither knows it") << false << false;
    QTest::newRow("the host knows it") << true << false;
    QTest::newRow("the core knows it") << false << true;
    QTest::newRow("both know it") << true << true;
}

void TestAttributes::mapsAreGivenToHostAndCore()
{
    QFETCH(const bool, host);
    QFETCH(const bool, core);
    ShapeFixture fixture;
    recording::framework().baseAnswer = host;
    fixture.shape->onSetAllAttributes = [core](const QMap<QString, QVariant> &, bool) { return core; };
    const QMap<QString, QVariant> map{{"pen_width", 7}};
    QCOMPARE(fixture.object.setAllAttributes(map, core), host || core);
    QCOMPARE(recording::names(), QStringList({"object.setAllAttributes", "shape.setAllAttributes"}));
    QCOMPARE(recording::lastArguments("object", "setAllAttributes"), QVariantList({map, core}));
    QCOMPARE(recording::lastArguments("shape", "setAllAttributes"), QVariantList({map, core}));
}

void TestAttributes::mapsWithoutCoreAreTheHosts()
{
    TestObject object;
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = answer;
        QCOMPARE(object.setAllAttributes({{"pen_width", 7}}, true), answer);
    }
}

void TestAttributes::theDocumentFollowsTheHostsFill()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    CPageBgProp prop(nullptr);
    prop.setFillEnable(true);
    prop.setFillColor(QColor(10, 20, 30));
    prop.setOpacity(128);
    fixture.object.setFillProp(&prop, true);
    const QBrush hostBrush(QColor(10, 20, 30, 128));
    QCOMPARE(fixture.object.fillBrush, hostBrush);
    QCOMPARE(recording::calls("shape", "setFillBrush").constFirst().arguments,
             QVariantList({hostBrush, false, true}));
    QCOMPARE(fixture.shape->document->getAllFillBrush().color(), QColor(10, 20, 30, 128));
}

void TestAttributes::theHostTakesTheFillBeforeTheCore()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->onSetFillBrush = [](const QBrush &, bool, bool) {};
    CPageBgProp prop(nullptr);
    for (bool record : {true, false}) {
        recording::clear();
        fixture.object.setFillProp(&prop, record);
        QCOMPARE(recording::names({"setFillProp", "setFillBrush"}),
                 QStringList({"object.setFillProp", "shape.setFillBrush"}));
        QCOMPARE(recording::lastArguments("setFillProp").constLast(), QVariant(record));
    }
}

void TestAttributes::aFillWithoutCoreIsTheHosts()
{
    TestObject object;
    CPageBgProp prop(nullptr);
    prop.setFillEnable(true);
    prop.setFillColor(Qt::red);
    object.setFillProp(&prop, true);
    QCOMPARE(object.fillBrush, QBrush(Qt::red));
}

void TestAttributes::anEmptyObjectsRegionIsLeftToTheHost_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("no width") << QSizeF(0, 10);
    QTest::newRow("no height") << QSizeF(10, 0);
    QTest::newRow("negative width") << QSizeF(-1, 10);
    QTest::newRow("negative height") << QSizeF(10, -1);
}

void TestAttributes::anEmptyObjectsRegionIsLeftToTheHost()
{
    QFETCH(const QSizeF, size);
    ShapeFixture fixture;
    fixture.place(QRectF(QPointF(0, 0), size));
    fixture.object.regionPath = new QPainterPath(pathOf({1, 2, 3, 4}));
    const QPainterPath *before = fixture.object.regionPath;
    fixture.object.regenRegionShape(&fixture.object);
    QCOMPARE(static_cast<const QPainterPath *>(fixture.object.regionPath), before);
    QCOMPARE(*fixture.object.regionPath, pathOf({1, 2, 3, 4}));
    QCOMPARE(recording::names(), QStringList({"object.CBaseObject::regenRegionShape", "object.regenRegionShape"}));
    QCOMPARE(recording::lastArguments("regenRegionShape"), QVariantList({true}));
}

void TestAttributes::theRegionIsTheOutline()
{
    ShapeFixture fixture;
    fixture.place({0, 0, 100, 50});
    fixture.shape->onGetOutlinePath = [](QPainterPath *path) {
        *path = pathOf({5, 6, 7, 8});
        return true;
    };
    fixture.object.regenRegionShape(nullptr);
    QCOMPARE(*fixture.object.regionPath, pathOf({5, 6, 7, 8}));
    QCOMPARE(recording::names(), QStringList({"shape.getOutlinePath", "object.regenRegionShape"}));
}

void TestAttributes::theRegionIsMadeAnewEachTime()
{
    ShapeFixture fixture;
    fixture.place({0, 0, 100, 50});
    bool wasEmpty = false;
    fixture.shape->onGetOutlinePath = [&](QPainterPath *path) {
        wasEmpty = path->isEmpty();
        path->addRect({5, 6, 7, 8});
        return true;
    };
    for (int i = 0; i < 2; ++i) {
        fixture.object.regenRegionShape(nullptr);
        QVERIFY(wasEmpty);
        QCOMPARE(*fixture.object.regionPath, pathOf({5, 6, 7, 8}));
    }
}

void TestAttributes::withoutOutlineTheRegionIsTheRectangle()
{
    ShapeFixture fixture;
    fixture.place({3, 4, 100, 50});
    fixture.shape->onGetOutlinePath = [](QPainterPath *) { return false; };
    fixture.object.regenRegionShape(nullptr);
    QCOMPARE(*fixture.object.regionPath, pathOf({3, 4, 100, 50}));
}

void TestAttributes::typeTwoAlwaysUsesTheRectangle()
{
    ShapeFixture fixture({}, 2);
    fixture.place({3, 4, 100, 50});
    fixture.shape->onGetOutlinePath = [](QPainterPath *path) {
        path->addRect({5, 6, 7, 8});
        return true;
    };
    fixture.object.regenRegionShape(nullptr);
    QCOMPARE(*fixture.object.regionPath, pathOf({3, 4, 100, 50}));
    QCOMPARE(recording::count("getOutlinePath"), 0);
}

void TestAttributes::withoutCoreTheRegionIsTheRectangle()
{
    TestObject object;
    object.place({3, 4, 100, 50});
    object.regenRegionShape(nullptr);
    QCOMPARE(*object.regionPath, pathOf({3, 4, 100, 50}));
}

void TestAttributes::theHostIsToldTheRegionsItem()
{
    ShapeFixture fixture;
    fixture.place({3, 4, 100, 50});
    fixture.object.regenRegionShape(&fixture.object);
    QCOMPARE(recording::lastArguments("object", "regenRegionShape"), QVariantList({true}));
    fixture.object.regenRegionShape(nullptr);
    QCOMPARE(recording::lastArguments("object", "regenRegionShape"), QVariantList({false}));
    QCOMPARE(recording::count("object", "regenRegionShape"), 2);
    QCOMPARE(recording::count("CBaseObject::regenRegionShape"), 0); // its own region would replace the shape's
}

void TestAttributes::theStyleSnapshotReachesTheHostToo()
{
    for (int id : {2804, 2805}) {
        ShapeFixture fixture(twoPointTemplate());
        fixture.load();
        recording::framework().baseAnswer = true;
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        QDataStream in(&buffer);
        QVERIFY(fixture.object.SetAttribute(id, in, false));
        QCOMPARE(recording::lastArguments("object", "SetAttribute"), QVariantList({id, false}));
        QCOMPARE(buffer.data(), QByteArray());
    }
}

void TestAttributes::aTakenAttributeOfAStreamThatEndedLeavesNothing()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    QBuffer buffer;
    buffer.setData(QByteArray("\1\2"));
    buffer.open(QIODevice::ReadWrite);
    QDataStream in(&buffer);
    QVERIFY(fixture.object.SetAttribute(5004, in, false));
    QCOMPARE(buffer.data(), QByteArray("\1\2"));
    QCOMPARE(in.status(), QDataStream::ReadPastEnd);
}

void TestAttributes::aTakenAttributeOfAStreamWithoutDeviceIsFine()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->onSetAttribute = [](int, QDataStream &, bool, bool) { return true; };
    QDataStream in;
    QVERIFY(fixture.object.SetAttribute(5004, in, false));
}

void TestAttributes::theSmallestObjectHasARegion_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("flat") << QRectF(3, 4, 50, 0.5);
    QTest::newRow("narrow") << QRectF(3, 4, 0.5, 50);
    QTest::newRow("one by one") << QRectF(3, 4, 1, 1);
}

void TestAttributes::theSmallestObjectHasARegion()
{
    QFETCH(const QRectF, rect);
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.place(rect);
    fixture.object.regenRegionShape(nullptr);
    QVERIFY(fixture.object.regionPath);
    QCOMPARE(*fixture.object.regionPath, pathOf(rect));
}

QTEST_MAIN(TestAttributes)

#include "test_attributes.moc"
