#include <pagehost/lesson.h>
#include <pagehost/lessonclock.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QRandomGenerator>
#include <QtTest/QtTest>

#include <limits>

using pagehost::Lesson;
using pagehost::LessonExtent;
using pagehost::LessonStep;

// The two stored forms of a lesson, and the stopwatch.

class TestLessonData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesOfASmallLesson();
    void bytesBringBackEveryStep();
    void jsonBringsBackEveryStep();
    void jsonIsReadable();
    void storedDataOfEitherFormIsRead();
    void nothingElseIsALesson();
    void truncatedBytesAreRefused();
    void flippedBytesNeverCrash();
    void bytesWithOneFlippedBitGiveWhatIsBefore();
    void textWithOneFlippedBitGivesWhatIsBefore();
    void partOfALessonEndsWithItsLastEvent_data();
    void partOfALessonEndsWithItsLastEvent();
    void wholeLessonIsReadWhole();
    void dataOfNoLessonGiveNothing_data();
    void dataOfNoLessonGiveNothing();
    void countsBeyondTheBytesAreRefused();
    void timesMustGrow_data();
    void timesMustGrow();
    void wrongJsonIsRefused_data();
    void wrongJsonIsRefused();
    void failedReadLeavesTheLesson();
    void clockStandsUntilItRuns();
    void clockKeepsItsTimeWhileHalted();
    void clockCanBeSet();
    void clockNeverGoesBack();
};

namespace {

/// One step of every kind, every field with a value of its own.
QVector<LessonStep> everyStep()
{
    return {pagehost::ObjectActed{1, 1005, QByteArray("\x00\x01\xff", 3)},
            pagehost::ObjectAppeared{2, 3, 4, "data"},
            pagehost::ObjectVanished{5},
            pagehost::ObjectSettled{4294967295u, QByteArray()},
            pagehost::PageRestacked{6, {9, 8, 7}},
            pagehost::PageAppeared{7, QSizeF(0.1, 1e300), "paper"},
            pagehost::PageVanished{-1},
            pagehost::PageMoved{8, 9},
            pagehost::PageResized{10, QSizeF(640.5, 480)},
            pagehost::PageBackgroundChanged{11, "blue"},
            pagehost::PageTurned{12},
            pagehost::ZoomChanged{1.0 / 3},
            pagehost::PageGrouped{13, "groups"},
            pagehost::ChapterBegan{QStringLiteral("Größe")}};
}

Lesson everyLesson()
{
    Lesson lesson;
    lesson.title = QStringLiteral("Brüche \U0001f600");
    lesson.start = everyStep();
    qint64 time = 0;
    const QVector<LessonStep> steps = everyStep();
    for (const LessonStep &step : steps) {
        lesson.events.append({time, step});
        time += 250;
    }
    lesson.duration = time;
    return lesson;
}

struct SameStep
{
    const LessonStep &other;

