#include "lessons/lessonexport.h"

#include "core/workspace.h"

#include <pagehost/lessonplayer.h>

#include <QtCore/QDir>

namespace board {

namespace {

ExportResult exportLesson(const Workspace &workspace, const pagehost::LessonData &data, const QString &folder,
                          const ExportFormat &format)
{
    ExportResult result;
    pagehost::Lesson lesson;
    const pagehost::LessonExtent extent = lesson.fromDamagedData(data.data);
    if (extent == pagehost::LessonExtent::Nothing) {
        result.problems.append(QStringLiteral("The lesson \"%1\" cannot be read.").arg(data.name));
        return result;
    }
    pagehost::LessonPlayer player(&workspace.registry());
    player.setAssets(workspace.document()->assets());
    player.setLesson(lesson);
    player.playToEnd();
    result = exportPages(player.document(), workspace.registry(), folder, format);
    if (extent == pagehost::LessonExtent::Part)
        result.problems.append(QStringLiteral("The lesson \"%1\" is damaged and ends early.").arg(data.name));
    return result;
}

} // namespace

ExportResult exportLessons(const Workspace &workspace, const QString &folder, const ExportFormat &format)
{
    const QVector<pagehost::LessonData> lessons = workspace.document()->lessons();
    ExportResult all;
    if (lessons.isEmpty())
        all.problems.append(QStringLiteral("There is no lesson in the file."));
    for (int i = 0; i < lessons.size(); ++i) {
        const QString name = QStringLiteral("lesson-%1").arg(i + 1);
        const QString target = lessons.size() > 1 ? QDir(folder).filePath(name) : folder;
        const ExportResult one = exportLesson(workspace, lessons[i], target, format);
        all.files += one.files;
        all.problems += one.problems;
    }
    return all;
}

} // namespace board
