#pragma once

#include <pagehost/geometrysnapshot.h>

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

/// Changes the form of one object with keys. What is done until finish() is one drag for the object, and one undo
/// step.
class KeyDrag
{
public:
    ~KeyDrag() { finish(); }

    /// Moves the centre of a control point to a place of the page (scene coordinates), as near as its limits allow.
    /// False when it can't be moved.
    bool movePoint(pagehost::Page *page, CBaseObject *object, int number, const QPointF &target);
    void resize(CBaseObject *object, const QSizeF &by);
    /// Clockwise, about the middle.
    void turn(CBaseObject *object, double degrees);
    void finish();

private:
    enum Kind { Nothing, PointMoved, Resized, Turned };
    void begin(Kind kind, CBaseObject *object);

    Kind m_kind = Nothing;
    QPointer<CBaseObject> m_object;
    pagehost::GeometrySnapshot m_before;
    QPointer<pagehost::Page> m_page;
    int m_number = 0;
    QPointF m_press; ///< where a mouse would have pressed, and the point's centre then; scene coordinates
    QPointF m_start;
};

} // namespace board
