// Plug-ins as the host finds them.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QDir>
#include <QtTest/QtTest>

#include <algorithm>
#include <iterator>

using shapetest::ShapeDriver;

class TestPlugins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directoryHoldsExactlyTheKnownShapes();
    void typesDiffer();
    void pluginOffersTheKindOnce_data();
    void pluginOffersTheKindOnce();
    void textsAreThereInBothLanguages_data();
    void textsAreThereInBothLanguages();
    void unknownLanguageHasNoTexts();
    void unknownKindGivesNoObject();
    void newObjectIsBeingCreated_data();
    void newObjectIsBeingCreated();
    void coreIsMadeForItsOwnTypeOnly_data();
    void coreIsMadeForItsOwnTypeOnly();
    void presentCoreOfTheTypeIsKept();

private:
    void addShapeRows();
};

namespace {

struct KnownShape
{
    const char *name;
    int type;
    int controlPoints;
    const char *english;
    const char *german;
    const char *group;
};

constexpr KnownShape knownShapes[] = {
    {"ellipse", 0, 0, "Ellipse", "Ellipse", "Basic shapes"},
    {"roundedrectangle", 1, 1, "Rounded rectangle", "Abgerundetes Rechteck", "Basic shapes"},
    {"picture", 2, 0, "Picture", "Bild", "Basic shapes"},
    {"pie", 3, 2, "Pie", "Kreissektor", "Mathematics"},
    {"blockarrow", 5, 2, "Block arrow", "Blockpfeil", "Basic shapes"},
    {"callout", 6, 1, "Callout", "Sprechblase", "Basic shapes"},
    {"triangle", 7, 3, "Triangle", "Dreieck", "Basic shapes"},
    {"star", 8, 1, "Star", "Stern", "Basic shapes"},
    {"polygon", 9, 5, "Polygon", "Vieleck", "Basic shapes"},
    {"cube", 11, 1, "Cube", "Quader", "Mathematics"},
    {"cylinder", 12, 1, "Cylinder", "Zylinder", "Mathematics"},
    {"ring", 26, 1, "Ring", "Ring", "Basic shapes"},
    {"brace", 28, 1, "Brace", "Geschweifte Klammer", "Mathematics"},
    {"flask", 30, 1, "Flask", "Kolben", "Science"},
    {"curve", 31, 12, "Curve", "Kurve", "Mathematics"},
    {"numberline", 32, 1, "Number line", "Zahlenstrahl", "Mathematics"},
    {"axes", 33, 1, "Axes", "Achsenkreuz", "Mathematics"},
    {"protractor", 34, 1, "Protractor", "Winkelmesser", "Mathematics"},
    {"clock", 35, 2, "Clock", "Uhr", "Mathematics"},
    {"pendulum", 36, 1, "Pendulum", "Pendel", "Science"},
    {"spring", 37, 1, "Spring", "Feder", "Science"},
    {"gears", 38, 0, "Gears", "Zahnräder", "Science"},
    {"ink", 41, 0, "Stroke", "Strich", ""},
    {"text", 42, 0, "Text", "Text", ""},
    {"line", 43, 3, "Line", "Linie", ""},
    {"table", 1000, 1, "Table", "Tabelle", "Basic shapes"},
};

constexpr const char *declaredShapes[] = {
    "angle",     "balance",       "battery",    "beaker",      "cell",           "chevron",  "cloud",
    "cross",     "diamond",       "document",   "fractionbar", "fractioncircle", "gauge",    "heart",
    "lamp",      "leaf",          "lens",       "lever",       "parallelogram",  "prism",    "ramp",
    "resistor",  "righttriangle", "subprocess", "switch",      "terminator",     "testtube", "thermometer",
    "trapezoid", "venn",          "wave"};

/// Those that its plug-in offers with its id.
QVector<pagehost::ObjectKind> kindsOf(const ShapeDriver &shape, const QString &name)
{
    QVector<pagehost::ObjectKind> kinds;
    const QVector<pagehost::ObjectKind> offered = shape.plugin()->objectKinds();
    std::copy_if(offered.begin(), offered.end(), std::back_inserter(kinds),
                 [&](const pagehost::ObjectKind &kind) { return kind.id == shapetest::kindOf(name); });
    return kinds;
}

} // namespace

