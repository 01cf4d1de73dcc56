#include <host/saveddata.h>

#include <framework/cbaseobject.h>
#include <framework/cpagebgprop.h>

#include <QtCore/QDataStream>

namespace pagehost {

QByteArray savedData(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

QByteArray savedData(const CPageBgProp &fill)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    fill.save(out);
    return bytes;
}

} // namespace pagehost
