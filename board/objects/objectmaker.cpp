#include "objects/objectmaker.h"

#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace board {

namespace {

/// Makes `event` one of the left button at `itemPos` (item coordinates) of an item that stands at `origin`.
void aim(QGraphicsSceneMouseEvent &event, const QPointF &itemPos, const QPointF &origin)
{
    event.setPos(itemPos);
    event.setScenePos(origin + itemPos);
    event.setButton(Qt::LeftButton);
    event.setButtons(Qt::LeftButton);
}

void drawByMouse(CBaseObject *object, const QPointF &origin, const QPointF &end)
{
    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    aim(press, QPointF(0, 0), origin);
    object->mousePressEvent(&press);
    if (!end.isNull()) {
        QGraphicsSceneMouseEvent move(QEvent::GraphicsSceneMouseMove);
        aim(move, end, origin);
        object->mouseMoveEvent(&move);
    }
    QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
    aim(release, end, origin);
    object->mouseReleaseEvent(&release);
}

} // namespace

CBaseObject *makeObject(pagehost::Page *page, const pagehost::ObjectRegistry &registry, const QString &kindId,
                        const QPointF &topLeft, const QSizeF &size)
{
    CBaseObject *object = registry.createObject(kindId);
    if (!object)
        return nullptr;
    page->addObject(object);
    object->setPos(topLeft, false);
    drawByMouse(object, topLeft, size.isEmpty() ? QPointF() : QPointF(size.width(), size.height()));
    return object;
}

void finishForPage(CBaseObject *object, pagehost::Page *page, const QPointF &topLeft)
{
    object->SetPage(page);
    object->setPos(topLeft, false);
    if (!object->isCreateFinished())
        drawByMouse(object, topLeft, {});
    const QSizeF size = object->getClientRect().size();
    const double shrink = qMin(page->size().width() / size.width(), page->size().height() / size.height());
    if (shrink < 1)
        object->setSize(size * shrink, false, false);
    object->SetPage(nullptr);
}

} // namespace board
