#include <pagehost/localizer.h>
#include <pagehost/objectregistry.h>

#include "framework/testobject.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <memory>

using pagehost::Localizer;
using pagehost::ObjectRegistry;
using pagehost::PluginReport;

namespace {

QString pluginFile(const char *name)
{
    return QDir(QStringLiteral(TEST_PLUGIN_DIR)).filePath(QStringLiteral("lib%1.so").arg(QLatin1String(name)));
}

/// Reads data that begins with a mark of its own and writes the object's width.
class DataPlugin : public pagehost::ObjectPlugin
{
public:
    DataPlugin(const QString &id, const QStringList &types, const QByteArray &mark)
        : m_id(id)
        , m_types(types)
        , m_mark(mark)
    {
    }
    QVector<pagehost::ObjectKind> objectKinds() const override { return {{m_id, QStringLiteral("IDS_DATA"), {}}}; }
    CBaseObject *createObject(const QString &) const override { return new TestObject(QSizeF(7, 8)); }
    pagehost::TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_DATA"), QStringLiteral("Data")}};
    }
    QStringList dataTypes() const override { return m_types; }
    CBaseObject *createFromData(const QString &, const QByteArray &data, QString &kindId) const override
    {
        kindId = toldKind.isEmpty() ? m_id : toldKind;
        return data.startsWith(m_mark) ? new TestObject(QSizeF(data.size(), 1)) : nullptr;
    }
    QByteArray dataOf(CBaseObject *object, const QString &mimeType) const override
    {
        return m_types.contains(mimeType) ? m_mark + QByteArray::number(object->getClientRect().width())
                                          : QByteArray();
    }

    QString toldKind; ///< told in place of its own when not empty

private:
    QString m_id;
    QStringList m_types;
    QByteArray m_mark;
};

/// A plug-in that finds faults in the files of its kinds.
class FindingPlugin : public DataPlugin, public pagehost::MessageSource
{
public:
    using DataPlugin::DataPlugin;
    QVector<pagehost::PluginMessage> messages() const override { return {present}; }
    void setMessageListener(const pagehost::MessageListener &listener) override { tell = listener; }

    pagehost::PluginMessage present{
        pagehost::PluginMessage::Warning, QStringLiteral("K03"), QStringLiteral("a.svg"), 4, 7, QString(),
        QStringLiteral("unknown")};
    pagehost::MessageListener tell;
};

QString textType()
{
    return QStringLiteral("text/plain");
}

QStringList idsOf(const QVector<pagehost::ObjectKind> &kinds)
{
    QStringList ids;
    for (const pagehost::ObjectKind &kind : kinds)
        ids.append(kind.id);
    return ids;
}

} // namespace

class TestRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsOfFilesStandInTheReport();
    void laterFaultIsToldOnceAndNotAfterTheRegistry();
    void goodPluginBringsItsKinds();
    void objectsAreCreatedAndTagged();
    void unknownKindGivesNoObject();
    void textsAreMergedWithEnglishFallback();
    void foreignPluginIsReported();
    void pluginWithoutEnglishTextsIsReported();
    void duplicateKindIsReportedAndTheRestUsed();
    void unusableKindsAreReported();
    void fileThatIsNoLibraryIsReported();
    void missingFileIsReported();
    void pluginOfANewerLibraryIsRefused();
    void pluginOfAnotherMajorVersionIsRefused();
    void pluginThatTellsNoVersionIsLoaded();
    void versionsThatFit_data();
    void versionsThatFit();
    void pluginThatThrowsBeforeItIsThereIsReported();
    void directoryIsLoadedByName();
    void otherFilesOfADirectoryArePassedOver();
    void loadedFilesArePassedOverTheSecondTime();
    void missingDirectoryIsReported();
    void builtInPluginIsReportedUnderItsName();
    void missingBuiltInPluginIsReported();
    void tagOfAnObjectThatNobodyMadeIsEmpty();
    void dataTypesOfAllPluginsAreGivenOnceInTheirOrder();
    void pluginsWithoutDataGiveAndTakeNone();
    void dataBecomesATaggedObjectOfTheFirstPluginThatCanReadIt();
    void dataThatNobodyReadsGivesNoObject();
    void objectFromDataOfAKindThatIsNotThePluginsIsRefused();
    void lookOfAnObjectComesFromThePluginOfItsKind();
};

