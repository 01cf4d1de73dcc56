#include "framework/files/filetest.h"

#include <support/listed.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

// Text files that somebody or something has changed: what is whole comes back, and what is not is told and kept.

using namespace pagehost;

namespace {

/// Pages of 400 by 300 with objects at x = 1, 2 ..., and two lessons.
std::unique_ptr<Document> makeDocument(int pages, int objectsEach)
{
    auto document = std::make_unique<Document>();
    int number = 0;
    for (int i = 0; i < pages; ++i) {
        Page *page = document->appendPage(QSizeF(400, 300));
        for (int j = 0; j < objectsEach; ++j)
            addPlain(page, QPointF(++number, 5));
    }
    document->setLessons({{QStringLiteral("first"), lessonText(QStringLiteral("first"))},
                          {QStringLiteral("second"), lessonBytes(QStringLiteral("second"))}});
    return document;
}

QByteArray textOf(int pages, int objectsEach)
{
    return encodeDocument(*makeDocument(pages, objectsEach), DocumentFormat::Json);
}

QByteArray replaced(QByteArray text, const QByteArray &before, const QByteArray &after, int from = 0)
{
    const int place = text.indexOf(before, from);
    return place < 0 ? QByteArray() : text.replace(place, before.size(), after);
}

int lineOf(const QByteArray &text, const QByteArray &part)
{
    return text.left(text.indexOf(part)).count('\n') + 1;
}

/// The x of the objects that are no placeholders, page by page.
QList<QList<double>> placesIn(const OpenResult &opened)
{
    QList<QList<double>> places;
    for (const Page *page : support::listed(opened.document->pages())) {
        places.append(QList<double>());
        for (const CBaseObject *object : support::listed(page->objects()))
            if (!isPlaceholder(object))
                places.last().append(object->pos().x());
    }
    return places;
}

QStringList lessonNames(const OpenResult &opened)
{
    QStringList names;
    for (const LessonData &lesson : support::listed(opened.document->lessons()))
        names.append(lesson.name);
    return names;
}

QList<QByteArray> damagedParts(const ExtraData &extra)
{
    QList<QByteArray> parts;
    for (const QJsonValue &part : support::listed(extra.members.value(QLatin1String("damaged")).toArray()))
        parts.append(QByteArray::fromBase64(part.toString().toLatin1()));
    return parts;
}

/// The file as another program would write it that leaves out all white space.
QByteArray inOneLine(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact);
}

const QList<QList<double>> allOfFour{{1, 2}, {3, 4}};
const QStringList bothLessons{QStringLiteral("first"), QStringLiteral("second")};

} // namespace

class TestDamagedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneWrongByteLosesNothing_data();
    void oneWrongByteLosesNothing();
    void lineThatStandsTwiceLosesNothing_data();
    void lineThatStandsTwiceLosesNothing();
    void holeBetweenObjectsIsCounted();
    void numberOfObjectsThatNoPageHasClaimsNothing();
    void holeThatJoinsALessonAndAPageLosesNoWholeObject();
    void fortyBrokenObjectsLeaveTheGoodOnes();
    void moreProblemsThanPeopleReadAreCounted();
    void oneLineOfBrokenObjectsIsGoneOverOnce_data();
    void oneLineOfBrokenObjectsIsGoneOverOnce();
    void objectsOfAOneLineFileAreFoundBehindDamage_data();
    void objectsOfAOneLineFileAreFoundBehindDamage();
    void damagedFrontDoesNotHideTheObjects_data();
    void damagedFrontDoesNotHideTheObjects();
    void textThatIsNotUnderstoodIsKept();
    void moreDamageIsKeptBesideTheFirst();
    void damagedNameOfAPageMemberIsTold();
    void damagedNameOfAnObjectMemberIsTold();
    void damagedNameInAnObjectsDataIsTold();
    void colourThatIsNoneMakesAPlaceholder();
    void damagedDigitOfBytesCostsNothingBehindIt();
    void brokenLessonKeepsItsTextAndPlaysUpToTheDamage_data();
    void brokenLessonKeepsItsTextAndPlaysUpToTheDamage();

private:
    FileTestRegistry m_registry;
};

