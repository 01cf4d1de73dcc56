#include "framework/lessons/classroom.h"

#include <support/virtualtime.h>

#include <pagehost/documentfile.h>
#include <pagehost/lesson.h>
#include <pagehost/objectid.h>
#include <pagehost/pagepainter.h>
#include <pagehost/recorder.h>
#include <pagehost/thumbnailpainter.h>

using pagehost::Lesson;
using pagehost::LessonPlayer;

class TestLessonPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheStartBeforePlaying();
    void playsInRealTime();
    void pausesAndGoesOn();
    void endsByItself();
    void playsAgainFromTheEnd();
    void playsFasterAndSlower();
    void speedsThatAreNoneAreIgnored();
    void playsToTheEndAtOnce();
    void seeksBothWays();
    void seeksWhilePlaying();
    void seeksInALongLesson();
    void everyMomentIsTheStateThen();
    void pointsOutTheObjectThatChanges();
    void pointsOutNothingWhenSeeking();
    void highlightIsSeenInViewsOnly();
    void highlightGoesWithTheObject();
    void playedPagesCannotBeEdited();
    void viewsDoNotChangeTheZoom();
    void everyActionIdIsReplayed();
    void brushesAreReplayedAsTheyAre();
    void unknownKindsArePlaceholders();
    void numbersInTheFileAreKept();
    void lessonIsSavedWithTheDocument();
    void stepsAboutNothingDoNothing();
    void damagedLessonsNeverCrash();
    void nothingHappensWithoutALesson();
};

namespace {

/// An arrow whose pen turns red at 100, blue at 1000, green at 3000 milliseconds; the lesson lasts 4000.
Lesson colourLesson(Classroom &room)
{
    CBaseObject *object = room.drawArrow();
    pagehost::setPenColor({object}, Qt::black);
    room.now = 0;
    room.recorder.start(&room.document);
    room.now = 100;
    pagehost::setPenColor({object}, Qt::red);
    room.now = 1000;
    pagehost::setPenColor({object}, Qt::blue);
    room.now = 3000;
    pagehost::setPenColor({object}, Qt::green);
    room.now = 4000;
    return room.recorder.stop();
}

QColor penColor(const LessonPlayer &player)
{
    return pagehost::styleOf(player.document()->page(0)->objects().first()).penColor;
}

/// Lets the player look at the clock.
void waitForTick(LessonPlayer &player)
{
    QSignalSpy spy(&player, &LessonPlayer::positionChanged);
    QVERIFY(support::passUntil([&] { return !spy.isEmpty(); }));
}

struct Sink : pagehost::ActionSink
{
    Sink() { pagehost::setActionSink(this); }
    ~Sink() override { pagehost::setActionSink(nullptr); }
    void actionRecorded(CPSRootObject *, int actionId, const QByteArray &payload) override
    {
        actions.append({0, pagehost::ObjectActed{1, actionId, payload}});
    }
    QVector<pagehost::LessonEvent> actions;
};

Lesson justStart(Classroom &room)
{
    room.recorder.start(&room.document);
    return room.recorder.stop();
}

} // namespace

void TestLessonPlayer::showsTheStartBeforePlaying()
{
    Classroom room;
    const Lesson lesson = colourLesson(room);
    QSignalSpy replaced(&room.player, &LessonPlayer::documentReplaced);
    room.player.setLesson(lesson);
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(penColor(room.player), QColor(Qt::black));
    QCOMPARE(room.player.position(), qint64(0));
    QCOMPARE(room.player.duration(), qint64(4000));
    QVERIFY(!room.player.isPlaying());
    QVERIFY(room.player.document() != &room.document);
}

void TestLessonPlayer::playsInRealTime()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    room.player.play();
    QVERIFY(room.player.isPlaying());
    const qint64 begin = room.now;
    room.now = begin + 99;
    waitForTick(room.player);
    QCOMPARE(room.player.position(), qint64(99));
    QCOMPARE(penColor(room.player), QColor(Qt::black));
    room.now = begin + 100;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::red));
    room.now = begin + 2999;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::blue));
    room.now = begin + 3000;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::green));
    QVERIFY(room.player.isPlaying());
}

