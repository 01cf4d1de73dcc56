#include <support/exact.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtTest/QtTest>

using support::bytesOf;
using support::exact;
using support::Input;
using support::inputOf;
using support::Output;
using support::ShapeFixture;
using support::TestObject;
using support::TestShape;
using support::twoPointTemplate;

/// The page object's data around its core's: stream, JSON and playback.
class TestPersistence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void savingWithoutCoreWritesOneFalseByte();
    void savingWithCoreWritesFlagTypeAndCore();
    void savingAnswersTrueWhateverTheCoreSays();
    void aCorelessObjectIsLoadedCoreless();
    void loadingMakesTheCoreOfTheSavedType();
    void theCoreReadsWhatFollowsTheType();
    void theLoadedSizeIsTheBaseBeforeTheCoreLoads();
    void theHostsRectangleSurvivesTheCore();
    void aScaledDrawingGetsItsSubType();
    void otherTypesGetNoSubType();
    void aTypeWithoutCoreIsFinishedAllTheSame();
    void loadingFinishesTheCreationAfterTheCore();
    void aShortStreamLoadsNoCore();
    void savingAndLoadingGivesTheSameObject();

    void jsonWithoutCoreSaysSo();
    void jsonWithCoreHoldsFlagAndType();
    void savingJsonAnswersTrueWhateverTheCoreSays();
    void jsonMakesTheCoreOfTheSavedType();
    void jsonWithoutTypeMeansZero();
    void jsonWithATypeThatIsNoNumberMeansZero();
    void jsonWithoutUsableFlagLoadsNoCore_data();
    void jsonWithoutUsableFlagLoadsNoCore();
    void readingJsonAddsMissingKeys();
    void jsonTakesTheLoadedSizeAsBase();
    void jsonKeepsWhatTheCoreDidToTheRectangle();
    void theBaseOfJsonIsTheLoadedSizeWhateverTheCoreDoesToTheRectangle();
    void jsonSetsNoSubType();
    void jsonFinishesTheCreationAfterTheCore();

    void playbackDataIsTheHostsThenTheCores();
    void playbackDataIsReadInTheSameOrder();
    void playbackDataWithoutCoreIsTheHosts();
    void theCoreAnswersForPlaybackDataElseTheHost();
    void theSavedTypeDecidesAboutTheSubType();
};

namespace {

const QRectF hostRect(1, 2, 30, 40);

/// A stream with hostRect as host part and a core of that type.
template<typename... Rest> Input stored(int type, const Rest &...rest)
{
    return inputOf(hostRect, true, qint32(type), rest...);
}

struct Loading : TestObject
{
    Loading() { recording::clear(); }
};

QJsonObject storedJson(int type)
{
    return {{"hostWidth", 30}, {"hostHeight", 40}, {"SVG_bSVG", true}, {"SVG_SVGType", type}};
}

} // namespace

void TestPersistence::init()
{
    recording::resetSvg();
    recording::resetFramework();
    recording::clear();
}

void TestPersistence::savingWithoutCoreWritesOneFalseByte()
{
    TestObject object;
    object.place(hostRect);
    Output out;
    QVERIFY(object.save(out));
    QCOMPARE(out.bytes(), bytesOf(hostRect) + QByteArray(1, '\0'));
}

void TestPersistence::savingWithCoreWritesFlagTypeAndCore()
{
    ShapeFixture fixture({}, 300);
    fixture.place(hostRect);
    fixture.shape->onSave = [](QDataStream &out) {
        out << quint8(0xab);
        return true;
    };
    Output out;
    QVERIFY(fixture.object.save(out));
    QCOMPARE(out.bytes(), bytesOf(hostRect) + QByteArray::fromHex("01"
                                                                  "0000012c"
                                                                  "ab"));
    QCOMPARE(recording::names({"save"}), QStringList({"object.save", "shape.save"}));
}