    bool operator()(const pagehost::ObjectActed &a) const
    {
        const auto &b = std::get<pagehost::ObjectActed>(other);
        return a.object == b.object && a.actionId == b.actionId && a.payload == b.payload;
    }
    bool operator()(const pagehost::ObjectAppeared &a) const
    {
        const auto &b = std::get<pagehost::ObjectAppeared>(other);
        return a.object == b.object && a.page == b.page && a.place == b.place && a.data == b.data;
    }
    bool operator()(const pagehost::ObjectVanished &a) const
    {
        return a.object == std::get<pagehost::ObjectVanished>(other).object;
    }
    bool operator()(const pagehost::ObjectSettled &a) const
    {
        const auto &b = std::get<pagehost::ObjectSettled>(other);
        return a.object == b.object && a.data == b.data;
    }
    bool operator()(const pagehost::PageRestacked &a) const
    {
        const auto &b = std::get<pagehost::PageRestacked>(other);
        return a.page == b.page && a.objects == b.objects;
    }
    bool operator()(const pagehost::PageGrouped &a) const
    {
        const auto &b = std::get<pagehost::PageGrouped>(other);
        return a.page == b.page && a.groups == b.groups;
    }
    bool operator()(const pagehost::ChapterBegan &a) const
    {
        return a.name == std::get<pagehost::ChapterBegan>(other).name;
    }
    bool operator()(const pagehost::PageAppeared &a) const
    {
        const auto &b = std::get<pagehost::PageAppeared>(other);
        return a.page == b.page && same(a.size, b.size) && a.background == b.background;
    }
    bool operator()(const pagehost::PageVanished &a) const
    {
        return a.page == std::get<pagehost::PageVanished>(other).page;
    }
    bool operator()(const pagehost::PageMoved &a) const
    {
        const auto &b = std::get<pagehost::PageMoved>(other);
        return a.from == b.from && a.to == b.to;
    }
    bool operator()(const pagehost::PageResized &a) const
    {
        const auto &b = std::get<pagehost::PageResized>(other);
        return a.page == b.page && same(a.size, b.size);
    }
    bool operator()(const pagehost::PageBackgroundChanged &a) const
    {
        const auto &b = std::get<pagehost::PageBackgroundChanged>(other);
        return a.page == b.page && a.background == b.background;
    }
    bool operator()(const pagehost::PageTurned &a) const
    {
        return a.page == std::get<pagehost::PageTurned>(other).page;
    }
    bool operator()(const pagehost::ZoomChanged &a) const
    {
        return a.rate == std::get<pagehost::ZoomChanged>(other).rate;
    }

    static bool same(const QSizeF &a, const QSizeF &b)
    {
        return a.width() == b.width() && a.height() == b.height();
    }
};

bool isSame(const LessonStep &one, const LessonStep &other)
{
    return one.index() == other.index() && std::visit(SameStep{other}, one);
}

bool isSame(const Lesson &one, const Lesson &other)
{
    const auto sameEvent = [](const pagehost::LessonEvent &a, const pagehost::LessonEvent &b) {
        return a.time == b.time && isSame(a.step, b.step);
    };
    return one.title == other.title && one.duration == other.duration &&
           std::equal(one.start.begin(), one.start.end(), other.start.begin(), other.start.end(),
                      [](const LessonStep &a, const LessonStep &b) { return isSame(a, b); }) &&
           std::equal(one.events.begin(), one.events.end(), other.events.begin(), other.events.end(), sameEvent);
}

Lesson turning(QVector<qint64> times, qint64 duration)
{
    Lesson lesson;
    for (const qint64 time : qAsConst(times))
        lesson.events.append({time, pagehost::PageTurned{0}});
    lesson.duration = duration;
    return lesson;
}

} // namespace

void TestLessonData::bytesOfASmallLesson()
{
    Lesson lesson;
    lesson.title = QStringLiteral("A");
    lesson.start = {pagehost::PageTurned{2}};
    lesson.events = {{258, pagehost::ObjectVanished{3}}};
    lesson.duration = 4096;
    const QByteArray expected = QByteArray::fromHex("474c4c31"         // "GLL1"
                                                    "0001"             // version
                                                    "000000020041"     // "A" in two bytes
                                                    "0000000000001000" // duration
                                                    "00000001"         // steps of the start
                                                    "0a"               // page turned
                                                    "0000000400000002" // four bytes: 2
                                                    "00000001"         // events
                                                    "0000000000000102" // time
                                                    "02"               // vanished
                                                    "0000000400000003");
    QCOMPARE(lesson.toBytes().toHex(), expected.toHex());
}

void TestLessonData::bytesBringBackEveryStep()
{
    const Lesson lesson = everyLesson();
    Lesson read;
    QVERIFY(read.fromBytes(lesson.toBytes()));
    QVERIFY(isSame(read, lesson));
    QCOMPARE(read.toBytes(), lesson.toBytes());
}

