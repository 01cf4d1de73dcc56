#include "framework/files/chunkedit.h"
#include "framework/files/filetest.h"

#include <QtCore/QJsonArray>

#include <cmath>
#include <limits>

// Binary files with one part that holds nonsense: what is told about it, and that the rest is there.

using namespace pagehost;

namespace {

const QString damagedPart = QStringLiteral("IDS_FILE_DAMAGED_PART");
const QStringList unreadable{QStringLiteral("IDS_FILE_OBJECT_UNREADABLE")};

/// Two pages of 400 by 300 with two objects each.
std::unique_ptr<Document> fourObjects()
{
    auto document = std::make_unique<Document>();
    for (int pages = 0; pages < 2; ++pages) {
        Page *page = document->appendPage(QSizeF(400, 300));
        addPlain(page, QPointF(50, 60));
        addPlain(page, QPointF(70, 80));
    }
    return document;
}

QByteArray fileOf(Document &document)
{
    return encodeDocument(document, DocumentFormat::Binary);
}

QByteArray bytesOf(double number)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Changes a byte of the payload of the first chunk with that tag, and not its sum.
QByteArray withWrongSum(QByteArray file, const QByteArray &tag, int place = 0)
{
    char &byte = file.data()[file.indexOf(tag) + 16 + place];
    byte = char(byte ^ 1);
    return file;
}

/// Damaged parts that were kept.
QList<QByteArray> damagedParts(const ExtraData &extra)
{
    QList<QByteArray> parts;
    const QJsonArray texts = extra.members.value(QLatin1String("damaged")).toArray();
    for (const QJsonValue &text : texts)
        parts.append(QByteArray::fromBase64(text.toString().toLatin1()));
    return parts;
}

// Of an object's payload: flags, the kind's length, the kind, and what the flags announce.
const QByteArray kind = "test.plain";
const QByteArray kindWithLength = QByteArray("\x00\x0a", 2) + kind;

} // namespace

class TestDamagedParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageOfAnImpossibleSizeIsTold_data();
    void pageOfAnImpossibleSizeIsTold();
    void pageWithABrokenBackgroundIsTold();
    void damagedPageTellsOfNoMissingObjects();
    void objectThatCannotBeReadKeepsItsBytes_data();
    void objectThatCannotBeReadKeepsItsBytes();
    void objectThatCannotBeReadKeepsItsBytesInText_data();
    void objectThatCannotBeReadKeepsItsBytesInText();
    void objectThatCannotBeReadGoesThroughTheClipboard();
    void membersThatAreNoneAreTold_data();
    void membersThatAreNoneAreTold();
    void objectIsNotPlacedNowhere_data();
    void objectIsNotPlacedNowhere();
    void damageThatAnObjectCannotHoldIsKept_data();
    void damageThatAnObjectCannotHoldIsKept();
    void messagesCountTheObjectsOfEachPage();
    void missingObjectsAreCountedOnEachPage();
    void damagedLessonIsToldAndKeptWithItsBytes_data();
    void damagedLessonIsToldAndKeptWithItsBytes();
    void missingLessonIsCounted();
    void damagedUnknownPartIsToldAndKept();
    void unknownPartsStayWithTheirPage();
    void bytesBehindTheEndAreTold();
    void damagedHeadIsTold();
    void damagedEndIsTold();
    void documentWithoutPagesGetsOne();

private:
    FileTestRegistry m_registry;
};

void TestDamagedParts::pageOfAnImpossibleSizeIsTold_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::newRow("no width") << bytesOf(0) + bytesOf(300);
    QTest::newRow("negative height") << bytesOf(400) + bytesOf(-300);
    QTest::newRow("no number") << bytesOf(std::numeric_limits<double>::quiet_NaN()) + bytesOf(300);
    QTest::newRow("endless") << bytesOf(400) + bytesOf(std::numeric_limits<double>::infinity());
}