void TestRegistry::goodPluginBringsItsKinds()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("good"));
    QVERIFY2(report.loaded, qPrintable(report.problem));
    QCOMPARE(report.problem, QString());
    QCOMPARE(report.file, pluginFile("good"));
    const QStringList expected{QStringLiteral("test.one"), QStringLiteral("test.two")};
    QCOMPARE(report.kindIds, expected);
    QCOMPARE(idsOf(registry.kinds()), expected);
    QVERIFY(registry.hasKind(QStringLiteral("test.two")));
    QVERIFY(!registry.hasKind(QStringLiteral("test.three")));
    QCOMPARE(registry.kind(QStringLiteral("test.one")).nameKey, QStringLiteral("IDS_TEST_ONE"));
    QCOMPARE(registry.kind(QStringLiteral("test.three")).id, QString());
    QCOMPARE(registry.reports().size(), 1);
}

void TestRegistry::objectsAreCreatedAndTagged()
{
    ObjectRegistry registry;
    registry.loadFile(pluginFile("good"));
    const std::unique_ptr<CBaseObject> object(registry.createObject(QStringLiteral("test.two")));
    QVERIFY(object);
    QCOMPARE(object->getClientRect(), QRectF(0, 0, 12, 34));
    QCOMPARE(pagehost::kindIdOf(object.get()), QStringLiteral("test.two"));
}

void TestRegistry::unknownKindGivesNoObject()
{
    ObjectRegistry registry;
    registry.loadFile(pluginFile("good"));
    QCOMPARE(registry.createObject(QStringLiteral("test.three")), nullptr);
    QCOMPARE(registry.createObject(QString()), nullptr);
}

void TestRegistry::textsAreMergedWithEnglishFallback()
{
    Localizer localizer;
    ObjectRegistry registry(&localizer);
    registry.loadFile(pluginFile("good"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_TEST_ONE")), QStringLiteral("One"));
    localizer.setLanguage(QStringLiteral("de"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_TEST_ONE")), QStringLiteral("Eins"));
    QCOMPARE(localizer.text(QStringLiteral("IDS_TEST_TWO")), QStringLiteral("Two"));
}

void TestRegistry::foreignPluginIsReported()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("foreign"));
    QVERIFY(!report.loaded);
    QCOMPARE(report.problem,
             QStringLiteral("it implements \"test.SomethingElse/1\", not \"gliololok.pagehost.ObjectPlugin/2\""));
    QVERIFY(registry.kinds().isEmpty());
}

void TestRegistry::pluginWithoutEnglishTextsIsReported()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("speechless"));
    QVERIFY(!report.loaded);
    QCOMPARE(report.problem, QStringLiteral("it has no English texts"));
    QVERIFY(registry.kinds().isEmpty());
}

void TestRegistry::duplicateKindIsReportedAndTheRestUsed()
{
    Localizer localizer;
    ObjectRegistry registry(&localizer);
    registry.loadFile(pluginFile("good"));
    const PluginReport report = registry.loadFile(pluginFile("duplicate"));
    QVERIFY(report.loaded);
    QCOMPARE(report.problem, QStringLiteral("the kind \"test.one\" exists already"));
    QCOMPARE(report.kindIds, QStringList{QStringLiteral("test.three")});
    QCOMPARE(registry.kinds().size(), 3);
}

void TestRegistry::unusableKindsAreReported()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("barren"));
    QVERIFY(!report.loaded);
    QCOMPARE(report.problem,
             QStringLiteral("\"no id\" is no kind id (letters, digits and dots); "
                            "the kind \"test.nameless\" has no English name (\"IDS_TEST_NAMELESS\"); "
                            "it offers no kind of object that can be used"));
}

void TestRegistry::fileThatIsNoLibraryIsReported()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("broken.so"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("this is no library");
    file.close();
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(path);
    QVERIFY(!report.loaded);
    QVERIFY2(report.problem.contains(QLatin1String("broken.so")), qPrintable(report.problem));
}

