#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtGui/QKeyEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsSceneMouseEvent>

using support::Input;
using support::inputOf;
using support::Output;
using support::ShapeFixture;
using support::TestObject;

Q_DECLARE_METATYPE(std::function<QJsonObject(support::TestObject &)>)

/// Operations of the page object that its core answers, and who answers when there is no core or the core declines.
class TestForwarding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void playbackActionsAreTheCores();
    void settingsAreReadFromTheCore();
    void settingsAreGivenToTheCore();
    void withoutCorePlaybackAndSettingsAnswerFalse();
    void aDoubleClickReachesTheCoreOnly();
    void aKeyReachesTheCoreOnly();
    void withoutCoreDoubleClicksAndKeysAreIgnored();
    void theMenuIsTheCores();
    void aSpecialPropertyOfTheCoreIsNotAskedOfTheHost();
    void aSpecialPropertyThatTheCoreDeclinesIsTheHosts();
    void withoutCoreSpecialPropertiesNeverReachTheHost();

    void panelControlsAreTheHosts_data();
    void panelControlsAreTheHosts();
    void panelAnswersAreParsedByTheHost();
    void unreadablePanelAnswersAreRefused();
};

void TestForwarding::init()
{
    recording::resetFramework();
    recording::framework().baseAnswer = true; // a host that would answer everything
}

void TestForwarding::playbackActionsAreTheCores()
{
    ShapeFixture fixture;
    recording::framework().baseAnswer = true;
    for (bool answer : {true, false}) {
        int read = 0;
        fixture.shape->onDoPlaybackActionEx = [&](int, QDataStream &in) {
            in >> read;
            return answer;
        };
        Input in = inputOf(77);
        QCOMPARE(fixture.object.DoPlaybackActionEx(1003, in), answer);
        QCOMPARE(read, 77);
    }
    QCOMPARE(recording::lastArguments("shape", "DoPlaybackActionEx"), QVariantList({1003}));
    QCOMPARE(recording::count("object", "DoPlaybackActionEx"), 0);
}

void TestForwarding::settingsAreReadFromTheCore()
{
    ShapeFixture fixture;
    recording::framework().baseAnswer = true;
    for (bool answer : {true, false}) {
        fixture.shape->onGetSettingJson = [&](QString &out) {
            out = "panel";
            return answer;
        };
        QString out;
        QCOMPARE(fixture.object.GetSettingJson(out), answer);
        QCOMPARE(out, QString("panel"));
    }
    QCOMPARE(recording::count("object", "GetSettingJson"), 0);
}

void TestForwarding::settingsAreGivenToTheCore()
{
    ShapeFixture fixture;
    recording::framework().baseAnswer = true;
    bool answer = true;
    fixture.shape->onSetSettingJson = [&](const QString &, bool, bool) { return answer; };
    QVERIFY(fixture.object.SetSettingJson("text", true, false));
    QCOMPARE(recording::lastArguments("shape", "SetSettingJson"), QVariantList({"text", true, false}));
    answer = false;
    QVERIFY(!fixture.object.SetSettingJson("other", false, true));
    QCOMPARE(recording::lastArguments("shape", "SetSettingJson"), QVariantList({"other", false, true}));
    QCOMPARE(recording::count("object", "SetSettingJson"), 0);
}

void TestForwarding::withoutCorePlaybackAndSettingsAnswerFalse()
{
    TestObject object;
    recording::clear();
    Input in = inputOf(1);
    QString out("kept");
    QVERIFY(!object.DoPlaybackActionEx(1001, in));
    QVERIFY(!object.GetSettingJson(out));
    QVERIFY(!object.SetSettingJson("text", true, true));
    QCOMPARE(out, QString("kept"));
    QCOMPARE(in.consumed(), 0);
    QCOMPARE(recording::names(), QStringList());
}

void TestForwarding::aDoubleClickReachesTheCoreOnly()
{
    ShapeFixture fixture;
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseDoubleClick);
    for (bool answer : {true, false}) {
        QGraphicsSceneMouseEvent *seen = nullptr;
        fixture.shape->onMouseDoubleClick = [&](QGraphicsSceneMouseEvent *given) {
            seen = given;
            return answer;
        };
        fixture.object.mouseDoubleClickEvent(&event);
        QCOMPARE(seen, &event);
    }
    QCOMPARE(recording::names(), QStringList({"shape.mouseDoubleClickEvent", "shape.mouseDoubleClickEvent"}));
}

void TestForwarding::aKeyReachesTheCoreOnly()
{
    ShapeFixture fixture;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    fixture.object.keyPressEvent(&event);
    QCOMPARE(recording::names(), QStringList({"shape.keyPressEvent"}));
    QCOMPARE(fixture.object.toPlainText(), QString());
}

void TestForwarding::withoutCoreDoubleClicksAndKeysAreIgnored()
{
    TestObject object;
    recording::clear();
    QGraphicsSceneMouseEvent click(QEvent::GraphicsSceneMouseDoubleClick);
    object.mouseDoubleClickEvent(&click);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    object.keyPressEvent(&key);
    QCOMPARE(recording::names(), QStringList());
}

void TestForwarding::theMenuIsTheCores()
{
    ShapeFixture fixture;
    int place = 0;
    fixture.object.PopupObjectMenu(&place);
    QCOMPARE(recording::names(), QStringList({"shape.PopupObjectMenu"}));
    QCOMPARE(recording::lastArguments("PopupObjectMenu"), QVariantList({true}));
}