void TestLessonPlayer::pausesAndGoesOn()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    room.player.play();
    room.now += 500;
    room.player.pause();
    QCOMPARE(room.player.position(), qint64(500));
    QCOMPARE(penColor(room.player), QColor(Qt::red));
    room.now += 100000;
    support::pass(40);
    QCOMPARE(room.player.position(), qint64(500));
    room.player.play();
    room.now += 499;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::red));
    room.now += 1;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::blue));
}

void TestLessonPlayer::endsByItself()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    QSignalSpy finished(&room.player, &LessonPlayer::finished);
    QSignalSpy playing(&room.player, &LessonPlayer::playingChanged);
    room.player.play();
    room.now += 10000;
    support::pass(40);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(room.player.position(), qint64(4000));
    QVERIFY(!room.player.isPlaying());
    QCOMPARE(playing.size(), 2);
    QCOMPARE(penColor(room.player), QColor(Qt::green));
    support::pass(40);
    QCOMPARE(finished.size(), 1);
}

void TestLessonPlayer::playsFasterAndSlower()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    room.player.setSpeed(4);
    room.player.play();
    room.now += 249; // 996 of the lesson
    waitForTick(room.player);
    QCOMPARE(room.player.position(), qint64(996));
    QCOMPARE(penColor(room.player), QColor(Qt::red));
    room.now += 1;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::blue));
    // From where it is, not from the start.
    room.player.setSpeed(0.5);
    room.now += 3000;
    waitForTick(room.player);
    QCOMPARE(room.player.position(), qint64(2500));
    room.now += 1000;
    waitForTick(room.player);
    QCOMPARE(penColor(room.player), QColor(Qt::green));
    room.player.setLesson(room.player.lesson());
    QCOMPARE(room.player.speed(), 0.5);
}

void TestLessonPlayer::speedsThatAreNoneAreIgnored()
{
    Classroom room;
    room.player.setSpeed(2);
    for (const double speed : {0.0, -1.0, qQNaN(), qInf()}) {
        room.player.setSpeed(speed);
        QCOMPARE(room.player.speed(), 2.0);
    }
}

void TestLessonPlayer::playsAgainFromTheEnd()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    room.player.playToEnd();
    room.player.play();
    QCOMPARE(room.player.position(), qint64(0));
    QCOMPARE(penColor(room.player), QColor(Qt::black));
    QVERIFY(room.player.isPlaying());
}

void TestLessonPlayer::playsToTheEndAtOnce()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    QSignalSpy finished(&room.player, &LessonPlayer::finished);
    room.player.play();
    room.player.playToEnd();
    QCOMPARE(finished.size(), 1);
    QVERIFY(!room.player.isPlaying());
    QCOMPARE(room.player.position(), qint64(4000));
    QCOMPARE(savedState(*room.player.document()), savedState(room.document));
}

void TestLessonPlayer::seeksBothWays()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    const QVector<QPair<qint64, QColor>> moments{{3500, Qt::green}, {1000, Qt::blue},  {999, Qt::red},
                                                 {99, Qt::black},   {4000, Qt::green}, {0, Qt::black},
                                                 {100, Qt::red}};
    for (const auto &moment : moments) {
        room.player.seek(moment.first);
        QCOMPARE(room.player.position(), moment.first);
        QCOMPARE(penColor(room.player), moment.second);
    }
    room.player.seek(-5);
    QCOMPARE(room.player.position(), qint64(0));
    room.player.seek(99999);
    QCOMPARE(room.player.position(), qint64(4000));
}

void TestLessonPlayer::seeksWhilePlaying()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    room.player.play();
    room.now += 3600;
    waitForTick(room.player);
    room.player.seek(900);
    QVERIFY(room.player.isPlaying());
    QCOMPARE(penColor(room.player), QColor(Qt::red));
    room.now += 100;
    waitForTick(room.player);
    QCOMPARE(room.player.position(), qint64(1000));
    QCOMPARE(penColor(room.player), QColor(Qt::blue));
}

