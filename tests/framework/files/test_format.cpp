#include "framework/files/filetest.h"
#include "framework/files/schemacheck.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <cmath>

// The published formats: docs/board-format.md and docs/board.schema.json.

using namespace pagehost;

namespace {

QJsonObject schema()
{
    return QJsonDocument::fromJson(contentsOf(QStringLiteral(PROJECT_DIR "/docs/board.schema.json"))).object();
}

QJsonObject savedJson(Document &document)
{
    return QJsonDocument::fromJson(encodeDocument(document, DocumentFormat::Json)).object();
}

/// An object of every sort that a file can hold.
std::unique_ptr<Document> variedDocument()
{
    static FileTestRegistry registry;
    auto source = std::make_unique<Document>();
    Page *page = source->appendPage(QSizeF(300, 200.5));
    setObjectId(addPlain(page, QPointF(1, 2)), 3);
    addPlain(page, QPointF(4, 5))->setRotation(std::numeric_limits<double>::infinity());
    source->setLessons({{QStringLiteral("text"), lessonText(QStringLiteral("text"))},
                        {QStringLiteral("bytes"), lessonBytes(QStringLiteral("bytes"))}});
    source->setExtraData({{{"ABCD", "x"}}, {{QStringLiteral("author"), 1}}});
    page->setExtraData({{{"ABCD", "x"}}, {{QStringLiteral("grid"), 1}}});
    const ObjectRegistry ignorant;
    QByteArray bytes = encodeDocument(*source, DocumentFormat::Binary);
    bytes[bytes.size() - 40] = char(bytes[bytes.size() - 40] ^ 1); // in the data of the second object
    OpenResult opened = decodeDocument(bytes, ignorant);
    moveObjects({opened.document->page(0)->objects()[0]}, QPointF(1, 1));
    addPlain(opened.document->page(0), QPointF(6, 7));
    return std::move(opened.document);
}

} // namespace

class TestFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void emptyDocumentIsTheseBytes();
    void objectIsTheseBytes();
    void jsonFollowsItsSchema();
    void schemaNoticesWhatIsWrong_data();
    void schemaNoticesWhatIsWrong();
    void documentationNamesEveryTag();
    void exampleOfTheDocumentationFollowsTheSchema();
    void numbersComeBackFromJson_data();
    void numbersComeBackFromJson();
    void textOfUnknownObjectsStays();
    void textsComeBackFromJson();
};

void TestFormat::emptyDocumentIsTheseBytes()
{
    Document document;
    // The signature; version 1, no page and no lesson; the end.
    QCOMPARE(encodeDocument(document, DocumentFormat::Binary).toHex(), QByteArray("894252440d0a1a0a"
                                                                                  "56455253"
                                                                                  "0000000c"
                                                                                  "6caed22c"
                                                                                  "1f82b946"
                                                                                  "000000010000000000000000"
                                                                                  "444f4e45"
                                                                                  "00000000"
                                                                                  "00000000"
                                                                                  "1976d692"));
    QCOMPARE(encodeDocument(document, DocumentFormat::Json),
             QByteArray("{\n  \"format\": \"gliololok board\",\n  \"version\": 1,\n  \"pageCount\": 0,\n"
                        "  \"lessonCount\": 0,\n  \"pages\": []\n}\n"));
}

void TestFormat::objectIsTheseBytes()
{
    TestObject object(QSizeF(2, 1), QPointF(0.5, 0));
    setKindId(&object, QStringLiteral("a.b"));
    setObjectId(&object, 258);
    const QByteArray hex = encodeObjects({&object}).toHex();
    // Flags (a number), 3 letters, the number; then no name, sub type 0, x 0.5.
    const QByteArray payload = "10"
                               "0003"
                               "612e62"
                               "00000102"
                               "ffffffff"
                               "00000000"
                               "3fe0000000000000";
    // Behind the signature and a header.
    QCOMPARE(hex.mid(2 * (8 + 16), payload.size()), payload);
    QCOMPARE(hex.mid(2 * 8, 8), QByteArray("OBJT").toHex());
}

void TestFormat::jsonFollowsItsSchema()
{
    const std::unique_ptr<Document> document = variedDocument();
    const QJsonObject json = savedJson(*document);
    QCOMPARE(schemaProblem(json, schema()), QString());
    // All sorts are there.
    const QJsonArray objects =
        json.value(QLatin1String("pages")).toArray()[0].toObject().value(QLatin1String("objects")).toArray();
    QCOMPARE(objects.size(), 3);
    QVERIFY(objects[0].toObject().contains(QLatin1String("place")));
    QVERIFY(objects[0].toObject().contains(QLatin1String("id")));
    QVERIFY(objects[1].toObject().contains(QLatin1String("stream")));
    QVERIFY(objects[1].toObject().contains(QLatin1String("damaged")));
    QVERIFY(objects[2].toObject().contains(QLatin1String("data")));
}

