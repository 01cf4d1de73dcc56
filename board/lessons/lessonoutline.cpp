#include "lessons/lessonoutline.h"

#include <pagehost/lesson.h>

#include <algorithm>

namespace board {

namespace {

/// Events farther apart belong to different gestures, milliseconds.
constexpr qint64 longestPause = 400;
/// Within that time after a chapter's start a step back leads to the chapter before, as players of music do,
/// milliseconds.
constexpr qint64 justBegun = 1000;

} // namespace

QVector<Gesture> gesturesOf(const pagehost::Lesson &lesson)
{
    QVector<Gesture> gestures;
    for (const pagehost::LessonEvent &event : lesson.events) {
        if (std::holds_alternative<pagehost::ChapterBegan>(event.step))
            continue;
        if (gestures.isEmpty() || event.time - gestures.last().end > longestPause)
            gestures.append({event.time, event.time});
        gestures.last().end = event.time;
    }
    return gestures;
}

QVector<Chapter> chaptersOf(const pagehost::Lesson &lesson)
{
    QVector<Chapter> chapters;
    for (const pagehost::LessonEvent &event : lesson.events)
        if (const auto *chapter = std::get_if<pagehost::ChapterBegan>(&event.step))
            chapters.append({event.time, chapter->name});
    return chapters;
}

qint64 gestureAfter(const QVector<Gesture> &gestures, qint64 time, qint64 duration)
{
    const auto next = std::find_if(gestures.begin(), gestures.end(),
                                   [time](const Gesture &gesture) { return gesture.end > time; });
    return next == gestures.end() ? duration : next->end;
}

qint64 gestureBefore(const QVector<Gesture> &gestures, qint64 time)
{
    const auto previous = std::find_if(gestures.rbegin(), gestures.rend(),
                                       [time](const Gesture &gesture) { return gesture.end < time; });
    return previous == gestures.rend() ? 0 : previous->end;
}

qint64 chapterAfter(const QVector<Chapter> &chapters, qint64 time, qint64 duration)
{
    const int next = chapterAt(chapters, time) + 1;
    return next < chapters.size() ? chapters.at(next).start : duration;
}

qint64 chapterBefore(const QVector<Chapter> &chapters, qint64 time)
{
    const int running = chapterAt(chapters, time);
    const int wanted = running >= 0 && time - chapters.at(running).start <= justBegun ? running - 1 : running;
    return wanted >= 0 ? chapters.at(wanted).start : 0;
}

int chapterAt(const QVector<Chapter> &chapters, qint64 time)
{
    const auto next = std::find_if(chapters.begin(), chapters.end(),
                                   [time](const Chapter &chapter) { return chapter.start > time; });
    return int(next - chapters.begin()) - 1;
}

} // namespace board
