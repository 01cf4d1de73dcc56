// Plug-ins as the host finds them.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QDir>
#include <QtTest/QtTest>

using shapetest::ShapeDriver;

class TestPlugins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directoryHoldsExactlyTheKnownShapes();
    void pluginOffersOneKind_data();
    void pluginOffersOneKind();
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

void TestPlugins::addShapeRows()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("controlPoints");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    QTest::newRow("roundedrectangle") << 1 << 1 << "Rounded rectangle"
                                      << "Abgerundetes Rechteck";
    QTest::newRow("blockarrow") << 5 << 2 << "Block arrow"
                                << "Blockpfeil";
    QTest::newRow("polygon") << 9 << 5 << "Polygon"
                             << "Vieleck";
    QTest::newRow("flask") << 30 << 1 << "Flask"
                           << "Kolben";
}

void TestPlugins::directoryHoldsExactlyTheKnownShapes()
{
    const QDir directory = QFileInfo(shapetest::pluginFile(QStringLiteral("flask"))).dir();
    QStringList expected;
    for (const QString &name : shapetest::shapeNames())
        expected += name + QStringLiteral(".so");
    expected.sort();
    QCOMPARE(directory.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name), expected);
}

void TestPlugins::pluginOffersOneKind_data()
{
    addShapeRows();
}

void TestPlugins::pluginOffersOneKind()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const ShapeDriver shape(name);
    const QVector<pagehost::ObjectKind> kinds = shape.plugin()->objectKinds();
    QCOMPARE(kinds.size(), 1);
    QCOMPARE(kinds.first().id, QStringLiteral("shapes.") + name);
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
    const ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    const pagehost::ObjectKind kind = shape.plugin()->objectKinds().first();
    const pagehost::TextTable englishTexts = shape.plugin()->texts(QStringLiteral("en"));
    const pagehost::TextTable germanTexts = shape.plugin()->texts(QStringLiteral("de"));
    QCOMPARE(englishTexts.value(kind.nameKey), english);
    QCOMPARE(germanTexts.value(kind.nameKey), german);
    QCOMPARE(englishTexts.value(kind.group), QStringLiteral("Basic shapes"));
    QCOMPARE(germanTexts.value(kind.group), QStringLiteral("Grundformen"));
}

void TestPlugins::unknownLanguageHasNoTexts()
{
    const ShapeDriver shape(QStringLiteral("polygon"));
    QVERIFY(shape.plugin()->texts(QStringLiteral("xx")).isEmpty());
}

void TestPlugins::unknownKindGivesNoObject()
{
    const ShapeDriver shape(QStringLiteral("polygon"));
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
    QVERIFY(!shape.object().isCreateFinished());
    QCOMPARE(shape.core().getSVGType(), type);
    QCOMPARE(shape.controlPointCount(), controlPoints);
    for (const int property : {PROP_SVG_PENCOLOR, PROP_SVG_PENSTYLE, PROP_SVG_PENWIDTH, PROP_SVG_FILLCOLOR})
        QCOMPARE(shape.object().getAttributeIds().count(property), 1);
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
