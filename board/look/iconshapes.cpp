#include "look/iconshapes.h"

#include "look/lessonshapes.h"
#include "look/toolshapes.h"

#include <QtGui/QTransform>

namespace board {

namespace {

/// The same icon as seen in a mirror.
IconShape mirrored(const IconShape &shape)
{
    const QTransform mirror(-1, 0, 0, 1, iconGrid, 0);
    return {mirror.map(shape.lines), mirror.map(shape.areas), mirror.map(shape.shades)};
}

IconShape turned(const IconShape &shape)
{
    const QTransform turn = QTransform().translate(iconGrid, 0).rotate(90);
    return {turn.map(shape.lines), turn.map(shape.areas), turn.map(shape.shades)};
}

IconShape undoShape()
{
    IconShape shape;
    shape.lines.moveTo(4, 9);
    shape.lines.lineTo(14.5, 9);
    shape.lines.arcTo(QRectF(9.5, 9, 10, 10), 90, -180);
    shape.lines.lineTo(8, 19);
    addPolyline(shape.lines, {{8.5, 4.5}, {4, 9}, {8.5, 13.5}});
    return shape;
}

IconShape duplicateShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(9, 9, 11, 11), 2, 2);
    shape.shades.addRoundedRect(QRectF(9, 9, 11, 11), 2, 2);
    shape.lines.moveTo(6, 15);
    shape.lines.arcTo(QRectF(4, 11, 4, 4), -90, -90);
    shape.lines.lineTo(4, 6);
    shape.lines.arcTo(QRectF(4, 4, 4, 4), 180, -90);
    shape.lines.lineTo(13, 4);
    shape.lines.arcTo(QRectF(11, 4, 4, 4), 90, -90);
    return shape;
}

IconShape deleteShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{4.5, 6.5}, {19.5, 6.5}});
    addPolyline(shape.lines, {{9.5, 6.5}, {9.5, 4}, {14.5, 4}, {14.5, 6.5}});
    addPolyline(shape.lines, {{6.5, 6.5}, {7.5, 20}, {16.5, 20}, {17.5, 6.5}});
    addPolyline(shape.lines, {{10.3, 10.5}, {10.5, 16}});
    addPolyline(shape.lines, {{13.7, 10.5}, {13.5, 16}});
    return shape;
}

/// Two sheets, the one that moves filled with the full colour, and how far it goes.
IconShape orderShape(bool upwards, bool allTheWay)
{
    IconShape shape;
    const double tip = upwards ? 4.5 : 19.5;
    const double tail = upwards ? 15.5 : 8.5;
    const double barb = upwards ? 4 : -4;
    addPolyline(shape.lines, {{18.5, tail}, {18.5, tip}});
    addPolyline(shape.lines, {{15.8, tip + barb * 0.7}, {18.5, tip}, {21.2, tip + barb * 0.7}});
    if (allTheWay)
        addPolyline(shape.lines, {{15.5, upwards ? 19.5 : 4.5}, {21.5, upwards ? 19.5 : 4.5}});
    const QRectF upper(2.5, 4, 8, 8);
    const QRectF lower(5.5, 12, 8, 8);
    (upwards ? shape.areas : shape.shades).addRoundedRect(upper, 1.5, 1.5);
    (upwards ? shape.shades : shape.areas).addRoundedRect(lower, 1.5, 1.5);
    shape.lines.addRoundedRect(upper, 1.5, 1.5);
    shape.lines.addRoundedRect(lower, 1.5, 1.5);
    return shape;
}

IconShape mirrorShape()
{
    IconShape shape;
    addPolygon(shape.lines, {{9, 6}, {9, 18}, {2.5, 18}});
    addPolygon(shape.areas, {{15, 6}, {15, 18}, {21.5, 18}});
    addPolygon(shape.lines, {{15, 6}, {15, 18}, {21.5, 18}});
    for (double y = 3; y < 22; y += 5)
        addPolyline(shape.lines, {{12, y}, {12, y + 2.2}});
    return shape;
}

IconShape rotateShape()
{
    IconShape shape;
    const QRectF circle(5, 5.5, 14, 14);
    shape.lines.arcMoveTo(circle, 25);
    shape.lines.arcTo(circle, 25, 310);
    addPolyline(shape.lines, {{19.5, 4}, {18.7, 9.2}, {13.5, 8.6}});
    return shape;
}

