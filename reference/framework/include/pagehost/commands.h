#pragma once

#include <pagehost/geometrysnapshot.h>
#include <pagehost/groups.h>

#include <framework/framework_global.h>

#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;
class CPageBgProp;

/// Undoable changes. Each function is one step on the process-wide stack (CUndoRedo), already applied when it
/// returns, with a localisation key as its text. A call that would change nothing leaves no step and returns false
/// or null. A step keeps the objects and pages that it refers to alive.
namespace pagehost {

class Document;
class Page;
struct LessonData;

/// Adds objects on top, in this order, with groups of theirs, and selects them. With the number of a `group` of the
/// page they belong to it, at its top.
FRAMEWORK_EXPORT bool addObjects(Page *page, const QVector<CBaseObject *> &objects, const ObjectGroups &groups = {},
                                 quint32 group = 0);
/// Removes those objects that are on the page; undo restores their places in stacking order.
FRAMEWORK_EXPORT bool removeObjects(Page *page, const QVector<CBaseObject *> &objects);

/// Ways in stacking order.
enum class StackingMove { ToFront, Forward, Backward, ToBack };
/// Moves the objects in stacking order; their own order stays. Forward and Backward pass one object that is not
/// among them. A group moves and is passed as one; objects of a group move within it.
FRAMEWORK_EXPORT bool restack(Page *page, const QVector<CBaseObject *> &objects, StackingMove move);

/// Makes a group of these objects and groups, directly below the topmost of them, within the group that they are
/// in. False for fewer than two.
FRAMEWORK_EXPORT bool groupObjects(Page *page, const QVector<CBaseObject *> &objects);
/// Dissolves the groups that these objects make up; the groups in them stay.
FRAMEWORK_EXPORT bool ungroupObjects(Page *page, const QVector<CBaseObject *> &objects);
/// Whether ungroupObjects() has something to do.
FRAMEWORK_EXPORT bool hasGroup(const Page &page, const QVector<CBaseObject *> &objects);

/// Makes a step of the changes since the snapshots, which have been made already. `textKey` is the step's
/// localisation key.
FRAMEWORK_EXPORT bool pushGeometryChange(const QVector<GeometrySnapshot> &before, const QString &textKey);
/// Moves objects by `delta` (scene units). Locked objects stay.
FRAMEWORK_EXPORT bool moveObjects(const QVector<CBaseObject *> &objects, const QPointF &delta);
/// Turns each object about its own centre by `degrees`, clockwise on screen. Locked objects stay.
FRAMEWORK_EXPORT bool rotateObjects(const QVector<CBaseObject *> &objects, double degrees);
/// Turns objects and groups by `degrees`, clockwise on screen: each object alone about its own centre, the objects
/// of a group about the centre of the box around them. Locked objects stay.
FRAMEWORK_EXPORT bool rotateUnits(const QVector<QVector<CBaseObject *>> &units, double degrees);
/// Resizes an object and keeps its top-left corner in place on the page; the object may keep its aspect ratio.
FRAMEWORK_EXPORT bool resizeObject(CBaseObject *object, const QSizeF &size);
/// Mirrors each object about its own centre: left to right (`horizontally`) or top to bottom.
FRAMEWORK_EXPORT bool mirrorObjects(const QVector<CBaseObject *> &objects, bool horizontally);
/// Mirrors objects and groups: each object alone about its own centre, the objects of a group as one, at the line
/// through the middle of the box around them. Locked objects stay.
FRAMEWORK_EXPORT bool mirrorUnits(const QVector<QVector<CBaseObject *>> &units, bool horizontally);
/// Locks or unlocks objects; locked ones stay where they are, and clicks pass through them.
FRAMEWORK_EXPORT bool setObjectsLocked(const QVector<CBaseObject *> &objects, bool locked);

/// Whether an object is made of the present version of the file that it comes from; true for objects of no file.
FRAMEWORK_EXPORT bool isPresentVersion(CBaseObject &object);
/// Makes objects be of the present version of their files.
FRAMEWORK_EXPORT bool updateVersion(const QVector<CBaseObject *> &objects);

/// Gives a page this background.
FRAMEWORK_EXPORT bool setPageBackground(Page *page, const CPageBgProp &background);
/// Gives a page this size (scene units); its objects stay where they are. False for sizes that no page can have,
/// see isPageSize().
FRAMEWORK_EXPORT bool setPageSize(Page *page, const QSizeF &size);
/// Fills objects with any fill, pictures and gradients included; plain colours go through pagehost/style.h.
FRAMEWORK_EXPORT bool setObjectsFill(const QVector<CBaseObject *> &objects, const CPageBgProp &fill);

/// Adds an empty page of this size at `index` and makes it current.
FRAMEWORK_EXPORT Page *addPage(Document *document, int index, const QSizeF &size);
/// Never removes the last page.
FRAMEWORK_EXPORT bool removePage(Document *document, int index);
/// Moves a page from one index to another; false for an index out of range.
FRAMEWORK_EXPORT bool movePage(Document *document, int from, int to);

/// Appends a lesson.
FRAMEWORK_EXPORT bool addLesson(Document *document, const LessonData &lesson);
/// Removes a lesson; false for an index out of range.
FRAMEWORK_EXPORT bool removeLesson(Document *document, int index);
/// Renames a lesson.
FRAMEWORK_EXPORT bool renameLesson(Document *document, int index, const QString &name);
/// Has a chapter of that name begin at `time` of a lesson, milliseconds, in place of one that begins there; an
/// empty name only takes that one away. False for a time beyond the lesson and for lessons that can't be read.
FRAMEWORK_EXPORT bool setChapter(Document *document, int index, qint64 time, const QString &name);
/// Removes the events of a lesson after `time`, milliseconds.
FRAMEWORK_EXPORT bool cutLesson(Document *document, int index, qint64 time);

} // namespace pagehost
