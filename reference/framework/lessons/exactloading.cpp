#include <lessons/exactloading.h>

#include <framework/cbaseobject.h>

#include <host/saveddata.h>

#include <QtCore/QDataStream>

namespace pagehost {

bool loadExactly(CBaseObject &object, const QByteArray &state)
{
    if (savedData(object) == state)
        return true;
    QDataStream in(state);
    object.CPSRootObject::LoadPropertyForPlayback(in);
    object.OnQPainterDraw(nullptr);
    return savedData(object) == state;
}

} // namespace pagehost