void TestPlugins::addShapeRows()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("controlPoints");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    QTest::addColumn<QString>("group");
    for (const KnownShape &shape : knownShapes)
        QTest::newRow(shape.name) << shape.type << shape.controlPoints << shape.english << shape.german
                                  << shape.group;
}

void TestPlugins::directoryHoldsExactlyTheKnownShapes()
{
    QStringList expected;
    for (const KnownShape &shape : knownShapes)
        expected.append(QString::fromLatin1(shape.name));
    for (const char *declared : declaredShapes)
        expected.append(QStringLiteral("declared/") + QLatin1String(declared));
    expected.sort();
    QStringList found = shapetest::allShapeNames();
    found.sort();
    QCOMPARE(found, expected);
}

void TestPlugins::typesDiffer()
{
    QMap<int, QString> names;
    for (const KnownShape &shape : knownShapes) {
        QVERIFY2(!names.contains(shape.type), shape.name);
        names.insert(shape.type, QString::fromLatin1(shape.name));
    }
}

void TestPlugins::pluginOffersTheKindOnce_data()
{
    addShapeRows();
}

void TestPlugins::pluginOffersTheKindOnce()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const ShapeDriver shape(name);
    const QVector<pagehost::ObjectKind> kinds = kindsOf(shape, name);
    QCOMPARE(kinds.size(), 1);
    QCOMPARE(shape.object().kindName(), kinds.first().nameKey);
}

void TestPlugins::textsAreThereInBothLanguages_data()
{
    addShapeRows();
}

void TestPlugins::textsAreThereInBothLanguages()
{
    QFETCH(QString, english);
    QFETCH(QString, german);
    QFETCH(QString, group);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const ShapeDriver shape(name);
    const pagehost::ObjectKind kind = kindsOf(shape, name).value(0);
    const pagehost::TextTable englishTexts = shape.plugin()->texts(QStringLiteral("en"));
    const pagehost::TextTable germanTexts = shape.plugin()->texts(QStringLiteral("de"));
    QCOMPARE(englishTexts.value(kind.nameKey), english);
    QCOMPARE(germanTexts.value(kind.nameKey), german);
    QCOMPARE(englishTexts.value(kind.group), group);
    // Whatever stands in one language stands in the other.
    QCOMPARE(germanTexts.keys(), englishTexts.keys());
}

void TestPlugins::unknownLanguageHasNoTexts()
{
    const ShapeDriver shape(QStringLiteral("polygon"));
    QVERIFY(shape.plugin()->texts(QStringLiteral("xx")).isEmpty());
}

void TestPlugins::unknownKindGivesNoObject()
{
    const ShapeDriver shape(QStringLiteral("ring"));
    QVERIFY(!shape.plugin()->createObject(QStringLiteral("shapes.flask")));
}

void TestPlugins::newObjectIsBeingCreated_data()
{
    addShapeRows();
}

void TestPlugins::newObjectIsBeingCreated()
{
    QFETCH(int, type);
    QFETCH(int, controlPoints);
    const ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const bool hasPen = name != QLatin1String("picture");
    const bool hasLines = hasPen && name != QLatin1String("text");
    QVERIFY(!shape.object().isCreateFinished());
    QCOMPARE(shape.core().getSVGType(), type);
    QCOMPARE(shape.controlPointCount(), controlPoints);
    QCOMPARE(shape.object().getAttributeIds().count(PROP_SVG_PENCOLOR), hasPen ? 1 : 0);
    for (const int property : {PROP_SVG_PENSTYLE, PROP_SVG_PENWIDTH})
        QCOMPARE(shape.object().getAttributeIds().count(property), hasLines ? 1 : 0);
}

void TestPlugins::coreIsMadeForItsOwnTypeOnly_data()
{
    addShapeRows();
}

void TestPlugins::coreIsMadeForItsOwnTypeOnly()
{
    const ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!shape.object().createSVGBase(999, false));
    QVERIFY(!shape.hasCore());
}

void TestPlugins::presentCoreOfTheTypeIsKept()
{
    const ShapeDriver shape(QStringLiteral("blockarrow"));
    shape.core().setPenColor(Qt::red, false);
    QVERIFY(shape.object().createSVGBase(5, false));
    QCOMPARE(shape.core().getPenColor(), QColor(Qt::red));
}

QTEST_MAIN(TestPlugins)
#include "test_plugins.moc"
