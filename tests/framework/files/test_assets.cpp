// Texts that objects are made of, through files, lessons, clipboard, undo and recovery copies.

#include "framework/files/chunkedit.h"
#include "framework/files/filetest.h"

#include <pagehost/application.h>
#include <pagehost/lessonplayer.h>
#include <pagehost/lessonrecorder.h>

#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

using namespace pagehost;

namespace {

const QString kind = QStringLiteral("written.text");

/// Is made of a text, which its saved data only name.
class WrittenObject : public TestObject
{
public:
    explicit WrittenObject(const QByteArray &present)
        : text(present)
    {
    }

    QByteArray key() const { return AssetStore::keyOf(text); }

    bool GetSpecialProperty(int id, QDataStream &out) override
    {
        if (id != NeededTexts)
            return TestObject::GetSpecialProperty(id, out);
        out << QMap<QByteArray, QByteArray>{{key(), text}};
        return true;
    }
    bool SetSpecialProperty(int id, QDataStream &in, bool record) override
    {
        if (id != KnownTexts)
            return TestObject::SetSpecialProperty(id, in, record);
        in >> known;
        return true;
    }
    bool save(QDataStream &out) override { return TestObject::save(out) && (out << key()).status() == 0; }
    bool load(QDataStream &in) override
    {
        QByteArray named;
        return TestObject::load(in) && take((in >> named, named));
    }
    bool saveJson(QJsonObject &object) override
    {
        TestObject::saveJson(object);
        object[QStringLiteral("text")] = QString::fromLatin1(key());
        return true;
    }
    bool loadJson(QJsonObject &object) override
    {
        return TestObject::loadJson(object) && take(object.value(QLatin1String("text")).toString().toLatin1());
    }

    QByteArray text;
    QMap<QByteArray, QByteArray> known;

private:
    /// Keeps its present text, if it has one, in place of one that nobody knows.
    bool take(const QByteArray &named)
    {
        text = known.value(named, text);
        return !text.isEmpty();
    }
};

/// Knows no text itself unless it is given one.
class WrittenPlugin : public ObjectPlugin, public KindSource
{
public:
    QVector<ObjectKind> objectKinds() const override
    {
        return {{QStringLiteral("written.other"), QStringLiteral("IDS_TEST_OBJECT"), QString()}};
    }
    CBaseObject *createObject(const QString &) const override { return new WrittenObject(present); }
    TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_OBJECT"), QStringLiteral("Test object")}};
    }
    QString kindFamily() const override { return QStringLiteral("written."); }
    void setKindsListener(const Listener &) override {}
    QStringList faults() const override { return {}; }
    void addFolders(const QStringList &) override {}
    QString kindOfFile(const QString &) const override { return {}; }

    QByteArray present;
};

WrittenObject *addWritten(Page *page, const QByteArray &text)
{
    auto *object = new WrittenObject(text);
    setKindId(object, kind);
    page->addObject(object);
    return object;
}

QByteArray textOf(const Document &document, int object)
{
    const auto *written = dynamic_cast<WrittenObject *>(document.page(0)->objects().value(object));
    return written ? written->text : QByteArray();
}

QByteArray savedAssets(const Document &document)
{
    return document.assets().keys().join(' ');
}

} // namespace

class TestAssets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_document.reset(); }

    void documentOpensWhereItsTextsAreUnknown_data() { addFormats(); }
    void documentOpensWhereItsTextsAreUnknown();
    void textsThatNobodyNamesAreNotSaved_data() { addFormats(); }
    void textsThatNobodyNamesAreNotSaved();
    void placeholdersKeepTheirTexts_data() { addFormats(); }
    void placeholdersKeepTheirTexts();
    void objectWhoseTextIsLostBecomesAPlaceholder();
    void anotherVersionOfATextIsTold();
    void lessonsKeepTheTextsOfObjectsThatAreGone_data() { addFormats(); }
    void lessonsKeepTheTextsOfObjectsThatAreGone();
    void clipboardCarriesTexts();
    void clipboardCarriesTheTextsOfPlaceholders();
    void deletedObjectThatComesBackIsSavedWithItsText();
    void recoveryCopyHoldsTexts();
    void damagedTextCostsOnlyItself_data();
    void damagedTextCostsOnlyItself();
    void textsThatOlderProgramsHaveKeptAreFound_data() { addFormats(); }
    void textsThatOlderProgramsHaveKeptAreFound();

private:
    static void addFormats();

    WrittenPlugin m_plugin;
    std::unique_ptr<ObjectRegistry> m_registry;
    std::unique_ptr<Document> m_document;
    Page *m_page = nullptr;
    const ObjectRegistry m_ignorant;
};

void TestAssets::addFormats()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::newRow("binary") << DocumentFormat::Binary;
    QTest::newRow("JSON") << DocumentFormat::Json;
}