void TestRegistry::missingFileIsReported()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(QStringLiteral("/nowhere/nothing.so"));
    QVERIFY(!report.loaded);
    QVERIFY(!report.problem.isEmpty());
}

void TestRegistry::pluginOfANewerLibraryIsRefused()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("newer"));
    QVERIFY(!report.loaded);
    QCOMPARE(
        report.problem,
        QStringLiteral("it was built against version 1.99.0 of the library, this is version " PAGEHOST_VERSION));
    QVERIFY(registry.kinds().isEmpty());
}

void TestRegistry::pluginOfAnotherMajorVersionIsRefused()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("nextmajor"));
    QVERIFY(!report.loaded);
    QCOMPARE(
        report.problem,
        QStringLiteral("it was built against version 2.0.0 of the library, this is version " PAGEHOST_VERSION));
}

void TestRegistry::pluginThatTellsNoVersionIsLoaded()
{
    ObjectRegistry registry;
    QVERIFY(registry.loadFile(pluginFile("unversioned")).loaded);
    QVERIFY(registry.hasKind(QStringLiteral("test.unversioned")));
}

void TestRegistry::versionsThatFit_data()
{
    QTest::addColumn<QString>("builtAgainst");
    QTest::addColumn<QString>("present");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *builtAgainst, const char *present, bool fits) {
        QTest::addRow("%s with %s", builtAgainst, present)
            << QString::fromLatin1(builtAgainst) << QString::fromLatin1(present) << fits;
    };
    row("1.2.3", "1.2.3", true);
    row("1.2.2", "1.2.3", true);
    row("1.1.9", "1.2.3", true);
    row("1.0.0", "1.10.0", true);
    row("1.9.0", "1.10.0", true);
    row("1.2.4", "1.2.3", false);
    row("1.3.0", "1.2.3", false);
    row("1.10.0", "1.9.0", false);
    row("2.0.0", "1.2.3", false);
    row("0.9.0", "1.2.3", false);
    row("nonsense", "1.2.3", false);
    row("", "1.2.3", true);
}

void TestRegistry::versionsThatFit()
{
    QFETCH(QString, builtAgainst);
    QFETCH(QString, present);
    QFETCH(bool, fits);
    QCOMPARE(pagehost::versionProblem(builtAgainst, present).isEmpty(), fits);
}

void TestRegistry::pluginThatThrowsBeforeItIsThereIsReported()
{
    ObjectRegistry registry;
    const PluginReport report = registry.loadFile(pluginFile("stillborn"));
    QVERIFY(!report.loaded);
    QCOMPARE(report.problem, QStringLiteral("its constructor threw an exception: no licence"));
}

void TestRegistry::directoryIsLoadedByName()
{
    ObjectRegistry registry;
    const QVector<PluginReport> reports = registry.loadDirectory(QStringLiteral(TEST_PLUGIN_DIR));
    QStringList files;
    QVector<bool> loaded;
    for (const PluginReport &report : reports) {
        files.append(QFileInfo(report.file).fileName());
        loaded.append(report.loaded);
    }
    const QStringList expected{
        QStringLiteral("libbarren.so"),     QStringLiteral("libduplicate.so"), QStringLiteral("libforeign.so"),
        QStringLiteral("libgood.so"),       QStringLiteral("libnewer.so"),     QStringLiteral("libnextmajor.so"),
        QStringLiteral("libspeechless.so"), QStringLiteral("libstillborn.so"), QStringLiteral("libunversioned.so")};
    QCOMPARE(files, expected);
    const QVector<bool> expectedLoaded{false, true, false, true, false, false, false, false, true};
    QCOMPARE(loaded, expectedLoaded);
    const QStringList expectedKinds{QStringLiteral("test.one"), QStringLiteral("test.three"),
                                    QStringLiteral("test.two"), QStringLiteral("test.unversioned")};
    QCOMPARE(idsOf(registry.kinds()), expectedKinds);
}

void TestRegistry::otherFilesOfADirectoryArePassedOver()
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("readme.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    ObjectRegistry registry;
    QVERIFY(registry.loadDirectory(directory.path()).isEmpty());
    QVERIFY(registry.reports().isEmpty());
}

