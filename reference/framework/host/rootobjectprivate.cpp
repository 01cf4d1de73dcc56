#include <host/rootobjectprivate.h>

#include <framework/cbaseobject.h>

#include <host/baseobject.h>
#include <host/geometry.h>
#include <host/hoststate.h>

namespace {

/// Compares exactly, unlike QRectF.
bool isIdentical(const QRectF &a, const QRectF &b)
{
    return a.x() == b.x() && a.y() == b.y() && a.width() == b.width() && a.height() == b.height();
}

} // namespace

void CPSRootObjectPrivate::refreshBounds()
{
    CBaseObject *object = baseObject(m_object);
    if (object && bounds.refresh(*object, [object] { object->prepareGeometryChange(); }))
        dropPicture();
}

void CPSRootObjectPrivate::dropPaintedArea()
{
    bounds.dropPaintedArea();
    refreshBounds();
}

void CPSRootObjectPrivate::dropRegion()
{
    bounds.dropRegion();
    refreshBounds();
}

void CPSRootObjectPrivate::dropPicture()
{
    if (item && !isPainting) {
        // Setting the mode, even to its present value, makes Qt discard the picture.
        item->setCacheMode(item->cacheMode());
    }
}

void CPSRootObjectPrivate::setClientRect(const QRectF &rect)
{
    // Another thread may be reading the rectangle, to copy the object's picture into it.
    if (!isIdentical(m_object.clientRect, rect))
        m_object.clientRect = rect;
    m_object.dragStart = rect.topLeft();
    m_object.dragEnd = rect.topLeft() + QPointF(rect.width(), rect.height());
    if (m_object.fillProp->needCreatBrush(rect))
        m_object.fillBrush = m_object.fillProp->createBrushByProp(rect, false);
}

void CPSRootObjectPrivate::setFill(const CPageBgProp &fill)
{
    *m_object.fillProp = fill;
    m_object.fillBrush = fill.createBrushByProp(m_object.clientRect, false);
}

void CPSRootObjectPrivate::setPenWidth(double width)
{
    m_object.myPen.setWidthF(width);
}

void CPSRootObjectPrivate::setState(const HostState &state)
{
    m_object.objName = state.name;
    m_object.setSubType(state.subType);
    item->setPos(state.pos);
    item->setRotation(state.rotation);
    m_object.mirrorHorizontal = state.mirrored;
    m_object.mirrorVertical = state.flipped;
    setClientRect({state.clientRect.topLeft(), possibleSize(state.clientRect.size())});
    m_object.myPen.setColor(QColor::fromRgba(state.penColor));
    m_object.myPen.setWidthF(state.penWidth);
    m_object.myPen.setStyle(Qt::PenStyle(state.penStyle));
    item->setVisible(state.visible);
    m_object.CPSRootObject::setLocked(state.locked);
    m_object.updateAfterObjRectChanged(item, true);
}
