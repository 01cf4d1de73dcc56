#pragma once

#include <pagehost/lesson.h>

/// Reading of lessons whose stored data may be damaged.
namespace pagehost::lessonparts {

// Each reads into a new lesson, up to the first step or event that cannot be read.
LessonExtent readBytes(const QByteArray &bytes, Lesson &lesson);
LessonExtent readJson(const QJsonObject &object, Lesson &lesson);

/// Removes the events from the first on whose time decreases or exceeds the duration. A lesson that is not whole
/// then ends with its last event.
LessonExtent endAtDamage(Lesson &lesson, bool isWhole);

} // namespace pagehost::lessonparts
