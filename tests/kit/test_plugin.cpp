// A plug-in of several shapes, and what it reports about them.

#include <shapekit/shape.h>
#include <shapekit/shapeobject.h>
#include <shapekit/shapeplugin.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtTest/QtTest>

using shapekit::Kind;
using shapekit::Words;

namespace {

const shapekit::Text widthText(Words{{QStringLiteral("en"), QStringLiteral("Key width")},
                                     {QStringLiteral("fr"), QStringLiteral("Largeur de clé")}});
const shapekit::Text styleText("Style", "Stil");
const shapekit::Text plainText("Plain", "Schlicht");

const QString goodTemplate =
    QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 40'>\n"
                   "<rect id='figure' x='4' y='4' width='32' height='32' fill='red' stroke='black'/>\n"
                   "<rect id='control_1' x='16' y='16' width='8' height='8'/></svg>");

class Nut : public shapekit::ShapeOfType<201>
{
public:
    using ShapeOfType::ShapeOfType;

private:
    shapekit::RealNumber keyWidth{this, widthText, 1, 0, 9, 1};
    shapekit::Choice style{this, styleText, 0, {&plainText}};
};

/// Uses nodes and points that the template may lack.
class Careless : public shapekit::ShapeOfType<202>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    void draw() override
    {
        ++drawings;
        set("fgure", "x", point(2).x());
        rotate("fgure", 30, wantedPoint(7));
        pointMoved(0, range(99).center());
    }

public:
    int drawings = 0;
};

template<class Core> Kind kindNamed(const char *name, const QString &templateText)
{
    Kind kind = shapekit::kindOf<Core>(QString::fromLatin1(name), shapekit::inEnglishAndGerman(name, name));
    kind.templateText = templateText;
    return kind;
}

QStringList told(const QVector<pagehost::PluginMessage> &messages)
{
    QStringList texts;
    for (const pagehost::PluginMessage &message : messages)
        texts.append(message.told());
    return texts;
}

/// The same fault for hundreds of drawings of two objects.
void drawOften(const shapekit::ShapePlugin &plugin, const QString &kindId)
{
    for (int i = 0; i < 2; ++i) {
        const std::unique_ptr<CBaseObject> object(plugin.createObject(kindId));
        for (int side = 30; side < 130; ++side) {
            object->setSize(QSizeF(side, side), false, false);
            static_cast<shapekit::ShapeObject &>(*object).core()->settleDrawing();
        }
    }
}

} // namespace

class TestPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersAllItsShapes();
    void shapesHaveGroupsIdsAndKeysOfTheirOwn();
    void textsAreThoseOfThePropertiesInAnyLanguage();
    void sameTextIsNamedByItsShape();
    void goodShapesReportNothing();
    void unknownNodesAndPointsAreReportedOnce();
    void faultsOfTheTemplateAreReported();
    void shapeWithoutATemplateIsReportedAndDrawsNothing();
    void listenerHearsOfLaterFaults();
    void logIsBounded();
};

void TestPlugin::offersAllItsShapes()
{
    const shapekit::ShapePlugin plugin({kindNamed<Nut>("nut", goodTemplate), kindNamed<Nut>("bolt", goodTemplate)});
    QCOMPARE(plugin.objectKinds().size(), 2);
    QCOMPARE(plugin.objectKinds().at(1).id, QStringLiteral("shapes.bolt"));
    const std::unique_ptr<CBaseObject> object(plugin.createObject(QStringLiteral("shapes.bolt")));
    QCOMPARE(static_cast<shapekit::ShapeObject &>(*object).kindName(), QStringLiteral("IDS_SHAPE_BOLT"));
    QCOMPARE(plugin.createObject(QStringLiteral("shapes.screw")), nullptr);
}

void TestPlugin::shapesHaveGroupsIdsAndKeysOfTheirOwn()
{
    Kind kind = kindNamed<Nut>("nut", goodTemplate);
    kind.idPrefix = QStringLiteral("workshop.");
    kind.keyPrefix = QStringLiteral("IDS_WORKSHOP_");
    kind.group = {QStringLiteral("IDS_TOOLS"), shapekit::inEnglishAndGerman("Tools", "Werkzeug")};
    const shapekit::ShapePlugin plugin({kind});
    const pagehost::ObjectKind offered = plugin.objectKinds().constFirst();
    QCOMPARE(offered.id, QStringLiteral("workshop.nut"));
    QCOMPARE(offered.nameKey, QStringLiteral("IDS_WORKSHOP_NUT"));
    QCOMPARE(offered.group, QStringLiteral("IDS_TOOLS"));
    QCOMPARE(plugin.texts(QStringLiteral("de")).value(QStringLiteral("IDS_TOOLS")), QStringLiteral("Werkzeug"));
    QCOMPARE(plugin.texts(QStringLiteral("de")).value(QStringLiteral("IDS_WORKSHOP_NUT_STYLE")),
             QStringLiteral("Stil"));
}

