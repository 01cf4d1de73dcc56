#include <framework/graphicsviewname.h>

#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsView>

QString painter_getGraphicsViewName(QPainter *painter, QGraphicsScene *scene)
{
    if (!painter || !scene)
        return {};
    const QPaintDevice *device = painter->device();
    const QList<QGraphicsView *> views = scene->views();
    for (const QGraphicsView *view : views)
        if (device && view->viewport() == device)
            return view->objectName();
    return {};
}