void TestDamagedText::oneWrongByteLosesNothing_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<int>("linesBehind"); // the beginning of what is changed
    QTest::newRow("the comma behind the version is a brace")
        << QByteArray("\"version\": 1,") << QByteArray("\"version\": 1}") << 1;
    QTest::newRow("a stray brace before the pages")
        << QByteArray("  \"pages\": [") << QByteArray("{ \"pages\": [") << 0;
    QTest::newRow("a stray brace before a page")
        << QByteArray("    {\n      \"page\": 2") << QByteArray("    {{\n      \"page\": 2") << 0;
    QTest::newRow("the name of the lessons") << QByteArray("\"lessons\"") << QByteArray("\"lesrons\"") << 0;
    QTest::newRow("the name of the pages") << QByteArray("\"pages\"") << QByteArray("\"pbges\"") << 0;
    QTest::newRow("the name of the objects") << QByteArray("\"objects\"") << QByteArray("\"objectr\"") << 0;
    QTest::newRow("the bracket behind the lessons") << QByteArray("    }\n  ],") << QByteArray("    }\n  },") << 1;
}

void TestDamagedText::oneWrongByteLosesNothing()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const OpenResult opened = decodeDocument(replaced(textOf(2, 2), before, after), m_registry);
    QVERIFY(opened.document);
    QCOMPARE(placesIn(opened), allOfFour);
    QCOMPARE(lessonNames(opened), bothLessons);
    QCOMPARE(opened.document->page(1)->size(), QSizeF(400, 300));
    QVERIFY(!opened.messages.isEmpty());
    QTEST(opened.messages[0].line - lineOf(textOf(2, 2), before), "linesBehind");
}

void TestDamagedText::lineThatStandsTwiceLosesNothing_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("pages") << QByteArray("  \"pages\": [\n");
    QTest::newRow("lessons") << QByteArray("  \"lessons\": [\n");
    QTest::newRow("beginning of a page") << QByteArray("    {\n      \"page\": 2");
    QTest::newRow("background") << QByteArray("      \"background\": {\n");
    QTest::newRow("objects") << QByteArray("      \"objects\": [\n");
    QTest::newRow("beginning of an object") << QByteArray("        {\n          \"kind\": \"test");
    QTest::newRow("end of an object") << QByteArray("        },\n        {\n          \"kind\": \"test");
    QTest::newRow("end of a page") << QByteArray("    },\n    {\n      \"page\"");
}

void TestDamagedText::lineThatStandsTwiceLosesNothing()
{
    QFETCH(QByteArray, line);
    const QByteArray first = line.left(line.indexOf('\n') + 1);
    const OpenResult opened = decodeDocument(replaced(textOf(2, 2), line, first + line), m_registry);
    QVERIFY(opened.document);
    QCOMPARE(placesIn(opened), allOfFour);
    QCOMPARE(lessonNames(opened), bothLessons);
    QVERIFY(!opened.messages.isEmpty());
    QCOMPARE(decodeDocument(encodeDocument(*opened.document, DocumentFormat::Json), m_registry).messages.size(), 0);
}

void TestDamagedText::numberOfObjectsThatNoPageHasClaimsNothing()
{
    for (const char *number : {"-1", "-1e300", "-9223372036854775808"}) {
        const QByteArray text =
            replaced(textOf(1, 4), "\"objectCount\": 4", QByteArray("\"objectCount\": ") + number);
        QVERIFY(text.contains(number));
        const OpenResult opened = decodeDocument(text, m_registry);
        QCOMPARE(placesIn(opened), (QList<QList<double>>{{1, 2, 3, 4}}));
        QVERIFY(opened.messages.isEmpty());
    }
}

/// From within one object into another one: the text is still JSON throughout.
void TestDamagedText::holeBetweenObjectsIsCounted()
{
    QByteArray text = textOf(1, 8);
    const int from = text.indexOf("\"pos\": [2, 5]");
    text.remove(from, text.indexOf("\"pos\": [5, 5]") - from);
    QVERIFY(QJsonDocument::fromJson(text).isObject());
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(placesIn(opened), (QList<QList<double>>{{1, 5, 6, 7, 8}}));
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECTS_MISSING")});
    QCOMPARE(opened.messages[0].arguments, QStringList{QStringLiteral("3")});
    QCOMPARE(opened.messages[0].page, 1);
    QCOMPARE(opened.messages[0].line, lineOf(text, "    {\n      \"page\": 1"));
}

