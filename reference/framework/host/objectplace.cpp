#include <host/objectplace.h>

#include <host/rootobjectprivate.h>

#include <QtWidgets/QGraphicsItem>

void placeItem(CPSRootObject &object, const QPointF &pos, double degrees)
{
    QGraphicsItem *item = CPSRootObjectPrivate::of(object).item;
    item->setPos(pos);
    item->setRotation(degrees);
}

void assignClientRect(CPSRootObject &object, const QRectF &rect)
{
    CPSRootObjectPrivate::of(object).setClientRect(rect);
}

void assignClientSize(CPSRootObject &object, const QSizeF &size)
{
    assignClientRect(object, {object.getClientRect().topLeft(), size});
}

void refreshBounds(CPSRootObject &object)
{
    CPSRootObjectPrivate::of(object).refreshBounds();
}