void TestDamagedParts::pageOfAnImpossibleSizeIsTold()
{
    QFETCH(QByteArray, size);
    const QByteArray file = fileOf(*fourObjects());
    const OpenResult opened =
        decodeDocument(withPayload(file, "PAGE", size + payloadOf(file, "PAGE").mid(16)), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_PAGE_DAMAGED")});
    QCOMPARE(opened.messages[0].page, 1);
    QCOMPARE(opened.messages[0].offset, qint64(file.indexOf("PAGE")));
    QCOMPARE(opened.document->page(0)->size(), Document::defaultPageSize());
    QCOMPARE(opened.document->page(0)->objectCount(), 2);
    QCOMPARE(opened.document->page(1)->size(), QSizeF(400, 300));
}

void TestDamagedParts::pageWithABrokenBackgroundIsTold()
{
    const QByteArray file = fileOf(*fourObjects());
    QByteArray payload = payloadOf(file, "PAGE");
    payload.replace(21, 4, bigEndian(0x7fffffff)); // the sort of filling, behind size, count and one more byte
    const OpenResult opened = decodeDocument(withPayload(file, "PAGE", payload), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_PAGE_DAMAGED")});
    QCOMPARE(opened.document->page(0)->size(), QSizeF(400, 300));
    QCOMPARE(opened.document->page(0)->objectCount(), 2);
    QCOMPARE(opened.document->page(0)->background().fillColor(), Document().appendPage()->background().fillColor());
}

/// Its count is as doubtful as the rest of it.
void TestDamagedParts::damagedPageTellsOfNoMissingObjects()
{
    const QByteArray file = withWrongSum(fileOf(*fourObjects()), "PAGE", 16); // the count's highest byte
    const OpenResult opened = decodeDocument(file, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_PAGE_DAMAGED")});
    QCOMPARE(opened.document->page(0)->objectCount(), 2);
}

void TestDamagedParts::objectThatCannotBeReadKeepsItsBytes_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("ends in the length of the kind") << QByteArray("\x00\x00", 2);
    QTest::newRow("ends in the kind") << QByteArray("\x00\x00\x0b", 3) + kind;
    QTest::newRow("a kind of 1001 letters") << QByteArray("\x00\x03\xe9", 3) + QByteArray(1001, 'k');
    QTest::newRow("ends in the number") << QByteArray("\x10") + kindWithLength + QByteArray(3, '\0');
    QTest::newRow("ends in the place") << QByteArray("\x20") + kindWithLength + QByteArray(16, '\0');
    QTest::newRow("ends in the zoom") << QByteArray("\x40") + kindWithLength + QByteArray(7, '\0');
    QTest::newRow("an unknown way of writing") << QByteArray("\x04") + kindWithLength + QByteArray(8, '\0');
    QTest::newRow("a kind that is no UTF-8") << QByteArray("\x00\x00\x01\xff", 4) + QByteArray(8, '\0');
}

void TestDamagedParts::objectThatCannotBeReadKeepsItsBytes()
{
    QFETCH(QByteArray, payload);
    const QByteArray file = fileOf(*fourObjects());
    const OpenResult opened = decodeDocument(withPayload(file, "OBJT", payload), m_registry);
    QCOMPARE(textKeys(opened.messages), unreadable);
    QCOMPARE(opened.messages[0].page, 1);
    QCOMPARE(opened.messages[0].object, 1);
    QCOMPARE(opened.messages[0].offset, qint64(file.indexOf("OBJT")));
    // The text has no place for a kind.
    QCOMPARE(opened.messages[0].arguments, QStringList());
    const QVector<CBaseObject *> objects = opened.document->page(0)->objects();
    QCOMPARE(objects.size(), 2);
    QVERIFY(isPlaceholder(objects[0]));
    QCOMPARE(objects[0]->getPos(), QPointF(40, 40));
    QCOMPARE(objects[1]->getPos(), QPointF(70, 80));

    const QByteArray saved = fileOf(*opened.document);
    QCOMPARE(payloadOf(saved, "OBJT"), QByteArray("\x03\x00\x00", 3) + payload);
    const OpenResult again = decodeDocument(saved, m_registry);
    QCOMPARE(textKeys(again.messages), unreadable);
    QCOMPARE(fileOf(*again.document), saved);
}

void TestDamagedParts::objectThatCannotBeReadKeepsItsBytesInText_data()
{
    objectThatCannotBeReadKeepsItsBytes_data();
}

void TestDamagedParts::objectThatCannotBeReadKeepsItsBytesInText()
{
    QFETCH(QByteArray, payload);
    const OpenResult opened = decodeDocument(withPayload(fileOf(*fourObjects()), "OBJT", payload), m_registry);
    const QByteArray text = encodeDocument(*opened.document, DocumentFormat::Json);
    QVERIFY(text.contains("\"payload\": \"" + payload.toBase64() + '"'));
    const OpenResult again = decodeDocument(text, m_registry);
    QCOMPARE(textKeys(again.messages), unreadable);
    QCOMPARE(fileOf(*again.document), fileOf(*opened.document));
}

void TestDamagedParts::objectThatCannotBeReadGoesThroughTheClipboard()
{
    const QByteArray payload("\x04\x00", 2);
    const OpenResult opened = decodeDocument(withPayload(fileOf(*fourObjects()), "OBJT", payload), m_registry);
    const QByteArray copied = encodeObjects(opened.document->page(0)->objects());
    QVector<FileMessage> messages;
    const QVector<CBaseObject *> pasted = decodeObjects(copied, m_registry, &messages);
    QCOMPARE(textKeys(messages), unreadable);
    QCOMPARE(encodeObjects(pasted), copied);
    qDeleteAll(pasted);
}

void TestDamagedParts::membersThatAreNoneAreTold_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::newRow("cut") << QByteArray("{\"grid\": 5");
    QTest::newRow("an array") << QByteArray("[5]");
    QTest::newRow("nothing") << QByteArray();
}

void TestDamagedParts::membersThatAreNoneAreTold()
{
    QFETCH(QByteArray, payload);
    const std::unique_ptr<Document> document = fourObjects();
    document->page(0)->setExtraData({{}, {{QStringLiteral("grid"), 5}}});
    const OpenResult opened = decodeDocument(withPayload(fileOf(*document), "JSON", payload), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{damagedPart});
    QCOMPARE(opened.messages[0].arguments, QStringList{QString::number(payload.size())});
    QCOMPARE(damagedParts(opened.document->page(0)->extraData()), QList<QByteArray>{payload});
    QCOMPARE(opened.document->page(0)->objectCount(), 2);
}

void TestDamagedParts::objectIsNotPlacedNowhere_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("a place") << 7.0 << 8.0 << QPointF(7, 8);
    QTest::newRow("no number across") << std::nan("") << 8.0 << QPointF(50, 60);
    QTest::newRow("endlessly far down") << 7.0 << std::numeric_limits<double>::infinity() << QPointF(50, 60);
}

