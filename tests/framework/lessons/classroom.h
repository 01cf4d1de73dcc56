#pragma once

#include <pagehost/commands.h>
#include <pagehost/creation.h>
#include <pagehost/lessonplayer.h>
#include <pagehost/lessonrecorder.h>
#include <pagehost/objectregistry.h>
#include <pagehost/style.h>

#include "framework/editor.h"

#include <memory>

// A teacher who draws on a page while a recorder runs, and a pupil who sees it played. With the project's own
// shapes.

inline pagehost::ObjectRegistry &shapes()
{
    static pagehost::ObjectRegistry registry;
    static const bool loaded = !registry.loadDirectory(QStringLiteral(SHAPE_PLUGIN_DIR)).isEmpty();
    Q_UNUSED(loaded)
    return registry;
}

inline QByteArray savedState(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->save(out);
    return bytes;
}

/// All that is saved of a document's pages, readable in a failing comparison: a line for each page and object.
inline QStringList savedState(const pagehost::Document &document)
{
    QStringList lines{QStringLiteral("page %1 is current").arg(document.currentIndex())};
    const QVector<pagehost::Page *> pages = document.pages();
    for (const pagehost::Page *page : pages) {
        QByteArray background;
        QDataStream out(&background, QIODevice::WriteOnly);
        page->background().save(out);
        lines.append(QStringLiteral("page %1 x %2, %3")
                         .arg(page->size().width())
                         .arg(page->size().height())
                         .arg(QString::fromLatin1(background.toHex())));
        const QVector<CBaseObject *> objects = page->objects();
        for (CBaseObject *object : objects) {
            lines.append(pagehost::kindIdOf(object) + QLatin1Char(' ') +
                         QString::fromLatin1(savedState(object).toHex()));
        }
        const pagehost::ObjectGroups groups = page->grouping().groups();
        for (const pagehost::ObjectGroup &group : groups)
            lines.append(QStringLiteral("group %1 in %2 of %3")
                             .arg(group.number)
                             .arg(group.parent)
                             .arg(group.members.size()));
    }
    return lines;
}

class Classroom : public Editor
{
public:
    explicit Classroom(double zoom = 1)
        : Editor(zoom)
        , tool(&shapes())
        , recorder(&shapes())
        , player(&shapes())
    {
        recorder.setTimeSource([this] { return now; });
        player.setTimeSource([this] { return now; });
    }

    CBaseObject *draw(const QString &kindId, const QPointF &from, const QPointF &to)
    {
        tool.begin(document.currentPage()->scene(), kindId);
        drag(from, to);
        return document.currentPage()->objects().last();
    }
    CBaseObject *drawArrow()
    {
        return draw(QStringLiteral("shapes.blockarrow"), QPointF(100, 100), QPointF(300, 220));
    }

    /// Plays the lesson from its start as fast as it goes and gives what is then on the pages.
    QStringList played(const pagehost::Lesson &lesson)
    {
        player.setLesson(lesson);
        player.playToEnd();
        return savedState(*player.document());
    }
    /// How many events of this kind the lesson has.
    template<typename Step> static int count(const pagehost::Lesson &lesson)
    {
        return int(
            std::count_if(lesson.events.begin(), lesson.events.end(), [](const pagehost::LessonEvent &event) {
                return std::holds_alternative<Step>(event.step);
            }));
    }
    static void letTimersRun() { QCoreApplication::processEvents(); }

    qint64 now = 0; ///< milliseconds of the clock that recorder and player read
    pagehost::CreationTool tool;
    pagehost::LessonRecorder recorder;
    pagehost::LessonPlayer player;
};
