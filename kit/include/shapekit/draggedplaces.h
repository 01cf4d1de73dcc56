#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QRectF>
#include <QtCore/QVector>

namespace shapekit {

/// Sizes of a control point at the start and end of its drags.
///
/// Undo and redo record the top-left corner of a control point, whose size follows the zoom: after zooming, the
/// same corner means another centre. Shapes work with centres, so they remember the point's size at that corner.
class SHAPEKIT_EXPORT DraggedPlaces
{
public:
    /// Notes a drag of the control point whose corner was at `start` when the drag began, and which now is at
    /// `place`.
    void noteDrag(QPointF start, const QRectF &place);
    /// The centre at the time when a drag began or ended at the corner of `place`; the centre of `place` itself if
    /// none did.
    QPointF meantCentre(const QRectF &place) const;

private:
    void append(const QRectF &place);

    QVector<QRectF> m_places;
    QPointF m_start; ///< of the last drag; its end is the last place
};

} // namespace shapekit