void TestLessonPlayer::seeksInALongLesson()
{
    // Moves from 0 to 2499, a millisecond each.
    Classroom room;
    CBaseObject *object = room.drawArrow();
    const QPointF pos = object->getPos();
    Lesson lesson = justStart(room);
    for (int i = 0; i < 2500; ++i) {
        QByteArray payload;
        QDataStream out(&payload, QIODevice::WriteOnly);
        out << QPointF(i, 0);
        lesson.events.append({i, pagehost::ObjectActed{1, pagehost::ActionMoved, payload}});
    }
    lesson.duration = 2500;
    room.player.setLesson(lesson);
    QCOMPARE(room.player.document()->page(0)->objects().first()->getPos(), pos);
    for (const int time : {2499, 2000, 1000, 999, 998, 1001, 2001, 1999, 0, 2498, 1500}) {
        room.player.seek(time);
        QCOMPARE(room.player.document()->page(0)->objects().first()->getPos(), QPointF(time, 0));
    }
}

void TestLessonPlayer::everyMomentIsTheStateThen()
{
    // At any time the player shows the state saved at that time, from wherever it seeks.
    Classroom room;
    CBaseObject *object = room.drawArrow();
    QVector<QStringList> states{savedState(room.document)};
    room.now = 0;
    room.recorder.start(&room.document);
    const auto note = [&] {
        Classroom::letTimersRun();
        states.append(savedState(room.document));
        room.now += 100;
    };
    room.now = 100;
    pagehost::moveObjects({object}, QPointF(30, 40));
    note();
    pagehost::rotateObjects({object}, 25);
    note();
    CBaseObject *flask = room.draw(QStringLiteral("shapes.flask"), QPointF(500, 300), QPointF(600, 450));
    note();
    pagehost::restack(room.page, {flask}, pagehost::StackingMove::ToBack);
    note();
    pagehost::setFill({object, flask}, Qt::yellow);
    note();
    undoStack()->undo();
    note();
    undoStack()->undo();
    note();
    pagehost::removeObjects(room.page, {object});
    note();
    pagehost::addPage(&room.document, 0, QSizeF(300, 200));
    note();
    pagehost::removePage(&room.document, 1);
    note();
    undoStack()->undo();
    note();
    room.player.setLesson(room.recorder.stop());
    for (const int order : {1, 7, 3, 9}) { // all coprime with the number of moments
        for (int i = 0; i < states.size(); ++i) {
            const int moment = (i * order * 11 + 5) % states.size();
            room.player.seek(moment * 100 + 50);
            QCOMPARE(savedState(*room.player.document()), states[moment]);
        }
    }
    for (int moment = states.size() - 1; moment >= 0; --moment) {
        room.player.seek(moment * 100 + 50);
        QCOMPARE(savedState(*room.player.document()), states[moment]);
    }
}

void TestLessonPlayer::pointsOutTheObjectThatChanges()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    pagehost::PageScene *scene = room.player.document()->page(0)->scene();
    CBaseObject *object = room.player.document()->page(0)->objects().first();
    room.player.play();
    room.now += 50;
    waitForTick(room.player);
    QCOMPARE(scene->highlight(), nullptr);
    room.now += 50;
    waitForTick(room.player);
    QCOMPARE(scene->highlight(), object);
    room.now += 600;
    waitForTick(room.player);
    QCOMPARE(scene->highlight(), object);
    room.now += 200;
    waitForTick(room.player);
    QCOMPARE(scene->highlight(), nullptr);
    room.now += 100;
    waitForTick(room.player);
    QCOMPARE(scene->highlight(), object);
    room.now += 10000;
    waitForTick(room.player);
    QCOMPARE(scene->highlight(), nullptr);
}

