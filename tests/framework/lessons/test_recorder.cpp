#include "framework/lessons/classroom.h"

#include <pagehost/lesson.h>
#include <pagehost/recorder.h>
#include <pagehost/selection.h>

using pagehost::Lesson;

// Whatever is done while recording, playing ends in the same saved bytes.

class TestLessonRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyKindOfChangeIsPlayed_data();
    void everyKindOfChangeIsPlayed();
    void undoAndRedoArePlayed_data();
    void undoAndRedoArePlayed();
    void dragOfAControlPointNeedsNoStates();
    void fillIsPlayedFromItsRecordedColour();
    void changeWithoutActionIsNoted();
    void deletedObjectComesBackUnderItsNumber();
    void timesAreThoseOfTheClock();
    void chapterBeginsAtItsMomentAndChangesNothing();
    void chapterOfNoRecordingIsNone();
    void pausedTimeDoesNotCount();
    void changesWhilePausedHappenAtResume();
    void cancelledDragLeavesTheObjectAsItWas();
    void zoomWhileRecording();
    void emptyLessonShowsTheStart();
    void secondStartIsRefused();
    void documentThatGoesEndsTheLesson();
    void otherSinksStillHear();
    void playingLeavesUndoAlone();
};

using Change = std::function<void(Classroom &, CBaseObject *)>;
Q_DECLARE_METATYPE(Change)

namespace {

CPageBgProp gradient()
{
    CPageBgProp fill(nullptr);
    fill.setFillEnable(true);
    fill.setFillType(CPageBgProp::GradientFill);
    fill.setFillColor(QColor(10, 200, 30));
    fill.setGradientAngle(30);
    return fill;
}

void setAttribute(CBaseObject *object, int id, double value)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QDataStream stream(&buffer);
    stream << value;
    buffer.seek(0);
    object->SetAttribute(id, stream, true);
}

/// The first of the object's own control points, scene coordinates.
QPointF controlPointOf(Classroom &classroom, CBaseObject *object)
{
    const QRectF rect = object->getClientRect();
    for (double x = 0; x < rect.width(); x += 2) {
        for (double y = 0; y < rect.height(); y += 2) {
            const QPointF pos = object->mapToScene(QPointF(x, y));
            if (classroom.page->scene()->gripAt(pos).kind == pagehost::Grip::ControlPoint)
                return pos;
        }
    }
    return {};
}

void dragControlPoint(Classroom &classroom, CBaseObject *object, const QPointF &way)
{
    classroom.document.currentPage()->select({object});
    const QPointF from = controlPointOf(classroom, object);
    const QByteArray before = savedState(object);
    classroom.drag(from, from + way);
    if (savedState(object) == before)
        qFatal("the control point did not move");
}

} // namespace

void TestLessonRecorder::initTestCase()
{
    QVERIFY(shapes().hasKind(QStringLiteral("shapes.blockarrow")));
}

