// Saved files are readable for ever, and written unchanged: see README.md.

#include <frozen/listing.h>
#include <support/listed.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <framework/cundoredo.h>
#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgpropitem.h>

#include <QtCore/QJsonDocument>
#include <QtGui/QBrush>
#include <QtTest/QtTest>

using namespace support;
using frozen::contents;
using frozen::Field;

class TestFrozen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyFileHasItsListing();
    void everyListingAgreesWithItsSample_data();
    void everyListingAgreesWithItsSample();
    void everyJsonListingAgreesWithItsSample_data();
    void everyJsonListingAgreesWithItsSample();

    void coresAreReadAndWritten_data();
    void coresAreReadAndWritten();
    void aCoreIsReadAsItsListingSays();
    void objectsAreReadAndWritten_data();
    void objectsAreReadAndWritten();
    void anObjectsSnapshotIsReadAndWritten();
    void attributesOfTheCommonPropertiesAreWrittenAndSetAgain_data();
    void attributesOfTheCommonPropertiesAreWrittenAndSetAgain();
    void attributesOfAShapesOwnPropertiesAreWritten_data();
    void attributesOfAShapesOwnPropertiesAreWritten();
    void undoBuffersAreWrittenAndReplayed_data();
    void undoBuffersAreWrittenAndReplayed();
    void aMoveIsWrittenAndReplayed();
    void recordedActionsAreWritten_data();
    void recordedActionsAreWritten();
    void recordedActionsAreReplayed();
    void coresAreReadFromAndWrittenToJson_data();
    void coresAreReadFromAndWrittenToJson();
    void objectsAreReadFromAndWrittenToJson_data();
    void objectsAreReadFromAndWrittenToJson();
};