void TestPersistence::savingAnswersTrueWhateverTheCoreSays()
{
    ShapeFixture fixture;
    fixture.shape->onSave = [](QDataStream &) { return false; };
    Output out;
    QVERIFY(fixture.object.save(out));
}

void TestPersistence::aCorelessObjectIsLoadedCoreless()
{
    Output out;
    {
        TestObject object;
        object.place(hostRect);
        object.save(out);
    }
    Loading object;
    Input in(out.bytes());
    QVERIFY(object.load(in));
    QVERIFY(!object.svgBase);
    QVERIFY(object.createFinished);
    QCOMPARE(recording::count("createSVGBase"), 0);
    QCOMPARE(exact(object.clientRect), exact(hostRect));
    QCOMPARE(exact(object.baseSize), exact(QSizeF(30, 40)));
}

void TestPersistence::loadingMakesTheCoreOfTheSavedType()
{
    Loading object;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoad = [](QDataStream &) { return false; };
    };
    Input in = stored(-7);
    QVERIFY(object.load(in));
    QCOMPARE(recording::lastArguments("createSVGBase"), QVariantList({-7, false}));
    QCOMPARE(object.core()->type, -7);
}

void TestPersistence::theCoreReadsWhatFollowsTheType()
{
    Loading object;
    QString read;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoad = [&](QDataStream &in) {
            in >> read;
            return true;
        };
    };
    Input in = stored(27, QString("core data"), 99);
    object.load(in);
    QCOMPARE(read, QString("core data"));
    QCOMPARE(recording::names({"load", "createSVGBase"}),
             QStringList({"object.load", "object.createSVGBase", "shape.load"}));
}

void TestPersistence::theLoadedSizeIsTheBaseBeforeTheCoreLoads()
{
    Loading object;
    QSizeF duringLoad;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoad = [&](QDataStream &) {
            duringLoad = object.baseSize;
            return true;
        };
    };
    Input in = stored(27);
    object.load(in);
    QCOMPARE(exact(duringLoad), exact(QSizeF(30, 40)));
}

void TestPersistence::theHostsRectangleSurvivesTheCore()
{
    Loading object;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoad = [&](QDataStream &) {
            object.place(QRectF(9, 9, 500, 600));
            return true;
        };
    };
    Input in = stored(27);
    object.load(in);
    QCOMPARE(exact(object.clientRect), exact(hostRect));
    QCOMPARE(exact(object.baseSize), exact(QSizeF(30, 40)));
}

void TestPersistence::aScaledDrawingGetsItsSubType()
{
    Loading object;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoad = [](QDataStream &) { return true; };
    };
    Input in = stored(26);
    object.load(in);
    QCOMPARE(object.getSubType(), 13001);
    QCOMPARE(recording::names({"load", "setSubType"}),
             QStringList({"object.load", "shape.load", "object.setSubType"}));
}

void TestPersistence::otherTypesGetNoSubType()
{
    for (int type : {0, 25, 27, 1000, 13001}) {
        Loading object;
        Input in = stored(type);
        object.load(in);
        QCOMPARE(recording::count("setSubType"), 0);
    }
}

void TestPersistence::aTypeWithoutCoreIsFinishedAllTheSame()
{
    Loading object;
    object.onCreateCore = [](int, bool) {};
    Input in = stored(26);
    QVERIFY(object.load(in));
    QVERIFY(!object.svgBase);
    QVERIFY(object.createFinished);
    QCOMPARE(recording::count("setSubType"), 0);
    QCOMPARE(recording::count("onCreateFinished"), 1);

    Loading fromJson;
    fromJson.onCreateCore = [](int, bool) {};
    QJsonObject json = storedJson(26);
    QVERIFY(fromJson.loadJson(json));
    QVERIFY(!fromJson.svgBase);
    QVERIFY(fromJson.createFinished);
}

