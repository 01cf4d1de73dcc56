#include <pages/highlightpainter.h>

#include <framework/cbaseobject.h>

#include <host/followedobjects.h>

#include <QtGui/QPainter>

#include <cmath>

namespace pagehost {

namespace {

const QColor glow(255, 149, 0);
constexpr double gapPixels = 7; ///< from the object to the middle of the frame
constexpr double corePixels = 2.5;
constexpr double haloPixels = 9;
constexpr int haloAlpha = 70;
constexpr double cornerPixels = 6;
constexpr double dotPixels = 5; ///< radius

double pixelOf(const QPainter &painter)
{
    const double scale = std::sqrt(std::abs(painter.combinedTransform().determinant()));
    return scale > 0 ? 1 / scale : 1;
}

QRectF frameOf(const CBaseObject &object, double pixel)
{
    const double gap = gapPixels * pixel;
    return object.getClientRect().adjusted(-gap, -gap, gap, gap);
}

} // namespace

double paintHighlight(CBaseObject &object, QPainter &painter)
{
    const double pixel = pixelOf(painter);
    QColor halo = glow;
    halo.setAlpha(haloAlpha);
    painter.save();
    painter.setTransform(object.sceneTransform(), true);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (const QPen &pen : {QPen(halo, haloPixels * pixel), QPen(glow, corePixels * pixel)}) {
        painter.setPen(pen);
        painter.drawRoundedRect(frameOf(object, pixel), cornerPixels * pixel, cornerPixels * pixel);
    }
    painter.restore();
    return pixel;
}

void paintConnectionPlaces(CBaseObject &object, QPainter &painter)
{
    const double pixel = pixelOf(painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(glow, corePixels * pixel));
    painter.setBrush(Qt::white);
    const QVector<ConnectionPlace> places = connectionPlaces(object);
    for (const ConnectionPlace &place : places)
        painter.drawEllipse(place.point, dotPixels * pixel, dotPixels * pixel);
    painter.restore();
}

QRectF highlightBounds(const CBaseObject *object, double pixel)
{
    if (!object)
        return {};
    const double reach = (haloPixels / 2 + 1) * pixel;
    return object->mapRectToScene(frameOf(*object, pixel).adjusted(-reach, -reach, reach, reach));
}

} // namespace pagehost