void TestRegistry::loadedFilesArePassedOverTheSecondTime()
{
    ObjectRegistry registry;
    registry.loadDirectory(QStringLiteral(TEST_PLUGIN_DIR));
    const QVector<PluginReport> again = registry.loadDirectory(QStringLiteral(TEST_PLUGIN_DIR));
    for (const PluginReport &report : again)
        QVERIFY(!report.loaded);
    QCOMPARE(registry.kinds().size(), 4);
}

void TestRegistry::missingDirectoryIsReported()
{
    ObjectRegistry registry;
    const QVector<PluginReport> reports = registry.loadDirectory(QStringLiteral("/nowhere"));
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().file, QStringLiteral("/nowhere"));
    QVERIFY(!reports.first().loaded);
    QCOMPARE(reports.first().problem, QStringLiteral("the directory cannot be read"));
    QCOMPARE(registry.reports().size(), 1);
}

void TestRegistry::builtInPluginIsReportedUnderItsName()
{
    class BuiltIn : public pagehost::ObjectPlugin
    {
    public:
        QVector<pagehost::ObjectKind> objectKinds() const override
        {
            return {{QStringLiteral("plain"), QStringLiteral("IDS_PLAIN"), QString()}};
        }
        CBaseObject *createObject(const QString &) const override { return nullptr; }
        pagehost::TextTable texts(const QString &) const override
        {
            return {{QStringLiteral("IDS_PLAIN"), QStringLiteral("Plain")}};
        }
    };
    BuiltIn plugin;
    ObjectRegistry registry;
    const PluginReport report = registry.addPlugin(&plugin, QStringLiteral("built in"));
    QVERIFY(report.loaded);
    QCOMPARE(report.file, QStringLiteral("built in"));
    QVERIFY(registry.hasKind(QStringLiteral("plain")));
    QCOMPARE(registry.createObject(QStringLiteral("plain")), nullptr);
}

void TestRegistry::missingBuiltInPluginIsReported()
{
    ObjectRegistry registry;
    const PluginReport report = registry.addPlugin(nullptr, QStringLiteral("nothing"));
    QVERIFY(!report.loaded);
    QCOMPARE(report.problem, QStringLiteral("there is no plug-in"));
}

void TestRegistry::tagOfAnObjectThatNobodyMadeIsEmpty()
{
    TestObject object;
    QCOMPARE(pagehost::kindIdOf(&object), QString());
    QCOMPARE(pagehost::kindIdOf(nullptr), QString());
    pagehost::setKindId(&object, QStringLiteral("own"));
    QCOMPARE(pagehost::kindIdOf(&object), QStringLiteral("own"));
}

void TestRegistry::dataTypesOfAllPluginsAreGivenOnceInTheirOrder()
{
    DataPlugin first(QStringLiteral("first"), {QStringLiteral("b/b"), QStringLiteral("a/a")}, "1");
    DataPlugin second(QStringLiteral("second"), {QStringLiteral("a/a"), QStringLiteral("c/c")}, "2");
    ObjectRegistry registry;
    registry.addPlugin(&first, QStringLiteral("first"));
    registry.addPlugin(&second, QStringLiteral("second"));
    const QStringList expected{QStringLiteral("b/b"), QStringLiteral("a/a"), QStringLiteral("c/c")};
    QCOMPARE(registry.dataTypes(), expected);
}

void TestRegistry::pluginsWithoutDataGiveAndTakeNone()
{
    ObjectRegistry registry;
    registry.loadFile(pluginFile("good"));
    QCOMPARE(registry.dataTypes(), QStringList());
    QCOMPARE(registry.createFromData(textType(), "anything"), nullptr);
    const std::unique_ptr<CBaseObject> object(registry.createObject(QStringLiteral("test.one")));
    QCOMPARE(registry.dataOf(object.get(), textType()), QByteArray());
}

