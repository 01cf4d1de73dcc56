#pragma once

#include <pagehost/extradata.h>
#include <pagehost/groups.h>

#include <QtCore/QJsonArray>

namespace pagehost {

/// The payload of a group's chunk, see docs/board-format.md.
QByteArray streamed(const ObjectGroup &group);
/// False, with the group unchanged, for bytes that are none.
bool readGroup(const QByteArray &bytes, ObjectGroup &group);
/// A list of groups as a lesson's step has it. Groups that cannot be read are left out.
QByteArray streamed(const ObjectGroups &groups);
ObjectGroups readGroups(const QByteArray &bytes);

/// The member `groups` of a page.
QJsonArray groupsToJson(const ObjectGroups &groups);

/// Groups of a page, and parts of their data that cannot be read.
struct TakenGroups
{
    ObjectGroups groups;
    QByteArray unreadable;
    bool isDamaged = false; ///< also where all could be read
};

/// Takes the groups out of what a file says of a page, in the form of either format.
TakenGroups takeGroups(ExtraData &extra);

} // namespace pagehost
