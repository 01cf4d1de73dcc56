#include <host/controlpointplaces.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QDataStream>

QVector<ControlPointPlace> controlPointPlaces(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::ControlPoints, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QVector<ControlPointPlace> places;
    for (int i = 0; i < count; ++i) {
        qint32 number = 0;
        QString hint;
        QRectF range;
        ControlPointPlace place;
        in >> number >> hint >> place.centre >> place.press >> range >> place.movesAcross >> place.movesDown;
        if (in.status() != QDataStream::Ok)
            break;
        place.centre = object.mapToScene(place.centre);
        place.number = number;
        place.press = object.mapToScene(place.press);
        places.append(place);
    }
    return places;
}
