#include "application/shapefile.h"

#include "core/workspace.h"
#include "objects/objectmaker.h"

#include <pagehost/document.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

namespace board {

bool isShapeFile(const QString &path)
{
    return path.endsWith(QLatin1String(".shape.svg"));
}

bool placeShapeOf(const QString &path, Workspace &workspace)
{
    const QString kindId = workspace.registry().kindOfFile(path);
    if (kindId.isEmpty())
        return false;
    pagehost::Page *page = workspace.document()->page(0);
    const QPointF middle = page->rect().center();
    CBaseObject *object = makeObject(page, workspace.registry(), kindId, middle);
    if (!object)
        return false;
    const QSizeF size = object->getClientRect().size();
    object->setPos(middle - QPointF(size.width(), size.height()) / 2, false);
    return true;
}

} // namespace board
