#pragma once

#include <pagehost/pagescene.h>

class QPainter;

namespace pagehost {

/// Frames and handles of the selected objects, in scene coordinates.
void paintOverlay(const Page &page, QPainter &painter, const Grip &hovered, bool framesOnly);
/// Where dragged objects were: their outlines dashed, and themselves while only copies are dragged away.
void paintOldPlace(const QVector<GeometrySnapshot> &start, QPainter &painter, bool withObjects);
/// Area to repaint for it, scene coordinates. `pixel` is a pixel of the view, scene units.
QRectF oldPlaceBounds(const QVector<GeometrySnapshot> &start, double pixel);
/// Area to repaint for paintOverlay(), scene coordinates.
QRectF overlayBounds(const Page &page);
/// Whether a place is in the frame of a selected object, or beside it or that of several by `reach` (pixels) at
/// most.
bool isInFrame(const Page &page, const QPointF &scenePos, double reach);
/// Bounds of the frames and of the handles that are shown, scene coordinates.
QRectF frameBounds(const Page &page);

} // namespace pagehost
