// Plug-ins that throw or give nonsense: it costs themselves, and not the program.

#include "framework/testobject.h"

#include <pagehost/documentfile.h>
#include <pagehost/localizer.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtTest/QtTest>

#include <memory>
#include <stdexcept>

using namespace pagehost;

namespace {

const QString kindId = QStringLiteral("faulty");
const QString mimeType = QStringLiteral("text/faulty");

/// Has one kind of object and does what the test wants of it.
class FaultyPlugin : public ObjectPlugin
{
public:
    /// Makes it throw in an operation of that name.
    void failIn(const QString &operation) { m_failing = operation; }

    QVector<ObjectKind> objectKinds() const override
    {
        fail("objectKinds");
        return kinds;
    }
    CBaseObject *createObject(const QString &) const override
    {
        fail("createObject");
        return given ? given : new TestObject;
    }
    TextTable texts(const QString &language) const override
    {
        fail("texts");
        fail(qPrintable(QStringLiteral("texts ") + language));
        return {{QStringLiteral("IDS_FAULTY"), QStringLiteral("Faulty")}};
    }
    QStringList dataTypes() const override
    {
        fail("dataTypes");
        return {mimeType};
    }
    CBaseObject *createFromData(const QString &, const QByteArray &, QString &kind) const override
    {
        fail("createFromData");
        kind = kindId;
        return given ? given : new TestObject;
    }
    QByteArray dataOf(CBaseObject *, const QString &) const override
    {
        fail("dataOf");
        return "look";
    }

    QVector<ObjectKind> kinds{{kindId, QStringLiteral("IDS_FAULTY"), QString()}};
    CBaseObject *given = nullptr; ///< in place of a new object

private:
    void fail(const char *operation) const
    {
        if (m_failing == QLatin1String(operation))
            throw std::runtime_error("out of order");
        if (m_failing == QLatin1String(operation) + QStringLiteral(" strangely"))
            throw 42;
    }

    QString m_failing;
};

/// Refuses to be read.
class UnreadableObject : public TestObject
{
public:
    bool load(QDataStream &) override { throw std::runtime_error("cannot read"); }
};

struct Room
{
    PluginReport add() { return registry.addPlugin(&plugin, QStringLiteral("faulty")); }
    QString problem() const { return registry.reports().value(0).problem; }

    FaultyPlugin plugin;
    Localizer localizer;
    ObjectRegistry registry{&localizer};
};

} // namespace

class TestFaultyPlugins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void throwingKindsAreReportedAndOthersAreUsed();
    void throwingTextsAreReported();
    void throwingTextsOfOneLanguageLeaveTheOthers();
    void whatIsNoExceptionIsCaught();
    void throwingCreationGivesNoObjectAndIsReported();
    void failureThatComesAgainIsReportedOnce();
    void laterFailuresAreTold();
    void throwingDataOperationsGiveNothing();
    void objectOfAThrowingPluginIsAPlaceholder_data();
    void objectOfAThrowingPluginIsAPlaceholder();
    void sameObjectGivenTwiceIsRefused();
    void objectOnAPageIsRefused();
    void tooManyKindsAreRefused();
    void idThatFilesCannotHoldIsRefused();
};

void TestFaultyPlugins::throwingKindsAreReportedAndOthersAreUsed()
{
    Room room;
    room.plugin.failIn(QStringLiteral("objectKinds"));
    const PluginReport report = room.add();
    QVERIFY(!report.loaded);
    QCOMPARE(report.problem, QStringLiteral("objectKinds() threw an exception: out of order"));
    QCOMPARE(room.problem(), report.problem);
    QVERIFY(room.registry.kinds().isEmpty());
    FaultyPlugin good;
    QVERIFY(room.registry.addPlugin(&good, QStringLiteral("good")).loaded);
    const std::unique_ptr<CBaseObject> object(room.registry.createObject(kindId));
    QVERIFY(object);
}

void TestFaultyPlugins::throwingTextsAreReported()
{
    Room room;
    room.plugin.failIn(QStringLiteral("texts"));
    QVERIFY(!room.add().loaded);
    QCOMPARE(room.problem(), QStringLiteral("texts(\"en\") threw an exception: out of order"));
}

void TestFaultyPlugins::throwingTextsOfOneLanguageLeaveTheOthers()
{
    Room room;
    room.plugin.failIn(QStringLiteral("texts de"));
    const PluginReport report = room.add();
    QVERIFY(report.loaded);
    QCOMPARE(report.problem, QStringLiteral("texts(\"de\") threw an exception: out of order"));
    QCOMPARE(room.localizer.text(QStringLiteral("IDS_FAULTY")), QStringLiteral("Faulty"));
}

void TestFaultyPlugins::whatIsNoExceptionIsCaught()
{
    Room room;
    room.plugin.failIn(QStringLiteral("objectKinds strangely"));
    QVERIFY(!room.add().loaded);
    QCOMPARE(room.problem(), QStringLiteral("objectKinds() threw an exception"));
}

void TestFaultyPlugins::throwingCreationGivesNoObjectAndIsReported()
{
    Room room;
    QVERIFY(room.add().loaded);
    room.plugin.failIn(QStringLiteral("createObject"));
    QCOMPARE(room.registry.createObject(kindId), nullptr);
    QCOMPARE(room.problem(), QStringLiteral("createObject(\"faulty\") threw an exception: out of order"));
    QVERIFY(room.registry.reports().constFirst().loaded);
    room.plugin.failIn({});
    const std::unique_ptr<CBaseObject> object(room.registry.createObject(kindId));
    QVERIFY(object);
}

