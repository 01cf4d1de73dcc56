// Data that a shape reads from a file, a lesson or a panel: its stream and its page object's, JSON, recorded
// actions and property values. The first byte chooses the kind. Afterwards the shape is changed, undone, painted
// and saved.

#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtCore/QJsonDocument>
#include <QtWidgets/QApplication>

#include <cstdlib>

using namespace support;

namespace {

enum Reading { Core, RawCore, Object, Snapshot, Json, RawJson, Action, Attribute, ReadingCount };

void expect(bool holds)
{
    if (!holds)
        std::abort();
}

void read(ShapeFixture &fixture, int reading, const QByteArray &bytes)
{
    QJsonObject json = QJsonDocument::fromJson(bytes).object();
    switch (reading) {
    case Core:
    case RawCore:
        fixture.shape->load(Input(bytes));
        break;
    case Object:
        fixture.object.load(Input(bytes));
        break;
    case Snapshot:
        fixture.object.LoadPropertyForPlayback(Input(bytes));
        break;
    case Json:
    case RawJson:
        fixture.object.loadJson(json);
        fixture.object.core()->loadJson(json);
        break;
    case Action:
        for (int actionId = 1001; actionId <= 1005; ++actionId)
            fixture.shape->DoPlaybackActionEx(actionId, Input(bytes));
        break;
    default:
        for (int propId = 5002; propId <= 5005; ++propId)
            fixture.shape->SetAttribute(propId, Input(bytes), propId % 2 == 0, true);
        break;
    }
}

void use(TestShape *shape)
{
    expect(shape->controlPointCount <= 32);
    undoStack().setIndex(0);
    undoStack().setIndex(undoStack().count());
    shape->setPenWidth(20, false);
    shape->CheckHitTestHandlers(QPointF(12, 22));
    shape->invalidate();
    Output out;
    expect(shape->save(out) && out.bytes().size() >= 8);
    QJsonObject json;
    shape->saveJson(json);
    QMap<QString, QVariant> map;
    shape->getAllAttributes(map);
    shape->setAllAttributes(map, false);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static int count = 1;
    static char name[] = "fuzz_shapestate";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(count, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    const int reading = data[0] % ReadingCount;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), int(size - 1));
    ShapeFixture fixture(twoPointTemplate());
    const bool raw = reading == RawCore || reading == RawJson;
    fixture.object.onCreateCore = [&](int type, bool) {
        TestShape *core = fixture.object.makeCore(twoPointTemplate(), type);
        core->rawControlPoints = raw;
        core->loadSVG(false);
    };
    fixture.shape->rawControlPoints = raw;
    fixture.shape->propPenStyleEnabled = true;
    fixture.shape->propPenWidthEnabled = true;
    fixture.shape->propFillEnabled = true;
    fixture.load();
    read(fixture, reading, bytes);
    use(fixture.object.core());
    recording::clear();
    return 0;
}