void TestLessonData::jsonBringsBackEveryStep()
{
    const Lesson lesson = everyLesson();
    const QByteArray text = QJsonDocument(lesson.toJson()).toJson();
    Lesson read;
    QVERIFY(read.fromJson(QJsonDocument::fromJson(text).object()));
    QVERIFY(isSame(read, lesson));
    QCOMPARE(read.toBytes(), lesson.toBytes());
}

void TestLessonData::jsonIsReadable()
{
    const QJsonObject object = everyLesson().toJson();
    QCOMPARE(object.value(QStringLiteral("version")), QJsonValue(1));
    QCOMPARE(object.value(QStringLiteral("duration")), QJsonValue(3500));
    const QJsonObject acted = object.value(QStringLiteral("events")).toArray().at(0).toObject();
    const QJsonObject expected{{QStringLiteral("time"), 0},
                               {QStringLiteral("kind"), QStringLiteral("acted")},
                               {QStringLiteral("object"), 1},
                               {QStringLiteral("action"), 1005},
                               {QStringLiteral("payload"), QStringLiteral("AAH/")}};
    QCOMPARE(acted, expected);
    const QJsonObject restacked = object.value(QStringLiteral("events")).toArray().at(4).toObject();
    QCOMPARE(restacked.value(QStringLiteral("objects")).toArray(), (QJsonArray{9, 8, 7}));
    QCOMPARE(restacked.value(QStringLiteral("time")), QJsonValue(1000));
    const QJsonObject chapter = object.value(QStringLiteral("events")).toArray().at(13).toObject();
    QCOMPARE(chapter, (QJsonObject{{QStringLiteral("time"), 3250},
                                   {QStringLiteral("kind"), QStringLiteral("chapter")},
                                   {QStringLiteral("name"), QStringLiteral("Größe")}}));
}

void TestLessonData::storedDataOfEitherFormIsRead()
{
    const Lesson lesson = everyLesson();
    for (const QByteArray &data : {lesson.toBytes(), QJsonDocument(lesson.toJson()).toJson()}) {
        Lesson read;
        QVERIFY(read.fromData(data));
        QVERIFY(isSame(read, lesson));
    }
    Lesson read;
    QVERIFY(!read.fromData("neither"));
    QVERIFY(!read.fromData(""));
    QVERIFY(!read.fromData("{}"));
}

void TestLessonData::nothingElseIsALesson()
{
    Lesson lesson;
    QByteArray other = everyLesson().toBytes();
    other[0] = 'H';
    QVERIFY(!lesson.fromBytes(other));
    QByteArray newer = everyLesson().toBytes();
    newer[5] = 2;
    QVERIFY(!lesson.fromBytes(newer));
    QVERIFY(!lesson.fromBytes(everyLesson().toBytes() + '\0'));
    QVERIFY(!lesson.fromBytes(QByteArray()));
}

void TestLessonData::truncatedBytesAreRefused()
{
    const QByteArray whole = everyLesson().toBytes();
    for (int size = 0; size < whole.size(); ++size) {
        Lesson lesson;
        QVERIFY2(!lesson.fromBytes(whole.left(size)), qPrintable(QString::number(size)));
    }
}

void TestLessonData::flippedBytesNeverCrash()
{
    const QByteArray whole = everyLesson().toBytes();
    int refused = 0;
    for (int place = 0; place < whole.size(); ++place) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray damaged = whole;
            damaged[place] = char(damaged[place] ^ (1 << bit));
            Lesson lesson;
            if (!lesson.fromBytes(damaged)) {
                ++refused;
                continue;
            }
            // Accepted data can be written and read again.
            Lesson again;
            QVERIFY(again.fromBytes(lesson.toBytes()));
        }
    }
    QVERIFY(refused > 1000);
}