IconShape lensShape()
{
    IconShape shape;
    shape.lines.addEllipse(QPointF(10.5, 10.5), 6.5, 6.5);
    addPolyline(shape.lines, {{15.4, 15.4}, {20.5, 20.5}});
    addPolyline(shape.lines, {{7.7, 10.5}, {13.3, 10.5}});
    return shape;
}

IconShape zoomInShape()
{
    IconShape shape = lensShape();
    addPolyline(shape.lines, {{10.5, 7.7}, {10.5, 13.3}});
    return shape;
}

IconShape fitShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{4, 8.5}, {4, 4}, {8.5, 4}});
    addPolyline(shape.lines, {{15.5, 4}, {20, 4}, {20, 8.5}});
    addPolyline(shape.lines, {{20, 15.5}, {20, 20}, {15.5, 20}});
    addPolyline(shape.lines, {{8.5, 20}, {4, 20}, {4, 15.5}});
    shape.shades.addRoundedRect(QRectF(7.5, 8.5, 9, 7), 1, 1);
    shape.lines.addRoundedRect(QRectF(7.5, 8.5, 9, 7), 1, 1);
    return shape;
}

IconShape signShape(bool plus)
{
    IconShape shape;
    addPolyline(shape.lines, {{5, 12}, {19, 12}});
    if (plus)
        addPolyline(shape.lines, {{12, 5}, {12, 19}});
    return shape;
}

QPainterPath sample()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(4, 4, 16, 16), 3, 3);
    return path;
}

IconShape fillNoneShape()
{
    IconShape shape;
    shape.lines = sample();
    addPolyline(shape.lines, {{5, 19}, {19, 5}});
    return shape;
}

IconShape fillSolidShape()
{
    IconShape shape;
    shape.lines = shape.areas = sample();
    return shape;
}

IconShape fillGradientShape()
{
    IconShape shape;
    shape.lines = sample();
    QPainterPath lowerHalf;
    lowerHalf.addRect(QRectF(4, 12, 16, 8));
    QPainterPath bottom;
    bottom.addRect(QRectF(4, 16, 16, 4));
    shape.shades = sample().intersected(lowerHalf);
    shape.areas = sample().intersected(bottom);
    return shape;
}

IconShape fillPatternShape()
{
    IconShape shape;
    shape.lines = sample();
    addPolyline(shape.lines, {{4.5, 11}, {11, 4.5}});
    addPolyline(shape.lines, {{4.5, 18.5}, {18.5, 4.5}});
    addPolyline(shape.lines, {{13, 19.5}, {19.5, 13}});
    return shape;
}

IconShape fillPictureShape()
{
    IconShape shape;
    shape.lines = sample();
    shape.areas.addEllipse(QPointF(9, 9), 1.8, 1.8);
    addPolyline(shape.lines, {{5, 18.5}, {10, 13}, {13, 16}, {16, 12.5}, {19.5, 16.5}});
    return shape;
}

IconShape infoShape()
{
    IconShape shape;
    shape.lines.addEllipse(QPointF(12, 12), 8.5, 8.5);
    addPolyline(shape.lines, {{12, 11.5}, {12, 16}});
    shape.areas.addEllipse(QPointF(12, 8), 1.2, 1.2);
    return shape;
}

IconShape openShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{4, 18.5}, {4, 5.5}, {9.5, 5.5}, {11.5, 8}, {18.5, 8}, {18.5, 11}});
    addPolygon(shape.lines, {{4, 18.5}, {7, 11}, {21.5, 11}, {18.5, 18.5}});
    addPolygon(shape.shades, {{4, 18.5}, {7, 11}, {21.5, 11}, {18.5, 18.5}});
    return shape;
}

IconShape saveShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{12, 4}, {12, 14}});
    addPolyline(shape.lines, {{8, 10.5}, {12, 14.5}, {16, 10.5}});
    addPolyline(shape.lines, {{4.5, 14}, {4.5, 19.5}, {19.5, 19.5}, {19.5, 14}});
    return shape;
}

IconShape cutShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{8.2, 15.2}, {15.5, 4}});
    addPolyline(shape.lines, {{15.8, 15.2}, {8.5, 4}});
    shape.lines.addEllipse(QPointF(6.6, 17.4), 2.7, 2.7);
    shape.lines.addEllipse(QPointF(17.4, 17.4), 2.7, 2.7);
    return shape;
}

