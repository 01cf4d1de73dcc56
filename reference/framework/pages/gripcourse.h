#pragma once

#include <pagehost/pagescene.h>

#include <pages/enddrag.h>
#include <pages/snapping.h>

#include <QtCore/QSizeF>

#include <memory>
#include <utility>

namespace pagehost {

class Snapper;

/// The pointer of a drag: a place, and what modifies it.
struct DragPointer
{
    QPointF pos; ///< scene coordinates
    Qt::KeyboardModifiers modifiers;
    double pixel = 1; ///< a pixel of the view, scene units
    Pointer kind = Pointer::Mouse;
};

/// Leads a drag of a grip: the objects get the mouse where the modifiers and what they snap to put it.
class GripCourse
{
public:
    /// Of a press that has begun the drag of the objects.
    GripCourse(const Grip &grip, const QPointF &press, const QVector<CBaseObject *> &moving, Snapper &snapper);

    /// The place that the object gets, scene coordinates; that of the press until the pointer has moved far enough
    /// to mean a drag.
    QPointF lead(const DragPointer &pointer);
    /// The object has got it: shows guides where things lie now.
    void showGuides();
    void forget(CBaseObject *object) { m_moving.removeOne(object); }
    /// A drag of an end that follows objects, which gets no mouse; null for any other drag.
    void setEndDrag(std::unique_ptr<EndDrag> drag) { m_endDrag = std::move(drag); }
    EndDrag *endDrag() const { return m_endDrag.get(); }

private:
    QPointF leadDrag(const DragPointer &pointer);
    QPointF leadBody(const DragPointer &pointer);
    QPointF leadCorner(const DragPointer &pointer);
    QPointF proportional(const QPointF &way) const;
    bool canDrag() const;
    bool isResize() const;
    void takeCorners();
    void takePoint();
    QPointF leadPoint(const DragPointer &pointer);
    bool isCorner() const { return m_side.x() != 0 && m_side.y() != 0; }
    std::optional<SnapSubject> cornerSubject(const QPointF &corner) const;
    QPointF snapOffset(const SnapSubject &subject, const DragPointer &pointer);

    Grip m_grip;
    QPointF m_press; ///< scene coordinates
    Snapper &m_snapper;
    QVector<CBaseObject *> m_moving;
    QRectF m_startBox;        ///< of the moving objects, scene coordinates
    QSizeF m_startSize;       ///< of the resized object, item units, or of the frame
    double m_degrees = 0;     ///< by which these are turned
    QPointF m_side;           ///< of the resized object, see HandleLayout::side()
    QPointF m_sceneSide;      ///< the same as it is turned, for objects that are turned by quarters; else null
    QPointF m_corner;         ///< dragged corner or side of the resized object at the press, scene coordinates
    QPointF m_fixed;          ///< the one opposite
    int m_point = -1;         ///< index of the dragged control point; below 0 where the object doesn't tell
    SnapSubject m_pointStart; ///< its centre at the press
    bool m_isDrag = false;
    std::unique_ptr<EndDrag> m_endDrag;
    std::optional<SnapSubject> m_subject; ///< of the last move
};

} // namespace pagehost
