#include "core/objectnames.h"

#include "core/workspace.h"

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

namespace board {

QString kindOf(const Workspace &workspace, const pagehost::GroupUnit &unit)
{
    return unit.group == 0 ? workspace.text(unit.objects.first()->kindName())
                           : workspace.text("IDS_BOARD_GROUP_OF").arg(unit.objects.size());
}

QString titleOf(const Workspace &workspace, const pagehost::Page &page, const pagehost::GroupUnit &unit)
{
    const QString name = unit.group == 0 ? unit.objects.first()->getObjName() : page.grouping().nameOf(unit.group);
    return name.isEmpty() ? kindOf(workspace, unit) : name;
}

QString titleOf(const Workspace &workspace, const pagehost::Page &page, const QVector<CBaseObject *> &objects)
{
    const QVector<pagehost::GroupUnit> units = page.grouping().unitsHolding(objects);
    if (units.size() == 1)
        return titleOf(workspace, page, units.first());
    return workspace.text("IDS_BOARD_SEVERAL").arg(objects.size());
}

} // namespace board