void TestDamagedParts::objectIsNotPlacedNowhere()
{
    QFETCH(double, x);
    QFETCH(double, y);
    const QByteArray file = fileOf(*fourObjects());
    const QByteArray state = payloadOf(file, "OBJT").mid(1 + kindWithLength.size());
    const QByteArray place = bytesOf(x) + bytesOf(y) + QByteArray(1, '\0');
    const OpenResult opened =
        decodeDocument(withPayload(file, "OBJT", "\x20" + kindWithLength + place + state), m_registry);
    QVERIFY(opened.messages.isEmpty());
    QTEST(opened.document->page(0)->objects()[0]->getPos(), "expected");
}

void TestDamagedParts::damageThatAnObjectCannotHoldIsKept_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("isPlaceholder");
    // Of the state: the name, 4 bytes for none, the sort, 4 bytes, the place, 16, the rotation, 8, the mirroring.
    QTest::newRow("a rotation") << 31 << QStringLiteral("IDS_FILE_OBJECT_DAMAGED") << false;
    QTest::newRow("neither mirrored nor not") << 32 << QStringLiteral("IDS_FILE_OBJECT_BROKEN") << true;
}

/// A rescuer may want the very bytes.
void TestDamagedParts::damageThatAnObjectCannotHoldIsKept()
{
    QFETCH(int, place);
    QFETCH(QString, message);
    QByteArray file = fileOf(*fourObjects());
    const int changed = file.indexOf("OBJT") + 16 + 1 + kindWithLength.size() + place;
    QCOMPARE(file.at(changed), '\0');
    file[changed] = 2;
    const OpenResult opened = decodeDocument(file, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{message});
    CBaseObject *object = opened.document->page(0)->objects().value(0);
    QTEST(isPlaceholder(object), "isPlaceholder");
    QCOMPARE(fileOf(*opened.document).mid(changed - place, 40), file.mid(changed - place, 40));
}

