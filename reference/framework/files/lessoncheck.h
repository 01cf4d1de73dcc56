#pragma once

#include <pagehost/document.h>

namespace pagehost {

/// Whether the lesson is known to be damaged, or its data are not all of a lesson.
bool isBroken(const LessonData &lesson);

} // namespace pagehost
