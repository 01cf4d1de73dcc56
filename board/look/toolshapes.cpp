#include "look/toolshapes.h"

#include "look/arrangingshapes.h"

namespace board {

namespace {

IconShape selectShape()
{
    IconShape shape;
    addPolygon(shape.lines,
               {{6, 3.5}, {6, 18.2}, {10.1, 14.6}, {12.6, 20.4}, {15.2, 19.3}, {12.7, 13.6}, {18.2, 13.2}});
    return shape;
}

/// Three lines, each thicker than the one above.
IconShape lineWidthShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{4, 6}, {20, 6}});
    shape.areas.addRect(QRectF(3, 10.5, 18, 3));
    shape.areas.addRect(QRectF(3, 16, 18, 5));
    return shape;
}

IconShape curtainShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{3.5, 4.5}, {20.5, 4.5}});
    for (const double x : {5.0, 9.7, 14.3, 19.0})
        addPolyline(shape.lines, {{x, 4.5}, {x, 19.5}});
    addPolyline(shape.lines, {{5, 15}, {19, 15}});
    return shape;
}

IconShape endPresentingShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{9, 3.5}, {9, 9}, {3.5, 9}});
    addPolyline(shape.lines, {{15, 3.5}, {15, 9}, {20.5, 9}});
    addPolyline(shape.lines, {{9, 20.5}, {9, 15}, {3.5, 15}});
    addPolyline(shape.lines, {{15, 20.5}, {15, 15}, {20.5, 15}});
    return shape;
}

IconShape penShape()
{
    IconShape shape;
    shape.lines.moveTo(4.5, 19.5);
    shape.lines.lineTo(5.6, 15);
    shape.lines.lineTo(15.9, 4.7);
    shape.lines.quadTo(17.15, 3.5, 18.4, 4.7);
    shape.lines.lineTo(19.3, 5.6);
    shape.lines.quadTo(20.5, 6.85, 19.3, 8.1);
    shape.lines.lineTo(9, 18.4);
    shape.lines.closeSubpath();
    addPolyline(shape.lines, {{13.6, 7}, {17, 10.4}});
    return shape;
}

IconShape highlighterShape()
{
    IconShape shape;
    addPolygon(shape.lines, {{8.5, 12.5}, {14.6, 4.2}, {19.6, 8.2}, {13.2, 16.3}, {9.4, 16.6}});
    addPolyline(shape.lines, {{9.4, 16.6}, {8.2, 18.2}, {5.2, 18.2}, {7.2, 15.6}});
    addPolyline(shape.lines, {{4.5, 21}, {19.5, 21}});
    return shape;
}

IconShape eraserShape()
{
    IconShape shape;
    shape.lines.moveTo(8.6, 19.5);
    shape.lines.lineTo(3.9, 14.8);
    shape.lines.quadTo(2.9, 13.7, 3.9, 12.6);
    shape.lines.lineTo(12, 4.5);
    shape.lines.quadTo(13.1, 3.5, 14.2, 4.5);
    shape.lines.lineTo(19.5, 9.8);
    shape.lines.quadTo(20.5, 10.9, 19.5, 12);
    shape.lines.lineTo(12, 19.5);
    shape.lines.closeSubpath();
    addPolyline(shape.lines, {{8, 8.6}, {15.4, 16}});
    addPolyline(shape.lines, {{8.6, 19.5}, {20, 19.5}});
    return shape;
}

IconShape textShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{5, 7.5}, {5, 4.5}, {19, 4.5}, {19, 7.5}});
    addPolyline(shape.lines, {{12, 4.5}, {12, 19.5}});
    addPolyline(shape.lines, {{9, 19.5}, {15, 19.5}});
    return shape;
}

IconShape lineShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{6.4, 17.6}, {17.6, 6.4}});
    shape.lines.addEllipse(QPointF(5, 19), 2, 2);
    shape.lines.addEllipse(QPointF(19, 5), 2, 2);
    return shape;
}

IconShape connectorShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(3.5, 3.5, 6, 6), 1.2, 1.2);
    shape.lines.addRoundedRect(QRectF(14.5, 14.5, 6, 6), 1.2, 1.2);
    addPolyline(shape.lines, {{6.5, 9.5}, {6.5, 17.5}, {14.5, 17.5}});
    return shape;
}

IconShape laserShape()
{
    IconShape shape;
    shape.areas.addEllipse(QPointF(12, 12), 3.2, 3.2);
    for (const QPointF &ray : {QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1), QPointF(0.7, 0.7),
                               QPointF(-0.7, 0.7), QPointF(0.7, -0.7), QPointF(-0.7, -0.7)})
        addPolyline(shape.lines, {QPointF(12, 12) + ray * 6.2, QPointF(12, 12) + ray * 8.5});
    return shape;
}

IconShape shapesShape()
{
    IconShape shape;
    addPolygon(shape.lines, {{12, 3.5}, {16.2, 10.5}, {7.8, 10.5}});
    shape.lines.addEllipse(QPointF(7.2, 17), 3.7, 3.7);
    shape.lines.addRoundedRect(QRectF(13.5, 13.5, 7, 7), 1.2, 1.2);
    return shape;
}

IconShape insertShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(3.5, 5.5, 13, 15), 2, 2);
    addPolyline(shape.lines, {{4, 17.5}, {8, 13.5}, {10.6, 16}, {12.6, 14}, {16.4, 17.8}});
    addPolyline(shape.lines, {{19, 3}, {19, 9}});
    addPolyline(shape.lines, {{16, 6}, {22, 6}});
    shape.lines.addEllipse(QPointF(8, 10), 1.2, 1.2);
    return shape;
}

