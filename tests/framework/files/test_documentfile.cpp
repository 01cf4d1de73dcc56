#include "framework/files/filetest.h"

#include <framework/cbaseobject.h>

#include <pagehost/application.h>

#include <QtCore/QTemporaryDir>

#include <limits>
#include <unistd.h>

using namespace pagehost;

namespace {

/// Two pages; the second one is empty and red.
std::unique_ptr<Document> smallDocument()
{
    auto document = std::make_unique<Document>();
    Page *page = document->appendPage(QSizeF(800, 600.5));
    addPlain(page, QPointF(10, 20));
    TestObject *second = addPlain(page, QPointF(-1.25, 3e-7));
    second->setRotation(33.125);
    second->setMirror(true, false, false);
    second->setLocked(true);
    second->fillWith(QColor(9, 8, 7));
    CPageBgProp red(nullptr);
    red.setFillEnable(true);
    red.setFillColor(Qt::red);
    document->appendPage()->setBackground(red);
    document->setLessons({{QStringLiteral("Größe"), lessonBytes(QStringLiteral("Größe"))},
                          {QStringLiteral("readable"), lessonText(QStringLiteral("readable"))}});
    document->clearModified();
    return document;
}

QByteArray streamed(const CPageBgProp &fill)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    fill.save(out);
    return bytes;
}

void compareDocuments(Document &document, Document &expected)
{
    QCOMPARE(document.pageCount(), expected.pageCount());
    QCOMPARE(document.lessons(), expected.lessons());
    for (int i = 0; i < document.pageCount(); ++i) {
        QCOMPARE(document.page(i)->size(), expected.page(i)->size());
        QCOMPARE(streamed(document.page(i)->background()), streamed(expected.page(i)->background()));
        QCOMPARE(encodeObjects(document.page(i)->objects()), encodeObjects(expected.page(i)->objects()));
    }
}

/// An object that is careless about what it saves and loads, as its kind says.
class CarelessObject : public TestObject
{
public:
    explicit CarelessObject(const QString &kind)
        : m_kind(kind)
    {
        setKindId(this, kind);
    }

    bool save(QDataStream &out) override
    {
        return TestObject::save(out) && m_kind != QLatin1String("test.unsavable");
    }
    bool saveJson(QJsonObject &object) override
    {
        return TestObject::saveJson(object) && m_kind != QLatin1String("test.unsavable");
    }
    bool load(QDataStream &in) override
    {
        if (m_kind == QLatin1String("test.modest"))
            return true;
        const bool loaded = TestObject::load(in);
        if (m_kind == QLatin1String("test.greedy")) {
            quint32 more = 0;
            in >> more;
        }
        in.skipRawData(int(in.device()->bytesAvailable()));
        return m_kind == QLatin1String("test.forgetful") || (loaded && m_kind != QLatin1String("test.refusing"));
    }
    bool loadJson(QJsonObject &object) override
    {
        const bool loaded = TestObject::loadJson(object);
        return m_kind == QLatin1String("test.forgetful") || (loaded && m_kind != QLatin1String("test.refusing"));
    }

private:
    QString m_kind;
};

class CarelessPlugin : public ObjectPlugin
{
public:
    QVector<ObjectKind> objectKinds() const override
    {
        QVector<ObjectKind> kinds;
        for (const char *kind :
             {"test.careful", "test.forgetful", "test.greedy", "test.modest", "test.refusing", "test.unsavable"})
            kinds.append({QString::fromLatin1(kind), QStringLiteral("IDS_TEST_OBJECT"), QString()});
        return kinds;
    }
    CBaseObject *createObject(const QString &kind) const override { return new CarelessObject(kind); }
    TextTable texts(const QString &) const override
    {
        return {{QStringLiteral("IDS_TEST_OBJECT"), QStringLiteral("Test object")}};
    }
};

class CarelessRegistry : public ObjectRegistry
{
public:
    CarelessRegistry() { addPlugin(&m_plugin, QStringLiteral("careless")); }

private:
    CarelessPlugin m_plugin;
};

} // namespace

class TestDocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void formatComesFromTheName_data();
    void formatComesFromTheName();
    void documentComesBack_data();
    void documentComesBack();
    void savedDocumentOpens_data();
    void savedDocumentOpens();
    void objectsComeFromTheClipboard();
    void unknownObjectOfTheClipboardIsTold();
    void stateThatAnObjectDoesNotTakeIsKept_data();
    void stateThatAnObjectDoesNotTakeIsKept();
    void objectWithoutStateIsAPlaceholder();
    void documentThatCannotBeSavedLeavesTheOldFile_data();
    void documentThatCannotBeSavedLeavesTheOldFile();
    void fileThatIsNotThereIsTold();
    void deviceIsNoDocument();
    void fileBeyondTheLargestIsRefusedWithItsSize();