void TestDamagedText::holeThatJoinsALessonAndAPageLosesNoWholeObject()
{
    QByteArray text = encodeDocument(*makeDocument(2, 2), DocumentFormat::Json);
    // The second lesson's bytes and the first page's height: both are followed by members of the same depth.
    const int from = text.indexOf("\"bytes\": ");
    text.remove(from, text.indexOf("\"height\": ") - from);
    QVERIFY(QJsonDocument::fromJson(text).isObject());
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(placesIn(opened), allOfFour);
    QVERIFY(lessonNames(opened).contains(QStringLiteral("first")));
    QVERIFY(!opened.messages.isEmpty());
}

void TestDamagedText::fortyBrokenObjectsLeaveTheGoodOnes()
{
    constexpr int broken = 40;
    constexpr int good = 28;
    QByteArray text = textOf(1, broken + good);
    QList<double> expected;
    QList<int> lines;
    for (int number = 1; number <= broken + good; ++number) {
        const QByteArray pos = "\"pos\": [" + QByteArray::number(number) + ", 5]";
        if (number <= broken) {
            lines.append(lineOf(text, pos));
            text = replaced(text, pos, "\"pos\": [" + QByteArray::number(number) + ", 5}");
        } else {
            expected.append(number);
        }
    }
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(placesIn(opened), QList<QList<double>>{expected});
    QCOMPARE(opened.document->page(0)->objectCount(), broken + good);
    QList<int> told;
    for (const FileMessage &message : opened.messages) {
        QCOMPARE(message.textKey, QStringLiteral("IDS_FILE_SYNTAX"));
        told.append(message.line);
    }
    QCOMPARE(told, lines);
}

void TestDamagedText::moreProblemsThanPeopleReadAreCounted()
{
    constexpr int shown = 200;
    QByteArray text = textOf(1, shown + 50);
    text.replace("\"visible\": true", "\"visible\": trve");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(opened.messages.size(), shown + 1);
    QCOMPARE(describe(opened.messages.last(), Localizer()), QStringLiteral("There are 50 more problems."));
}

void TestDamagedText::oneLineOfBrokenObjectsIsGoneOverOnce_data()
{
    QTest::addColumn<QByteArray>("broken");
    QTest::newRow("never closed") << QByteArray("{\"kind\":\"test.plain\",\"data\":{\"pos\":[");
    QTest::newRow("a quote lost") << QByteArray("{\"kind\":\"test.plain\",\"data\":{\"name\":\"a,\"pos\":[1,2]}},");
    QTest::newRow("nested in each other") << QByteArray("{\"kind\":");
    QTest::newRow("members in each other") << QByteArray("\"a\":{");
}

/// Each of them once more for each one before would take hours.
void TestDamagedText::oneLineOfBrokenObjectsIsGoneOverOnce()
{
    QFETCH(QByteArray, broken);
    constexpr int size = 1 << 18;
    QByteArray text = inOneLine(textOf(1, 1));
    const int place = text.indexOf("{\"data\":{\"clientRect\"");
    QVERIFY(place > 0);
    text.insert(place, broken.repeated(size / broken.size()));
    const OpenResult opened = decodeDocument(text, m_registry);
    QVERIFY(opened.document);
    QVERIFY(placesIn(opened).contains({1}));
    QVERIFY(!opened.messages.isEmpty());
}

void TestDamagedText::objectsOfAOneLineFileAreFoundBehindDamage_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("a brace too many") << QByteArray("\"objects\":[") << QByteArray("\"objects\":[{");
    QTest::newRow("a brace lost") << QByteArray("\"pages\":[{") << QByteArray("\"pages\":[");
    QTest::newRow("a quote lost") << QByteArray("\"pageCount\":") << QByteArray("\"pageCount:");
    QTest::newRow("the end of the document in front")
        << QByteArray("\"format\"") << QByteArray("\"a\":1},\"format\"");
}

