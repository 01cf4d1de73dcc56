#pragma once

#include <framework/framework_global.h>

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

/// A group of objects and groups of one page. Objects know nothing of groups: a page saves them beside its objects
/// and names these by their numbers (pagehost/objectid.h), so that they are found again wherever they come back.
struct ObjectGroup
{
    quint32 number = 0;       ///< among the groups of the page, from 1
    quint32 parent = 0;       ///< number of the group around this one; 0 for an outermost group
    QString name;             ///< given by the user; empty without one
    QVector<quint32> members; ///< numbers of the objects that are in no inner group
};

/// Equal in every member.
inline bool operator==(const ObjectGroup &one, const ObjectGroup &other)
{
    return one.number == other.number && one.parent == other.parent && one.name == other.name &&
           one.members == other.members;
}

/// Outer groups come before the groups in them.
using ObjectGroups = QVector<ObjectGroup>;

/// Groups as a page takes them, whatever a file says: groups with a number of their own, in an earlier group or
/// none, and no deeper than anybody groups; each object in one group.
FRAMEWORK_EXPORT ObjectGroups normalized(const ObjectGroups &groups);
/// The groups under numbers above `last`.
FRAMEWORK_EXPORT ObjectGroups renumbered(ObjectGroups groups, quint32 last);
/// 0 without a group.
FRAMEWORK_EXPORT quint32 highestNumber(const ObjectGroups &groups);

/// An object, or all objects of a group.
struct GroupUnit
{
    quint32 group = 0;              ///< 0 for an object that is no part of a group there
    QVector<CBaseObject *> objects; ///< in stacking order
};

/// Equal in both members.
inline bool operator==(const GroupUnit &one, const GroupUnit &other)
{
    return one.group == other.group && one.objects == other.objects;
}

/// Groups and the objects that are there. A group of fewer than two members that are there is none; its member then
/// belongs to the group around it. 0 stands for the page, which holds every object.
class FRAMEWORK_EXPORT Grouping
{
public:
    Grouping() = default;
    /// `objects` in stacking order. Of objects of the same number, the lowest is the member.
    Grouping(const ObjectGroups &groups, const QVector<CBaseObject *> &objects);

    /// The groups with two members at least.
    const ObjectGroups &groups() const { return m_groups; }
    /// Whether a group of this number is there.
    bool contains(quint32 group) const { return m_indices.contains(group); }
    /// The name that the user has given; empty without one.
    QString nameOf(quint32 group) const;
    /// The group around this one; 0 for an outermost group.
    quint32 parentOf(quint32 group) const;
    /// The innermost group of the object.
    quint32 groupOf(const CBaseObject *object) const { return m_innermost.value(object); }
    /// Whether the object is in the group or in one inside it.
    bool holds(quint32 group, const CBaseObject *object) const;
    /// All objects of the group and of those in it, in stacking order.
    QVector<CBaseObject *> objectsOf(quint32 group) const;
    /// The group directly in `level` that holds the object; 0 when the object itself is directly there.
    quint32 unitOf(const CBaseObject *object, quint32 level) const;
    /// Objects and groups directly in `level`, ordered by their topmost object, the bottom one first.
    QVector<GroupUnit> unitsOf(quint32 level) const;
    /// The innermost group that holds all these objects and others.
    quint32 levelOf(const QVector<CBaseObject *> &objects) const;
    /// The units of that level that have some of the objects.
    QVector<GroupUnit> unitsHolding(const QVector<CBaseObject *> &objects) const;

private:
    QVector<CBaseObject *> m_objects;
    ObjectGroups m_groups;
    QHash<quint32, int> m_indices; ///< of the groups by their numbers
    QHash<const CBaseObject *, quint32> m_innermost;
};

} // namespace pagehost