void TestDamagedParts::messagesCountTheObjectsOfEachPage()
{
    const ObjectRegistry ignorant;
    const OpenResult opened = decodeDocument(fileOf(*fourObjects()), ignorant);
    QVector<QPair<int, int>> places;
    for (const FileMessage &message : opened.messages)
        places.append({message.page, message.object});
    QCOMPARE(places, (QVector<QPair<int, int>>{{1, 1}, {1, 2}, {2, 1}, {2, 2}}));
}

void TestDamagedParts::missingObjectsAreCountedOnEachPage()
{
    QByteArray file = fileOf(*fourObjects());
    const int second = file.lastIndexOf("PAGE");
    const int chunkSize = chunkOf("OBJT", payloadOf(file, "OBJT")).size();
    file.remove(file.indexOf("OBJT", second), chunkSize);
    const OpenResult opened = decodeDocument(file, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECTS_MISSING")});
    QCOMPARE(opened.messages[0].arguments, QStringList{QStringLiteral("1")});
    QCOMPARE(opened.messages[0].page, 2);
}

void TestDamagedParts::damagedLessonIsToldAndKeptWithItsBytes_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("events");
    const std::unique_ptr<Document> document = fourObjects();
    const QByteArray bytes = lessonBytes(QStringLiteral("first"));
    document->setLessons({{QStringLiteral("first"), bytes}, {QStringLiteral("second"), lessonBytes({})}});
    const QByteArray file = fileOf(*document);
    const QByteArray payload = payloadOf(file, "LESS");
    // An event is 17 bytes: its time, its kind, and 4 bytes with their length before. The time of the second
    // becomes one beyond the end of the lesson.
    const int place = payload.size() - 2 * 17;
    QByteArray changed = bytes;
    changed[bytes.size() - 2 * 17] = 1;
    QTest::newRow("a byte changed") << withWrongSum(file, "LESS", place) << "first" << changed << 1;
    // Behind the name, 4 bytes for its length and 10 for its letters, come 4 bytes for the length of the data.
    const QByteArray cut = payload.left(payload.size() - 1);
    QTest::newRow("cut") << withPayload(file, "LESS", cut) << "first" << cut << 2;
    QTest::newRow("a huge name") << withWrongSum(file, "LESS", 0) << QString()
                                 << payloadOf(withWrongSum(file, "LESS", 0), "LESS") << 3;
}

/// And plays up to the damage; the lesson behind it stays whole.
void TestDamagedParts::damagedLessonIsToldAndKeptWithItsBytes()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, data);
    QFETCH(int, events);
    const OpenResult opened = decodeDocument(file, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_LESSON_DAMAGED")});
    const QVector<LessonData> lessons = opened.document->lessons();
    QCOMPARE(lessons.size(), 2);
    QTEST(lessons[0].name, "name");
    QCOMPARE(lessons[0].data, data);
    QVERIFY(lessons[0].isDamaged);
    QCOMPARE(lessons[1], (LessonData{QStringLiteral("second"), lessonBytes({})}));
    Lesson played;
    QCOMPARE(played.fromDamagedData(lessons[0].data), LessonExtent::Part);
    QCOMPARE(played.events.size(), events);
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const OpenResult again = decodeDocument(encodeDocument(*opened.document, format), m_registry);
        QCOMPARE(again.document->lessons(), lessons);
        QCOMPARE(textKeys(again.messages), QStringList{QStringLiteral("IDS_FILE_LESSON_DAMAGED")});
    }
}