/// Whether all events of `lesson` that end before `place` in `stored` are the first ones of `read`.
static bool hasEventsBefore(const Lesson &read, const Lesson &lesson, const QVector<int> &ends, int place)
{
    const auto before = std::upper_bound(ends.begin(), ends.end(), place) - ends.begin();
    const auto sameEvent = [](const pagehost::LessonEvent &a, const pagehost::LessonEvent &b) {
        return a.time == b.time && isSame(a.step, b.step);
    };
    return read.events.size() >= before &&
           std::equal(lesson.events.begin(), lesson.events.begin() + before, read.events.begin(), sameEvent);
}

void TestLessonData::bytesWithOneFlippedBitGiveWhatIsBefore()
{
    const Lesson lesson = everyLesson();
    const QByteArray whole = lesson.toBytes();
    // Without its events a lesson ends with their count, 4 bytes.
    Lesson start = lesson;
    start.events.clear();
    const int head = start.toBytes().size();
    QVector<int> ends;
    for (const pagehost::LessonEvent &event : lesson.events) {
        Lesson one = start;
        one.events = {event};
        ends.append((ends.isEmpty() ? head : ends.last()) + one.toBytes().size() - head);
    }
    QCOMPARE(ends.last(), whole.size());
    for (int place = head; place < whole.size(); ++place) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray damaged = whole;
            damaged[place] = char(damaged[place] ^ (1 << bit));
            Lesson read;
            QVERIFY(read.fromDamagedData(damaged) != LessonExtent::Nothing);
            QVERIFY2(hasEventsBefore(read, lesson, ends, place), qPrintable(QString::number(place)));
            QVERIFY(read.events.isEmpty() || read.duration >= read.events.last().time);
        }
    }
}

void TestLessonData::textWithOneFlippedBitGivesWhatIsBefore()
{
    const Lesson lesson = turning({100, 200, 300, 400}, 400);
    const QByteArray whole = QJsonDocument(lesson.toJson()).toJson(QJsonDocument::Compact);
    const int first = whole.indexOf("\"events\":[{");
    QVector<int> ends;
    for (int end = whole.indexOf('}', first); ends.size() < lesson.events.size(); end = whole.indexOf('}', end + 1))
        ends.append(end + 1);
    const int behind = ends.last() + 1;
    for (int place = first + 11; place < behind; ++place) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray damaged = whole;
            damaged[place] = char(damaged[place] ^ (1 << bit));
            Lesson read;
            QVERIFY2(read.fromDamagedData(damaged) != LessonExtent::Nothing, damaged.constData());
            QVERIFY2(hasEventsBefore(read, lesson, ends, place), damaged.constData());
        }
    }
}

void TestLessonData::partOfALessonEndsWithItsLastEvent_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("events");
    QTest::addColumn<qint64>("duration");
    const QByteArray bytes = turning({100, 200, 300}, 5000).toBytes();
    QTest::newRow("cut in the last event") << bytes.left(bytes.size() - 1) << 2 << qint64(200);
    QTest::newRow("more behind") << bytes + "x" << 3 << qint64(300);
    QTest::newRow("time falls") << turning({100, 200, 150, 300}, 5000).toBytes() << 2 << qint64(200);
    QTest::newRow("time beyond the end") << turning({100, 6000, 6001}, 5000).toBytes() << 1 << qint64(100);
    QTest::newRow("bytes before it") << QByteArray("abc") + bytes << 3 << qint64(300);
    const QByteArray text = QJsonDocument(turning({100, 200, 300}, 5000).toJson()).toJson();
    QByteArray wrong = text;
    QTest::newRow("text, no number in the third event") << wrong.replace("300", "3oo") << 2 << qint64(200);
    QTest::newRow("text, cut before the start") << text.left(text.indexOf("\"start\"")) << 0 << qint64(0);
    QByteArray renamed = text;
    QTest::newRow("text, its title renamed") << renamed.replace("\"title\"", "\"titlf\"") << 3 << qint64(300);
}

/// And is a part, since silence behind it cannot be trusted either.
void TestLessonData::partOfALessonEndsWithItsLastEvent()
{
    QFETCH(QByteArray, data);
    Lesson read;
    QCOMPARE(read.fromDamagedData(data), LessonExtent::Part);
    QTEST(read.events.size(), "events");
    QTEST(read.duration, "duration");
    QVERIFY(!Lesson().fromData(data));
}