void TestFormat::schemaNoticesWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("other format") << QByteArray("gliololok board") << QByteArray("board");
    QTest::newRow("missing member") << QByteArray("\"objects\"") << QByteArray("\"things\"");
    QTest::newRow("wrong type") << QByteArray("\"visible\": true") << QByteArray("\"visible\": 1");
    QTest::newRow("too large") << QByteArray("\"opacity\": 255") << QByteArray("\"opacity\": 256");
    QTest::newRow("unknown member") << QByteArray("\"kind\": \"test.plain\"")
                                    << QByteArray("\"kind\": \"test.plain\", \"sort\": 1");
    QTest::newRow("no whole number") << QByteArray("\"subType\": 0") << QByteArray("\"subType\": 0.5");
}

void TestFormat::schemaNoticesWhatIsWrong()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const std::unique_ptr<Document> document = variedDocument();
    QByteArray text = encodeDocument(*document, DocumentFormat::Json);
    QVERIFY(text.contains(before));
    text.replace(before, after);
    QVERIFY(!schemaProblem(QJsonDocument::fromJson(text).object(), schema()).isEmpty());
}

void TestFormat::documentationNamesEveryTag()
{
    const QByteArray page = contentsOf(QStringLiteral(PROJECT_DIR "/docs/board-format.md"));
    const std::unique_ptr<Document> document = variedDocument();
    const QByteArray bytes = encodeDocument(*document, DocumentFormat::Binary);
    int offset = 8;
    int chunks = 0;
    while (offset + 16 <= bytes.size()) {
        const QByteArray tag = bytes.mid(offset, 4);
        QVERIFY2(tag == "ABCD" || page.contains('`' + tag + '`'), tag.constData());
        offset += 16 + int(qFromBigEndian<quint32>(bytes.constData() + offset + 4));
        ++chunks;
    }
    // Version, members and chunk of the document, two lessons, page, its members and chunk, three objects, the end.
    QCOMPARE(chunks, 12);
    QCOMPARE(offset, bytes.size());
}

void TestFormat::exampleOfTheDocumentationFollowsTheSchema()
{
    const QString page = QString::fromUtf8(contentsOf(QStringLiteral(PROJECT_DIR "/docs/board-format.md")));
    const QString block = page.section(QStringLiteral("```json\n"), 1, 1);
    const QByteArray example = block.section(QStringLiteral("```"), 0, 0).toUtf8();
    QCOMPARE(schemaProblem(QJsonDocument::fromJson(example).object(), schema()), QString());
    FileTestRegistry registry;
    const OpenResult opened = decodeDocument(example, registry);
    QVERIFY(opened.document);
    QCOMPARE(opened.document->pageCount(), 1);
    QCOMPARE(opened.document->page(0)->objectCount(), 1);
    QCOMPARE(opened.document->lessons().size(), 1);
}

void TestFormat::numbersComeBackFromJson_data()
{
    QTest::addColumn<double>("number");
    QTest::newRow("third") << 1.0 / 3;
    QTest::newRow("tenth") << 0.1;
    QTest::newRow("whole") << 1e5;
    QTest::newRow("negative") << -123456.789;
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("largest") << std::numeric_limits<double>::max();
    QTest::newRow("2^53") << 9007199254740992.0;
    QTest::newRow("2^53 - 1") << 9007199254740991.0;
    QTest::newRow("above 2^63") << 1e19;
}

void TestFormat::numbersComeBackFromJson()
{
    QFETCH(double, number);
    FileTestRegistry registry;
    Document document;
    addPlain(document.appendPage(), QPointF(1, 1))->setZValue(number);
    const OpenResult opened = decodeDocument(encodeDocument(document, DocumentFormat::Json), registry);
    QVERIFY(opened.document->page(0)->objects()[0]->zValue() == number);
}

/// Which Qt itself would round.
void TestFormat::textOfUnknownObjectsStays()
{
    const QByteArray data = "{\"count\": 9007199254740993,   \"deep\": [1e300]}";
    const OpenResult opened =
        decodeDocument("{\"format\": \"gliololok board\", \"version\": 1, \"pages\": [{\"page\": 1, "
                       "\"objects\": [{\"kind\": \"a\", \"data\": " +
                           data + "}]}]}",
                       ObjectRegistry());
    QVERIFY(encodeDocument(*opened.document, DocumentFormat::Json).contains(data));
}

void TestFormat::textsComeBackFromJson()
{
    const QString text = QStringLiteral("\"\\/\b\n\t\u0001 Größe \u2028 \U0001f600 {\"kind\":");
    Document document;
    document.appendPage();
    document.setLessons({{text, "x"}});
    const QByteArray json = encodeDocument(document, DocumentFormat::Json);
    const OpenResult opened = decodeDocument(json, ObjectRegistry());
    QCOMPARE(opened.document->lessons().value(0).name, text);
    QVERIFY(json.contains("\\\"\\\\/\\u0008\\n\\t\\u0001 Gr\xc3\xb6\xc3\x9f"
                          "e"));
}

QTEST_MAIN(TestFormat)
#include "test_format.moc"