void TestDamagedParts::missingLessonIsCounted()
{
    const std::unique_ptr<Document> document = fourObjects();
    document->setLessons({{QStringLiteral("only"), lessonBytes({})}});
    QByteArray file = fileOf(*document);
    file.remove(file.indexOf("LESS"), chunkOf("LESS", payloadOf(file, "LESS")).size());
    const OpenResult opened = decodeDocument(file, m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_LESSONS_MISSING")});
    QCOMPARE(opened.messages[0].arguments, QStringList{QStringLiteral("1")});
}

void TestDamagedParts::damagedUnknownPartIsToldAndKept()
{
    const std::unique_ptr<Document> document = fourObjects();
    document->setExtraData({{{"NEWD", "of the document"}, {"newd", "more"}}, {}});
    const OpenResult opened = decodeDocument(withWrongSum(fileOf(*document), "NEWD"), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{damagedPart});
    QCOMPARE(opened.messages[0].arguments, QStringList{QStringLiteral("15")});
    QCOMPARE(opened.document->extraData().chunks, (QVector<ExtraData::Chunk>{{"newd", "more"}}));
    // The first letter, "o", with its lowest bit changed.
    QCOMPARE(damagedParts(opened.document->extraData()), QList<QByteArray>{"nf the document"});
    const OpenResult again = decodeDocument(fileOf(*opened.document), m_registry);
    QVERIFY(again.messages.isEmpty());
    QVERIFY(again.document->extraData() == opened.document->extraData());
}

void TestDamagedParts::unknownPartsStayWithTheirPage()
{
    const std::unique_ptr<Document> document = fourObjects();
    const ExtraData ofPage{{{"NEWP", "of the page"}}, {{QStringLiteral("grid"), 5}}};
    document->page(0)->setExtraData(ofPage);
    const OpenResult opened = decodeDocument(fileOf(*document), m_registry);
    QVERIFY(opened.document->extraData() == ExtraData());
    QVERIFY(opened.document->page(0)->extraData() == ofPage);
    QVERIFY(opened.document->page(1)->extraData() == ExtraData());
}

void TestDamagedParts::bytesBehindTheEndAreTold()
{
    const QByteArray file = fileOf(*fourObjects());
    for (const QByteArray &more : {QByteArray("x"), QByteArray(100, 'x')}) {
        const OpenResult opened = decodeDocument(file + more, m_registry);
        QCOMPARE(textKeys(opened.messages), QStringList{damagedPart});
        QCOMPARE(opened.document->page(1)->objectCount(), 2);
    }
}

void TestDamagedParts::damagedHeadIsTold()
{
    // A version that a newer program could have written, were the sum right.
    const OpenResult opened = decodeDocument(withWrongSum(fileOf(*fourObjects()), "VERS"), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{damagedPart});
    QCOMPARE(opened.document->pageCount(), 2);
}

void TestDamagedParts::damagedEndIsTold()
{
    QByteArray file = fileOf(*fourObjects());
    file.replace(file.lastIndexOf("DONE"), 16, chunkOf("DONE", "x"));
    const OpenResult opened = decodeDocument(withWrongSum(file, "DONE"), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_ENDS_EARLY")});
}

void TestDamagedParts::documentWithoutPagesGetsOne()
{
    Document document;
    for (const DocumentFormat format : {DocumentFormat::Binary, DocumentFormat::Json}) {
        const OpenResult opened = decodeDocument(encodeDocument(document, format), m_registry);
        QVERIFY(opened.document);
        QVERIFY(opened.messages.isEmpty());
        QCOMPARE(opened.document->pageCount(), 1);
        QCOMPARE(opened.document->page(0)->size(), Document::defaultPageSize());
    }
}

QTEST_MAIN(TestDamagedParts)
#include "test_damagedparts.moc"