void TestLessonData::wholeLessonIsReadWhole()
{
    const Lesson lesson = everyLesson();
    for (const QByteArray &data : {lesson.toBytes(), QJsonDocument(lesson.toJson()).toJson()}) {
        Lesson read;
        QCOMPARE(read.fromDamagedData(data), LessonExtent::Whole);
        QVERIFY(isSame(read, lesson));
    }
}

void TestLessonData::dataOfNoLessonGiveNothing_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("neither");
    QTest::newRow("an empty object") << QByteArray("{}");
    QTest::newRow("a newer version") << QByteArray(
        "{\"version\": 2, \"title\": \"\", \"start\": [], \"events\": []}");
    QTest::newRow("only the head") << everyLesson().toBytes().left(10);
}

void TestLessonData::dataOfNoLessonGiveNothing()
{
    QFETCH(QByteArray, data);
    Lesson lesson = everyLesson();
    QCOMPARE(lesson.fromDamagedData(data), LessonExtent::Nothing);
    QVERIFY(isSame(lesson, everyLesson()));
}

void TestLessonData::countsBeyondTheBytesAreRefused()
{
    const QByteArray whole = everyLesson().toBytes();
    for (int place = 0; place + 4 <= whole.size(); ++place) {
        for (const char *count : {"\xff\xff\xff\xff", "\x7f\xff\xff\xff", "\x10\x00\x00\x00"}) {
            QByteArray damaged = whole;
            damaged.replace(place, 4, QByteArray(count, 4));
            Lesson lesson;
            lesson.fromBytes(damaged);
            QVERIFY(lesson.events.size() <= 14);
        }
    }
    // A page with four thousand million objects.
    Lesson stacked;
    stacked.start = {pagehost::PageRestacked{0, {}}};
    QByteArray bytes = stacked.toBytes();
    const int count = bytes.size() - 8; // the count of events follows
    QCOMPARE(bytes.mid(count, 8).toHex(), QByteArray("0000000000000000"));
    bytes.replace(count, 4, "\xff\xff\xff\xff");
    Lesson lesson;
    QVERIFY(!lesson.fromBytes(bytes));
}

void TestLessonData::timesMustGrow_data()
{
    QTest::addColumn<QVector<qint64>>("times");
    QTest::addColumn<qint64>("duration");
    QTest::addColumn<bool>("good");
    QTest::newRow("growing") << QVector<qint64>{0, 5, 5, 9} << qint64(9) << true;
    QTest::newRow("falling") << QVector<qint64>{0, 5, 4} << qint64(9) << false;
    QTest::newRow("negative") << QVector<qint64>{-1} << qint64(9) << false;
    QTest::newRow("beyond the duration") << QVector<qint64>{10} << qint64(9) << false;
    QTest::newRow("negative duration") << QVector<qint64>{} << qint64(-1) << false;
    QTest::newRow("ends in silence") << QVector<qint64>{1} << qint64(100000) << true;
}

void TestLessonData::timesMustGrow()
{
    QFETCH(QVector<qint64>, times);
    QFETCH(qint64, duration);
    QFETCH(bool, good);
    const Lesson lesson = turning(times, duration);
    Lesson read;
    QCOMPARE(read.fromBytes(lesson.toBytes()), good);
    QCOMPARE(read.fromJson(lesson.toJson()), good);
}

