// Which of the settings of an object the bar at the selection shows.

#include <panels/settings/ownsettings.h>

#include <QtTest/QtTest>

using board::SettingControl;

class TestOwnSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstShortSettingOfTheShapeIsShown();
    void lookIsNoSettingOfTheShape();
    void lettersOfAnEmptyTextHaveNoSetting();
    void settingBehindTheLettersOfAnEmptyTextIsShown();
};

namespace {

SettingControl setting(const QString &id, SettingControl::Kind kind)
{
    SettingControl control;
    control.id = id;
    control.kind = kind;
    return control;
}

QVector<SettingControl> lettersOf(const QString &text)
{
    SettingControl written = setting("idText", SettingControl::Text);
    written.role = "text";
    written.value = text;
    SettingControl size = setting("idFontSize", SettingControl::Slider);
    size.role = "size";
    written.section = size.section = "text";
    return {written, size};
}

QString shown(const QVector<SettingControl> &controls)
{
    const auto first = board::firstOwnSetting(controls);
    return first ? first->id : QString();
}

} // namespace

void TestOwnSettings::firstShortSettingOfTheShapeIsShown()
{
    QCOMPARE(shown({setting("idName", SettingControl::Text), setting("idFont", SettingControl::Font),
                    setting("idUpdate", SettingControl::Command), setting("idCorners", SettingControl::Slider),
                    setting("idDepth", SettingControl::Slider)}),
             QString("idCorners"));
    QCOMPARE(shown({setting("idName", SettingControl::Text)}), QString());
}

void TestOwnSettings::lookIsNoSettingOfTheShape()
{
    QCOMPARE(shown({setting("idLineStyle", SettingControl::Choice), setting("idFillColor", SettingControl::Color)}),
             QString());
}

void TestOwnSettings::lettersOfAnEmptyTextHaveNoSetting()
{
    QCOMPARE(shown(lettersOf(QString())), QString());
    QCOMPARE(shown(lettersOf("Sun")), QString("idFontSize"));
}

void TestOwnSettings::settingBehindTheLettersOfAnEmptyTextIsShown()
{
    QVector<SettingControl> controls = lettersOf(QString());
    controls.append(setting("idCorners", SettingControl::Slider));
    QCOMPARE(shown(controls), QString("idCorners"));
}

QTEST_MAIN(TestOwnSettings)
#include "test_ownsettings.moc"
