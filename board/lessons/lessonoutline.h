#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

namespace pagehost {
class Lesson;
}

namespace board {

/// The time of a lesson in which one thing is done: events that follow one another closely. Milliseconds.
struct Gesture
{
    qint64 start = 0;
    qint64 end = 0;
};

/// A part of a lesson that somebody has named.
struct Chapter
{
    qint64 start = 0; ///< milliseconds; it ends where the next one begins
    QString name;
};

/// In order of time.
QVector<Gesture> gesturesOf(const pagehost::Lesson &lesson);
/// In order of time.
QVector<Chapter> chaptersOf(const pagehost::Lesson &lesson);

/// Where a step forward leads from `time`: to the end of the gesture that is running then or comes next; `duration`
/// without one.
qint64 gestureAfter(const QVector<Gesture> &gestures, qint64 time, qint64 duration);
/// Where a step back leads from `time`: to the end of the last gesture that was over before; 0 without one.
qint64 gestureBefore(const QVector<Gesture> &gestures, qint64 time);

/// The start of the first chapter after `time`; `duration` without one.
qint64 chapterAfter(const QVector<Chapter> &chapters, qint64 time, qint64 duration);
/// The start of the chapter that `time` is in, or of the one before when `time` is within a second after that
/// start; 0 without one.
qint64 chapterBefore(const QVector<Chapter> &chapters, qint64 time);
/// Index of the chapter that `time` is in; -1 before the first.
int chapterAt(const QVector<Chapter> &chapters, qint64 time);

} // namespace board
