// Colour, width and variant of the tools.

#include <tools/toolsettings.h>

#include "board/boarddriver.h"

#include <QtCore/QSettings>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

using board::Tool;
using board::ToolSettings;

class TestToolSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { boardtest::useOwnFolders(); }
    void init() { QSettings().clear(); }
    void everyToolBeginsWithSomethingOnOffer();
    void colorsAndWidthsAreRemembered();
    void penAndLineHaveColorsOfTheirOwn();
    void severalPensKeepTheirLooks();
    void penInHandIsRemembered();
    void switchesOfAToolAreRemembered();
    void aWidthOffTheScaleIsLimited();
    void theNextWidthIsWiderOrNarrower();
    void onlyVariantsOnOfferAreTaken();
    void rememberedNonsenseIsIgnored();
    void onlyChangesAreAnnounced();
};

void TestToolSettings::everyToolBeginsWithSomethingOnOffer()
{
    const ToolSettings settings;
    for (const Tool tool : {Tool::Pen, Tool::Highlighter, Tool::Text, Tool::Line, Tool::Connector})
        QVERIFY(settings.colors(tool).contains(settings.color(tool)));
    for (const Tool tool : {Tool::Pen, Tool::Eraser, Tool::Text, Tool::Line})
        QVERIFY(settings.widths(tool).contains(settings.width(tool)));
    QCOMPARE(settings.variants(Tool::Line).size(), 3);
    QCOMPARE(settings.variants(Tool::Connector).size(), 4);
    QVERIFY(settings.colors(Tool::Eraser).isEmpty());
    QVERIFY(settings.widths(Tool::Select).isEmpty());
}

void TestToolSettings::colorsAndWidthsAreRemembered()
{
    {
        ToolSettings settings;
        settings.setColor(Tool::Pen, QColor(Qt::red));
        settings.setWidth(Tool::Pen, 8);
        settings.setVariant(Tool::Eraser, 1);
    }
    const ToolSettings settings;
    QCOMPARE(settings.color(Tool::Pen), QColor(Qt::red));
    QCOMPARE(settings.width(Tool::Pen), 8.0);
    QCOMPARE(settings.variant(Tool::Eraser), 1);
}

void TestToolSettings::penAndLineHaveColorsOfTheirOwn()
{
    ToolSettings settings;
    settings.setColor(Tool::Line, QColor(Qt::red));
    QCOMPARE(settings.color(Tool::Pen), settings.colors(Tool::Pen).constFirst());
}

void TestToolSettings::severalPensKeepTheirLooks()
{
    {
        ToolSettings settings;
        QCOMPARE(settings.pens(Tool::Pen).size(), 3);
        QCOMPARE(settings.pens(Tool::Line).size(), 1);
        settings.takePen(Tool::Pen, 1);
        settings.setColor(Tool::Pen, QColor(Qt::green));
        settings.setWidth(Tool::Pen, 12);
        settings.takePen(Tool::Pen, 0);
        QCOMPARE(settings.color(Tool::Pen), QColor(0x1f, 0x26, 0x30));
        settings.takePen(Tool::Pen, 3);
        settings.takePen(Tool::Pen, -1);
        settings.takePen(Tool::Select, 0);
        QCOMPARE(settings.pen(Tool::Pen), 0);
    }
    const ToolSettings settings;
    QCOMPARE(settings.width(Tool::Pen), 4.0);
    QCOMPARE(settings.pens(Tool::Pen).at(1).color, QColor(Qt::green));
    QCOMPARE(settings.pens(Tool::Pen).at(1).width, 12.0);
    QCOMPARE(settings.pens(Tool::Pen).at(2).color, QColor(0xc9, 0x25, 0x2d));
}

void TestToolSettings::penInHandIsRemembered()
{
    ToolSettings().takePen(Tool::Highlighter, 2);
    QCOMPARE(ToolSettings().pen(Tool::Highlighter), 2);
    QCOMPARE(ToolSettings().width(Tool::Highlighter), 32.0);
    QSettings().setValue("tools/highlighter/pen", 7);
    QCOMPARE(ToolSettings().pen(Tool::Highlighter), 0);
}

void TestToolSettings::switchesOfAToolAreRemembered()
{
    QVERIFY(ToolSettings().usesPressure(Tool::Pen));
    QVERIFY(ToolSettings().straightens(Tool::Pen));
    ToolSettings().setUsesPressure(Tool::Pen, false);
    QVERIFY(!ToolSettings().usesPressure(Tool::Pen));
    QVERIFY(ToolSettings().straightens(Tool::Pen));
    ToolSettings().setStraightens(Tool::Pen, false);
    QVERIFY(!ToolSettings().straightens(Tool::Pen));
    QVERIFY(ToolSettings().straightens(Tool::Highlighter));
}

void TestToolSettings::aWidthOffTheScaleIsLimited()
{
    ToolSettings settings;
    settings.setWidth(Tool::Pen, 1000);
    QCOMPARE(settings.width(Tool::Pen), 14.0);
    settings.setWidth(Tool::Pen, -1);
    QCOMPARE(settings.width(Tool::Pen), 2.0);
    settings.setWidth(Tool::Pen, qQNaN());
    QCOMPARE(settings.width(Tool::Pen), 2.0);
    settings.setWidth(Tool::Pen, 3);
    QCOMPARE(settings.width(Tool::Pen), 3.0);
}

void TestToolSettings::theNextWidthIsWiderOrNarrower()
{
    ToolSettings settings;
    settings.setWidth(Tool::Pen, 3);
    settings.stepWidth(Tool::Pen, 1);
    QCOMPARE(settings.width(Tool::Pen), 4.0);
    settings.stepWidth(Tool::Pen, 1);
    QCOMPARE(settings.width(Tool::Pen), 8.0);
    settings.stepWidth(Tool::Pen, -1);
    settings.stepWidth(Tool::Pen, -1);
    QCOMPARE(settings.width(Tool::Pen), 2.0);
    settings.stepWidth(Tool::Pen, -1);
    QCOMPARE(settings.width(Tool::Pen), 2.0);
}

void TestToolSettings::onlyVariantsOnOfferAreTaken()
{
    ToolSettings settings;
    settings.setVariant(Tool::Line, 2);
    settings.setVariant(Tool::Line, 3);
    settings.setVariant(Tool::Line, -1);
    QCOMPARE(settings.variant(Tool::Line), 2);
    settings.setVariant(Tool::Pen, 1);
    QCOMPARE(settings.variant(Tool::Pen), 0);
}

void TestToolSettings::rememberedNonsenseIsIgnored()
{
    QSettings remembered;
    remembered.setValue("tools/pen/color", "no colour");
    remembered.setValue("tools/pen/width", "nan");
    remembered.setValue("tools/line/variant", 77);
    const ToolSettings settings;
    QCOMPARE(settings.color(Tool::Pen), settings.colors(Tool::Pen).constFirst());
    QCOMPARE(settings.width(Tool::Pen), 4.0);
    QCOMPARE(settings.variant(Tool::Line), 0);
}

void TestToolSettings::onlyChangesAreAnnounced()
{
    ToolSettings settings;
    QSignalSpy changes(&settings, &ToolSettings::changed);
    settings.setWidth(Tool::Pen, 8);
    settings.setWidth(Tool::Pen, 8);
    QCOMPARE(changes.count(), 1);
    settings.setColor(Tool::Eraser, QColor(Qt::red));
    settings.setColor(Tool::Pen, QColor());
    QCOMPARE(changes.count(), 1);
}

QTEST_MAIN(TestToolSettings)
#include "test_toolsettings.moc"