void TestPersistence::loadingFinishesTheCreationAfterTheCore()
{
    Loading object;
    QRectF duringFinish;
    object.onCreateCore = [&](int type, bool) {
        TestShape *core = object.makeCore({}, type);
        core->onLoad = [&](QDataStream &) {
            object.place(QRectF(9, 9, 500, 600));
            return true;
        };
        core->onUpdateOutlineRegion = [&] { duringFinish = object.clientRect; };
    };
    Input in = stored(27);
    object.load(in);
    QCOMPARE(recording::names(),
             QStringList({"object.load", "object.createSVGBase", "shape.load", "shape.updateOutlineRegion",
                          "object.updateAfterObjRectChanged", "object.onCreateFinished", "object.OnQPainterDraw"}));
    QCOMPARE(exact(duringFinish), exact(hostRect));
}

void TestPersistence::aShortStreamLoadsNoCore()
{
    Loading object;
    Input in(bytesOf(hostRect));
    QVERIFY(object.load(in));
    QVERIFY(!object.svgBase);
    QVERIFY(object.createFinished);
}

void TestPersistence::savingAndLoadingGivesTheSameObject()
{
    Output out;
    {
        ShapeFixture fixture(twoPointTemplate(), 5);
        fixture.place(hostRect);
        fixture.load();
        fixture.shape->updateSVGControlPoint(fixture.shape->point(2), {33, 44}, false, false, true);
        fixture.shape->setPenColor(QColor(9, 8, 7), false);
        fixture.object.save(out);
    }
    Loading object;
    object.onCreateCore = [&](int type, bool) { object.makeCore(twoPointTemplate(), type)->loadSVG(false); };
    Input in(out.bytes());
    QVERIFY(object.load(in));
    QCOMPARE(object.core()->type, 5);
    QCOMPARE(exact(object.clientRect), exact(hostRect));
    QCOMPARE(object.core()->pointRect(2), QRectF(33, 44, 8, 8));
    QCOMPARE(object.core()->getPenColor(), QColor(9, 8, 7));
    QCOMPARE(in.consumed(), qint64(out.bytes().size()));
}

void TestPersistence::jsonWithoutCoreSaysSo()
{
    TestObject object;
    object.place(hostRect);
    QJsonObject json;
    QVERIFY(object.saveJson(json));
    QCOMPARE(json, QJsonObject({{"hostWidth", 30}, {"hostHeight", 40}, {"SVG_bSVG", false}}));
}

void TestPersistence::jsonWithCoreHoldsFlagAndType()
{
    ShapeFixture fixture({}, 300);
    fixture.place(hostRect);
    QJsonObject seenByCore;
    fixture.shape->onSaveJson = [&](QJsonObject &json) {
        seenByCore = json;
        json["core"] = "data";
        return true;
    };
    QJsonObject json;
    QVERIFY(fixture.object.saveJson(json));
    const QJsonObject wrapper{{"hostWidth", 30}, {"hostHeight", 40}, {"SVG_bSVG", true}, {"SVG_SVGType", 300}};
    QCOMPARE(seenByCore, wrapper);
    QJsonObject whole = wrapper;
    whole["core"] = "data";
    QCOMPARE(json, whole);
}

void TestPersistence::savingJsonAnswersTrueWhateverTheCoreSays()
{
    ShapeFixture fixture;
    fixture.shape->onSaveJson = [](QJsonObject &) { return false; };
    QJsonObject json;
    QVERIFY(fixture.object.saveJson(json));
}

void TestPersistence::jsonMakesTheCoreOfTheSavedType()
{
    Loading object;
    QString read;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoadJson = [&](QJsonObject &json) {
            read = json["core"].toString();
            return false;
        };
    };
    QJsonObject json = storedJson(27);
    json["core"] = "data";
    QVERIFY(object.loadJson(json));
    QCOMPARE(recording::lastArguments("createSVGBase"), QVariantList({27, false}));
    QCOMPARE(read, QString("data"));
}