void TestLessonRecorder::everyKindOfChangeIsPlayed_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("draw", [](Classroom &room, CBaseObject *) {
        room.draw(QStringLiteral("shapes.polygon"), QPointF(400, 300), QPointF(560, 420));
    });
    row("delete", [](Classroom &room, CBaseObject *object) { pagehost::removeObjects(room.page, {object}); });
    row("move by hand", [](Classroom &room, CBaseObject *) { room.drag(QPointF(200, 160), QPointF(333, 222)); });
    row("move", [](Classroom &, CBaseObject *object) { pagehost::moveObjects({object}, QPointF(0.1, 17.3)); });
    row("resize", [](Classroom &, CBaseObject *object) { pagehost::resizeObject(object, QSizeF(331, 97)); });
    row("resize by hand", [](Classroom &room, CBaseObject *object) {
        room.page->select({object});
        room.drag(QPointF(306, 226), QPointF(377, 301));
    });
    row("rotate", [](Classroom &, CBaseObject *object) { pagehost::rotateObjects({object}, 37); });
    row("mirror", [](Classroom &, CBaseObject *object) { pagehost::mirrorObjects({object}, true); });
    row("mirror, then reshape", [](Classroom &room, CBaseObject *object) {
        pagehost::mirrorObjects({object}, true);
        pagehost::rotateObjects({object}, 30);
        dragControlPoint(room, object, QPointF(11, 9));
    });
    row("restack", [](Classroom &room, CBaseObject *object) {
        room.draw(QStringLiteral("shapes.polygon"), QPointF(150, 150), QPointF(260, 260));
        room.draw(QStringLiteral("shapes.flask"), QPointF(170, 170), QPointF(290, 290));
        pagehost::restack(room.page, {object}, pagehost::StackingMove::Forward);
    });
    row("place in stacking order", [](Classroom &room, CBaseObject *object) {
        room.draw(QStringLiteral("shapes.polygon"), QPointF(150, 150), QPointF(260, 260));
        room.draw(QStringLiteral("shapes.flask"), QPointF(170, 170), QPointF(290, 290));
        room.page->moveObject(object, 1);
    });
    row("group", [](Classroom &room, CBaseObject *object) {
        CBaseObject *other = room.draw(QStringLiteral("shapes.polygon"), QPointF(400, 300), QPointF(560, 420));
        pagehost::groupObjects(room.page, {object, other});
    });
    row("group, delete, bring back", [](Classroom &room, CBaseObject *object) {
        CBaseObject *other = room.draw(QStringLiteral("shapes.polygon"), QPointF(400, 300), QPointF(560, 420));
        pagehost::groupObjects(room.page, {object, other});
        pagehost::removeObjects(room.page, {object});
        undoStack()->undo();
    });
    row("group a copy", [](Classroom &room, CBaseObject *object) {
        CBaseObject *other = room.draw(QStringLiteral("shapes.polygon"), QPointF(400, 300), QPointF(560, 420));
        pagehost::groupObjects(room.page, {object, other});
        room.page->select({object, other});
        pagehost::duplicateSelection(room.page, &shapes());
        pagehost::ungroupObjects(room.page, {object, other});
    });
    row("lock", [](Classroom &, CBaseObject *object) { pagehost::setObjectsLocked({object}, true); });
    row("fill", [](Classroom &, CBaseObject *object) { pagehost::setFill({object}, QColor(1, 2, 3, 4)); });
    row("no fill", [](Classroom &, CBaseObject *object) { pagehost::setFill({object}, QColor(0, 0, 0, 0)); });
    row("gradient", [](Classroom &, CBaseObject *object) { pagehost::setObjectsFill({object}, gradient()); });
    row("colour over a gradient", [](Classroom &, CBaseObject *object) {
        pagehost::setObjectsFill({object}, gradient());
        pagehost::setFill({object}, QColor(10, 200, 31));
    });
    row("pen colour", [](Classroom &, CBaseObject *object) { pagehost::setPenColor({object}, Qt::red); });
    row("pen style", [](Classroom &, CBaseObject *object) { pagehost::setPenStyle({object}, Qt::DashLine); });
    row("pen width", [](Classroom &, CBaseObject *object) { pagehost::setPenWidth({object}, 7); });
    row("host pen colour", [](Classroom &, CBaseObject *object) { object->setMyPenColor(Qt::green, true); });
    row("control point",
        [](Classroom &room, CBaseObject *object) { dragControlPoint(room, object, QPointF(20, 13)); });
    row("width attribute", [](Classroom &, CBaseObject *object) { setAttribute(object, 2012, 222.5); });
    row("rotation attribute", [](Classroom &, CBaseObject *object) { setAttribute(object, 2014, 12.5); });
    row("attribute map", [](Classroom &, CBaseObject *object) {
        object->setAllAttributes({{QStringLiteral("name"), QStringLiteral("Ann")}, {QStringLiteral("x"), 5.5}},
                                 true);
    });
    row("new page", [](Classroom &room, CBaseObject *) {
        pagehost::addPage(&room.document, 0, QSizeF(640, 480));
        room.view.setScene(room.document.currentPage()->scene());
        room.draw(QStringLiteral("shapes.roundedrectangle"), QPointF(50, 60), QPointF(150, 170));
    });
    row("page removed", [](Classroom &room, CBaseObject *) {
        pagehost::addPage(&room.document, 1, QSizeF(640, 480));
        pagehost::removePage(&room.document, 0);
    });
    row("page moved", [](Classroom &room, CBaseObject *) {
        pagehost::addPage(&room.document, 1, QSizeF(640, 480));
        pagehost::addPage(&room.document, 2, QSizeF(320, 240));
        pagehost::movePage(&room.document, 0, 2);
    });
    row("page resized", [](Classroom &room, CBaseObject *) { room.page->setSize(QSizeF(800, 900)); });
    row("background", [](Classroom &room, CBaseObject *) { pagehost::setPageBackground(room.page, gradient()); });
    row("page turned", [](Classroom &room, CBaseObject *) {
        pagehost::addPage(&room.document, 1, QSizeF(640, 480));
        room.document.setCurrentIndex(0);
    });
    row("drawn without undo", [](Classroom &room, CBaseObject *) {
        CBaseObject *object = shapes().createObject(QStringLiteral("shapes.flask"));
        object->setSize(QSizeF(60, 80), false, false);
        room.page->addObject(object, 0);
        object->CPSRootObject::setPos(QPointF(20, 30), false);
    });
}