namespace {

QByteArray bin(const QString &name)
{
    return contents(name + ".bin");
}

QByteArray jsonText(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

QJsonObject jsonOf(const QString &name)
{
    return QJsonDocument::fromJson(contents(name + ".json")).object();
}

/// The bytes of the fields whose name begins so.
QByteArray part(const QString &sample, const QString &beginning)
{
    QByteArray bytes;
    for (const Field &field : support::listed(frozen::streamListing(sample)))
        if (field.name.startsWith(beginning))
            bytes += field.encoded;
    return bytes;
}

/// The mode flags of the shapes that the core samples were made of.
void setFlags(TestShape *shape, const QString &sample)
{
    const bool full = sample.endsWith("full");
    shape->rawControlPoints = sample.endsWith("raw");
    shape->propPenEnabled = !sample.endsWith("plain");
    shape->propPenStyleEnabled = full;
    shape->propPenWidthEnabled = full;
    shape->propFillEnabled = full;
}

QString templateOf(const QString &sample)
{
    return sample.endsWith("plain") ? svgText(QStringLiteral("0 0 10 10"), QString()) : twoPointTemplate();
}

/// All four properties, with the values that the attribute samples were made of.
class StyledShape : public ShapeFixture
{
public:
    StyledShape()
        : ShapeFixture(twoPointTemplate())
    {
        shape->propPenStyleEnabled = true;
        shape->propPenWidthEnabled = true;
        shape->propFillEnabled = true;
        recording::framework().lineStyleIcons = false;
        load();
        object.onSetFillProp = [](CPageBgProp *, bool) {};
        shape->document->setAllStrokeColor(Qt::red);
        shape->document->setAllStrokeStyle(Qt::DashLine);
        shape->document->setAllStrokeWidth(3);
        shape->document->setAllFillBrush(QBrush(Qt::green, Qt::CrossPattern));
        recording::clear();
    }

    QByteArray attribute(int propId)
    {
        Output out;
        return shape->GetAttribute(propId, out) ? out.bytes() : QByteArray("refused");
    }
};

/// All bytes that are left in a stream.
QByteArray rest(QDataStream &in)
{
    return in.device()->readAll();
}

void sampleRows(const QString &suffix, const QString &beginning = {})
{
    QTest::addColumn<QString>("sample");
    for (const QString &name : support::listed(frozen::sampleNames(suffix)))
        if (name.startsWith(beginning))
            QTest::newRow(qPrintable(name)) << name;
}

} // namespace

// The list of pen styles is made once per process: here without icons, before any other shape asks for it.
void TestFrozen::initTestCase()
{
    StyledShape styled;
    QVERIFY(styled.shape->findPropItemByPropID(5003));
}

void TestFrozen::everyFileHasItsListing()
{
    QStringList samples = frozen::sampleNames("bin") + frozen::sampleNames("json");
    samples.sort();
    QCOMPARE(samples, frozen::sampleNames("txt"));
    QCOMPARE(samples.size(), 37);
}

void TestFrozen::everyListingAgreesWithItsSample_data()
{
    sampleRows("bin");
}

void TestFrozen::everyListingAgreesWithItsSample()
{
    QFETCH(QString, sample);
    QByteArray encoded;
    for (const Field &field : support::listed(frozen::streamListing(sample))) {
        QCOMPARE(field.offset, encoded.size());
        encoded += field.encoded;
    }
    QCOMPARE(encoded.toHex(' '), bin(sample).toHex(' '));
}

void TestFrozen::everyJsonListingAgreesWithItsSample_data()
{
    sampleRows("json");
}

void TestFrozen::everyJsonListingAgreesWithItsSample()
{
    QFETCH(QString, sample);
    QStringList listed;
    for (const Field &field : support::listed(frozen::jsonListing(sample)))
        listed += QStringList({field.type, field.value, field.name}).join(' ');
    QCOMPARE(listed, frozen::membersOf(jsonOf(sample)));
}

void TestFrozen::coresAreReadAndWritten_data()
{
    sampleRows("bin", "core-");
}

void TestFrozen::coresAreReadAndWritten()
{
    QFETCH(QString, sample);
    ShapeFixture fixture(templateOf(sample));
    setFlags(fixture.shape, sample);
    fixture.load();
    Input in(bin(sample));
    QVERIFY(fixture.shape->load(in));
    QCOMPARE(in.status(), QDataStream::Ok);
    QCOMPARE(in.consumed(), qint64(bin(sample).size()));
    Output out;
    QVERIFY(fixture.shape->save(out));
    QCOMPARE(out.bytes().toHex(' '), bin(sample).toHex(' '));
}

void TestFrozen::aCoreIsReadAsItsListingSays()
{
    ShapeFixture fixture(twoPointTemplate());
    setFlags(fixture.shape, "core-full");
    fixture.load();
    fixture.shape->load(Input(bin("core-full")));
    QCOMPARE(fixture.shape->pointRect(1), QRectF(12.5, -7.25, 8, 8));
    QVERIFY(fixture.shape->pointRect(2).topLeft() == QPointF(60, 1e-300));
    QCOMPARE(fixture.shape->getPenColor(), QColor(0x12, 0x34, 0x56, 0x80));
    QCOMPARE(fixture.shape->getPenStyle(), Qt::DotLine);
    QCOMPARE(fixture.shape->getPenWidth(), 5);
}

void TestFrozen::objectsAreReadAndWritten_data()
{
    QTest::addColumn<QString>("sample");
    QTest::newRow("with a shape") << "object-shape";
    QTest::newRow("without") << "object-empty";
}

void TestFrozen::objectsAreReadAndWritten()
{
    QFETCH(QString, sample);
    TestObject object;
    object.onCreateCore = [&](int type, bool) { object.makeCore(twoPointTemplate(), type)->loadSVG(false); };
    Input in(bin(sample));
    QVERIFY(object.load(in));
    QCOMPARE(in.consumed(), qint64(bin(sample).size()));
    QCOMPARE(object.clientRect, QRectF(1, 2, 30, 40));
    QCOMPARE(object.core() ? object.core()->type : 0, sample == "object-shape" ? 300 : 0);
    Output out;
    QVERIFY(object.save(out));
    QCOMPARE(out.bytes().toHex(' '), bin(sample).toHex(' '));
}

void TestFrozen::anObjectsSnapshotIsReadAndWritten()
{
    ShapeFixture fixture(twoPointTemplate(), 300);
    fixture.load();
    Input in(bin("object-playback"));
    QVERIFY(fixture.object.LoadPropertyForPlayback(in));
    QCOMPARE(fixture.object.clientRect, QRectF(1, 2, 30, 40));
    QCOMPARE(fixture.shape->getPenColor(), QColor(Qt::red));
    Output out;
    QVERIFY(fixture.object.SavePropertyForPlayback(out));
    QCOMPARE(out.bytes().toHex(' '), bin("object-playback").toHex(' '));
}

void TestFrozen::attributesOfTheCommonPropertiesAreWrittenAndSetAgain_data()
{
    QTest::addColumn<int>("propId");
    QTest::addColumn<QString>("sample");
    QTest::newRow("pen colour") << 5002 << "attribute-pencolor";
    QTest::newRow("pen style") << 5003 << "attribute-penstyle";
    QTest::newRow("pen width") << 5004 << "attribute-penwidth";
    QTest::newRow("fill") << 5005 << "attribute-fill";
}

void TestFrozen::attributesOfTheCommonPropertiesAreWrittenAndSetAgain()
{
    QFETCH(int, propId);
    QFETCH(QString, sample);
    StyledShape styled;
    QCOMPARE(styled.attribute(propId).toHex(' '), bin(sample).toHex(' '));
    styled.shape->document->setAllStrokeColor(Qt::yellow);
    styled.shape->document->setAllStrokeStyle(Qt::NoPen);
    styled.shape->document->setAllStrokeWidth(8);
    styled.shape->document->setAllFillBrush(QBrush(Qt::yellow));
    QVERIFY(styled.attribute(propId) != bin(sample));
    QVERIFY(styled.shape->SetAttribute(propId, Input(part(sample, "value")), true, false));
    QCOMPARE(styled.attribute(propId).toHex(' '), bin(sample).toHex(' '));
}

void TestFrozen::attributesOfAShapesOwnPropertiesAreWritten_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("sample");
    QTest::newRow("kind 0") << 0 << "attribute-kind0";
    QTest::newRow("kind 4") << 4 << "attribute-kind4";
    QTest::newRow("kind 5") << 5 << "attribute-kind5";
    QTest::newRow("whole number in a range") << 1 << "attribute-intrange";
    QTest::newRow("whole number") << 1 << "attribute-plainint";
    QTest::newRow("real number in a range") << 2 << "attribute-realrange";
    QTest::newRow("described colour") << 3 << "attribute-describedcolor";
}

