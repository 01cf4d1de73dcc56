#include <host/gripdrag.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <host/geometry.h>
#include <host/handlelayout.h>
#include <host/objectpage.h>
#include <host/rootobjectprivate.h>
#include <host/turncatch.h>

#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>

#include <cmath>

using pagehost::GeometrySnapshot;

namespace {

/// Rounding must not count as a way.
constexpr double leastWayPixels = 0.5;
constexpr double smallestSide = 1;
constexpr double radiansToDegrees = 180 / 3.14159265358979323846;

QVector<CBaseObject *> movableSelection(CBaseObject &object)
{
    QVector<CBaseObject *> objects;
    const QList<QGraphicsItem *> selected = object.scene()->selectedItems();
    for (QGraphicsItem *item : selected) {
        auto *other = dynamic_cast<CBaseObject *>(item);
        if (other && !other->isLocked() && other->canDo(OperationMove))
            objects.append(other);
    }
    return objects;
}

QString textKeyOf(CObjAction::ACT_Def action)
{
    if (HandleLayout::isResize(action))
        return QStringLiteral("IDS_UNDO_RESIZE");
    switch (action) {
    case CObjAction::ACT_Rotate:
        return QStringLiteral("IDS_UNDO_ROTATE");
    case CObjAction::ACT_MirrorHorizontal:
    case CObjAction::ACT_MirrorVertical:
        return QStringLiteral("IDS_UNDO_MIRROR");
    default:
        return QStringLiteral("IDS_UNDO_MOVE");
    }
}

double angleOf(const QPointF &vector)
{
    return std::atan2(vector.y(), vector.x()) * radiansToDegrees;
}

/// The corner or side of a client rectangle of this size that a handle keeps in place, item coordinates.
QPointF fixedPoint(CObjAction::ACT_Def handle, const QSizeF &size)
{
    const QPointF side(HandleLayout::side(handle));
    return {size.width() * (1 - side.x()) / 2, size.height() * (1 - side.y()) / 2};
}

} // namespace

GripDrag::GripDrag(CBaseObject &object, CObjAction::ACT_Def action, const QGraphicsSceneMouseEvent &press,
                   ClickEffect click)
    : m_object(object)
    , m_action(action)
    , m_press(press.scenePos())
    , m_threshold(leastWayPixels / object.getCurZoomRate())
    , m_click(click)
{
    if (action == CObjAction::ACT_Move) {
        m_before = pagehost::takeSnapshots(movableSelection(object), GeometrySnapshot::PlaceOnly);
    } else {
        const bool isResize = HandleLayout::isResize(action);
        m_before.append({&object, isResize ? GeometrySnapshot::WithContent : GeometrySnapshot::PlaceOnly});
    }
}

void GripDrag::begin(CBaseObject &object, CObjAction::ACT_Def action, const QGraphicsSceneMouseEvent &press)
{
    CPSRootObjectPrivate::of(object).drag = std::make_unique<GripDrag>(object, action, press, NoEffect);
}

GripDrag *GripDrag::running(CBaseObject &object)
{
    return CPSRootObjectPrivate::of(object).drag.get();
}

void GripDrag::forget(CBaseObject &object)
{
    CPSRootObjectPrivate::of(object).drag.reset();
}

QVector<CBaseObject *> GripDrag::objects() const
{
    QVector<CBaseObject *> objects;
    for (const GeometrySnapshot &snapshot : m_before)
        objects.append(snapshot.object());
    return objects;
}

bool GripDrag::isDragAt(const QPointF &scenePos) const
{
    const QPointF away = scenePos - m_press;
    return m_moved || std::hypot(away.x(), away.y()) >= m_threshold;
}

void GripDrag::moveTo(const QGraphicsSceneMouseEvent &event)
{
    if (!isDragAt(event.scenePos()))
        return;
    m_moved = true;
    if (m_action == CObjAction::ACT_Move)
        moveSelection(event.scenePos());
    else if (HandleLayout::isResize(m_action))
        resize(event.scenePos());
    else if (m_action == CObjAction::ACT_Rotate)
        rotate(event.scenePos(), event.modifiers());
}

void GripDrag::finish(const QGraphicsSceneMouseEvent &event)
{
    if (m_moved)
        moveTo(event);
    if (m_action == CObjAction::ACT_MirrorHorizontal || m_action == CObjAction::ACT_MirrorVertical)
        mirrorIfStillOnHandle(event.scenePos());
    if (!m_moved)
        click();
    pagehost::pushGeometryChange(m_before, textKeyOf(m_action));
}

void GripDrag::cancel()
{
    for (const GeometrySnapshot &snapshot : qAsConst(m_before))
        snapshot.restore();
}

void GripDrag::putBack()
{
    for (const GeometrySnapshot &snapshot : qAsConst(m_before))
        snapshot.object()->CPSRootObject::setPos(snapshot.pos(), true);
}

void GripDrag::moveSelection(const QPointF &scenePos)
{
    for (const GeometrySnapshot &snapshot : qAsConst(m_before))
        snapshot.object()->CPSRootObject::setPos(snapshot.pos() + (scenePos - m_press), true);
}

void GripDrag::resize(const QPointF &scenePos)
{
    const QPointF way = rotated(scenePos - m_press, -start().rotation());
    const QPointF side(HandleLayout::side(m_action));
    const QSizeF wanted(start().size().width() + side.x() * way.x(), start().size().height() + side.y() * way.y());
    m_object.setSize(possibleSize(wanted).expandedTo({smallestSide, smallestSide}), true, false);

    // The object may have chosen another size.
    const QPointF shift =
        fixedPoint(m_action, start().size()) - fixedPoint(m_action, m_object.getClientRect().size());
    m_object.CPSRootObject::setPos(start().pos() + rotated(shift, start().rotation()), true);
}

void GripDrag::rotate(const QPointF &scenePos, Qt::KeyboardModifiers modifiers)
{
    const QRectF rect(QPointF(0, 0), start().size());
    const QPointF center = start().pos() + rotated(rect.center(), start().rotation());
    const double turned = angleOf(scenePos - center) - angleOf(m_press - center);
    const double degrees = normalizedDegrees(caughtTurn(start().rotation() + turned, modifiers, m_object));
    m_object.setRotateByPoint(degrees, rect.center(), true);
}

void GripDrag::mirrorIfStillOnHandle(const QPointF &scenePos)
{
    CObjAction::ACT_Def under = CObjAction::ACT_None;
    if (!m_object.CheckHitTestHandlers(scenePos, under) || under != m_action)
        return;
    const bool horizontally = m_action == CObjAction::ACT_MirrorHorizontal;
    m_object.setMirror(m_object.isMirrored() != horizontally, m_object.isFlipped() == horizontally, true);
}

void GripDrag::click()
{
    if (m_click == SelectsAlone)
        selectAlone(m_object);
    else if (m_click == Deselects)
        toggleSelected(m_object);
}
