#include "look/lessonshapes.h"

#include <QtCore/QtMath>

namespace board {

namespace {

/// A triangle that points to a line.
IconShape stepShape(double from, double to)
{
    IconShape shape;
    addPolygon(shape.areas, {{from, 5.5}, {to, 12}, {from, 18.5}});
    const double line = to + (to > from ? 1.5 : -1.5);
    addPolyline(shape.lines, {{line, 5.5}, {line, 18.5}});
    return shape;
}

/// A flag on its pole.
IconShape chapterShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{6, 20.5}, {6, 4}, {18.5, 4}, {15.5, 8.5}, {18.5, 13}, {6, 13}});
    return shape;
}

/// Two arrows around a circle.
IconShape takeOverShape()
{
    constexpr double radius = 7.5;
    const QRectF circle(12 - radius, 12 - radius, 2 * radius, 2 * radius);
    IconShape shape;
    for (const double start : {20.0, 200.0}) {
        shape.lines.arcMoveTo(circle, start);
        shape.lines.arcTo(circle, start, 130);
        const double side = start > 90 ? -1 : 1;
        const QPointF tip(12 + side * radius * qCos(qDegreesToRadians(20.0)),
                          12 - side * radius * qSin(qDegreesToRadians(20.0)));
        addPolyline(shape.lines,
                    {tip + QPointF(side * 0.8, -side * 4.6), tip, tip + QPointF(-side * 4.4, -side * 0.6)});
    }
    return shape;
}

IconShape closeShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{6, 6}, {18, 18}});
    addPolyline(shape.lines, {{18, 6}, {6, 18}});
    return shape;
}

} // namespace

IconShape lessonShape(Icon which)
{
    switch (which) {
    case Icon::GestureBack:
        return stepShape(18, 8);
    case Icon::GestureForward:
        return stepShape(6, 16);
    case Icon::Chapter:
        return chapterShape();
    case Icon::TakeOver:
        return takeOverShape();
    default:
        return closeShape();
    }
}

} // namespace board
