#pragma once

#include <pagehost/groups.h>

namespace pagehost {
class Page;
} // namespace pagehost

/// Names of objects and groups for people.
namespace board {

class Workspace;

QString kindOf(const Workspace &workspace, const pagehost::GroupUnit &unit);
/// The name that the user gave it, else its kind.
QString titleOf(const Workspace &workspace, const pagehost::Page &page, const pagehost::GroupUnit &unit);
/// Of several objects, their number, unless they are a group.
QString titleOf(const Workspace &workspace, const pagehost::Page &page, const QVector<CBaseObject *> &objects);

} // namespace board
