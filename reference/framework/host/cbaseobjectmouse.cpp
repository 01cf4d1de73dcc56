#include <framework/cbaseobject.h>

#include <pagehost/pointer.h>

#include <host/baseobject.h>
#include <host/gripdrag.h>
#include <host/objectpage.h>
#include <host/rootobjectprivate.h>
#include <host/shownhandles.h>

#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

bool extendsSelection(const QGraphicsSceneMouseEvent &event)
{
    return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
}

/// A press with Shift or Ctrl may begin a drag, too, so that a selected object is deselected by its release.
GripDrag::ClickEffect clickEffect(const QGraphicsSceneMouseEvent &event, bool isSelected)
{
    if (!extendsSelection(event))
        return GripDrag::SelectsAlone;
    return isSelected ? GripDrag::Deselects : GripDrag::NoEffect;
}

bool isOnlySelected(const CBaseObject &object)
{
    return object.isSelected() && object.scene() && object.scene()->selectedItems().size() == 1;
}

} // namespace

void CPSRootObject::setHandlesDisable(CObjAction::ACT_Def handle, bool disable)
{
    const quint32 bit = 1u << handle;
    d->disabledHandles = disable ? d->disabledHandles | bit : d->disabledHandles & ~bit;
}

bool CPSRootObject::isHandleDisabled(CObjAction::ACT_Def handle) const
{
    return d->disabledHandles & (1u << handle);
}

bool CPSRootObject::CheckHitTestHandlers(const QPointF &scenePos, CObjAction::ACT_Def &action)
{
    CBaseObject *item = baseObject(*this);
    if (!item || !isOnlySelected(*item) || isLocked() || isEditingBlocked(*this))
        return false;
    const HandleLayout::Hit hit =
        layoutOf(*item).hit(item->mapFromScene(scenePos), shownHandles(*item), hitSize(pagehost::Pointer::Mouse));
    if (hit.handle == CObjAction::ACT_None)
        return false;
    action = hit.handle;
    return true;
}

void CBaseObject::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    CPSRootObjectPrivate &host = CPSRootObjectPrivate::of(*this);
    host.drag.reset();
    if (event->button() != Qt::LeftButton || !scene() || !(flags() & ItemIsSelectable)) {
        event->ignore();
        return;
    }
    event->accept();
    const bool blocked = isEditingBlocked(*this);
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    if (isSelected() && CheckHitTestHandlers(event->scenePos(), action)) {
        if (action != CObjAction::ACT_None)
            host.drag = std::make_unique<GripDrag>(*this, action, *event, GripDrag::NoEffect);
        return;
    }
    const GripDrag::ClickEffect click = clickEffect(*event, isSelected());
    if (click == GripDrag::NoEffect || (click == GripDrag::Deselects && blocked))
        toggleSelected(*this);
    else if (!isSelected())
        selectAlone(*this);
    if (isSelected() && !blocked)
        host.drag = std::make_unique<GripDrag>(*this, CObjAction::ACT_Move, *event, click);
}

void CBaseObject::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (GripDrag *drag = CPSRootObjectPrivate::of(*this).drag.get())
        drag->moveTo(*event);
}

void CBaseObject::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const std::unique_ptr<GripDrag> drag = std::move(CPSRootObjectPrivate::of(*this).drag);
    if (drag)
        drag->finish(*event);
}
