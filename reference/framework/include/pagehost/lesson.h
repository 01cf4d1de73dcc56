#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <variant>

/// A lesson: what happened on the pages of a document, with time, from a state at its start.
///
/// Pages are named by their number at that moment, 0 the first. Objects are named by numbers that a lesson gives
/// them when they first appear, counting up from 1, and that they keep when they go and come back.
namespace pagehost {

/// @name Kinds of events
/// @{

/// An object recorded an action (CPSRootObject::RecordAction()).
struct ObjectActed
{
    quint32 object = 0;
    qint32 actionId = 0;
    QByteArray payload;
};

/// An object came onto a page, at this place in its stacking order.
struct ObjectAppeared
{
    quint32 object = 0;
    qint32 page = 0;
    qint32 place = 0;
    QByteArray data; ///< the payload of an object's chunk, see docs/board-format.md
};

struct ObjectVanished
{
    quint32 object = 0;
};

/// An object has come into a state that its recorded actions do not lead to: by undo and redo, which record
/// nothing, and by changes that have no action.
struct ObjectSettled
{
    quint32 object = 0;
    QByteArray data; ///< as in ObjectAppeared
};

/// A page's objects stand in this order, the bottom one first.
struct PageRestacked
{
    qint32 page = 0;
    QVector<quint32> objects;
};

/// An empty page came into the document and is the current one.
struct PageAppeared
{
    qint32 page = 0;
    QSizeF size;           ///< scene units
    QByteArray background; ///< what CPageBgProp::save() writes
};

struct PageVanished
{
    qint32 page = 0;
};

struct PageMoved
{
    qint32 from = 0;
    qint32 to = 0;
};

struct PageResized
{
    qint32 page = 0;
    QSizeF size; ///< scene units
};

struct PageBackgroundChanged
{
    qint32 page = 0;
    QByteArray background;
};

/// Another page became the current one.
struct PageTurned
{
    qint32 page = 0;
};

/// The editing view zoomed; objects keep their control points at one size on screen, so that they change with it.
struct ZoomChanged
{
    double rate = 1; ///< scene units to screen pixels
};
/// @}

/// Stored by the number of the alternative: their order is fixed, new ones go to the end.
using LessonStep =
    std::variant<ObjectActed, ObjectAppeared, ObjectVanished, ObjectSettled, PageRestacked, PageAppeared,
                 PageVanished, PageMoved, PageResized, PageBackgroundChanged, PageTurned, ZoomChanged>;

struct LessonEvent
{
    qint64 time = 0; ///< milliseconds from the start, pauses not counted; never less than the event before
    LessonStep step;
};

/// How much of stored data is a lesson.
enum class LessonExtent {
    Nothing,
    Part, ///< what stands before some damage
    Whole
};

/// A lesson as plain data. See docs/lessons.md for the two stored forms.
class FRAMEWORK_EXPORT Lesson
{
public:
    QString title;
    /// Steps that make the state at the start out of a document without pages.
    QVector<LessonStep> start;
    QVector<LessonEvent> events;
    qint64 duration = 0; ///< milliseconds, at least the time of the last event

    QByteArray toBytes() const;
    /// False, with the lesson unchanged, for data that is no whole lesson. Counts are held against the bytes that
    /// are there before anything is allocated.
    bool fromBytes(const QByteArray &bytes);

    QJsonObject toJson() const;
    /// False, with the lesson unchanged, for an object that is no whole lesson.
    bool fromJson(const QJsonObject &object);

    /// Reads what a document keeps of a lesson (LessonData::data): bytes of toBytes(), or the text of toJson().
    bool fromData(const QByteArray &data);
    /// Reads stored data of either form up to what is damaged in them: the steps and events before the first that
    /// cannot be read. The duration of a part ends with its last event. For Nothing the lesson is unchanged.
    LessonExtent fromDamagedData(const QByteArray &data);
};

} // namespace pagehost
