#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace shapekit {

/// How a control point follows changes of the size along one axis.
struct SHAPEKIT_EXPORT Following
{
    /// Reference of the coordinate.
    enum Rule {
        Side,          ///< in proportion to the side
        Start,         ///< keeps its distance from the left or top
        End,           ///< keeps its distance from the right or bottom
        Middle,        ///< keeps its distance from the middle
        Shorter,       ///< its distance from the left or top is a share of the shorter side
        ShorterFromEnd ///< its distance from the right or bottom is a share of the shorter side
    };

    /// The rules in templates: "side", "start", "end", "middle", "shorter", "-shorter".
    static const QStringList &ruleNames();
    /// "side" for an unknown name.
    static Rule ruleNamed(const QString &name);

    /// New coordinate of a point that was at `at` when the side was `side` and the shorter side `shorter`.
    double moved(double at, double side, double shorter, double newSide, double newShorter) const;

    Rule rule = Side;     ///< which one applies
    double offset = 0;    ///< the measured stretch begins that far from the start ...
    double endOffset = 0; ///< ... and ends that far from the end; document units
};

/// Where a control point was put, and the size of the shape at that time. Its place at any other size follows from
/// that, so that restoring the size restores the place.
struct SHAPEKIT_EXPORT Place
{
    QPointF centre; ///< document units
    QSizeF size;    ///< document units

    /// The place at another size, along each axis by its rule.
    QPointF at(const QSizeF &newSize, const Following &x, const Following &y) const;
};

} // namespace shapekit
