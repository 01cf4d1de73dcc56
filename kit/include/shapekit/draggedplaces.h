#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>

namespace shapekit {

/// What a control point's size was where the user dragged it from and to.
///
/// Undo and redo name the top-left corner of a control point, whose size follows the zoom: the same corner means
/// another centre once the user has zoomed. Shapes go by centres, so they remember how large the point was at that
/// corner.
class DraggedPlaces
{
public:
    /// The user drags a control point, which had its corner at `start` when the drag began, and now is at `place`.
    void noteDrag(QPointF start, const QRectF &place);
    /// The centre that was meant by the corner of `place`; the centre of `place` itself for a corner that no drag
    /// began or ended at.
    QPointF meantCentre(const QRectF &place) const;

private:
    void append(const QRectF &place);

    QVector<QRectF> m_places;
    QPointF m_start; ///< of the last drag; its end is the last place
};

} // namespace shapekit