void TestFrozen::attributesOfAShapesOwnPropertiesAreWritten()
{
    QFETCH(int, type);
    QFETCH(QString, sample);
    StyledShape styled;
    QByteArray description = type == 3 ? QByteArray("described") : part(sample, "description");
    styled.shape->propItems.append(new CSVGPropItem(26, "own", 2000, DATA_TYPE(type), &description, true));
    styled.shape->onGetInnerProperty = [](int, QDataStream &out) {
        out << qint32(77);
        return true;
    };
    QCOMPARE(styled.attribute(26).toHex(' '), bin(sample).toHex(' '));
}

void TestFrozen::undoBuffersAreWrittenAndReplayed_data()
{
    sampleRows("bin", "undo-");
}

void TestFrozen::undoBuffersAreWrittenAndReplayed()
{
    QFETCH(QString, sample);
    StyledShape styled;
    auto *command = new CSVGBaseUndoCmd(styled.shape, sample == "undo-move" ? 1001 : 2000, nullptr, true);
    if (sample == "undo-bool")
        command->setBool(false, true);
    else if (sample == "undo-int")
        command->setInt(-3, 0x7fffffff);
    else if (sample == "undo-double")
        command->setDouble(-0.5, 1e300);
    else if (sample == "undo-color")
        command->setColor(Qt::red, QColor(0x12, 0x34, 0x56, 0x80));
    else if (sample == "undo-brush")
        command->setBrush(QBrush(Qt::red), QBrush(Qt::blue, Qt::DiagCrossPattern));
    else if (sample == "undo-string")
        command->setString(QString(), "a b");
    else if (sample == "undo-data")
        command->setDataBuffer(QByteArray::fromHex("00ff"), QByteArray::fromHex("c0ffee"));
    else
        command->setControlPointPos(styled.shape->point(2), {60, 30}, {61.5, 29});
    QByteArray replayed;
    styled.shape->onDoPlaybackActionEx = [&](int, QDataStream &in) {
        replayed += rest(in);
        return true;
    };
    styled.shape->addUndoRedo(command);
    undoStack().undo();
    QCOMPARE(replayed.toHex(' '), part(sample, "old").toHex(' '));
    undoStack().redo();
    QCOMPARE(replayed.toHex(' '), bin(sample).toHex(' '));
}