void TestLessonData::wrongJsonIsRefused_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const char *name, const char *member, const QJsonValue &value) {
        QTest::newRow(name) << QString::fromLatin1(member) << value;
    };
    row("other version", "version", 2);
    row("version as text", "version", QStringLiteral("1"));
    row("no title", "title", QJsonValue());
    row("duration as text", "duration", QStringLiteral("3000"));
    row("broken duration", "duration", 3000.5);
    row("huge duration", "duration", 1e300);
    row("start as object", "start", QJsonObject());
    row("events missing", "events", QJsonValue(QJsonValue::Undefined));
    row("event as number", "events", QJsonArray{1});
    const auto event = [&](const char *name, const QJsonObject &members) {
        QJsonObject whole{{QStringLiteral("time"), 1},
                          {QStringLiteral("kind"), QStringLiteral("vanished")},
                          {QStringLiteral("object"), 1}};
        for (auto member = members.begin(); member != members.end(); ++member)
            whole.insert(member.key(), member.value());
        row(name, "events", QJsonArray{whole});
    };
    event("unknown kind", {{QStringLiteral("kind"), QStringLiteral("danced")}});
    event("no kind", {{QStringLiteral("kind"), QJsonValue()}});
    event("time as text", {{QStringLiteral("time"), QStringLiteral("1")}});
    event("negative object", {{QStringLiteral("object"), -1}});
    event("object too large", {{QStringLiteral("object"), 4294967296.0}});
    event("broken object", {{QStringLiteral("object"), 1.5}});
    event("wrong base 64", {{QStringLiteral("kind"), QStringLiteral("settled")},
                            {QStringLiteral("data"), QStringLiteral("not base 64!")}});
    event("data as number", {{QStringLiteral("kind"), QStringLiteral("settled")}, {QStringLiteral("data"), 1}});
    event("size of three", {{QStringLiteral("kind"), QStringLiteral("pageResized")},
                            {QStringLiteral("page"), 0},
                            {QStringLiteral("size"), QJsonArray{1, 2, 3}}});
    event("objects of text", {{QStringLiteral("kind"), QStringLiteral("restacked")},
                              {QStringLiteral("page"), 0},
                              {QStringLiteral("objects"), QJsonArray{QStringLiteral("1")}}});
}

void TestLessonData::wrongJsonIsRefused()
{
    QFETCH(QString, member);
    QFETCH(QJsonValue, value);
    QJsonObject object = everyLesson().toJson();
    Lesson lesson;
    QVERIFY(lesson.fromJson(object));
    object.insert(member, value);
    QVERIFY(!lesson.fromJson(object));
}

void TestLessonData::failedReadLeavesTheLesson()
{
    Lesson lesson = everyLesson();
    QVERIFY(!lesson.fromBytes(everyLesson().toBytes().left(100)));
    QVERIFY(!lesson.fromJson({}));
    QVERIFY(isSame(lesson, everyLesson()));
}

void TestLessonData::clockStandsUntilItRuns()
{
    qint64 now = 500;
    pagehost::LessonClock clock([&] { return now; });
    now = 900;
    QCOMPARE(clock.time(), qint64(0));
    QVERIFY(!clock.isRunning());
    clock.run();
    now = 1000;
    QCOMPARE(clock.time(), qint64(100));
}

void TestLessonData::clockKeepsItsTimeWhileHalted()
{
    qint64 now = 0;
    pagehost::LessonClock clock([&] { return now; });
    clock.run();
    now = 70;
    clock.halt();
    now = 5000;
    QCOMPARE(clock.time(), qint64(70));
    clock.run();
    clock.run();
    now = 5010;
    QCOMPARE(clock.time(), qint64(80));
}

void TestLessonData::clockCanBeSet()
{
    qint64 now = 0;
    pagehost::LessonClock clock([&] { return now; });
    clock.setTime(300);
    QCOMPARE(clock.time(), qint64(300));
    clock.run();
    now = 50;
    clock.setTime(10);
    now = 55;
    QCOMPARE(clock.time(), qint64(15));
}

void TestLessonData::clockNeverGoesBack()
{
    qint64 now = 100;
    pagehost::LessonClock clock([&] { return now; });
    clock.run();
    now = 40;
    QCOMPARE(clock.time(), qint64(0));
}

QTEST_GUILESS_MAIN(TestLessonData)
#include "test_data.moc"
