#pragma once

#include <pagehost/document.h>

namespace pagehost {

/// Whether the lesson is known to be damaged, or its data is not a whole lesson.
bool isBroken(const LessonData &lesson);

} // namespace pagehost