void TestPlugin::textsAreThoseOfThePropertiesInAnyLanguage()
{
    const shapekit::ShapePlugin plugin({kindNamed<Nut>("nut", goodTemplate)});
    const pagehost::TextTable english{{QStringLiteral("IDS_SHAPE_NUT"), QStringLiteral("nut")},
                                      {QStringLiteral("IDS_SHAPE_NUT_KEYWIDTH"), QStringLiteral("Key width")},
                                      {QStringLiteral("IDS_SHAPE_NUT_STYLE"), QStringLiteral("Style")},
                                      {QStringLiteral("IDS_SHAPE_NUT_PLAIN"), QStringLiteral("Plain")},
                                      {QStringLiteral("IDS_SHAPEGROUP_BASIC"), QStringLiteral("Basic shapes")}};
    QCOMPARE(plugin.texts(QStringLiteral("en")), english);
    const pagehost::TextTable french{{QStringLiteral("IDS_SHAPE_NUT_KEYWIDTH"), QStringLiteral("Largeur de clé")}};
    QCOMPARE(plugin.texts(QStringLiteral("fr")), french);
    QVERIFY(plugin.texts(QStringLiteral("tlh")).isEmpty());
}

void TestPlugin::sameTextIsNamedByItsShape()
{
    const shapekit::ShapePlugin plugin({kindNamed<Nut>("nut", goodTemplate), kindNamed<Nut>("bolt", goodTemplate)});
    const pagehost::TextTable german = plugin.texts(QStringLiteral("de"));
    QCOMPARE(german.value(QStringLiteral("IDS_SHAPE_NUT_STYLE")), QStringLiteral("Stil"));
    QCOMPARE(german.value(QStringLiteral("IDS_SHAPE_BOLT_STYLE")), QStringLiteral("Stil"));
    const std::unique_ptr<CBaseObject> object(plugin.createObject(QStringLiteral("shapes.bolt")));
    QString settings;
    static_cast<shapekit::ShapeObject &>(*object).GetSettingJson(settings);
    QVERIFY(settings.contains(QLatin1String("IDS_SHAPE_BOLT_STYLE")));
    QVERIFY(settings.contains(QLatin1String("IDS_SHAPE_BOLT_PLAIN")));
}

void TestPlugin::goodShapesReportNothing()
{
    const shapekit::ShapePlugin plugin({kindNamed<Nut>("nut", goodTemplate)});
    drawOften(plugin, QStringLiteral("shapes.nut"));
    QCOMPARE(told(plugin.messages()), QStringList());
}

void TestPlugin::unknownNodesAndPointsAreReportedOnce()
{
    const shapekit::ShapePlugin plugin({kindNamed<Careless>("careless", goodTemplate)});
    drawOften(plugin, QStringLiteral("shapes.careless"));
    QCOMPARE(
        told(plugin.messages()),
        (QStringList{QStringLiteral("careless/template.svg: error K10: there is no control point \"control_2\""),
                     QStringLiteral("careless/template.svg:2:11: error K04: no node has the id \"fgure\" (did you "
                                    "mean \"figure\"?)")}));
}

void TestPlugin::faultsOfTheTemplateAreReported()
{
    const shapekit::ShapePlugin plugin({kindNamed<Nut>(
        "nut",
        QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 4 4'>\n<path keps='fill'/></svg>"))});
    QCOMPARE(
        told(plugin.messages()),
        QStringList{QStringLiteral("nut/template.svg:2:13: warning K03: there is no attribute \"keps\" (did you "
                                   "mean \"keeps\"?)")});
}

void TestPlugin::shapeWithoutATemplateIsReportedAndDrawsNothing()
{
    for (const char *text : {"", "<svg", "<html/>"}) {
        const shapekit::ShapePlugin plugin({kindNamed<Careless>("careless", QString::fromLatin1(text))});
        drawOften(plugin, QStringLiteral("shapes.careless"));
        const QVector<pagehost::PluginMessage> messages = plugin.messages();
        QCOMPARE(messages.first().code, QStringLiteral("K01"));
        QCOMPARE(messages.first().severity, pagehost::PluginMessage::Error);
        QCOMPARE(messages.first().file, QStringLiteral("careless/template.svg"));
    }
}

void TestPlugin::listenerHearsOfLaterFaults()
{
    shapekit::ShapePlugin plugin({kindNamed<Nut>("nut", goodTemplate)});
    QStringList heard;
    plugin.setMessageListener([&](const pagehost::PluginMessage &message) { heard.append(message.told()); });
    const std::unique_ptr<CBaseObject> object(plugin.createObject(QStringLiteral("shapes.nut")));
    const Kind &kind = static_cast<shapekit::ShapeObject &>(*object).kind();
    const pagehost::PluginMessage fault{
        pagehost::PluginMessage::Error, QStringLiteral("K04"), QStringLiteral("f"), 7, 3, QString(),
        QStringLiteral("late")};
    kind.log->report(fault);
    kind.log->report(fault);
    QCOMPARE(heard, QStringList{QStringLiteral("f:7:3: error K04: late")});
    plugin.setMessageListener({});
    kind.log->report({pagehost::PluginMessage::Warning, QStringLiteral("K03"), QStringLiteral("f"), 0, 0, QString(),
                      QStringLiteral("unheard")});
    QCOMPARE(heard.size(), 1);
    QCOMPARE(plugin.messages().constLast().told(), QStringLiteral("f: warning K03: unheard"));
}

void TestPlugin::logIsBounded()
{
    shapekit::MessageLog log;
    for (int i = 0; i < 1000; ++i)
        log.report({pagehost::PluginMessage::Error, QStringLiteral("K04"), QString(), 0, 0, QString(),
                    QString::number(i)});
    QCOMPARE(log.messages().size(), 200);
}

QTEST_MAIN(TestPlugin)
#include "test_plugin.moc"
