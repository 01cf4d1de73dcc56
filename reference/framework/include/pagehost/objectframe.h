#pragma once

#include <pagehost/geometrysnapshot.h>

/// Changes of several objects as one, from what they are at snapshots. Recorded, without an undo step
/// (pushGeometryChange()); scene coordinates.
namespace pagehost {

/// Scales the area that the objects are in by these factors about `fixed`. Since an object that is turned can't
/// become oblique, its sides grow as much as fits best. The snapshots must have content.
FRAMEWORK_EXPORT void scaleTogether(const QVector<GeometrySnapshot> &before, const QPointF &fixed, double across,
                                    double down);
/// Turns the objects about `centre`, clockwise on screen.
FRAMEWORK_EXPORT void turnTogether(const QVector<GeometrySnapshot> &before, const QPointF &centre, double degrees);
/// Mirrors the objects, left to right (`horizontally`) or top to bottom, at the line through `centre`.
FRAMEWORK_EXPORT void mirrorTogether(const QVector<GeometrySnapshot> &before, const QPointF &centre,
                                     bool horizontally);

} // namespace pagehost
