#pragma once

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace shapekit {

/// How a control point goes along, on one axis, with a size that changes.
struct Following
{
    enum Rule {
        Side,          ///< in proportion to the side
        Start,         ///< keeps its distance from the left or top
        End,           ///< keeps its distance from the right or bottom
        Middle,        ///< keeps its distance from the middle
        Shorter,       ///< its distance from the left or top is a part of the shorter side
        ShorterFromEnd ///< its distance from the right or bottom is a part of the shorter side
    };

    /// From the text of a template: "side", "start", "end", "middle", "shorter", "-shorter"; anything else is
    /// "side".
    static Rule ruleNamed(const QString &name);

    /// Where a point that stood at `at` while the side was `side` and the shorter side `shorter` stands now.
    double moved(double at, double side, double shorter, double newSide, double newShorter) const;

    Rule rule = Side;
    double offset = 0;    ///< what is measured begins that far from the start ...
    double endOffset = 0; ///< ... and ends that far from the end; document units
};

/// Where a control point was put, and how large the shape was then: its place at any other size follows from that,
/// so that it comes back with the size.
struct Place
{
    QPointF centre;
    QSizeF size;

    QPointF at(const QSizeF &newSize, const Following &x, const Following &y) const;
};

} // namespace shapekit
