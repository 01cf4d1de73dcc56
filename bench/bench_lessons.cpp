// A lesson of 10,000 actions replayed at full speed. The peer applies the same actions to the same objects
// directly, without a lesson.

#include "pageobjects.h"

#include <pagehost/document.h>
#include <pagehost/lessonplayer.h>
#include <pagehost/lessonrecorder.h>
#include <pagehost/page.h>
#include <pagehost/recorder.h>

#include <QtCore/QDataStream>
#include <QtGui/QBrush>

#include <benchmark/benchmark.h>

namespace {

constexpr int actionCount = 10000;
const QSizeF objectSize(120, 90);
constexpr int penColorAction = 1002;
constexpr int fillAction = 1005;

template<typename... Values> QByteArray payload(const Values &...values)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    (out << ... << values);
    return bytes;
}

struct Action
{
    int id;
    QByteArray payload;
};

/// Cycles through moves, sizes, pen colours and fills (recorded as colours).
Action action(int number)
{
    switch (number % 4) {
    case 0:
        return {pagehost::ActionMoved, payload(QPointF(number % 700, number % 500))};
    case 1:
        return {pagehost::ActionResized, payload(QSizeF(100 + number % 37, 80 + number % 29))};
    case 2:
        return {penColorAction, payload(QColor(number % 256, 40, 80))};
    default:
        return {fillAction, payload(QColor(40, number % 256, 80))};
    }
}

void fillDocument(pagehost::Document &document)
{
    pagehost::Page *page = document.appendPage();
    const QStringList kinds = shapeKinds();
    for (const QString &kind : kinds)
        page->addObject(makeShape(kind, objectSize).release());
}

pagehost::Lesson lessonOf(pagehost::Document &document)
{
    pagehost::LessonRecorder recorder(&shapeRegistry());
    recorder.start(&document);
    pagehost::Lesson lesson = recorder.stop();
    const int objects = document.page(0)->objectCount();
    for (int i = 0; i < actionCount; ++i) {
        const Action step = action(i);
        lesson.events.append({i, pagehost::ObjectActed{quint32(i % objects) + 1, step.id, step.payload}});
    }
    lesson.duration = actionCount;
    return lesson;
}

void replay(benchmark::State &state)
{
    pagehost::Document document;
    fillDocument(document);
    const pagehost::Lesson lesson = lessonOf(document);
    pagehost::LessonPlayer player(&shapeRegistry());
    for (auto _ : state) {
        player.setLesson(lesson);
        player.playToEnd();
    }
}

void applyDirectly(benchmark::State &state)
{
    pagehost::Document document;
    fillDocument(document);
    const QVector<CBaseObject *> objects = document.page(0)->objects();
    for (auto _ : state) {
        for (int i = 0; i < actionCount; ++i) {
            const Action step = action(i);
            // Objects read a fill as a brush.
            const QByteArray read = step.id == fillAction ? payload(QBrush(QColor(40, i % 256, 80))) : step.payload;
            pagehost::replayAction(objects[i % objects.size()], step.id, read);
        }
    }
}

BENCHMARK(replay)->Name("lesson of 10,000 actions/gliololok/page")->Unit(benchmark::kMillisecond);
BENCHMARK(applyDirectly)->Name("lesson of 10,000 actions/peer/page")->Unit(benchmark::kMillisecond);

} // namespace