private:
    FileTestRegistry m_registry;
};

void TestDocumentFile::formatComesFromTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isJson");
    QTest::newRow("binary") << "lesson.board" << false;
    QTest::newRow("json") << "lesson.board.json" << true;
    QTest::newRow("json in capitals") << "LESSON.Board.JSON" << true;
    QTest::newRow("other json") << "lesson.json" << false;
    QTest::newRow("folder of that name") << "a.board.json/lesson" << false;
}

void TestDocumentFile::formatComesFromTheName()
{
    QFETCH(QString, name);
    QFETCH(bool, isJson);
    QCOMPARE(documentFormatOf(name) == DocumentFormat::Json, isJson);
}

void TestDocumentFile::documentComesBack_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::newRow("binary") << DocumentFormat::Binary;
    QTest::newRow("json") << DocumentFormat::Json;
}

void TestDocumentFile::documentComesBack()
{
    QFETCH(DocumentFormat, format);
    const std::unique_ptr<Document> document = smallDocument();
    const QByteArray bytes = encodeDocument(*document, format);
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(opened.document);
    QCOMPARE(textKeys(opened.messages), QStringList());
    compareDocuments(*opened.document, *document);
    QCOMPARE(opened.document->currentIndex(), 0);
    QVERIFY(!opened.document->isModified());
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestDocumentFile::savedDocumentOpens_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("binary") << "lesson.board";
    QTest::newRow("json") << "lesson.board.json";
}

void TestDocumentFile::savedDocumentOpens()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    const std::unique_ptr<Document> document = smallDocument();
    const SaveResult result = saveDocument(*document, file);
    QVERIFY(result.saved);
    QCOMPARE(contentsOf(file), encodeDocument(*document, documentFormatOf(name)));
    const OpenResult opened = openDocument(file, m_registry);
    QVERIFY(opened.document);
    compareDocuments(*opened.document, *document);
}

void TestDocumentFile::objectsComeFromTheClipboard()
{
    const std::unique_ptr<Document> document = smallDocument();
    const QVector<CBaseObject *> originals = document->page(0)->objects();
    setObjectId(originals.first(), 17);
    const QVector<CBaseObject *> copies = decodeObjects(encodeObjects(originals), m_registry);
    QCOMPARE(copies.size(), 2);
    QCOMPARE(copies[0]->getPos(), QPointF(10, 20));
    QCOMPARE(copies[1]->rotation(), 33.125);
    QCOMPARE(kindIdOf(copies[1]), QStringLiteral("test.plain"));
    // The number stays with the original.
    QCOMPARE(objectId(copies[0]), 0u);
    qDeleteAll(copies);
}

void TestDocumentFile::unknownObjectOfTheClipboardIsTold()
{
    Document document;
    Page *page = document.appendPage();
    addPlain(page, QPointF(1, 2));
    setKindId(addPlain(page, QPointF(3, 4)), QStringLiteral("test.unknown"));
    QVector<FileMessage> messages;
    const QVector<CBaseObject *> copies = decodeObjects(encodeObjects(page->objects()), m_registry, &messages);
    QCOMPARE(copies.size(), 2);
    QVERIFY(!isPlaceholder(copies[0]));
    QVERIFY(isPlaceholder(copies[1]));
    QCOMPARE(textKeys(messages), QStringList{QStringLiteral("IDS_FILE_OBJECT_UNKNOWN")});
    QCOMPARE(messages[0].object, 2);
    qDeleteAll(copies);
}

void TestDocumentFile::stateThatAnObjectDoesNotTakeIsKept_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<double>("rotation");
    QTest::addColumn<DocumentFormat>("format");
    QTest::addColumn<bool>("isTaken");
    constexpr double endless = std::numeric_limits<double>::infinity();
    QTest::newRow("taken") << "test.careful" << 10.0 << DocumentFormat::Binary << true;
    QTest::newRow("taken, json") << "test.careful" << 10.0 << DocumentFormat::Json << true;
    QTest::newRow("refused") << "test.refusing" << 10.0 << DocumentFormat::Binary << false;
    QTest::newRow("refused, json") << "test.refusing" << 10.0 << DocumentFormat::Json << false;
    QTest::newRow("refused by the host alone") << "test.forgetful" << endless << DocumentFormat::Binary << false;
    QTest::newRow("refused by the host alone, json")
        << "test.forgetful" << endless << DocumentFormat::Json << false;
    QTest::newRow("more read than there is") << "test.greedy" << 10.0 << DocumentFormat::Binary << false;
    QTest::newRow("not read to the end") << "test.modest" << 10.0 << DocumentFormat::Binary << false;
}

