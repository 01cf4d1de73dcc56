// The gestures and chapters of a lesson, and the ways between them.

#include <lessons/lessonoutline.h>

#include <pagehost/lesson.h>

#include <QtTest/QtTest>

using board::Chapter;
using board::Gesture;
using pagehost::Lesson;

class TestLessonOutline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyLessonHasNothing();
    void eventsThatFollowCloselyAreOneGesture();
    void chapterIsNoGesture();
    void chaptersHaveTimesAndNames();
    void stepForward_data();
    void stepForward();
    void stepBack_data();
    void stepBack();
    void chapterForward_data();
    void chapterForward();
    void chapterBack_data();
    void chapterBack();
    void chapterAt_data();
    void chapterAt();
};

namespace {

Lesson lessonWithEventsAt(const QVector<qint64> &times)
{
    Lesson lesson;
    for (const qint64 time : times)
        lesson.events.append({time, pagehost::PageTurned{0}});
    return lesson;
}

/// From 1 s to 2 s, at 3 s, and from 5 s to 6 s.
const QVector<Gesture> gestures{{1000, 2000}, {3000, 3000}, {5000, 6000}};
const QVector<Chapter> chapters{{2000, "Roots"}, {8000, "Powers"}};
constexpr qint64 duration = 9000;

void columns()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
}

void row(const char *name, qint64 from, qint64 to)
{
    QTest::newRow(name) << from << to;
}

} // namespace

void TestLessonOutline::emptyLessonHasNothing()
{
    QVERIFY(board::gesturesOf(Lesson()).isEmpty());
    QVERIFY(board::chaptersOf(Lesson()).isEmpty());
    QCOMPARE(board::gestureAfter({}, 0, duration), duration);
    QCOMPARE(board::gestureBefore({}, duration), qint64(0));
    QCOMPARE(board::chapterAfter({}, 0, duration), duration);
    QCOMPARE(board::chapterBefore({}, duration), qint64(0));
    QCOMPARE(board::chapterAt({}, duration), -1);
}

void TestLessonOutline::eventsThatFollowCloselyAreOneGesture()
{
    const QVector<Gesture> found = board::gesturesOf(lessonWithEventsAt({100, 500, 900, 1301, 5000}));
    QCOMPARE(found.size(), 3);
    QCOMPARE(found[0].start, qint64(100));
    QCOMPARE(found[0].end, qint64(900));
    QCOMPARE(found[1].start, qint64(1301));
    QCOMPARE(found[1].end, qint64(1301));
    QCOMPARE(found[2].start, qint64(5000));
}

void TestLessonOutline::chapterIsNoGesture()
{
    Lesson lesson = lessonWithEventsAt({100});
    lesson.events.append({3000, pagehost::ChapterBegan{"Roots"}});
    const QVector<Gesture> found = board::gesturesOf(lesson);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0].end, qint64(100));
}

void TestLessonOutline::chaptersHaveTimesAndNames()
{
    Lesson lesson = lessonWithEventsAt({100});
    lesson.events.append({3000, pagehost::ChapterBegan{"Roots"}});
    const QVector<Chapter> found = board::chaptersOf(lesson);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0].start, qint64(3000));
    QCOMPARE(found[0].name, QString("Roots"));
}

void TestLessonOutline::stepForward_data()
{
    columns();
    row("start", 0, 2000);
    row("in a gesture", 1500, 2000);
    row("after a gesture", 2000, 3000);
    row("between gestures", 4000, 6000);
    row("after the last", 6000, duration);
}

void TestLessonOutline::stepForward()
{
    QFETCH(qint64, from);
    QTEST(board::gestureAfter(gestures, from, duration), "to");
}

void TestLessonOutline::stepBack_data()
{
    columns();
    row("end", duration, 6000);
    row("after the last", 6000, 3000);
    row("in a gesture", 5500, 3000);
    row("after a gesture of one event", 3000, 2000);
    row("after the first", 2000, 0);
    row("in the first", 1500, 0);
}

void TestLessonOutline::stepBack()
{
    QFETCH(qint64, from);
    QTEST(board::gestureBefore(gestures, from), "to");
}

void TestLessonOutline::chapterForward_data()
{
    columns();
    row("before the first", 0, 2000);
    row("at the first", 2000, 8000);
    row("in the first", 7999, 8000);
    row("in the last", 8000, duration);
}

void TestLessonOutline::chapterForward()
{
    QFETCH(qint64, from);
    QTEST(board::chapterAfter(chapters, from, duration), "to");
}

void TestLessonOutline::chapterBack_data()
{
    columns();
    row("before the first", 1999, 0);
    row("at the first", 2000, 0);
    row("just after the first", 3000, 0);
    row("in the first", 3001, 2000);
    row("just after the last", 8500, 2000);
    row("end", 9001, 8000);
}

void TestLessonOutline::chapterBack()
{
    QFETCH(qint64, from);
    QTEST(board::chapterBefore(chapters, from), "to");
}

void TestLessonOutline::chapterAt_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << qint64(1999) << -1;
    QTest::newRow("at the first") << qint64(2000) << 0;
    QTest::newRow("before the last") << qint64(7999) << 0;
    QTest::newRow("at the last") << qint64(8000) << 1;
}

void TestLessonOutline::chapterAt()
{
    QFETCH(qint64, time);
    QTEST(board::chapterAt(chapters, time), "index");
}

QTEST_APPLESS_MAIN(TestLessonOutline)

#include "test_lessonoutline.moc"