void TestRegistry::dataBecomesATaggedObjectOfTheFirstPluginThatCanReadIt()
{
    DataPlugin first(QStringLiteral("first"), {textType()}, "1");
    DataPlugin second(QStringLiteral("second"), {textType()}, "2");
    ObjectRegistry registry;
    registry.addPlugin(&first, QStringLiteral("first"));
    registry.addPlugin(&second, QStringLiteral("second"));
    const std::unique_ptr<CBaseObject> object(registry.createFromData(textType(), "2345"));
    QVERIFY(object);
    QCOMPARE(pagehost::kindIdOf(object.get()), QStringLiteral("second"));
    QCOMPARE(object->getClientRect().width(), 4.0);
}

void TestRegistry::dataThatNobodyReadsGivesNoObject()
{
    DataPlugin plugin(QStringLiteral("only"), {textType()}, "1");
    ObjectRegistry registry;
    registry.addPlugin(&plugin, QStringLiteral("only"));
    QCOMPARE(registry.createFromData(textType(), "2"), nullptr);
    QCOMPARE(registry.createFromData(QStringLiteral("text/html"), "1"), nullptr);
}

void TestRegistry::objectFromDataOfAKindThatIsNotThePluginsIsRefused()
{
    DataPlugin honest(QStringLiteral("honest"), {}, "0");
    DataPlugin liar(QStringLiteral("liar"), {textType()}, "1");
    ObjectRegistry registry;
    registry.addPlugin(&honest, QStringLiteral("honest"));
    registry.addPlugin(&liar, QStringLiteral("liar"));
    liar.toldKind = QStringLiteral("honest");
    QCOMPARE(registry.createFromData(textType(), "1"), nullptr);
    liar.toldKind = QStringLiteral("unknown");
    QCOMPARE(registry.createFromData(textType(), "1"), nullptr);
}

void TestRegistry::lookOfAnObjectComesFromThePluginOfItsKind()
{
    DataPlugin first(QStringLiteral("first"), {textType()}, "1:");
    DataPlugin second(QStringLiteral("second"), {textType()}, "2:");
    ObjectRegistry registry;
    registry.addPlugin(&first, QStringLiteral("first"));
    registry.addPlugin(&second, QStringLiteral("second"));
    const std::unique_ptr<CBaseObject> object(registry.createObject(QStringLiteral("second")));
    QCOMPARE(registry.dataOf(object.get(), textType()), QByteArray("2:7"));
    QCOMPARE(registry.dataOf(object.get(), QStringLiteral("text/html")), QByteArray());
    TestObject untagged;
    QCOMPARE(registry.dataOf(&untagged, textType()), QByteArray());
    QCOMPARE(registry.dataOf(nullptr, textType()), QByteArray());
}

void TestRegistry::faultsOfFilesStandInTheReport()
{
    FindingPlugin plugin(QStringLiteral("finding"), {}, {});
    ObjectRegistry registry;
    QStringList told;
    registry.setProblemListener([&](const PluginReport &report) { told.append(report.problem); });
    const PluginReport report = registry.addPlugin(&plugin, QStringLiteral("finding"));
    QVERIFY(report.loaded);
    QCOMPARE(report.problem, QStringLiteral("a.svg:4:7: warning K03: unknown"));
    QCOMPARE(report.messages.size(), 1);
    QCOMPARE(report.messages.first().line, 4);
    QCOMPARE(told, QStringList());
}

void TestRegistry::laterFaultIsToldOnceAndNotAfterTheRegistry()
{
    FindingPlugin plugin(QStringLiteral("finding"), {}, {});
    QStringList told;
    {
        ObjectRegistry registry;
        registry.setProblemListener([&](const PluginReport &report) { told.append(report.problem); });
        registry.addPlugin(&plugin, QStringLiteral("finding"));
        plugin.tell({pagehost::PluginMessage::Error, QStringLiteral("K04"), QStringLiteral("a.svg"), 0, 0,
                     QString(), QStringLiteral("no node")});
        QCOMPARE(told, QStringList{QStringLiteral("a.svg:4:7: warning K03: unknown; a.svg: error K04: no node")});
        QCOMPARE(registry.reports().constFirst().messages.size(), 2);
    }
    QVERIFY(!plugin.tell);
    QCOMPARE(told.size(), 1);
}

QTEST_MAIN(TestRegistry)
#include "test_registry.moc"
