#include "filetest.h"

#include <framework/cbaseobject.h>

#include <pagehost/application.h>

#include <QtCore/QTemporaryDir>

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
    document->setLessons({{QStringLiteral("Größe"), QByteArray("\x00\x01\xff", 3)},
                          {QStringLiteral("readable"), QByteArray("{\"steps\":[1,2.5]}")}});
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

QTEST_MAIN(TestDocumentFile)
#include "test_documentfile.moc"
