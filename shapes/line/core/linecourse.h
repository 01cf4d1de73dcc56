#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

#include <optional>

namespace line {

/// The course of a line: straight, a curve through a point between its ends, or at right angles. Document units.
struct LineCourse
{
    QPointF start;
    QPointF end;
    /// The point that the curve passes through, in the frame of the ends: along the way from start to end, and to
    /// its right, in lengths of that way. So it stays in proportion when an end moves.
    QPointF bend{0.5, 0};
    bool isAngled = false; ///< then it has no bend
    /// The directions in which a right-angled line leaves its ends, along an axis; (0, 0) for any.
    QPointF startOut{};
    QPointF endOut{};
    /// Its corners where it leads round objects; else they follow from the ends.
    QVector<QPointF> detour{};

    bool isStraight() const { return bend.y() == 0; }
    QPointF bendPoint() const;
    /// The corners of a right-angled line, with its ends.
    QVector<QPointF> corners() const;
    /// A bend next to the straight way makes the line straight. Without a way nothing changes.
    void bendThrough(QPointF point);
    /// Halfway along the line.
    QPointF middle() const;
    /// Of the quadratic curve.
    QPointF controlPoint() const;
    /// Directions in which the line leaves its ends, of length 1.
    QPointF directionAtStart() const;
    QPointF directionAtEnd() const;
    /// To the places that lines have. A point that is dragged and put back gives exactly the course of before.
    LineCourse rounded() const;
    /// Around the line, in whole places.
    QRectF bounds() const;
    /// With its bounds stretched to a size, as far as they have a length that can be stretched; their corner stays.
    LineCourse stretchedTo(const QSizeF &size) const;
};

/// The corners of a detour, in the form in which lines are saved; none for damaged data.
QByteArray encoded(const QVector<QPointF> &detour);
QVector<QPointF> decodedDetour(const QByteArray &bytes);
/// Ends and bend, in the form in which lines are saved and recorded.
QByteArray encoded(const LineCourse &course);
/// Nothing for data that are damaged, or of a line that no page has room for.
std::optional<LineCourse> decoded(const QByteArray &bytes);

/// The nearest point to `point` in a direction of whole steps of 15 degrees from `start`.
QPointF inSteps(QPointF start, QPointF point);

} // namespace line
