#pragma once

#include <framework/cobjaction.h>

#include <pagehost/geometrysnapshot.h>

#include <QtCore/QPointF>
#include <QtCore/QVector>
#include <QtCore/Qt>

class CBaseObject;
class QGraphicsSceneMouseEvent;

/// One drag of a page object by hand, from press to release: it moves the selection or a handle of one object.
///
/// Every step starts from the snapshots of the press, so that errors don't accumulate and a cancelled drag leaves
/// no trace.
class GripDrag
{
public:
    /// The effect of a press without a drag.
    enum ClickEffect { NoEffect, SelectsAlone, Deselects };

    /// `object` is the pressed one.
    GripDrag(CBaseObject &object, CObjAction::ACT_Def action, const QGraphicsSceneMouseEvent &press,
             ClickEffect click);

    /// A drag of a handle, whose press the object doesn't get.
    static void begin(CBaseObject &object, CObjAction::ACT_Def action, const QGraphicsSceneMouseEvent &press);
    /// The running drag of the object; null without one.
    static GripDrag *running(CBaseObject &object);
    /// Ends it and leaves the object where it is.
    static void forget(CBaseObject &object);

    CObjAction::ACT_Def action() const { return m_action; }
    /// The objects that it changes.
    QVector<CBaseObject *> objects() const;
    /// Whether a pointer there (scene coordinates) has left the press.
    bool isDragAt(const QPointF &scenePos) const;
    void moveTo(const QGraphicsSceneMouseEvent &event);
    /// Ends the drag, with one undo step when something has changed.
    void finish(const QGraphicsSceneMouseEvent &event);
    void cancel();
    bool hasMoved() const { return m_moved; }
    /// The objects at the press.
    const QVector<pagehost::GeometrySnapshot> &before() const { return m_before; }
    /// Moves the objects back, recorded, without a step.
    void putBack();

private:
    void moveSelection(const QPointF &scenePos);
    void resize(const QPointF &scenePos);
    void rotate(const QPointF &scenePos, Qt::KeyboardModifiers modifiers);
    void mirrorIfStillOnHandle(const QPointF &scenePos);
    void click();
    const pagehost::GeometrySnapshot &start() const { return m_before.first(); }

    CBaseObject &m_object;
    CObjAction::ACT_Def m_action;
    QPointF m_press;    ///< scene coordinates
    double m_threshold; ///< a shorter way from the press is none, scene units
    ClickEffect m_click;
    bool m_moved = false;
    QVector<pagehost::GeometrySnapshot> m_before;
};