void TestPersistence::jsonWithoutTypeMeansZero()
{
    Loading object;
    QJsonObject json{{"SVG_bSVG", true}};
    QVERIFY(object.loadJson(json));
    QCOMPARE(recording::lastArguments("createSVGBase"), QVariantList({0, false}));
    QVERIFY(json.contains("SVG_SVGType"));
    QVERIFY(json.value("SVG_SVGType").isNull());
}

void TestPersistence::jsonWithoutUsableFlagLoadsNoCore_data()
{
    QTest::addColumn<QJsonObject>("json");
    QTest::newRow("absent") << QJsonObject({{"SVG_SVGType", 27}});
    QTest::newRow("false") << QJsonObject({{"SVG_bSVG", false}, {"SVG_SVGType", 27}});
    QTest::newRow("a number") << QJsonObject({{"SVG_bSVG", 1}, {"SVG_SVGType", 27}});
    QTest::newRow("a text") << QJsonObject({{"SVG_bSVG", "true"}, {"SVG_SVGType", 27}});
    QTest::newRow("null") << QJsonObject({{"SVG_bSVG", QJsonValue()}, {"SVG_SVGType", 27}});
}

void TestPersistence::jsonWithoutUsableFlagLoadsNoCore()
{
    QFETCH(QJsonObject, json);
    Loading object;
    QVERIFY(object.loadJson(json));
    QCOMPARE(recording::count("createSVGBase"), 0);
    QVERIFY(!object.svgBase);
    QVERIFY(object.createFinished);
}

void TestPersistence::readingJsonAddsMissingKeys()
{
    Loading object;
    QJsonObject json;
    object.loadJson(json);
    QVERIFY(json.contains("SVG_bSVG"));
    QVERIFY(json.value("SVG_bSVG").isNull());
    QVERIFY(!json.contains("SVG_SVGType")); // only read for a shape
}

void TestPersistence::jsonTakesTheLoadedSizeAsBase()
{
    Loading object;
    QSizeF duringLoad;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoadJson = [&](QJsonObject &) {
            duringLoad = object.baseSize;
            return true;
        };
    };
    QJsonObject json = storedJson(27);
    object.loadJson(json);
    QCOMPARE(exact(duringLoad), exact(QSizeF(30, 40)));
    QCOMPARE(exact(object.baseSize), exact(QSizeF(30, 40)));
}

void TestPersistence::jsonKeepsWhatTheCoreDidToTheRectangle()
{
    Loading object;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoadJson = [&](QJsonObject &) {
            object.place(QRectF(9, 9, 500, 600));
            return true;
        };
    };
    QJsonObject json = storedJson(27);
    object.loadJson(json);
    QCOMPARE(exact(object.clientRect), exact(QRectF(9, 9, 500, 600)));
    QCOMPARE(exact(object.baseSize), exact(QSizeF(500, 600)));
}

void TestPersistence::jsonSetsNoSubType()
{
    Loading object;
    QJsonObject json = storedJson(26);
    object.loadJson(json);
    QVERIFY(object.svgBase);
    QCOMPARE(object.getSubType(), 0);
    QCOMPARE(recording::count("setSubType"), 0);
}

void TestPersistence::jsonFinishesTheCreationAfterTheCore()
{
    Loading object;
    object.onCreateCore = [&](int type, bool) { object.makeCore({}, type); };
    QJsonObject json = storedJson(27);
    object.loadJson(json);
    QCOMPARE(recording::names(),
             QStringList({"object.loadJson", "object.createSVGBase", "shape.loadJson", "shape.updateOutlineRegion",
                          "object.updateAfterObjRectChanged", "object.onCreateFinished", "object.OnQPainterDraw"}));
    QVERIFY(object.createFinished);
}