void TestLessonPlayer::pointsOutNothingWhenSeeking()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    room.player.play();
    room.now += 150;
    waitForTick(room.player);
    QVERIFY(room.player.document()->page(0)->scene()->highlight());
    room.player.seek(1050);
    QCOMPARE(room.player.document()->page(0)->scene()->highlight(), nullptr);
    room.player.playToEnd();
    QCOMPARE(room.player.document()->page(0)->scene()->highlight(), nullptr);
}

void TestLessonPlayer::highlightIsSeenInViewsOnly()
{
    Classroom room;
    CBaseObject *object = room.drawArrow();
    room.page->select({});
    const QByteArray bytes = pagehost::encodeDocument(room.document, pagehost::DocumentFormat::Binary);
    const QImage exported = pagehost::pageImage(room.page, 1);
    const QImage seen = room.view.grab().toImage();
    const quint64 revision = room.page->revision();
    room.page->scene()->setHighlight(object);
    Classroom::letTimersRun();
    QVERIFY(room.view.grab().toImage() != seen);
    QCOMPARE(room.page->revision(), revision);
    QCOMPARE(pagehost::pageImage(room.page, 1), exported);
    QCOMPARE(pagehost::encodeDocument(room.document, pagehost::DocumentFormat::Binary), bytes);
    room.page->scene()->setHighlight(nullptr);
    Classroom::letTimersRun();
    QCOMPARE(room.view.grab().toImage(), seen);
}

void TestLessonPlayer::highlightGoesWithTheObject()
{
    Classroom room;
    CBaseObject *object = room.drawArrow();
    TestObject elsewhere;
    room.page->scene()->setHighlight(&elsewhere);
    QCOMPARE(room.page->scene()->highlight(), nullptr);
    room.page->scene()->setHighlight(object);
    QCOMPARE(room.page->scene()->highlight(), object);
    room.page->removeObject(object);
    QCOMPARE(room.page->scene()->highlight(), nullptr);
}

void TestLessonPlayer::playedPagesCannotBeEdited()
{
    Classroom room;
    room.player.setLesson(colourLesson(room));
    const QStringList before = savedState(*room.player.document());
    room.view.setScene(room.player.document()->page(0)->scene());
    room.drag(QPointF(200, 160), QPointF(300, 260));
    QCOMPARE(savedState(*room.player.document()), before);
    QVERIFY(room.player.document()->documentState() != 0);
    QVERIFY(room.player.document()->editingBlocked() != 0);
}

void TestLessonPlayer::viewsDoNotChangeTheZoom()
{
    Classroom room(1.5);
    const Lesson lesson = colourLesson(room);
    room.player.setLesson(lesson);
    room.player.document()->setZoomRate(0.25);
    QCOMPARE(room.player.document()->zoomRate(), 1.5);
    room.player.playToEnd();
    QCOMPARE(savedState(*room.player.document()), savedState(room.document));
}

void TestLessonPlayer::everyActionIdIsReplayed()
{
    // Nothing but what the object recorded: no states, no help of the recorder.
    Classroom room;
    // Declared shapes record where their points were put instead of 1001.
    CBaseObject *object = room.draw(QStringLiteral("shapes.callout"), QPointF(100, 100), QPointF(300, 220));
    Lesson lesson = justStart(room);
    const QByteArray before = savedState(object);
    {
        Sink sink;
        pagehost::setFill({object}, QColor(200, 100, 50, 120)); // 1005
        pagehost::setPenColor({object}, QColor(9, 8, 7));       // 1002
        pagehost::setPenStyle({object}, Qt::DotLine);           // 1003
        pagehost::setPenWidth({object}, 6);                     // 1004
        room.page->select({object});
        room.drag(QPointF(124, 214), QPointF(150, 205));     // 1001, and 1192 for where the tip was put
        pagehost::moveObjects({object}, QPointF(12.25, -3)); // 101
        pagehost::resizeObject(object, QSizeF(260, 171));    // 102
        pagehost::rotateObjects({object}, 41);               // 103
        pagehost::mirrorObjects({object}, true);             // 104
        CPageBgProp fill(nullptr);
        fill.setFillEnable(true);
        fill.setFillType(CPageBgProp::PatternFill);
        fill.setFillColor(Qt::magenta);
        pagehost::setObjectsFill({object}, fill);            // 105
        object->setMyPenColor(QColor(1, 2, 3), true);        // 106
        pagehost::setFill({object}, QColor(20, 40, 60, 80)); // 1005 over the pattern
        lesson.events = sink.actions;
    }
    QSet<int> ids;
    for (const pagehost::LessonEvent &event : qAsConst(lesson.events))
        ids.insert(std::get<pagehost::ObjectActed>(event.step).actionId);
    QCOMPARE(ids, (QSet<int>{1001, 1002, 1003, 1004, 1005, 1192, 101, 102, 103, 104, 105, 106}));
    QVERIFY(savedState(object) != before);
    room.player.setLesson(lesson);
    QCOMPARE(savedState(room.player.document()->page(0)->objects().first()), before);
    room.player.playToEnd();
    QCOMPARE(savedState(room.player.document()->page(0)->objects().first()), savedState(object));
}

