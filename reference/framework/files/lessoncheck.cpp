#include <files/lessoncheck.h>

#include <pagehost/lesson.h>

namespace pagehost {

bool isBroken(const LessonData &lesson)
{
    return lesson.isDamaged || Lesson().fromDamagedData(lesson.data) != LessonExtent::Whole;
}

} // namespace pagehost