IconShape copyShape()
{
    IconShape shape;
    addPolygon(shape.lines, {{9, 8}, {19, 8}, {19, 20.5}, {9, 20.5}});
    addPolygon(shape.shades, {{9, 8}, {19, 8}, {19, 20.5}, {9, 20.5}});
    addPolyline(shape.lines, {{6, 16}, {5, 16}, {5, 3.5}, {15, 3.5}, {15, 5}});
    return shape;
}

IconShape pasteShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{9, 5.5}, {5.5, 5.5}, {5.5, 20.5}, {18.5, 20.5}, {18.5, 5.5}, {15, 5.5}});
    shape.lines.addRoundedRect(QRectF(9, 3.5, 6, 4), 1, 1);
    shape.shades.addRoundedRect(QRectF(8.5, 10.5, 7, 7), 1, 1);
    return shape;
}

IconShape recordShape()
{
    IconShape shape;
    shape.areas.addEllipse(QPointF(12, 12), 6.5, 6.5);
    return shape;
}

IconShape stopShape()
{
    IconShape shape;
    shape.areas.addRoundedRect(QRectF(6, 6, 12, 12), 1.5, 1.5);
    return shape;
}

IconShape playShape()
{
    IconShape shape;
    addPolygon(shape.areas, {{8, 5}, {19, 12}, {8, 19}});
    return shape;
}

IconShape pauseShape()
{
    IconShape shape;
    shape.areas.addRoundedRect(QRectF(7, 5.5, 3.6, 13), 1, 1);
    shape.areas.addRoundedRect(QRectF(13.4, 5.5, 3.6, 13), 1, 1);
    return shape;
}

/// A pendulum, where it is and where it has been.
IconShape animationShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{7, 3.5}, {17, 3.5}});
    addPolyline(shape.lines, {{12, 3.5}, {17.2, 14.5}});
    shape.areas.addEllipse(QPointF(18, 16.5), 3.2, 3.2);
    shape.lines.moveTo(5, 18);
    shape.lines.quadTo(8.5, 20.8, 12.6, 20.3);
    addPolyline(shape.lines, {{5.2, 14.2}, {6.6, 11.2}});
    return shape;
}

} // namespace

IconShape iconShape(Icon which)
{
    switch (which) {
    case Icon::Undo:
        return undoShape();
    case Icon::Redo:
        return mirrored(undoShape());
    case Icon::Duplicate:
        return duplicateShape();
    case Icon::Delete:
        return deleteShape();
    case Icon::ToFront:
        return orderShape(true, true);
    case Icon::Forward:
        return orderShape(true, false);
    case Icon::Backward:
        return orderShape(false, false);
    case Icon::ToBack:
        return orderShape(false, true);
    case Icon::MirrorHorizontal:
        return mirrorShape();
    case Icon::MirrorVertical:
        return turned(mirrorShape());
    case Icon::RotateLeft:
        return mirrored(rotateShape());
    case Icon::RotateRight:
        return rotateShape();
    case Icon::ZoomIn:
        return zoomInShape();
    case Icon::ZoomOut:
        return lensShape();
    case Icon::ZoomFit:
        return fitShape();
    case Icon::Add:
        return signShape(true);
    case Icon::Remove:
        return signShape(false);
    case Icon::FillNone:
        return fillNoneShape();
    case Icon::FillSolid:
        return fillSolidShape();
    case Icon::FillGradient:
        return fillGradientShape();
    case Icon::FillPattern:
        return fillPatternShape();
    case Icon::FillPicture:
        return fillPictureShape();
    case Icon::Info:
        return infoShape();
    case Icon::Open:
        return openShape();
    case Icon::Save:
        return saveShape();
    case Icon::Cut:
        return cutShape();
    case Icon::Copy:
        return copyShape();
    case Icon::Paste:
        return pasteShape();
    case Icon::Record:
        return recordShape();
    case Icon::Stop:
        return stopShape();
    case Icon::Play:
        return playShape();
    case Icon::Pause:
        return pauseShape();
    case Icon::GestureBack:
    case Icon::GestureForward:
    case Icon::Chapter:
    case Icon::TakeOver:
    case Icon::Close:
        return lessonShape(which);
    case Icon::Animation:
        return animationShape();
    default:
        return toolShape(which);
    }
}

} // namespace board
