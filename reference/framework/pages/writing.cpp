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
    // Frames and grips lie on top of the whole page.
    if (object.scene())
        object.scene()->update();
}

bool isBeingWritten(const CBaseObject &object)
{
    return object.property(propertyName).toBool();
}

} // namespace pagehost