void TestDamagedText::objectsOfAOneLineFileAreFoundBehindDamage()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QByteArray text = replaced(inOneLine(textOf(2, 2)), before, after);
    QVERIFY(!text.isEmpty());
    const OpenResult opened = decodeDocument(text, m_registry);
    QVERIFY(opened.document);
    QList<double> all;
    for (const QList<double> &places : support::listed(placesIn(opened)))
        all += places;
    QCOMPARE(all, (QList<double>{1, 2, 3, 4}));
    QCOMPARE(lessonNames(opened), bothLessons);
    QVERIFY(!opened.messages.isEmpty());
}

void TestDamagedText::damagedFrontDoesNotHideTheObjects_data()
{
    QTest::addColumn<DocumentFormat>("format");
    QTest::addColumn<int>("zeros");
    QTest::newRow("binary, first byte") << DocumentFormat::Binary << 1;
    QTest::newRow("binary, first sector") << DocumentFormat::Binary << 512;
    QTest::newRow("json, first byte") << DocumentFormat::Json << 1;
    QTest::newRow("json, first sector") << DocumentFormat::Json << 512;
}

void TestDamagedText::damagedFrontDoesNotHideTheObjects()
{
    QFETCH(DocumentFormat, format);
    QFETCH(int, zeros);
    const std::unique_ptr<Document> document = makeDocument(2, 2);
    QByteArray bytes = encodeDocument(*document, format);
    bytes.replace(0, zeros, QByteArray(zeros, '\0'));
    const OpenResult opened = decodeDocument(bytes, m_registry);
    QVERIFY(opened.document);
    QCOMPARE(placesIn(opened), allOfFour);
    QVERIFY(!opened.messages.isEmpty());
}

void TestDamagedText::textThatIsNotUnderstoodIsKept()
{
    const QByteArray strange = "somebody's note {\"a\": [";
    const QByteArray text = replaced(textOf(2, 2), "      \"objects\": [", strange + "\n      \"objects\": [");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(placesIn(opened), allOfFour);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_DAMAGED_PART")});
    // Without the brackets at its end.
    const QByteArray kept = "somebody's note {\"a\"";
    QCOMPARE(opened.messages[0].arguments, QStringList{QString::number(kept.size())});
    QCOMPARE(opened.messages[0].line, lineOf(text, strange));
    QCOMPARE(damagedParts(opened.document->page(0)->extraData()), QList<QByteArray>{kept});
    for (const DocumentFormat format : {DocumentFormat::Json, DocumentFormat::Binary}) {
        const OpenResult again = decodeDocument(encodeDocument(*opened.document, format), m_registry);
        QVERIFY(again.messages.isEmpty());
        QCOMPARE(damagedParts(again.document->page(0)->extraData()), QList<QByteArray>{kept});
    }
}

void TestDamagedText::moreDamageIsKeptBesideTheFirst()
{
    const std::unique_ptr<Document> document = makeDocument(1, 1);
    const QString before = QString::fromLatin1(QByteArray("before").toBase64());
    document->page(0)->setExtraData({{}, {{QStringLiteral("damaged"), QJsonArray{before}}}});
    const QByteArray text = encodeDocument(*document, DocumentFormat::Json);
    const OpenResult opened =
        decodeDocument(replaced(text, "      \"objects\"", "later\n      \"objects\""), m_registry);
    QCOMPARE(damagedParts(opened.document->page(0)->extraData()), (QList<QByteArray>{"before", "later"}));
}