void TestLessonRecorder::everyKindOfChangeIsPlayed()
{
    QFETCH(Change, change);
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    const QStringList before = savedState(classroom.document);

    QVERIFY(classroom.recorder.start(&classroom.document));
    change(classroom, object);
    const Lesson lesson = classroom.recorder.stop();

    const QStringList after = savedState(classroom.document);
    QVERIFY(after != before);
    QVERIFY(!lesson.events.isEmpty());
    classroom.player.setLesson(lesson);
    QCOMPARE(savedState(*classroom.player.document()), before);
    QCOMPARE(classroom.played(lesson), after);
}

void TestLessonRecorder::undoAndRedoArePlayed_data()
{
    everyKindOfChangeIsPlayed_data();
}

void TestLessonRecorder::undoAndRedoArePlayed()
{
    QFETCH(Change, change);
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    undoStack()->clear();
    change(classroom, object);
    if (undoStack()->count() == 0)
        return; // a change that has no undo
    const auto record = [&](const std::function<void()> &travel) {
        classroom.recorder.start(&classroom.document);
        travel();
        const Lesson lesson = classroom.recorder.stop();
        QCOMPARE(classroom.played(lesson), savedState(classroom.document));
    };
    record([] { undoStack()->setIndex(0); });
    record([] { undoStack()->setIndex(undoStack()->count()); });
    record([] {
        for (int i = 0; i < 3; ++i) {
            undoStack()->undo();
            undoStack()->redo();
        }
        undoStack()->undo();
    });
}

void TestLessonRecorder::dragOfAControlPointNeedsNoStates()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    dragControlPoint(classroom, object, QPointF(30, 20));
    const Lesson lesson = classroom.recorder.stop();
    QVERIFY(Classroom::count<pagehost::ObjectActed>(lesson) >= 2);
    QCOMPARE(Classroom::count<pagehost::ObjectSettled>(lesson), 0);
    QCOMPARE(classroom.played(lesson), savedState(classroom.document));
}

void TestLessonRecorder::fillIsPlayedFromItsRecordedColour()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    pagehost::setFill({object}, QColor(10, 20, 230, 128));
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(lesson.events.size(), 1);
    const auto acted = std::get<pagehost::ObjectActed>(lesson.events.first().step);
    QCOMPARE(acted.actionId, 1005);
    QCOMPARE(acted.payload.size(), 11); // a colour, not a brush
    classroom.played(lesson);
    const CBaseObject *copy = classroom.player.document()->page(0)->objects().first();
    QCOMPARE(copy->getHostFillBrush(), QBrush(QColor(10, 20, 230, 128)));
}

void TestLessonRecorder::changeWithoutActionIsNoted()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    classroom.now = 40;
    object->CPSRootObject::setPos(QPointF(7, 8), false);
    Classroom::letTimersRun();
    classroom.now = 90;
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(lesson.events.size(), 1);
    QCOMPARE(lesson.events.first().time, qint64(40));
    QVERIFY(std::holds_alternative<pagehost::ObjectSettled>(lesson.events.first().step));
}