void TestPersistence::playbackDataIsTheHostsThenTheCores()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.place(hostRect);
    fixture.load();
    fixture.shape->onSave = [](QDataStream &out) {
        out << quint8(0xab);
        return true;
    };
    Output out;
    fixture.object.SavePropertyForPlayback(out);
    QCOMPARE(out.bytes(), bytesOf(hostRect, quint8(0xab)));
    QCOMPARE(recording::names({"SavePropertyForPlayback"}),
             QStringList({"object.SavePropertyForPlayback", "shape.SavePropertyForPlayback"}));
}

void TestPersistence::playbackDataIsReadInTheSameOrder()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    quint8 read = 0;
    fixture.shape->onLoad = [&](QDataStream &in) {
        in >> read;
        return true;
    };
    Input in = inputOf(hostRect, quint8(0xab));
    fixture.object.LoadPropertyForPlayback(in);
    QCOMPARE(exact(fixture.object.clientRect), exact(hostRect));
    QCOMPARE(read, quint8(0xab));
    QCOMPARE(recording::names({"LoadPropertyForPlayback"}),
             QStringList({"object.LoadPropertyForPlayback", "shape.LoadPropertyForPlayback"}));
}

void TestPersistence::playbackDataWithoutCoreIsTheHosts()
{
    TestObject object;
    object.place(hostRect);
    Output out;
    QVERIFY(object.SavePropertyForPlayback(out));
    QCOMPARE(out.bytes(), bytesOf(hostRect));
    Input in = inputOf(QRectF(5, 6, 7, 8));
    QVERIFY(object.LoadPropertyForPlayback(in));
    QCOMPARE(exact(object.clientRect), exact(QRectF(5, 6, 7, 8)));
}

void TestPersistence::theSavedTypeDecidesAboutTheSubType()
{
    Loading scaled;
    scaled.onCreateCore = [&](int, bool) { scaled.makeCore({}, 27)->onLoad = [](QDataStream &) { return true; }; };
    Input ofScaled = stored(26);
    scaled.load(ofScaled);
    QCOMPARE(scaled.getSubType(), 13001);

    Loading other;
    other.onCreateCore = [&](int, bool) { other.makeCore({}, 26)->onLoad = [](QDataStream &) { return true; }; };
    Input ofOther = stored(27);
    other.load(ofOther);
    QCOMPARE(other.getSubType(), 0);
}

void TestPersistence::theCoreAnswersForPlaybackDataElseTheHost()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    TestObject coreless;
    recording::framework().playbackAnswer = false;
    Output out;
    QVERIFY(fixture.object.SavePropertyForPlayback(out));
    Input saved(out.bytes());
    QVERIFY(fixture.object.LoadPropertyForPlayback(saved));
    Output nothing;
    QVERIFY(!coreless.SavePropertyForPlayback(nothing));
    Input rectangle = inputOf(hostRect);
    QVERIFY(!coreless.LoadPropertyForPlayback(rectangle));
}

void TestPersistence::jsonWithATypeThatIsNoNumberMeansZero()
{
    Loading object;
    QJsonObject json{{"SVG_bSVG", true}, {"SVG_SVGType", "27"}};
    QVERIFY(object.loadJson(json));
    QCOMPARE(recording::lastArguments("createSVGBase"), QVariantList({0, false}));
}

void TestPersistence::theBaseOfJsonIsTheLoadedSizeWhateverTheCoreDoesToTheRectangle()
{
    Loading object;
    object.onCreateCore = [&](int type, bool) {
        object.makeCore({}, type)->onLoadJson = [&](QJsonObject &) {
            object.clientRect = QRectF(9, 9, 500, 600);
            return true;
        };
    };
    QJsonObject json = storedJson(27);
    object.loadJson(json);
    QCOMPARE(exact(object.clientRect), exact(QRectF(9, 9, 500, 600)));
    QCOMPARE(exact(object.baseSize), exact(QSizeF(30, 40)));
}

QTEST_MAIN(TestPersistence)

#include "test_persistence.moc"