void TestDamagedText::damagedNameOfAPageMemberIsTold()
{
    const OpenResult opened = decodeDocument(replaced(textOf(1, 1), "\"width\"", "\"wicth\""), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_PAGE_DAMAGED")});
    QCOMPARE(opened.document->page(0)->extraData().members, (QJsonObject{{QStringLiteral("wicth"), 400}}));
}

void TestDamagedText::damagedNameOfAnObjectMemberIsTold()
{
    const std::unique_ptr<Document> document = makeDocument(1, 1);
    setObjectId(document->page(0)->objects()[0], 7);
    const QByteArray text = encodeDocument(*document, DocumentFormat::Json);
    const OpenResult opened = decodeDocument(replaced(text, "\"id\": 7", "\"ie\": 7"), m_registry);
    QCOMPARE(placesIn(opened), QList<QList<double>>{{1}});
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_DAMAGED_PART")});
    QCOMPARE(opened.messages[0].object, 1);
    QCOMPARE(damagedParts(opened.document->page(0)->extraData()), QList<QByteArray>{"\"ie\": 7"});
}

/// It comes with what is left at its default, and the text stays in the file.
void TestDamagedText::damagedNameInAnObjectsDataIsTold()
{
    const QByteArray text = replaced(textOf(1, 2), "\"rotation\"", "\"rotatipn\"");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(placesIn(opened), (QList<QList<double>>{{1, 2}}));
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECT_MEMBERS")});
    QCOMPARE(opened.messages[0].object, 1);
    const QList<QByteArray> kept = damagedParts(opened.document->page(0)->extraData());
    QCOMPARE(kept.size(), 1);
    QCOMPARE(QJsonDocument::fromJson(kept[0]).object().value(QLatin1String("rotatipn")), QJsonValue(0));
}

void TestDamagedText::colourThatIsNoneMakesAPlaceholder()
{
    const QByteArray text = replaced(textOf(1, 2), "\"#ff000000\"", "\"#ff0000g0\"");
    const OpenResult opened = decodeDocument(text, m_registry);
    QCOMPARE(placesIn(opened), (QList<QList<double>>{{2}}));
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_OBJECT_BROKEN")});
    QVERIFY(encodeDocument(*opened.document, DocumentFormat::Json).contains("\"#ff0000g0\""));
}

/// Each digit stands for six bits in a place of their own.
void TestDamagedText::damagedDigitOfBytesCostsNothingBehindIt()
{
    const QByteArray bytes = lessonBytes(QStringLiteral("second"));
    const QByteArray digits = bytes.toBase64();
    QByteArray changed = digits;
    changed[40] = '!';
    const OpenResult opened = decodeDocument(replaced(textOf(1, 1), digits, changed), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_LESSON_DAMAGED")});
    QByteArray expected = digits;
    expected[40] = 'A';
    QCOMPARE(opened.document->lessons()[1].data, QByteArray::fromBase64(expected));
    QVERIFY(opened.document->lessons()[1].isDamaged);
}

void TestDamagedText::brokenLessonKeepsItsTextAndPlaysUpToTheDamage_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("kept");
    QTest::addColumn<int>("events");
    QTest::newRow("a number") << QByteArray("\"time\": 2000") << QByteArray("\"time\": 2o00") << "first"
                              << QByteArray("2o00") << 1;
    QTest::newRow("a brace lost") << QByteArray("            \"time\": 3000\n          }")
                                  << QByteArray("            \"time\": 3000\n") << "first" << QByteArray("3000")
                                  << 2;
    QTest::newRow("its name") << QByteArray("\"name\": \"first\"") << QByteArray("\"name\": first\"") << QString()
                              << QByteArray("3000") << 3;
}

void TestDamagedText::brokenLessonKeepsItsTextAndPlaysUpToTheDamage()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QByteArray, kept);
    QFETCH(int, events);
    const OpenResult opened = decodeDocument(replaced(textOf(1, 1), before, after), m_registry);
    QCOMPARE(textKeys(opened.messages), QStringList{QStringLiteral("IDS_FILE_LESSON_DAMAGED")});
    QCOMPARE(opened.document->lessons().size(), 2);
    const LessonData lesson = opened.document->lessons()[0];
    QTEST(lesson.name, "name");
    QVERIFY(lesson.isDamaged);
    QVERIFY(lesson.data.contains(kept));
    Lesson played;
    QCOMPARE(played.fromDamagedData(lesson.data), LessonExtent::Part);
    QCOMPARE(played.start.size(), 1);
    QCOMPARE(played.events.size(), events);
    QCOMPARE(opened.document->lessons()[1].name, QStringLiteral("second"));
    QCOMPARE(placesIn(opened), QList<QList<double>>{{1}});
    for (const DocumentFormat format : {DocumentFormat::Json, DocumentFormat::Binary}) {
        const OpenResult again = decodeDocument(encodeDocument(*opened.document, format), m_registry);
        QCOMPARE(again.document->lessons(), opened.document->lessons());
    }
}

QTEST_MAIN(TestDamagedText)
#include "test_damagedtext.moc"