void TestLessonPlayer::brushesAreReplayedAsTheyAre()
{
    Classroom room;
    room.drawArrow();
    Lesson lesson = justStart(room);
    QByteArray payload;
    QDataStream out(&payload, QIODevice::WriteOnly);
    out << QBrush(QColor(1, 200, 3), Qt::SolidPattern);
    lesson.events = {{0, pagehost::ObjectActed{1, 1005, payload}}};
    room.player.setLesson(lesson);
    room.player.playToEnd();
    QCOMPARE(room.player.document()->page(0)->objects().first()->getHostFillBrush(), QBrush(QColor(1, 200, 3)));
}

void TestLessonPlayer::unknownKindsArePlaceholders()
{
    Classroom room;
    CBaseObject *object = room.drawArrow();
    room.recorder.start(&room.document);
    pagehost::moveObjects({object}, QPointF(31, 17));
    const QPointF pos = object->getPos();
    const Lesson lesson = room.recorder.stop();
    const pagehost::ObjectRegistry empty;
    LessonPlayer player(&empty);
    player.setLesson(lesson);
    player.playToEnd();
    QCOMPARE(player.document()->page(0)->objectCount(), 1);
    CBaseObject *placeholder = player.document()->page(0)->objects().first();
    QVERIFY(pagehost::isPlaceholder(placeholder));
    QCOMPARE(placeholder->getPos(), pos);
}

void TestLessonPlayer::numbersInTheFileAreKept()
{
    Classroom room;
    CBaseObject *object = room.drawArrow();
    pagehost::setObjectId(object, 77);
    room.player.setLesson(justStart(room));
    QCOMPARE(pagehost::objectId(room.player.document()->page(0)->objects().first()), 77u);
    QCOMPARE(pagehost::encodeDocument(*room.player.document(), pagehost::DocumentFormat::Binary),
             pagehost::encodeDocument(room.document, pagehost::DocumentFormat::Binary));
}

void TestLessonPlayer::lessonIsSavedWithTheDocument()
{
    Classroom room;
    Lesson lesson = colourLesson(room);
    const QByteArray played = pagehost::encodeDocument(room.document, pagehost::DocumentFormat::Binary);
    const QByteArray text = QJsonDocument(lesson.toJson()).toJson(QJsonDocument::Compact);
    for (const QByteArray &data : {lesson.toBytes(), text}) {
        room.document.setLessons({{QStringLiteral("Colours"), data}});
        for (const auto format : {pagehost::DocumentFormat::Binary, pagehost::DocumentFormat::Json}) {
            const QByteArray file = pagehost::encodeDocument(room.document, format);
            const pagehost::OpenResult opened = pagehost::decodeDocument(file, shapes());
            QVERIFY(opened.document && opened.messages.isEmpty());
            QCOMPARE(opened.document->lessons().size(), 1);
            QCOMPARE(opened.document->lessons().first().name, QStringLiteral("Colours"));
            Lesson read;
            QVERIFY(read.fromData(opened.document->lessons().first().data));
            room.player.setLesson(read);
            room.player.playToEnd();
            QCOMPARE(pagehost::encodeDocument(*room.player.document(), pagehost::DocumentFormat::Binary), played);
        }
    }
}

