#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <variant>

/// A lesson: the events on a document's pages over time, from an initial state.
///
/// Pages are named by their index at that moment, from 0. Objects are named by numbers that a lesson assigns when
/// they first appear, counting from 1, and that they keep when they disappear and return.
namespace pagehost {

/// @name Kinds of events
/// @{

/// An object recorded an action (CPSRootObject::RecordAction()).
struct ObjectActed
{
    quint32 object = 0; ///< its number
    /// HostAction, or the object's own.
    qint32 actionId = 0;
    QByteArray payload; ///< as it was recorded
};

/// An object was put on a page, at this index in its stacking order.
struct ObjectAppeared
{
    quint32 object = 0; ///< a new number, or that of an object that returns
    qint32 page = 0;    ///< index of the page
    qint32 place = 0;   ///< index in stacking order
    QByteArray data;    ///< the payload of an object's chunk, see docs/board-format.md
};

/// An object was taken off its page.
struct ObjectVanished
{
    quint32 object = 0; ///< its number
};

/// An object has reached a state that its recorded actions do not lead to: by undo and redo, which record nothing,
/// or by changes that have no action.
struct ObjectSettled
{
    quint32 object = 0; ///< its number
    QByteArray data;    ///< as in ObjectAppeared
};

/// The objects of a page have this order now, bottom one first.
struct PageRestacked
{
    qint32 page = 0;          ///< index of the page
    QVector<quint32> objects; ///< their numbers
};

/// An empty page was inserted and is the current one.
struct PageAppeared
{
    qint32 page = 0;       ///< its index
    QSizeF size;           ///< scene units
    QByteArray background; ///< what CPageBgProp::save() writes
};

/// A page was removed.
struct PageVanished
{
    qint32 page = 0; ///< the index that it had
};

/// A page was moved.
struct PageMoved
{
    qint32 from = 0; ///< the index that it had
    qint32 to = 0;   ///< the index that it has now
};

/// A page has another size.
struct PageResized
{
    qint32 page = 0; ///< its index
    QSizeF size;     ///< scene units
};

/// A page has another background.
struct PageBackgroundChanged
{
    qint32 page = 0;       ///< its index
    QByteArray background; ///< as in PageAppeared
};

/// Another page became current.
struct PageTurned
{
    qint32 page = 0; ///< its index
};

/// The editing view zoomed; objects keep their control points at one size on screen, so the zoom changes them.
struct ZoomChanged
{
    double rate = 1; ///< screen pixels per scene unit
};

/// The groups of a page have changed; those of objects that are gone are there, too, since they may come back.
struct PageGrouped
{
    qint32 page = 0;   ///< its index
    QByteArray groups; ///< for each group its length and the payload of its chunk, see docs/board-format.md
};

/// A chapter begins; nothing changes on the pages.
struct ChapterBegan
{
    QString name; ///< for people
};
/// @}

/// Stored by the index of the alternative: the order is fixed, new ones are appended.
using LessonStep = std::variant<ObjectActed, ObjectAppeared, ObjectVanished, ObjectSettled, PageRestacked,
                                PageAppeared, PageVanished, PageMoved, PageResized, PageBackgroundChanged,
                                PageTurned, ZoomChanged, PageGrouped, ChapterBegan>;

/// A step and its time.
struct LessonEvent
{
    qint64 time = 0; ///< milliseconds from the start without pauses; never less than the previous event's
    LessonStep step; ///< the event itself
};

/// How much of the stored data is a lesson.
enum class LessonExtent {
    Nothing,
    Part, ///< the part before the damage
    Whole
};

/// A lesson as plain data. docs/lessons.md describes the two stored forms.
class FRAMEWORK_EXPORT Lesson
{
public:
    QString title; ///< for people
    /// Steps that make the initial state from a document without pages.
    QVector<LessonStep> start;
    QVector<LessonEvent> events; ///< in order of time
    qint64 duration = 0;         ///< milliseconds, at least the time of the last event

    /// The lesson in its binary form.
    QByteArray toBytes() const;
    /// False, with the lesson unchanged, unless the data is one whole lesson. Counts are compared with the
    /// remaining bytes before anything is allocated.
    bool fromBytes(const QByteArray &bytes);

    /// The lesson in its readable form.
    QJsonObject toJson() const;
    /// False, with the lesson unchanged, unless the object is one whole lesson.
    bool fromJson(const QJsonObject &object);

    /// Reads a lesson as a document stores it (LessonData::data): bytes of toBytes(), or the text of toJson().
    bool fromData(const QByteArray &data);
    /// Reads stored data of either form up to the first damaged step or event. The duration of a part ends with its
    /// last event. Nothing leaves the lesson unchanged.
    LessonExtent fromDamagedData(const QByteArray &data);
};

} // namespace pagehost