void TestAssets::init()
{
    undoStack()->clear();
    m_plugin.present.clear();
    m_registry = std::make_unique<ObjectRegistry>();
    m_registry->addPlugin(&m_plugin, QStringLiteral("written"));
    m_document = std::make_unique<Document>();
    setCurrentDocument(m_document.get());
    m_page = m_document->appendPage();
}

void TestAssets::documentOpensWhereItsTextsAreUnknown()
{
    QFETCH(DocumentFormat, format);
    addWritten(m_page, "one");
    addWritten(m_page, "other");
    addWritten(m_page, "one");
    const QByteArray bytes = encodeDocument(*m_document, format);
    const OpenResult opened = decodeDocument(bytes, *m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList());
    QCOMPARE(textOf(*opened.document, 0), QByteArray("one"));
    QCOMPARE(textOf(*opened.document, 1), QByteArray("other"));
    QCOMPARE(textOf(*opened.document, 2), QByteArray("one"));
    QCOMPARE(opened.document->assets().keys().size(), 2);
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestAssets::textsThatNobodyNamesAreNotSaved()
{
    QFETCH(DocumentFormat, format);
    addWritten(m_page, "one");
    m_document->assets().add(AssetStore::keyOf("other"), "other");
    const OpenResult opened = decodeDocument(encodeDocument(*m_document, format), *m_registry);
    QCOMPARE(savedAssets(*opened.document), AssetStore::keyOf("one"));
    opened.document->page(0)->removeObject(opened.document->page(0)->objects().first());
    const OpenResult emptied = decodeDocument(encodeDocument(*opened.document, format), *m_registry);
    QVERIFY(emptied.document->assets().isEmpty());
}

void TestAssets::placeholdersKeepTheirTexts()
{
    QFETCH(DocumentFormat, format);
    addWritten(m_page, "one");
    const QByteArray bytes = encodeDocument(*m_document, format);
    const OpenResult ignorant = decodeDocument(bytes, m_ignorant);
    QVERIFY(isPlaceholder(ignorant.document->page(0)->objects().first()));
    QCOMPARE(encodeDocument(*ignorant.document, format), bytes);
}

void TestAssets::objectWhoseTextIsLostBecomesAPlaceholder()
{
    addWritten(m_page, "one");
    QByteArray bytes = encodeDocument(*m_document, DocumentFormat::Binary);
    bytes.remove(bytes.indexOf("ASST"), 16 + payloadOf(bytes, "ASST").size());
    const OpenResult opened = decodeDocument(bytes, *m_registry);
    QVERIFY(isPlaceholder(opened.document->page(0)->objects().first()));
    QCOMPARE(textKeys(opened.messages), QStringList({QStringLiteral("IDS_FILE_OBJECT_UNKNOWN")}));
}

void TestAssets::anotherVersionOfATextIsTold()
{
    addWritten(m_page, "one");
    QByteArray bytes = encodeDocument(*m_document, DocumentFormat::Binary);
    bytes.remove(bytes.indexOf("ASST"), 16 + payloadOf(bytes, "ASST").size());
    m_plugin.present = "newer";
    const OpenResult opened = decodeDocument(bytes, *m_registry);
    QCOMPARE(textOf(*opened.document, 0), QByteArray("newer"));
    QCOMPARE(textKeys(opened.messages), QStringList({QStringLiteral("IDS_FILE_OBJECT_VERSION")}));
}

/// A lesson in which an object was there and was deleted, as a text and as bytes.
void TestAssets::lessonsKeepTheTextsOfObjectsThatAreGone()
{
    QFETCH(DocumentFormat, format);
    LessonRecorder recorder(m_registry.get());
    recorder.start(m_document.get());
    CBaseObject *object = addWritten(m_page, "one");
    m_page->removeObject(object);
    const Lesson lesson = recorder.stop();
    const QByteArray text = QJsonDocument(lesson.toJson()).toJson(QJsonDocument::Compact);
    m_document->setLessons({{QStringLiteral("lesson"), format == DocumentFormat::Json ? text : lesson.toBytes()}});
    const OpenResult opened = decodeDocument(encodeDocument(*m_document, format), *m_registry);
    QCOMPARE(savedAssets(*opened.document), AssetStore::keyOf("one"));
    Lesson read;
    QVERIFY(read.fromData(opened.document->lessons().first().data));
    LessonPlayer player(m_registry.get());
    player.setAssets(opened.document->assets());
    read.events.removeLast();
    player.setLesson(read);
    player.playToEnd();
    QCOMPARE(textOf(*player.document(), 0), QByteArray("one"));
}

void TestAssets::clipboardCarriesTexts()
{
    const QByteArray bytes = encodeObjects({addWritten(m_page, "one")});
    QVector<FileMessage> messages;
    const QVector<CBaseObject *> objects = decodeObjects(bytes, *m_registry, &messages);
    QCOMPARE(textKeys(messages), QStringList());
    const std::unique_ptr<CBaseObject> pasted(objects.value(0));
    QCOMPARE(static_cast<WrittenObject *>(pasted.get())->text, QByteArray("one"));
}

void TestAssets::clipboardCarriesTheTextsOfPlaceholders()
{
    addWritten(m_page, "one");
    const OpenResult ignorant = decodeDocument(encodeDocument(*m_document, DocumentFormat::Binary), m_ignorant);
    const QByteArray bytes = encodeObjects(ignorant.document->page(0)->objects());
    Document target;
    Page *page = target.appendPage();
    page->appendObjects(decodeObjects(bytes, m_ignorant, nullptr, page));
    QVERIFY(isPlaceholder(page->objects().constFirst()));
    const OpenResult opened = decodeDocument(encodeDocument(target, DocumentFormat::Binary), *m_registry);
    QCOMPARE(textOf(*opened.document, 0), QByteArray("one"));
}

void TestAssets::deletedObjectThatComesBackIsSavedWithItsText()
{
    CBaseObject *object = addWritten(m_page, "one");
    removeObjects(m_page, {object});
    QVERIFY(!encodeDocument(*m_document, DocumentFormat::Binary).contains("ASST"));
    undoStack()->undo();
    const OpenResult opened = decodeDocument(encodeDocument(*m_document, DocumentFormat::Binary), *m_registry);
    QCOMPARE(textOf(*opened.document, 0), QByteArray("one"));
}

void TestAssets::recoveryCopyHoldsTexts()
{
    addWritten(m_page, "one");
    m_document->noteChange();
    const QTemporaryDir folder;
    Autosave autosave(folder.path());
    autosave.setDocument(m_document.get(), QString());
    QVERIFY(autosave.saveNow());
    const OpenResult opened = openDocument(autosave.recoveryFile(), *m_registry);
    QCOMPARE(textOf(*opened.document, 0), QByteArray("one"));
}

void TestAssets::damagedTextCostsOnlyItself_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::addColumn<int>("place"); // from the first digit of the key
    QTest::newRow("binary, key") << DocumentFormat::Binary << 0;
    QTest::newRow("binary, bytes") << DocumentFormat::Binary << 40;
    QTest::newRow("JSON, key") << DocumentFormat::Json << 0;
    QTest::newRow("JSON, quote behind the key") << DocumentFormat::Json << 32;
    QTest::newRow("JSON, bytes") << DocumentFormat::Json << 44;
}