void TestLessonPlayer::stepsAboutNothingDoNothing()
{
    Classroom room;
    room.drawArrow();
    Lesson lesson = justStart(room);
    const QVector<pagehost::LessonStep> steps{
        pagehost::ObjectActed{7, 1002, {}},
        pagehost::ObjectActed{1, 1002, {}},
        pagehost::ObjectActed{1, 424242, "x"},
        pagehost::ObjectAppeared{2, 5, 0, "x"},
        pagehost::ObjectAppeared{2, 0, 0, ""},
        pagehost::ObjectAppeared{1, 0, 0, "x"},
        pagehost::ObjectVanished{9},
        pagehost::ObjectSettled{9, "x"},
        pagehost::PageRestacked{0, {}},
        pagehost::PageRestacked{0, {1, 1}},
        pagehost::PageRestacked{3, {1}},
        pagehost::PageVanished{4},
        pagehost::PageVanished{-1},
        pagehost::PageMoved{0, 4},
        pagehost::PageMoved{-3, 0},
        pagehost::PageResized{2, QSizeF(1, 1)},
        pagehost::PageResized{0, QSizeF(-1, 0)},
        pagehost::PageBackgroundChanged{0, "x"},
        pagehost::PageTurned{8},
        pagehost::ZoomChanged{0},
    };
    for (const pagehost::LessonStep &step : steps)
        lesson.events.append({0, step});
    room.player.setLesson(lesson);
    const QStringList before = savedState(*room.player.document());
    room.player.playToEnd();
    // A pen colour that cannot be read is an invalid one; everything else stays.
    QStringList after = savedState(*room.player.document());
    QCOMPARE(after.size(), before.size());
    QCOMPARE(after.mid(0, 2), before.mid(0, 2));
    QVERIFY(!pagehost::styleOf(room.player.document()->page(0)->objects().first()).penColor.isValid());
}

void TestLessonPlayer::damagedLessonsNeverCrash()
{
    Classroom room;
    CBaseObject *object = room.drawArrow();
    room.recorder.start(&room.document);
    pagehost::setFill({object}, Qt::red);
    pagehost::moveObjects({object}, QPointF(5, 5));
    undoStack()->undo();
    pagehost::addPage(&room.document, 1, QSizeF(200, 100));
    pagehost::removeObjects(room.page, {object});
    undoStack()->undo();
    const Lesson lesson = room.recorder.stop();
    const QByteArray whole = lesson.toBytes();
    QRandomGenerator random(20210607);
    int played = 0;
    for (int i = 0; i < 400; ++i) {
        QByteArray damaged = whole;
        for (int flips = random.bounded(1, 4); flips > 0; --flips) {
            const int place = random.bounded(damaged.size());
            damaged[place] = char(damaged[place] ^ (1 << random.bounded(8)));
        }
        Lesson read;
        if (read.fromBytes(damaged)) {
            ++played;
            room.player.setLesson(read);
            room.player.playToEnd();
        }
    }
    QVERIFY2(played > 100, qPrintable(QString::number(played)));
}

void TestLessonPlayer::nothingHappensWithoutALesson()
{
    Classroom room;
    room.player.play();
    room.player.seek(10);
    room.player.playToEnd();
    room.player.pause();
    QCOMPARE(room.player.document(), nullptr);
    QCOMPARE(room.player.position(), qint64(0));
    QVERIFY(!room.player.isPlaying());
    room.player.setLesson({});
    room.player.playToEnd();
    QCOMPARE(room.player.document()->pageCount(), 0);
}

QTEST_MAIN(TestLessonPlayer)
#include "test_player.moc"
