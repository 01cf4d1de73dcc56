#pragma once

#include <QtCore/QRectF>

class CBaseObject;
class QPainter;

namespace pagehost {

/// Draws a glowing frame around a highlighted object; `painter` is in scene coordinates. Returns the
/// size of a pixel of its device in scene units.
double paintHighlight(CBaseObject &object, QPainter &painter);
/// Draws a dot at each place of the object where lines may end.
void paintConnectionPlaces(CBaseObject &object, QPainter &painter);
/// Bounds of the frame for this size of a pixel, scene coordinates; empty for null.
QRectF highlightBounds(const CBaseObject *object, double pixel);

} // namespace pagehost