void TestAssets::damagedTextCostsOnlyItself()
{
    QFETCH(DocumentFormat, format);
    QFETCH(int, place);
    addWritten(m_page, "one");
    addWritten(m_page, "other");
    QByteArray bytes = encodeDocument(*m_document, format);
    const int start = bytes.indexOf(AssetStore::keyOf("one"));
    bytes[start + place] = '~';
    const OpenResult opened = decodeDocument(bytes, *m_registry);
    QVERIFY(!opened.messages.isEmpty());
    QVERIFY(isPlaceholder(opened.document->page(0)->objects().value(0)));
    QCOMPARE(textOf(*opened.document, 1), QByteArray("other"));
    QVERIFY(opened.document->extraData().members.contains(QLatin1String("damaged")));
}

/// A program that doesn't know assets keeps chunks as chunks and members as members, in either format.
void TestAssets::textsThatOlderProgramsHaveKeptAreFound()
{
    QFETCH(DocumentFormat, format);
    addWritten(m_page, "one");
    AssetStore store;
    store.add(AssetStore::keyOf("one"), "one");
    store.add(AssetStore::keyOf("unused"), "unused");
    const QByteArray key = AssetStore::keyOf("one");
    const QByteArray payload = key + store.compressed(key);
    ExtraData kept;
    if (format == DocumentFormat::Json)
        kept.chunks = {{"ASST", payload}};
    else
        kept.members = {
            {QStringLiteral("assets"),
             QJsonObject{{QString::fromLatin1(key), QString::fromLatin1(store.compressed(key).toBase64())}}}};
    QByteArray bytes = encodeDocument(*m_document, format);
    m_document->setExtraData(kept);
    const QByteArray older = encodeDocument(*m_document, format);
    QVERIFY(older.size() > bytes.size());
    // Without the copy that this program has written itself.
    const QByteArray own = format == DocumentFormat::Json ? "  \"assets\": {\n    \"" + key + "\": \"" +
                                                                store.compressed(key).toBase64() + "\"\n  },\n"
                                                          : chunkOf("ASST", payload);
    QByteArray stripped = older;
    stripped.remove(stripped.lastIndexOf(own), own.size());
    QCOMPARE(stripped.size(), older.size() - own.size());
    const OpenResult opened = decodeDocument(stripped, *m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList());
    QCOMPARE(textOf(*opened.document, 0), QByteArray("one"));
    QVERIFY(opened.document->extraData().isEmpty());
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

QTEST_MAIN(TestAssets)
#include "test_assets.moc"
