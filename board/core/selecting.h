#pragma once

#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// Selects exactly these objects, which may be members of groups: enters the group that they are in, so that a
/// click on the page takes them one by one, too.
void selectMembers(pagehost::Page &page, const QVector<CBaseObject *> &objects);

} // namespace board
