#pragma once

#include <QtCore/QPointF>
#include <QtCore/QVector>

class CBaseObject;

/// A control point as users see it (pagehost::ControlPoints).
struct ControlPointPlace
{
    int number = 0; ///< from 1
    QPointF centre; ///< scene coordinates
    QPointF press;  ///< where a press takes it and no other, scene coordinates
    bool movesAcross = false;
    bool movesDown = false; ///< both along the axes of the object
};

/// Empty for an object without control points, and for one that doesn't tell of them.
QVector<ControlPointPlace> controlPointPlaces(CBaseObject &object);