void TestFaultyPlugins::failureThatComesAgainIsReportedOnce()
{
    Room room;
    room.add();
    room.plugin.failIn(QStringLiteral("createObject"));
    room.registry.createObject(kindId);
    const QString once = room.problem();
    room.registry.createObject(kindId);
    QCOMPARE(room.problem(), once);
}

void TestFaultyPlugins::laterFailuresAreTold()
{
    Room room;
    QStringList told;
    room.registry.setProblemListener(
        [&](const PluginReport &report) { told.append(report.file + report.problem); });
    room.add();
    QCOMPARE(told, QStringList());
    room.plugin.failIn(QStringLiteral("createObject"));
    room.registry.createObject(kindId);
    room.registry.createObject(kindId);
    QCOMPARE(told, QStringList{QStringLiteral("faulty") + room.problem()});
}

void TestFaultyPlugins::throwingDataOperationsGiveNothing()
{
    Room room;
    room.add();
    const std::unique_ptr<CBaseObject> object(room.registry.createObject(kindId));
    room.plugin.failIn(QStringLiteral("dataTypes"));
    QCOMPARE(room.registry.dataTypes(), QStringList());
    QCOMPARE(room.registry.createFromData(mimeType, "x"), nullptr);
    room.plugin.failIn(QStringLiteral("createFromData"));
    QCOMPARE(room.registry.createFromData(mimeType, "x"), nullptr);
    room.plugin.failIn(QStringLiteral("dataOf"));
    QCOMPARE(room.registry.dataOf(object.get(), mimeType), QByteArray());
    const QString because = QStringLiteral(" threw an exception: out of order");
    QCOMPARE(room.problem(), QStringLiteral("dataTypes()") + because +
                                 QStringLiteral("; createFromData(\"text/faulty\")") + because +
                                 QStringLiteral("; dataOf(\"text/faulty\")") + because);
}

void TestFaultyPlugins::objectOfAThrowingPluginIsAPlaceholder_data()
{
    QTest::addColumn<bool>("throwsInCreation");
    QTest::newRow("when it is created") << true;
    QTest::newRow("when it is read") << false;
}

/// Which keeps what was saved, until the plug-in is in order.
void TestFaultyPlugins::objectOfAThrowingPluginIsAPlaceholder()
{
    QFETCH(bool, throwsInCreation);
    Room room;
    room.add();
    Document document;
    auto *object = room.registry.createObject(kindId);
    document.appendPage()->addObject(object);
    const QByteArray bytes = encodeDocument(document, DocumentFormat::Binary);
    if (throwsInCreation)
        room.plugin.failIn(QStringLiteral("createObject"));
    else
        room.plugin.given = new UnreadableObject;
    const OpenResult opened = decodeDocument(bytes, room.registry);
    QVERIFY(opened.document);
    QCOMPARE(opened.document->page(0)->objectCount(), 1);
    QVERIFY(isPlaceholder(opened.document->page(0)->objects().first()));
    QCOMPARE(opened.messages.size(), 1);
    QCOMPARE(room.problem(), throwsInCreation
                                 ? QStringLiteral("createObject(\"faulty\") threw an exception: out of order")
                                 : QStringLiteral("load() threw an exception: cannot read"));
    QCOMPARE(encodeDocument(*opened.document, DocumentFormat::Binary), bytes);
}

void TestFaultyPlugins::sameObjectGivenTwiceIsRefused()
{
    Room room;
    room.add();
    TestObject object;
    room.plugin.given = &object;
    QCOMPARE(room.registry.createObject(kindId), &object);
    QCOMPARE(room.registry.createObject(kindId), nullptr);
    QCOMPARE(room.registry.createFromData(mimeType, "x"), nullptr);
    QCOMPARE(room.problem(), QStringLiteral("createObject(\"faulty\") gave an object that is in use; "
                                            "createFromData(\"text/faulty\") gave an object that is in use"));
}

void TestFaultyPlugins::objectOnAPageIsRefused()
{
    Room room;
    room.add();
    Document document;
    auto *object = new TestObject;
    document.appendPage()->addObject(object);
    room.plugin.given = object;
    QCOMPARE(room.registry.createObject(kindId), nullptr);
    QCOMPARE(document.page(0)->objectCount(), 1);
}

void TestFaultyPlugins::tooManyKindsAreRefused()
{
    Room room;
    room.plugin.kinds.clear();
    for (int i = 0; i < 1001; ++i)
        room.plugin.kinds.append({QStringLiteral("k%1").arg(i), QStringLiteral("IDS_FAULTY"), QString()});
    QVERIFY(!room.add().loaded);
    QCOMPARE(room.problem(), QStringLiteral("it offers more than 1000 kinds of object"));
    room.plugin.kinds.removeLast();
    QVERIFY(room.registry.addPlugin(&room.plugin, QStringLiteral("again")).loaded);
    QCOMPARE(room.registry.kinds().size(), 1000);
}

void TestFaultyPlugins::idThatFilesCannotHoldIsRefused()
{
    Room room;
    room.plugin.kinds = {{QString(201, QLatin1Char('k')), QStringLiteral("IDS_FAULTY"), QString()},
                         {QString(200, QLatin1Char('k')), QStringLiteral("IDS_FAULTY"), QString()}};
    const PluginReport report = room.add();
    QCOMPARE(report.kindIds, QStringList{QString(200, QLatin1Char('k'))});
    QVERIFY(report.problem.endsWith(QStringLiteral("is no kind id (letters, digits and dots)")));
}

QTEST_MAIN(TestFaultyPlugins)
#include "test_faultyplugins.moc"
