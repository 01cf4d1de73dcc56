#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

namespace ink {

/// A regular form, with a beginning and a direction like the stroke that stands for it. Lengths are in the units of
/// the stroke; angles are radians, from the direction of x towards that of y.
struct StrokeForm
{
    enum Kind {
        Line,
        Arc,    ///< of a circle
        Ellipse ///< a whole one with axes along x and y; a circle where the radii are equal
    };

    Kind kind = Line;
    QPointF start; ///< of a line or an arc
    QPointF end;
    /// Tangent of a quarter of the angle that an arc sweeps, and so twice its height in chords; below 0 where the
    /// angle falls along the arc.
    double bulge = 0;
    QPointF centre; ///< of an ellipse
    QSizeF radii{0, 0};
    double firstAngle = 0;  ///< at which an ellipse begins
    bool isFalling = false; ///< whether the angle falls along an ellipse
};

/// Whether lengths can be computed with the place: its coordinates are numbers up to 1e100.
bool isMeasurable(QPointF place);

inline StrokeForm lineBetween(QPointF start, QPointF end)
{
    StrokeForm line;
    line.start = start;
    line.end = end;
    return line;
}

/// The form after the pointer that drew it has moved on. The end of a line or an arc moves as the pointer does,
/// while its start stays, and the arc keeps its ratio of height and chord. An ellipse grows or shrinks around its
/// centre by the ratio of the distances that the pointer has from there. Moves to a place that is no number change
/// nothing.
StrokeForm draggedForm(const StrokeForm &form, QPointF from, QPointF to);

/// Places along the form: the ends of a line, and at most 257 of a curve, whose chords are off by less than a tenth
/// of a unit up to a radius of 1300. The last place of an ellipse is the first one.
QVector<QPointF> placesAlong(const StrokeForm &form);

} // namespace ink
