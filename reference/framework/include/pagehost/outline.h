#pragma once

#include <framework/framework_global.h>

#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;

/// Undoable changes that the outline of a page offers. Each function is one undo step; false, without a step, when
/// nothing changes.
namespace pagehost {

class Page;

/// Puts these objects, and groups of which all objects are given, into a group, 0 for the page: directly above the
/// object or group there that holds `lower`, at the bottom without one. A group is not put into itself.
FRAMEWORK_EXPORT bool placeObjects(Page *page, const QVector<CBaseObject *> &objects, quint32 group,
                                   CBaseObject *lower);
/// Empty for no name.
FRAMEWORK_EXPORT bool renameObject(Page *page, CBaseObject *object, const QString &name);
/// Empty for no name; false for an unknown group.
FRAMEWORK_EXPORT bool renameGroup(Page *page, quint32 group, const QString &name);
/// Hidden objects are neither drawn nor selected.
FRAMEWORK_EXPORT bool setObjectsVisible(Page *page, const QVector<CBaseObject *> &objects, bool visible);

} // namespace pagehost
