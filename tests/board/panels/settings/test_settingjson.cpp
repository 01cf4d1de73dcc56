// The description of a settings panel read, and its answers written.

#include <panels/settings/commonsettings.h>
#include <panels/settings/ownsettings.h>
#include <panels/settings/settingjson.h>

#include <QtGui/QColor>
#include <QtTest/QtTest>

using board::parseSettings;
using board::SettingControl;

static QString panel(const QString &controls)
{
    return QStringLiteral("{\"settings\": [%1]}").arg(controls);
}

static SettingControl only(const QString &control)
{
    const QVector<SettingControl> controls = parseSettings(panel(control));
    return controls.size() == 1 ? controls.first() : SettingControl();
}

class TestSettingJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choiceIsRead();
    void choiceBesideItsEntriesIsNone();
    void colorIsRead();
    void inputOfTextIsRead();
    void fontIsRead();
    void messageOfAnInputIsRead();
    void messagesTakeTheirArguments();
    void inputOfNumbersIsRead();
    void switchIsRead();
    void sliderIsRead();
    void sliderValueComesIntoItsBounds();
    void commandIsRead();
    void controlsKeepTheirOrder();
    void nonsenseIsPassedOver_data();
    void nonsenseIsPassedOver();
    void textThatIsNoPanelGivesNothing_data();
    void textThatIsNoPanelGivesNothing();
    void damagedTextNeverCrashes();
    void answers_data();
    void answers();
    void commonControlsAreThoseOfAll();
    void differentValuesAreMixed();
    void boundsAreThoseThatAllTake();
    void decimalsFollowTheStep_data();
    void decimalsFollowTheStep();
};

void TestSettingJson::choiceIsRead()
{
    const SettingControl control =
        only(R"({"type":"combobox","id":"idA","title":"IDS_A","index":1,"icons":["x","y"],"texts":[]})");
    QCOMPARE(control.kind, SettingControl::Choice);
    QCOMPARE(control.id, QString("idA"));
    QCOMPARE(control.titleKey, QString("IDS_A"));
    QCOMPARE(control.value, QVariant(1));
    QCOMPARE(control.icons, (QStringList{"x", "y"}));
    QCOMPARE(control.entryCount(), 2);
}

void TestSettingJson::choiceBesideItsEntriesIsNone()
{
    QCOMPARE(only(R"({"type":"combobox","id":"a","index":2,"texts":["x","y"]})").value, QVariant(-1));
    QCOMPARE(only(R"({"type":"combobox","id":"a","index":-1,"texts":["x","y"]})").value, QVariant(-1));
}

