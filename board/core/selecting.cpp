#include "core/selecting.h"

#include <pagehost/page.h>

namespace board {

void selectMembers(pagehost::Page &page, const QVector<CBaseObject *> &objects)
{
    const quint32 level = page.grouping().levelOf(objects);
    if (level != page.enteredGroup() && level != 0)
        page.select({});
    while (level != 0 && page.enteredGroup() != level && page.enterGroupOf(objects.first())) {
    }
    page.select(objects);
}

} // namespace board
