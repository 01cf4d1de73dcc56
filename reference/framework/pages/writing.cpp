#include "pages/snapper.h"

#include <pagehost/pagescene.h>
#include <pagehost/writing.h>

#include <framework/cbaseobject.h>

#include <QtCore/QVariant>
#include <QtWidgets/QGraphicsScene>

namespace pagehost {

namespace {

constexpr char propertyName[] = "isBeingWritten";

} // namespace

void setBeingWritten(CBaseObject &object, bool isWritten)
{
    if (isWritten == isBeingWritten(object))
        return;
    object.setProperty(propertyName, isWritten);
    if (auto *scene = dynamic_cast<PageScene *>(object.scene()); scene && isWritten) {
        scene->snapper().clearGuides();
        scene->updateGuides();
    }
    // Frames and grips lie on top of the whole page.
    if (object.scene())
        object.scene()->update();
}

bool isBeingWritten(const CBaseObject &object)
{
    return object.property(propertyName).toBool();
}

} // namespace pagehost