void TestLessonRecorder::deletedObjectComesBackUnderItsNumber()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    pagehost::removeObjects(classroom.page, {object});
    undoStack()->undo();
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(std::get<pagehost::ObjectVanished>(lesson.events[0].step).object, 1u);
    const auto back = std::get<pagehost::ObjectAppeared>(lesson.events[1].step);
    QCOMPARE(back.object, 1u);
    QCOMPARE(back.place, 0);
    QVERIFY(back.data.contains("shapes.blockarrow"));
}

void TestLessonRecorder::timesAreThoseOfTheClock()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.now = 1000;
    classroom.recorder.start(&classroom.document);
    classroom.now = 1250;
    pagehost::setPenColor({object}, Qt::red);
    classroom.now = 4000;
    pagehost::setPenColor({object}, Qt::blue);
    QCOMPARE(classroom.recorder.elapsed(), qint64(3000));
    classroom.now = 5500;
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(lesson.events.size(), 2);
    QCOMPARE(lesson.events[0].time, qint64(250));
    QCOMPARE(lesson.events[1].time, qint64(3000));
    QCOMPARE(lesson.duration, qint64(4500));
}

void TestLessonRecorder::chapterBeginsAtItsMomentAndChangesNothing()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    classroom.now = 100;
    pagehost::setPenColor({object}, Qt::red);
    classroom.now = 700;
    classroom.recorder.beginChapter(QStringLiteral("Roots"));
    classroom.now = 900;
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(lesson.events.size(), 2);
    QCOMPARE(lesson.events.last().time, qint64(700));
    QCOMPARE(std::get<pagehost::ChapterBegan>(lesson.events.last().step).name, QStringLiteral("Roots"));
    QCOMPARE(classroom.played(lesson), savedState(classroom.document));
}

void TestLessonRecorder::chapterOfNoRecordingIsNone()
{
    Classroom classroom;
    classroom.drawArrow();
    classroom.recorder.beginChapter(QStringLiteral("Roots"));
    classroom.recorder.start(&classroom.document);
    QCOMPARE(classroom.recorder.stop().events.size(), 0);
}

void TestLessonRecorder::pausedTimeDoesNotCount()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    classroom.now = 100;
    classroom.recorder.pause();
    QVERIFY(classroom.recorder.isPaused());
    classroom.now = 60100;
    QCOMPARE(classroom.recorder.elapsed(), qint64(100));
    classroom.recorder.resume();
    QVERIFY(!classroom.recorder.isPaused());
    classroom.now = 60150;
    pagehost::setPenColor({object}, Qt::red);
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(lesson.events.size(), 1);
    QCOMPARE(lesson.events.first().time, qint64(150));
    QCOMPARE(lesson.duration, qint64(150));
}

void TestLessonRecorder::changesWhilePausedHappenAtResume()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    classroom.now = 100;
    classroom.recorder.pause();
    for (int i = 0; i < 5; ++i) {
        classroom.now += 1000;
        dragControlPoint(classroom, object, QPointF(4, 3));
        pagehost::moveObjects({object}, QPointF(10, 0));
        Classroom::letTimersRun();
    }
    CBaseObject *other = classroom.draw(QStringLiteral("shapes.flask"), QPointF(400, 300), QPointF(500, 430));
    pagehost::restack(classroom.page, {other}, pagehost::StackingMove::ToBack);
    undoStack()->undo();
    pagehost::addPage(&classroom.document, 1, QSizeF(500, 400));
    classroom.recorder.resume();
    const Lesson paused = classroom.recorder.stop();
    QVERIFY(!paused.events.isEmpty());
    QCOMPARE(paused.events.first().time, qint64(100));
    QCOMPARE(paused.events.last().time, qint64(100));
    QCOMPARE(Classroom::count<pagehost::ObjectActed>(paused), 0);
    QCOMPARE(classroom.played(paused), savedState(classroom.document));
}

