#pragma once

#include <framework/cobjaction.h>

#include <pagehost/geometrysnapshot.h>

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QVector>

class CBaseObject;
class HandleLayout;

namespace pagehost {

class Page;

/// The selected objects that one frame scales and turns; empty unless there are several.
QVector<CBaseObject *> framedObjects(const Page &page);
/// Of the frame around objects (at least one), in scene coordinates.
HandleLayout layoutOfFrame(const QVector<CBaseObject *> &objects);

/// One drag of a handle of the frame around several objects. Every step starts from the places at the press.
class FrameDrag
{
public:
    /// `press` in scene coordinates.
    FrameDrag(const QVector<CBaseObject *> &objects, CObjAction::ACT_Def handle, const QPointF &press);

    bool contains(const CBaseObject *object) const;
    void moveTo(const QPointF &scenePos, Qt::KeyboardModifiers modifiers);
    /// Makes one undo step of what has changed.
    void finish() const;
    void cancel() const;
    const QVector<GeometrySnapshot> &before() const { return m_before; }
    /// By which all have been turned, clockwise.
    double degrees() const { return m_degrees; }

private:
    void scale(const QPointF &way) const;
    void turn(const QPointF &scenePos, Qt::KeyboardModifiers modifiers);

    CObjAction::ACT_Def m_handle;
    QPointF m_press;
    QRectF m_frame; ///< around the objects at the press, scene coordinates
    QVector<GeometrySnapshot> m_before;
    bool m_moved = false;
    double m_degrees = 0;
};

} // namespace pagehost