void TestDocumentFile::stateThatAnObjectDoesNotTakeIsKept()
{
    QFETCH(QString, kind);
    QFETCH(double, rotation);
    QFETCH(DocumentFormat, format);
    QFETCH(bool, isTaken);
    Document document;
    auto *object = new CarelessObject(kind);
    object->setRotation(rotation);
    document.appendPage()->addObject(object);
    const QByteArray bytes = encodeDocument(document, format);
    const OpenResult opened = decodeDocument(bytes, CarelessRegistry());
    QCOMPARE(isPlaceholder(opened.document->page(0)->objects().value(0)), !isTaken);
    QCOMPARE(textKeys(opened.messages),
             isTaken ? QStringList() : QStringList{QStringLiteral("IDS_FILE_OBJECT_BROKEN")});
    QCOMPARE(encodeDocument(*opened.document, format), bytes);
}

void TestDocumentFile::objectWithoutStateIsAPlaceholder()
{
    for (const QByteArray &rest : {QByteArray(), QByteArray(", \"data\": {}"), QByteArray(", \"data\": 5")}) {
        const OpenResult opened = decodeDocument("{\"format\": \"gliololok board\", \"version\": 1, \"pages\": "
                                                 "[{\"page\": 1, \"objects\": [{\"kind\": \"test.forgetful\"" +
                                                     rest + "}]}]}",
                                                 CarelessRegistry());
        QCOMPARE(opened.document->page(0)->objectCount(), 1);
        QVERIFY(isPlaceholder(opened.document->page(0)->objects()[0]));
    }
}

void TestDocumentFile::documentThatCannotBeSavedLeavesTheOldFile_data()
{
    savedDocumentOpens_data();
}

void TestDocumentFile::documentThatCannotBeSavedLeavesTheOldFile()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString file = folder.filePath(name);
    writeContents(file, "the work of last week");
    Document document;
    document.appendPage()->addObject(new CarelessObject(QStringLiteral("test.unsavable")));
    const SaveResult result = saveDocument(document, file);
    QVERIFY(!result.saved);
    QVERIFY(!result.problem.textKey.isEmpty());
    QCOMPARE(result.problem.severity, FileMessage::Error);
    QCOMPARE(contentsOf(file), QByteArray("the work of last week"));
    QVERIFY(encodeObjects(document.page(0)->objects()).isEmpty());
}

void TestDocumentFile::fileThatIsNotThereIsTold()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lost.board"));
    const OpenResult opened = openDocument(file, m_registry);
    QVERIFY(!opened.document);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_CANNOT_READ")});
    QCOMPARE(opened.messages[0].arguments.value(0), file);
}

/// Whatever comes out of it: it could go on for ever.
void TestDocumentFile::deviceIsNoDocument()
{
    const QByteArray bytes = encodeDocument(*smallDocument(), DocumentFormat::Binary);
    int ends[2] = {};
    QCOMPARE(::pipe(ends), 0);
    QCOMPARE(::write(ends[1], bytes.constData(), size_t(bytes.size())), ssize_t(bytes.size()));
    ::close(ends[1]);
    const OpenResult opened = openDocument(QStringLiteral("/proc/self/fd/%1").arg(ends[0]), m_registry);
    ::close(ends[0]);
    QVERIFY(!opened.document);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_NO_DOCUMENT")});
}

/// Not read at all, though it begins like a document. The rest of it is a hole, which takes no room on the disk.
void TestDocumentFile::fileBeyondTheLargestIsRefusedWithItsSize()
{
    constexpr qint64 largest = 1 << 30;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("lesson.board"));
    QVERIFY(saveDocument(*smallDocument(), file).saved);
    QVERIFY(QFile::resize(file, largest + 1));
    const OpenResult opened = openDocument(file, m_registry);
    QVERIFY(!opened.document);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_BEYOND_LIMIT")});
    QCOMPARE(describe(opened.messages[0], Localizer()),
             QStringLiteral("The file has 1073741825 bytes; files of more than 1073741824 bytes are not opened."));
}

QTEST_MAIN(TestDocumentFile)
#include "test_documentfile.moc"