void TestLessonRecorder::cancelledDragLeavesTheObjectAsItWas()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    const QByteArray before = savedState(object);
    classroom.recorder.start(&classroom.document);
    const QPointF from = controlPointOf(classroom, object);
    classroom.press(from);
    classroom.moveTo(from + QPointF(20, 9));
    classroom.pressKey(Qt::Key_Escape);
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(savedState(object), before);
    QVERIFY(lesson.events.isEmpty());
    QCOMPARE(classroom.played(lesson), savedState(classroom.document));
}

void TestLessonRecorder::zoomWhileRecording()
{
    for (const double first : {1.0, 0.63}) {
        Classroom classroom(first);
        CBaseObject *object = classroom.drawArrow();
        classroom.drawArrow();
        classroom.recorder.start(&classroom.document);
        dragControlPoint(classroom, object, QPointF(10, 12));
        classroom.setZoom(1.37);
        dragControlPoint(classroom, object, QPointF(-6, 3));
        classroom.setZoom(0.8);
        const Lesson lesson = classroom.recorder.stop();
        QCOMPARE(Classroom::count<pagehost::ZoomChanged>(lesson), 2);
        QCOMPARE(classroom.played(lesson), savedState(classroom.document));
        QCOMPARE(classroom.player.document()->zoomRate(), 0.8);
    }
}

void TestLessonRecorder::emptyLessonShowsTheStart()
{
    Classroom classroom;
    classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    const Lesson lesson = classroom.recorder.stop();
    QVERIFY(lesson.events.isEmpty());
    QCOMPARE(classroom.played(lesson), savedState(classroom.document));
}

void TestLessonRecorder::secondStartIsRefused()
{
    Classroom classroom;
    QSignalSpy spy(&classroom.recorder, &pagehost::LessonRecorder::recordingChanged);
    QVERIFY(!classroom.recorder.start(nullptr));
    QVERIFY(classroom.recorder.start(&classroom.document));
    QVERIFY(!classroom.recorder.start(&classroom.document));
    classroom.recorder.stop();
    QVERIFY(!classroom.recorder.isRecording());
    QCOMPARE(spy.size(), 2);
    const Lesson nothing = classroom.recorder.stop();
    QVERIFY(nothing.start.isEmpty() && nothing.events.isEmpty());
}

void TestLessonRecorder::documentThatGoesEndsTheLesson()
{
    Classroom classroom;
    auto document = std::make_unique<pagehost::Document>();
    pagehost::Page *page = document->appendPage();
    classroom.recorder.start(document.get());
    page->addObject(shapes().createObject(QStringLiteral("shapes.flask")));
    document.reset();
    const Lesson lesson = classroom.recorder.stop();
    QCOMPARE(Classroom::count<pagehost::ObjectAppeared>(lesson), 1);
    classroom.played(lesson);
    QCOMPARE(classroom.player.document()->page(0)->objectCount(), 1);
}

void TestLessonRecorder::otherSinksStillHear()
{
    struct Sink : pagehost::ActionSink
    {
        void actionRecorded(CPSRootObject *, int actionId, const QByteArray &) override { ids.append(actionId); }
        QVector<int> ids;
    } sink;
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    pagehost::setActionSink(&sink);
    classroom.recorder.start(&classroom.document);
    pagehost::setPenColor({object}, Qt::red);
    classroom.recorder.stop();
    QCOMPARE(pagehost::setActionSink(nullptr), &sink);
    QCOMPARE(sink.ids, QVector<int>{1002});
}

void TestLessonRecorder::playingLeavesUndoAlone()
{
    Classroom classroom;
    CBaseObject *object = classroom.drawArrow();
    classroom.recorder.start(&classroom.document);
    pagehost::setFill({object}, Qt::red);
    pagehost::moveObjects({object}, QPointF(1, 2));
    undoStack()->undo();
    dragControlPoint(classroom, object, QPointF(9, 9));
    const Lesson lesson = classroom.recorder.stop();
    const QStringList steps = stepTexts();
    const int index = undoStack()->index();
    const QStringList state = savedState(classroom.document);
    for (int i = 0; i < 2; ++i)
        classroom.played(lesson);
    QCOMPARE(stepTexts(), steps);
    QCOMPARE(undoStack()->index(), index);
    QCOMPARE(savedState(classroom.document), state);
}

QTEST_MAIN(TestLessonRecorder)
#include "test_recorder.moc"