void TestSettingJson::colorIsRead()
{
    const SettingControl control = only(R"({"type":"colorpicker","id":"a","title":"t","color":"#80ff0010"})");
    QCOMPARE(control.kind, SettingControl::Color);
    QCOMPARE(control.value.value<QColor>(), QColor(255, 0, 16, 128));
}

void TestSettingJson::inputOfTextIsRead()
{
    const SettingControl control = only(R"({"type":"input","id":"a","value":"12","valueType":"text"})");
    QCOMPARE(control.kind, SettingControl::Text);
    QCOMPARE(control.value, QVariant(QString("12")));
}

void TestSettingJson::fontIsRead()
{
    const SettingControl control = only(
        R"({"type":"input","id":"a","value":"DejaVu Serif","valueType":"font","section":"text","role":"font"})");
    QCOMPARE(control.kind, SettingControl::Font);
    QCOMPARE(control.value, QVariant(QString("DejaVu Serif")));
    QCOMPARE(control.section, QString("text"));
    QCOMPARE(control.role, QString("font"));
}

void TestSettingJson::messageOfAnInputIsRead()
{
    const SettingControl control = only(
        R"({"type":"input","id":"idA","title":"IDS_A","value":"x","valueType":"text","message":"IDS_M","arguments":["3","x"]})");
    QCOMPARE(control.messageKey, QString("IDS_M"));
    QCOMPARE(control.messageArguments, (QStringList{"3", "x"}));
}

void TestSettingJson::messagesTakeTheirArguments()
{
    QCOMPARE(board::filledIn("%2 at %1: %2 %", {"4", "%1"}), QString("%1 at 4: %1 %"));
    QCOMPARE(board::filledIn("%3", {"4"}), QString());
}

void TestSettingJson::inputOfNumbersIsRead()
{
    const SettingControl whole = only(
        R"({"type":"input","id":"a","value":"12","valueType":"int","minimum":"0","maximum":"20","unit":"cm"})");
    QCOMPARE(whole.kind, SettingControl::Number);
    QCOMPARE(whole.value, QVariant(12.0));
    QCOMPARE(whole.range.minimum, 0.0);
    QCOMPARE(whole.range.maximum, 20.0);
    QCOMPARE(whole.range.decimals, 0);
    QCOMPARE(whole.unit, QString("cm"));
    const SettingControl real = only(R"({"type":"input","id":"a","value":"1.25","valueType":"double"})");
    QCOMPARE(real.value, QVariant(1.25));
    QCOMPARE(real.range.decimals, 2);
    QVERIFY(real.range.minimum < -1e9 && real.range.maximum > 1e9);
}

void TestSettingJson::switchIsRead()
{
    QCOMPARE(only(R"({"type":"switch","id":"a","on":true})").value, QVariant(true));
    QCOMPARE(only(R"({"type":"switch","id":"a","on":false})").value, QVariant(false));
    QCOMPARE(only(R"({"type":"switch","id":"a","on":true})").kind, SettingControl::Switch);
}

void TestSettingJson::sliderIsRead()
{
    const SettingControl control =
        only(R"({"type":"slider","id":"a","value":"2.5","minimum":"1","maximum":"9","step":"0.5","unit":"cm"})");
    QCOMPARE(control.kind, SettingControl::Slider);
    QCOMPARE(control.value, QVariant(2.5));
    QCOMPARE(control.range.minimum, 1.0);
    QCOMPARE(control.range.maximum, 9.0);
    QCOMPARE(control.range.step, 0.5);
    QCOMPARE(control.range.decimals, 1);
    QCOMPARE(control.unit, QString("cm"));
}

void TestSettingJson::sliderValueComesIntoItsBounds()
{
    QCOMPARE(only(R"({"type":"slider","id":"a","value":"20","minimum":"1","maximum":"9"})").value, QVariant(9.0));
    QCOMPARE(only(R"({"type":"slider","id":"a","value":-20,"minimum":1,"maximum":9})").value, QVariant(1.0));
}

void TestSettingJson::commandIsRead()
{
    const SettingControl control = only(R"({"type":"command","id":"a","title":"IDS_GO","command":"go"})");
    QCOMPARE(control.kind, SettingControl::Command);
    QCOMPARE(control.value, QVariant(QString("go")));
}

void TestSettingJson::controlsKeepTheirOrder()
{
    const QVector<SettingControl> controls = parseSettings(panel(
        R"({"type":"switch","id":"b","on":true},{"type":"other","id":"c"},{"type":"switch","id":"a","on":true})"));
    QCOMPARE(controls.size(), 2);
    QCOMPARE(controls.at(0).id, QString("b"));
    QCOMPARE(controls.at(1).id, QString("a"));
}

void TestSettingJson::nonsenseIsPassedOver_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("no object") << "17";
    QTest::newRow("no id") << R"({"type":"switch","on":true})";
    QTest::newRow("id that is no text") << R"({"type":"switch","id":5,"on":true})";
    QTest::newRow("no type") << R"({"id":"a"})";
    QTest::newRow("unknown type") << R"({"type":"dial","id":"a"})";
    QTest::newRow("choice without entries") << R"({"type":"combobox","id":"a","index":0})";
    QTest::newRow("uneven choice") << R"({"type":"combobox","id":"a","index":0,"icons":["x"],"texts":["y","z"]})";
    QTest::newRow("no colour") << R"({"type":"colorpicker","id":"a","color":"reddish"})";
    QTest::newRow("switch that is a number") << R"({"type":"switch","id":"a","on":1})";
    QTest::newRow("slider without bounds") << R"({"type":"slider","id":"a","value":"1"})";
    QTest::newRow("slider without room") << R"({"type":"slider","id":"a","value":"1","minimum":"1","maximum":"1"})";
    QTest::newRow("slider upside down") << R"({"type":"slider","id":"a","value":"1","minimum":"2","maximum":"1"})";
    QTest::newRow("slider to infinity")
        << R"({"type":"slider","id":"a","value":"1","minimum":"0","maximum":"inf"})";
    QTest::newRow("number that is none") << R"({"type":"input","id":"a","value":"one","valueType":"int"})";
}

void TestSettingJson::nonsenseIsPassedOver()
{
    QFETCH(QString, control);
    QVERIFY(parseSettings(panel(control)).isEmpty());
}

void TestSettingJson::textThatIsNoPanelGivesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("words") << "settings";
    QTest::newRow("array") << "[]";
    QTest::newRow("other object") << "{\"setting\": []}";
    QTest::newRow("settings that are no array") << "{\"settings\": {\"type\": \"switch\"}}";
    QTest::newRow("cut") << R"({"settings": [{"type":"switch","id":"a","on":true)";
    QTest::newRow("very deep") << QString(100000, '[');
}

void TestSettingJson::textThatIsNoPanelGivesNothing()
{
    QFETCH(QString, text);
    QVERIFY(parseSettings(text).isEmpty());
}