void TestForwarding::aSpecialPropertyOfTheCoreIsNotAskedOfTheHost()
{
    ShapeFixture fixture;
    fixture.shape->onGetSpecialProperty = [](int, QDataStream &out) {
        out << 5;
        return true;
    };
    int read = 0;
    fixture.shape->onSetSpecialProperty = [&](int, QDataStream &in, bool) {
        in >> read;
        return true;
    };
    Output out;
    QVERIFY(fixture.object.GetSpecialProperty(26, out));
    QCOMPARE(out.bytes(), support::bytesOf(5));
    QCOMPARE(recording::lastArguments("shape", "GetSpecialProperty"), QVariantList({26}));
    Input in = inputOf(6);
    QVERIFY(fixture.object.SetSpecialProperty(27, in, true));
    QCOMPARE(read, 6);
    QCOMPARE(recording::lastArguments("shape", "SetSpecialProperty"), QVariantList({27, true}));
    QCOMPARE(recording::count("object", "GetSpecialProperty"), 0);
    QCOMPARE(recording::count("object", "SetSpecialProperty"), 0);
}

void TestForwarding::aSpecialPropertyThatTheCoreDeclinesIsTheHosts()
{
    ShapeFixture fixture;
    fixture.shape->onGetSpecialProperty = [](int, QDataStream &) { return false; };
    fixture.shape->onSetSpecialProperty = [](int, QDataStream &, bool) { return false; };
    for (bool answer : {true, false}) {
        recording::framework().baseAnswer = answer;
        recording::clear();
        Output out;
        QCOMPARE(fixture.object.GetSpecialProperty(31, out), answer);
        Input in = inputOf(6);
        QCOMPARE(fixture.object.SetSpecialProperty(32, in, true), answer);
        QCOMPARE(recording::names(), QStringList({"shape.GetSpecialProperty", "object.GetSpecialProperty",
                                                  "shape.SetSpecialProperty", "object.SetSpecialProperty"}));
        QCOMPARE(recording::lastArguments("object", "GetSpecialProperty"), QVariantList({31}));
        QCOMPARE(recording::lastArguments("object", "SetSpecialProperty"), QVariantList({32, true}));
    }
}

void TestForwarding::withoutCoreSpecialPropertiesNeverReachTheHost()
{
    TestObject object;
    recording::clear();
    Output out;
    QVERIFY(!object.GetSpecialProperty(26, out));
    Input in = inputOf(6);
    QVERIFY(!object.SetSpecialProperty(26, in, true));
    QCOMPARE(recording::names(), QStringList());
    QCOMPARE(out.bytes(), QByteArray());
}

void TestForwarding::panelControlsAreTheHosts_data()
{
    using Builder = std::function<QJsonObject(TestObject &)>;
    QTest::addColumn<Builder>("build");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<QString>("kind");

    static QString a("a"), b("b"), c("c"), d("d"), e("e"), f("f"), g("g");
    static QList<QString> icons{"i1", "i2"};
    static QList<QString> texts{"t1", "t2", "t3"};
    const auto row = [](const char *operation, const QVariantList &arguments, const char *kind,
                        const Builder &build) {
        QTest::newRow(operation) << build << QString(operation) << arguments << QString(kind);
    };
    row("GetSettingJsonComboBox", {a, b, 3, QStringList(icons), QStringList(texts)}, "combobox",
        [](TestObject &object) { return object.GetSettingJsonComboBox(a, b, 3, icons, texts); });
    row("GetSettingJsonColorPicker", {a, b, c}, "colorpicker",
        [](TestObject &object) { return object.GetSettingJsonColorPicker(a, b, c); });
    row("GetSettingJsonInput", {a, b, c, d, e, f, g}, "input",
        [](TestObject &object) { return object.GetSettingJsonInput(a, b, c, d, e, f, g); });
    row("GetSettingJsonSwitch", {a, b, true}, "switch",
        [](TestObject &object) { return object.GetSettingJsonSwitch(a, b, true); });
    row("GetSettingJsonSlider", {a, b, c, d, e, f, g}, "slider",
        [](TestObject &object) { return object.GetSettingJsonSlider(a, b, c, d, e, f, g); });
    row("GetSettingJsonCommond", {a, b, c}, "command",
        [](TestObject &object) { return object.GetSettingJsonCommond(a, b, c); });
}

void TestForwarding::panelControlsAreTheHosts()
{
    QFETCH(const std::function<QJsonObject(TestObject &)>, build);
    QFETCH(const QString, operation);
    QFETCH(const QVariantList, arguments);
    QFETCH(const QString, kind);
    ShapeFixture fixture;
    const QJsonObject control = build(fixture.object);
    QCOMPARE(control, QJsonObject({{"kind", kind}, {"id", "a"}}));
    QCOMPARE(recording::names(), QStringList({"object." + operation}));
    QCOMPARE(recording::lastArguments(operation), arguments);
}

void TestForwarding::panelAnswersAreParsedByTheHost()
{
    ShapeFixture fixture;
    recording::framework().settings = {{"width", "3"}};
    QMap<QString, QString> values;
    QVERIFY(fixture.object.ParseSettingJson("answer", values));
    QCOMPARE(values, (QMap<QString, QString>{{"width", "3"}}));
    QCOMPARE(recording::lastArguments("ParseSettingJson"), QVariantList({"answer"}));
}

void TestForwarding::unreadablePanelAnswersAreRefused()
{
    ShapeFixture fixture;
    recording::framework().settingsParse = false;
    QMap<QString, QString> values{{"kept", "yes"}};
    QVERIFY(!fixture.object.ParseSettingJson("answer", values));
    QCOMPARE(values, (QMap<QString, QString>{{"kept", "yes"}}));
}

QTEST_MAIN(TestForwarding)

#include "test_forwarding.moc"
