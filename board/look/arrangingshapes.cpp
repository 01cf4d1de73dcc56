#include "look/arrangingshapes.h"

#include <QtGui/QTransform>

namespace board {

namespace {

constexpr double firstLine = 3.5;
constexpr double lastLine = 20.5;

IconShape mapped(const IconShape &shape, const QTransform &transform)
{
    return {transform.map(shape.lines), transform.map(shape.areas), transform.map(shape.shades)};
}

/// Left becomes right.
IconShape mirrored(const IconShape &shape)
{
    return mapped(shape, QTransform(-1, 0, 0, 1, iconGrid, 0));
}

/// Left becomes top.
IconShape transposed(const IconShape &shape)
{
    return mapped(shape, QTransform(0, 1, 1, 0, 0, 0));
}

void addBox(IconShape &shape, const QRectF &box)
{
    shape.lines.addRoundedRect(box, 1, 1);
    shape.shades.addRoundedRect(box, 1, 1);
}

/// A long and a short box at a line at their left.
IconShape alignLeftShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{firstLine, firstLine}, {firstLine, lastLine}});
    addBox(shape, QRectF(7, 6, 13, 4.5));
    addBox(shape, QRectF(7, 13.5, 8, 4.5));
    return shape;
}

IconShape alignCenterShape()
{
    IconShape shape;
    addPolyline(shape.lines, {{12, firstLine}, {12, 6}});
    addPolyline(shape.lines, {{12, 10.5}, {12, 13.5}});
    addPolyline(shape.lines, {{12, 18}, {12, lastLine}});
    addBox(shape, QRectF(4.5, 6, 15, 4.5));
    addBox(shape, QRectF(7.5, 13.5, 9, 4.5));
    return shape;
}

/// Three boxes beside each other, with equal gaps.
IconShape distributeShape()
{
    IconShape shape;
    for (const double left : {firstLine, 10.25, 17.0})
        addBox(shape, QRectF(left, 6, 3.5, 12));
    return shape;
}

IconShape sameSizeShape()
{
    IconShape shape;
    addBox(shape, QRectF(firstLine, 4.5, 6.5, 10));
    addBox(shape, QRectF(14, 4.5, 6.5, 10));
    addPolyline(shape.lines, {{firstLine, 19}, {lastLine, 19}});
    return shape;
}

IconShape paperShape()
{
    IconShape shape;
    shape.lines.addRoundedRect(QRectF(firstLine, firstLine, lastLine - firstLine, lastLine - firstLine), 1.5, 1.5);
    return shape;
}

void addRules(IconShape &shape, std::initializer_list<double> places)
{
    for (const double place : places)
        addPolyline(shape.lines, {{firstLine, place}, {lastLine, place}});
}

IconShape ruledShape()
{
    IconShape shape = paperShape();
    addRules(shape, {8, 12, 16});
    return shape;
}

IconShape squaredShape()
{
    IconShape shape = paperShape();
    addRules(shape, {9.2, 14.8});
    for (const double place : {9.2, 14.8})
        addPolyline(shape.lines, {{place, firstLine}, {place, lastLine}});
    return shape;
}

IconShape dottedShape()
{
    IconShape shape = paperShape();
    for (const double x : {8.0, 12.0, 16.0})
        for (const double y : {8.0, 12.0, 16.0})
            shape.areas.addEllipse(QPointF(x, y), 0.9, 0.9);
    return shape;
}

IconShape musicShape()
{
    IconShape shape;
    addRules(shape, {5, 8.5, 12, 15.5, 19});
    shape.areas.addEllipse(QPointF(11, 15.5), 2.2, 1.7);
    addPolyline(shape.lines, {{13, 15.5}, {13, 6.5}});
    return shape;
}

/// A coarse grid with a finer one in it, which stays pale.
IconShape millimetreShape()
{
    IconShape shape = squaredShape();
    for (double place = 5.3; place < lastLine; place += 1.9) {
        shape.shades.addRect(QRectF(firstLine, place, lastLine - firstLine, 0.7));
        shape.shades.addRect(QRectF(place, firstLine, 0.7, lastLine - firstLine));
    }
    return shape;
}

/// Long and short lines; `part` of the room of a short one is before it.
IconShape linesOfText(double part)
{
    constexpr double start = 4;
    constexpr double all = 16;
    IconShape shape;
    double y = 6;
    for (const double length : {all, 10.0, all, 8.0}) {
        const double x = start + part * (all - length);
        addPolyline(shape.lines, {{x, y}, {x + length, y}});
        y += 4;
    }
    return shape;
}

IconShape listShape()
{
    IconShape shape;
    for (const double y : {6.0, 12.0, 18.0}) {
        shape.areas.addEllipse(QPointF(5, y), 1.5, 1.5);
        addPolyline(shape.lines, {{9.5, y}, {20, y}});
    }
    return shape;
}

/// Two links of a chain.
IconShape linkShape()
{
    IconShape shape;
    shape.lines.moveTo(10.5, 6.5);
    shape.lines.lineTo(13, 4.8);
    shape.lines.cubicTo(17, 2.2, 21.5, 7.5, 18.6, 10.9);
    shape.lines.lineTo(15.4, 14.1);
    shape.lines.cubicTo(13.6, 15.8, 11, 15.4, 9.6, 13.4);
    shape.lines.moveTo(13.5, 17.5);
    shape.lines.lineTo(11, 19.2);
    shape.lines.cubicTo(7, 21.8, 2.5, 16.5, 5.4, 13.1);
    shape.lines.lineTo(8.6, 9.9);
    shape.lines.cubicTo(10.4, 8.2, 13, 8.6, 14.4, 10.6);
    return shape;
}

} // namespace

IconShape arrangingShape(Icon which)
{
    switch (which) {
    case Icon::AlignLeft:
        return alignLeftShape();
    case Icon::AlignCenter:
        return alignCenterShape();
    case Icon::AlignRight:
        return mirrored(alignLeftShape());
    case Icon::AlignTop:
        return transposed(alignLeftShape());
    case Icon::AlignMiddle:
        return transposed(alignCenterShape());
    case Icon::AlignBottom:
        return transposed(mirrored(alignLeftShape()));
    case Icon::DistributeAcross:
        return distributeShape();
    case Icon::DistributeDown:
        return transposed(distributeShape());
    case Icon::SameSize:
        return sameSizeShape();
    case Icon::BlankPaper:
        return paperShape();
    case Icon::RuledPaper:
        return ruledShape();
    case Icon::SquaredPaper:
        return squaredShape();
    case Icon::DottedPaper:
        return dottedShape();
    case Icon::MusicPaper:
        return musicShape();
    case Icon::MillimetrePaper:
        return millimetreShape();
    case Icon::TextLeft:
        return linesOfText(0);
    case Icon::TextMiddle:
        return linesOfText(0.5);
    case Icon::TextRight:
        return linesOfText(1);
    case Icon::List:
        return listShape();
    case Icon::Link:
        return linkShape();
    default:
        return {};
    }
}

} // namespace board
