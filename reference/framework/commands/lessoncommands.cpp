#include <pagehost/commands.h>

#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/document.h>
#include <pagehost/lesson.h>
#include <pagehost/page.h>

#include <algorithm>

namespace pagehost {

namespace {

/// Replaces the document's lessons. Lists share their common lessons.
class LessonsCommand : public AppliedCommand
{
public:
    LessonsCommand(Document *document, const QVector<LessonData> &lessons, const QString &textKey)
        : AppliedCommand(textKey, false)
        , m_document(document)
        , m_before(document->lessons())
        , m_after(lessons)
    {
    }

    void undo() override { m_document->setLessons(m_before); }

protected:
    void apply() override { m_document->setLessons(m_after); }

private:
    Document *m_document;
    QVector<LessonData> m_before;
    QVector<LessonData> m_after;
};

bool push(Document *document, const QVector<LessonData> &lessons, const QString &textKey)
{
    if (lessons == document->lessons())
        return false;
    CUndoRedo::GetInstance()->push(new LessonsCommand(document, lessons, textKey));
    return true;
}

bool hasLesson(const Document &document, int index)
{
    return index >= 0 && index < document.lessons().size();
}

bool readLesson(const Document &document, int index, Lesson &lesson)
{
    return hasLesson(document, index) && lesson.fromData(document.lessons().at(index).data);
}

bool replaceLesson(Document *document, int index, const Lesson &lesson, const QString &textKey)
{
    QVector<LessonData> lessons = document->lessons();
    lessons[index].data = lesson.toBytes();
    return push(document, lessons, textKey);
}

} // namespace

bool addLesson(Document *document, const LessonData &lesson)
{
    return push(document, document->lessons() << lesson, QStringLiteral("IDS_UNDO_ADD_LESSON"));
}

bool removeLesson(Document *document, int index)
{
    if (!hasLesson(*document, index))
        return false;
    QVector<LessonData> lessons = document->lessons();
    lessons.removeAt(index);
    return push(document, lessons, QStringLiteral("IDS_UNDO_REMOVE_LESSON"));
}

bool renameLesson(Document *document, int index, const QString &name)
{
    if (!hasLesson(*document, index) || document->lessons().at(index).name == name)
        return false;
    QVector<LessonData> lessons = document->lessons();
    LessonData &renamed = lessons[index];
    renamed.name = name;
    Lesson lesson;
    // Keep data that cannot be read unchanged.
    if (lesson.fromData(renamed.data)) {
        lesson.title = name;
        renamed.data = lesson.toBytes();
    }
    return push(document, lessons, QStringLiteral("IDS_UNDO_RENAME_LESSON"));
}

bool setChapter(Document *document, int index, qint64 time, const QString &name)
{
    Lesson lesson;
    if (!readLesson(*document, index, lesson) || time < 0 || time > lesson.duration)
        return false;
    QVector<LessonEvent> &events = lesson.events;
    const auto isFormer = [time](const LessonEvent &event) {
        return event.time == time && std::holds_alternative<ChapterBegan>(event.step);
    };
    const auto former = std::remove_if(events.begin(), events.end(), isFormer);
    if (former == events.end() && name.isEmpty())
        return false;
    events.erase(former, events.end());
    const auto isNotEarlier = [time](const LessonEvent &event) { return event.time >= time; };
    if (!name.isEmpty())
        events.insert(std::find_if(events.begin(), events.end(), isNotEarlier), {time, ChapterBegan{name}});
    return replaceLesson(document, index, lesson, QStringLiteral("IDS_UNDO_CHAPTER"));
}

bool cutLesson(Document *document, int index, qint64 time)
{
    Lesson lesson;
    if (!readLesson(*document, index, lesson) || time < 0 || time >= lesson.duration)
        return false;
    const auto isLater = [time](const LessonEvent &event) { return event.time > time; };
    lesson.events.erase(std::find_if(lesson.events.begin(), lesson.events.end(), isLater), lesson.events.end());
    lesson.duration = time;
    return replaceLesson(document, index, lesson, QStringLiteral("IDS_UNDO_CUT_LESSON"));
}

} // namespace pagehost