void TestFrozen::aMoveIsWrittenAndReplayed()
{
    StyledShape styled;
    styled.shape->updateSVGControlPoint(styled.shape->point(1), {12.5, 40}, true, true, false);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1001, bin("playback-1001")}));
    styled.shape->updateSVGControlPoint(styled.shape->point(1), {1, 1}, true, false, false);
    QVERIFY(styled.shape->DoPlaybackActionEx(1001, Input(bin("playback-1001"))));
    QCOMPARE(styled.shape->pointRect(1), QRectF(12.5, 40, 8, 8));
}

void TestFrozen::recordedActionsAreWritten_data()
{
    QTest::addColumn<int>("propId");
    QTest::addColumn<int>("actionId");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("pen colour") << 5002 << 1002 << bytesOf(QColor(0x12, 0x34, 0x56, 0x80));
    QTest::newRow("pen style") << 5003 << 1003 << bytesOf(qint32(4));
    QTest::newRow("pen width, by its index") << 5004 << 1004 << bytesOf(qint32(6));
    QTest::newRow("fill") << 5005 << 1005 << bytesOf(QBrush(Qt::green));
}

void TestFrozen::recordedActionsAreWritten()
{
    QFETCH(int, propId);
    QFETCH(int, actionId);
    QFETCH(QByteArray, value);
    StyledShape styled;
    styled.shape->document->setAllFillBrush(QBrush(Qt::yellow));
    QVERIFY(styled.shape->SetAttribute(propId, Input(value), true, false));
    const QByteArray payload = bin(QStringLiteral("playback-%1").arg(actionId));
    QVERIFY(!payload.isEmpty());
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({actionId, payload}));
}

void TestFrozen::recordedActionsAreReplayed()
{
    StyledShape styled;
    for (int actionId : {1002, 1003, 1004, 1005})
        QVERIFY(
            styled.shape->DoPlaybackActionEx(actionId, Input(bin(QStringLiteral("playback-%1").arg(actionId)))));
    QCOMPARE(styled.shape->getPenColor(), QColor(0x12, 0x34, 0x56, 0x80));
    QCOMPARE(styled.shape->getPenStyle(), Qt::DashDotLine);
    QCOMPARE(styled.shape->getPenWidth(), 7);
    // A fill is read as a brush, deliberately: its colour alone is black, of an alpha of which only the upper byte
    // is the fill's, the lower being that of its red.
    QCOMPARE(styled.shape->getFillBrush().style(), Qt::SolidPattern);
    QCOMPARE(styled.shape->getFillBrush().color(), QColor(QRgba64::fromRgba64(0, 0, 0, 0xff00)));
}

void TestFrozen::coresAreReadFromAndWrittenToJson_data()
{
    sampleRows("json", "json-core-");
}

void TestFrozen::coresAreReadFromAndWrittenToJson()
{
    QFETCH(QString, sample);
    ShapeFixture fixture(templateOf(sample));
    setFlags(fixture.shape, sample);
    fixture.load();
    QJsonObject read = jsonOf(sample);
    QVERIFY(fixture.shape->loadJson(read));
    QCOMPARE(jsonText(read), contents(sample + ".json")); // nothing was missing
    QJsonObject written;
    QVERIFY(fixture.shape->saveJson(written));
    QCOMPARE(jsonText(written), contents(sample + ".json"));
}

void TestFrozen::objectsAreReadFromAndWrittenToJson_data()
{
    sampleRows("json", "json-object-");
}

void TestFrozen::objectsAreReadFromAndWrittenToJson()
{
    QFETCH(QString, sample);
    TestObject object;
    object.onCreateCore = [&](int type, bool) { object.makeCore(twoPointTemplate(), type)->loadSVG(false); };
    QJsonObject read = jsonOf(sample);
    QVERIFY(object.loadJson(read));
    QCOMPARE(object.clientRect.size(), QSizeF(30, 40));
    QCOMPARE(object.core() ? object.core()->type : 0, sample == "json-object-shape" ? 300 : 0);
    QJsonObject written;
    QVERIFY(object.saveJson(written));
    QCOMPARE(jsonText(written), contents(sample + ".json"));
}

QTEST_MAIN(TestFrozen)
#include "test_frozen.moc"