void TestSettingJson::damagedTextNeverCrashes()
{
    const QString whole = panel(R"({"type":"combobox","id":"a","index":1,"texts":["x","y"]},)"
                                R"({"type":"slider","id":"b","value":"2","minimum":"1","maximum":"9","step":"0"})");
    QCOMPARE(parseSettings(whole).size(), 2);
    for (int i = 0; i < whole.size(); ++i) {
        QVERIFY(parseSettings(whole.left(i)).isEmpty());
        QString changed = whole;
        changed[i] = QChar(0xd800);
        QVERIFY(parseSettings(changed).size() <= 2);
    }
}

void TestSettingJson::answers_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("answer");
    QTest::newRow("choice") << R"({"type":"combobox","id":"a","index":1,"texts":["x","y"]})" << QVariant(1)
                            << R"({"a":"1"})";
    QTest::newRow("colour") << R"({"type":"colorpicker","id":"a","color":"#ff0000"})"
                            << QVariant(QColor(1, 2, 3, 128)) << R"({"a":"#80010203"})";
    QTest::newRow("text") << R"({"type":"input","id":"a","value":"x"})" << QVariant(QString("say \"hi\""))
                          << R"({"a":"say \"hi\""})";
    QTest::newRow("font") << R"({"type":"input","id":"a","value":"","valueType":"font"})"
                          << QVariant(QString("DejaVu Serif")) << R"({"a":"DejaVu Serif"})";
    QTest::newRow("number") << R"({"type":"input","id":"a","value":"1","valueType":"int"})" << QVariant(12.0)
                            << R"({"a":"12"})";
    QTest::newRow("switch") << R"({"type":"switch","id":"a","on":false})" << QVariant(true) << R"({"a":"true"})";
    QTest::newRow("slider") << R"({"type":"slider","id":"a","value":"1","minimum":"0","maximum":"9"})"
                            << QVariant(0.1) << R"({"a":"0.1"})";
    QTest::newRow("command") << R"({"type":"command","id":"a","command":"go"})" << QVariant(QString("go"))
                             << R"({"a":"go"})";
}

void TestSettingJson::answers()
{
    QFETCH(QString, control);
    QFETCH(QVariant, value);
    QFETCH(QString, answer);
    QCOMPARE(board::settingAnswer(only(control), value), answer);
}

void TestSettingJson::commonControlsAreThoseOfAll()
{
    const QVector<SettingControl> one = parseSettings(panel(
        R"({"type":"switch","id":"a","on":true},{"type":"switch","id":"b","on":true},{"type":"switch","id":"c","on":true})"));
    const QVector<SettingControl> other = parseSettings(panel(
        R"({"type":"switch","id":"c","on":true},{"type":"command","id":"b","command":"x"},{"type":"switch","id":"a","on":true})"));
    const QVector<board::CommonSetting> common = board::commonSettings({one, other});
    QCOMPARE(common.size(), 2);
    QCOMPARE(common.at(0).control.id, QString("a"));
    QCOMPARE(common.at(1).control.id, QString("c"));
    QVERIFY(!common.at(0).isMixed);
    QVERIFY(board::commonSettings({one, {}}).isEmpty());
    QVERIFY(board::commonSettings({}).isEmpty());
}

void TestSettingJson::differentValuesAreMixed()
{
    const QVector<SettingControl> on = parseSettings(panel(R"({"type":"switch","id":"a","on":true})"));
    const QVector<SettingControl> off = parseSettings(panel(R"({"type":"switch","id":"a","on":false})"));
    QVERIFY(board::commonSettings({on, on, off}).constFirst().isMixed);
    QVERIFY(!board::commonSettings({off, off}).constFirst().isMixed);
}

void TestSettingJson::boundsAreThoseThatAllTake()
{
    const QString slider = R"({"type":"slider","id":"a","value":"4","minimum":"%1","maximum":"%2","step":"1"})";
    const QVector<SettingControl> low = parseSettings(panel(slider.arg(1).arg(6)));
    const QVector<SettingControl> high = parseSettings(panel(slider.arg(3).arg(9)));
    const board::NumberRange range = board::commonSettings({low, high}).constFirst().control.range;
    QCOMPARE(range.minimum, 3.0);
    QCOMPARE(range.maximum, 6.0);
    const QVector<SettingControl> higher = parseSettings(panel(slider.arg(7).arg(9)));
    QVERIFY(board::commonSettings({low, higher}).isEmpty());
}

void TestSettingJson::decimalsFollowTheStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("decimals");
    QTest::newRow("1") << 1.0 << 0;
    QTest::newRow("15") << 15.0 << 0;
    QTest::newRow("0.5") << 0.5 << 1;
    QTest::newRow("0.1") << 0.1 << 1;
    QTest::newRow("0.25") << 0.25 << 2;
    QTest::newRow("0.001") << 0.001 << 3;
    QTest::newRow("a third") << 1.0 / 3 << 6;
}

void TestSettingJson::decimalsFollowTheStep()
{
    QFETCH(double, step);
    QFETCH(int, decimals);
    QCOMPARE(board::NumberRange::decimalsOf(step), decimals);
}

QTEST_MAIN(TestSettingJson)
#include "test_settingjson.moc"