IconShape menuShape()
{
    IconShape shape;
    for (const double y : {6.5, 12.0, 17.5})
        addPolyline(shape.lines, {{4, y}, {20, y}});
    return shape;
}

IconShape pagesShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(3.5, 4.5, 17, 10), 1.6, 1.6);
    addPolyline(shape.lines, {{4, 18.5}, {7.5, 18.5}});
    addPolyline(shape.lines, {{10.2, 18.5}, {13.8, 18.5}});
    addPolyline(shape.lines, {{16.5, 18.5}, {20, 18.5}});
    return shape;
}

IconShape arrowHead(bool forward)
{
    IconShape shape;
    if (forward)
        addPolyline(shape.lines, {{9.5, 5.5}, {16, 12}, {9.5, 18.5}});
    else
        addPolyline(shape.lines, {{14.5, 5.5}, {8, 12}, {14.5, 18.5}});
    return shape;
}

IconShape panelShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(3.5, 4.5, 17, 15), 2, 2);
    addPolyline(shape.lines, {{14.5, 4.5}, {14.5, 19.5}});
    addPolyline(shape.lines, {{17, 8.5}, {18, 8.5}});
    addPolyline(shape.lines, {{17, 11.5}, {18, 11.5}});
    return shape;
}

IconShape presentShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{3, 4.5}, {21, 4.5}});
    addPolyline(shape.lines, {{4.5, 4.5}, {4.5, 15.5}, {19.5, 15.5}, {19.5, 4.5}});
    addPolyline(shape.lines, {{12, 15.5}, {12, 18}});
    addPolyline(shape.lines, {{8.5, 20.5}, {12, 17.8}, {15.5, 20.5}});
    addPolygon(shape.areas, {{10.3, 7.6}, {10.3, 12.4}, {14.3, 10}});
    return shape;
}

IconShape moreShape()
{
    IconShape shape;
    for (const double x : {5.5, 12.0, 18.5})
        shape.areas.addEllipse(QPointF(x, 12), 1.7, 1.7);
    return shape;
}

IconShape pinShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{8, 3.5}, {16, 3.5}});
    addPolyline(shape.lines, {{9.5, 3.5}, {9.5, 10}, {7, 14}, {17, 14}, {14.5, 10}, {14.5, 3.5}});
    addPolyline(shape.lines, {{12, 14}, {12, 20.5}});
    return shape;
}

IconShape searchShape()
{
    IconShape shape;
    shape.lines.addEllipse(QPointF(10.5, 10.5), 6, 6);
    addPolyline(shape.lines, {{15, 15}, {20, 20}});
    return shape;
}

IconShape lockShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(5.5, 10.5, 13, 10), 2, 2);
    shape.lines.moveTo(8.5, 10.5);
    shape.lines.lineTo(8.5, 8);
    shape.lines.arcTo(QRectF(8.5, 4.5, 7, 7), 180, -180);
    shape.lines.lineTo(15.5, 10.5);
    return shape;
}

IconShape unlockedShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(5.5, 10.5, 13, 10), 2, 2);
    shape.lines.moveTo(8.5, 10.5);
    shape.lines.lineTo(8.5, 6);
    shape.lines.arcTo(QRectF(8.5, 2.5, 7, 7), 180, -150);
    return shape;
}

IconShape eyeShape(bool isOpen)
{
    IconShape shape;
    shape.lines.moveTo(3, 12);
    shape.lines.quadTo(12, isOpen ? 22 : 20, 21, 12);
    if (!isOpen) {
        for (const double x : {6.5, 12.0, 17.5})
            addPolyline(shape.lines, {{x, x == 12.0 ? 16.0 : 15.0}, {x + (x - 12) / 4, 19.5}});
        return shape;
    }
    shape.lines.quadTo(12, 2, 3, 12);
    shape.lines.addEllipse(QPointF(12, 12), 3, 3);
    return shape;
}

/// An arrow from outside onto a page.
IconShape bringBackShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{12, 4.5}, {4.5, 4.5}, {4.5, 19.5}, {12, 19.5}});
    addPolyline(shape.lines, {{20.5, 12}, {9.5, 12}});
    addPolyline(shape.lines, {{13.5, 8}, {9.5, 12}, {13.5, 16}});
    return shape;
}

} // namespace

IconShape toolShape(Icon which)
{
    switch (which) {
    case Icon::Select:
        return selectShape();
    case Icon::Pen:
        return penShape();
    case Icon::Highlighter:
        return highlighterShape();
    case Icon::Eraser:
        return eraserShape();
    case Icon::Text:
        return textShape();
    case Icon::Line:
        return lineShape();
    case Icon::Connector:
        return connectorShape();
    case Icon::Laser:
        return laserShape();
    case Icon::Shapes:
        return shapesShape();
    case Icon::Insert:
        return insertShape();
    case Icon::Menu:
        return menuShape();
    case Icon::Pages:
        return pagesShape();
    case Icon::Previous:
        return arrowHead(false);
    case Icon::Next:
        return arrowHead(true);
    case Icon::Panel:
        return panelShape();
    case Icon::Present:
        return presentShape();
    case Icon::More:
        return moreShape();
    case Icon::Pin:
        return pinShape();
    case Icon::Search:
        return searchShape();
    case Icon::Lock:
        return lockShape();
    case Icon::Curtain:
        return curtainShape();
    case Icon::LineWidth:
        return lineWidthShape();
    case Icon::EndPresenting:
        return endPresentingShape();
    case Icon::Eye:
        return eyeShape(true);
    case Icon::EyeClosed:
        return eyeShape(false);
    case Icon::Unlocked:
        return unlockedShape();
    case Icon::BringBack:
        return bringBackShape();
    default:
        return arrangingShape(which);
    }
}

} // namespace board
