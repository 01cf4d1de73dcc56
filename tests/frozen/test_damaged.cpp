// The frozen samples, damaged: whatever the bytes say, a shape stays a shape that can be changed and saved.

#include <frozen/listing.h>
#include <support/listed.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>

#include <random>

using namespace support;

class TestDamaged : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void streamsOfCores_data();
    void streamsOfCores();
    void streamsOfObjects_data();
    void streamsOfObjects();
    void values_data();
    void values();
    void jsonOfObjects_data();
    void jsonOfObjects();
};

namespace {

constexpr unsigned startValue = 1618;
constexpr int damagesPerSample = 150;

class Damage
{
public:
    /// A few bytes changed, taken out, put in, or the end cut off.
    QByteArray of(QByteArray bytes)
    {
        for (int changes = 1 + below(4); changes > 0; --changes) {
            const int offset = below(bytes.size() + 1);
            switch (below(6)) {
            case 0:
                bytes.truncate(offset);
                break;
            case 1:
                bytes.remove(offset, 1 + below(9));
                break;
            case 2:
                bytes.insert(offset, QByteArray(1 + below(9), extreme()));
                break;
            case 3:
                bytes.replace(offset, 4, QByteArray(4, extreme()));
                break;
            default:
                if (offset < bytes.size())
                    bytes[offset] = char(below(256));
                break;
            }
        }
        return bytes;
    }

    /// Members taken out or of another type.
    QJsonObject of(QJsonObject object)
    {
        for (int changes = 1 + below(3); changes > 0 && !object.isEmpty(); --changes) {
            const QString key = object.keys().at(below(object.size()));
            if (below(6) == 0)
                object.remove(key);
            else
                object[key] = value();
        }
        return object;
    }

private:
    int below(int end) { return int(m_engine() % unsigned(end)); }
    char extreme() { return "\x00\x7f\x80\xff"[below(4)]; }

    QJsonValue value()
    {
        const QJsonValue values[] = {QJsonValue(),
                                     true,
                                     -1,
                                     33,
                                     1e10,
                                     1e300,
                                     -0.5,
                                     2147483647,
                                     "",
                                     "3",
                                     "#12",
                                     QJsonObject{{"x", "y"}},
                                     QJsonArray{1, 2},
                                     "transparent"};
        return values[below(int(std::size(values)))];
    }

    std::mt19937 m_engine{startValue};
};

/// Everything that a user might do next.
void use(TestShape *shape)
{
    QVERIFY(shape->controlPointCount <= 32);
    shape->setPenWidth(20, false);
    shape->CheckHitTestHandlers(QPointF(12, 22));
    shape->invalidate();
    Output out;
    QVERIFY(shape->save(out));
    QVERIFY(out.bytes().size() >= 8);
    QJsonObject object;
    QVERIFY(shape->saveJson(object));
    QMap<QString, QVariant> map;
    QVERIFY(shape->getAllAttributes(map));
    shape->setAllAttributes(map, false);
}

void sampleRows(const QString &suffix, const QStringList &beginnings)
{
    QTest::addColumn<QString>("sample");
    for (const QString &name : support::listed(frozen::sampleNames(suffix))) {
        for (const QString &beginning : beginnings)
            if (name.startsWith(beginning))
                QTest::newRow(qPrintable(name)) << name;
    }
}

} // namespace

void TestDamaged::streamsOfCores_data()
{
    sampleRows("bin", {"core-"});
}

void TestDamaged::streamsOfCores()
{
    QFETCH(QString, sample);
    Damage damage;
    for (int i = 0; i < damagesPerSample; ++i) {
        ShapeFixture fixture(twoPointTemplate());
        fixture.shape->rawControlPoints = sample.endsWith("raw");
        fixture.load();
        QVERIFY(fixture.shape->load(Input(damage.of(frozen::contents(sample + ".bin")))));
        use(fixture.shape);
    }
}

void TestDamaged::streamsOfObjects_data()
{
    sampleRows("bin", {"object-"});
}

void TestDamaged::streamsOfObjects()
{
    QFETCH(QString, sample);
    Damage damage;
    for (int i = 0; i < damagesPerSample; ++i) {
        ShapeFixture fixture(twoPointTemplate());
        fixture.object.onCreateCore = [&](int type, bool) {
            fixture.object.makeCore(twoPointTemplate(), type)->loadSVG(false);
        };
        fixture.load();
        const QByteArray bytes = damage.of(frozen::contents(sample + ".bin"));
        if (sample.endsWith("playback"))
            fixture.object.LoadPropertyForPlayback(Input(bytes));
        else
            QVERIFY(fixture.object.load(Input(bytes)));
        use(fixture.object.core());
    }
}

void TestDamaged::values_data()
{
    sampleRows("bin", {"attribute-", "undo-", "playback-"});
}

void TestDamaged::values()
{
    QFETCH(QString, sample);
    Damage damage;
    for (int i = 0; i < damagesPerSample; ++i) {
        ShapeFixture fixture(twoPointTemplate());
        fixture.shape->propPenStyleEnabled = true;
        fixture.shape->propPenWidthEnabled = true;
        fixture.shape->propFillEnabled = true;
        fixture.load();
        const QByteArray bytes = damage.of(frozen::contents(sample + ".bin"));
        for (int id = 1; id <= 5; ++id) {
            fixture.shape->DoPlaybackActionEx(1000 + id, Input(bytes));
            fixture.shape->SetAttribute(5000 + id, Input(bytes), i % 2 == 0, true);
        }
        undoStack().setIndex(0);
        undoStack().setIndex(undoStack().count());
        use(fixture.shape);
    }
}

void TestDamaged::jsonOfObjects_data()
{
    sampleRows("json", {"json-"});
}

void TestDamaged::jsonOfObjects()
{
    QFETCH(QString, sample);
    const QJsonObject whole = QJsonDocument::fromJson(frozen::contents(sample + ".json")).object();
    Damage damage;
    for (int i = 0; i < damagesPerSample; ++i) {
        ShapeFixture fixture(twoPointTemplate());
        fixture.object.onCreateCore = [&](int type, bool) {
            fixture.object.makeCore(twoPointTemplate(), type)->loadSVG(false);
        };
        fixture.shape->rawControlPoints = sample.endsWith("raw");
        fixture.load();
        QJsonObject object = damage.of(whole);
        QVERIFY(sample.startsWith("json-core") ? fixture.shape->loadJson(object) : fixture.object.loadJson(object));
        use(fixture.object.core());
    }
}

QTEST_MAIN(TestDamaged)
#include "test_damaged.moc"
