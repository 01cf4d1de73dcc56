#include "pageobjects.h"

#include <pagehost/objectregistry.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

std::unique_ptr<pagehost::ObjectRegistry> registryOf(const QString &folder)
{
    auto made = std::make_unique<pagehost::ObjectRegistry>();
    made->loadDirectory(folder);
    return made;
}

} // namespace

const pagehost::ObjectRegistry &shapeRegistry()
{
    static const auto loaded = registryOf(QStringLiteral(GLIOLOLOK_SHAPES));
    return *loaded;
}

const pagehost::ObjectRegistry &codedTwins()
{
    static const auto loaded = registryOf(QStringLiteral(GLIOLOLOK_CODED_TWINS));
    return *loaded;
}

QStringList twinKinds()
{
    QStringList ids;
    const QStringList declared = shapeKinds();
    const QVector<pagehost::ObjectKind> coded = codedTwins().kinds();
    for (const pagehost::ObjectKind &kind : coded)
        if (declared.contains(kind.id))
            ids.append(kind.id);
    return ids;
}

QStringList shapeKinds()
{
    QStringList ids;
    const QVector<pagehost::ObjectKind> kinds = shapeRegistry().kinds();
    for (const pagehost::ObjectKind &kind : kinds)
        ids.append(kind.id);
    return ids;
}

void sendMouse(CBaseObject *object, int eventType, QPointF pos)
{
    QGraphicsSceneMouseEvent event(static_cast<QEvent::Type>(eventType));
    event.setButton(Qt::LeftButton);
    event.setButtons(Qt::LeftButton);
    event.setPos(pos);
    event.setScenePos(object->mapToScene(pos));
    if (eventType == QEvent::GraphicsSceneMousePress)
        object->mousePressEvent(&event);
    else if (eventType == QEvent::GraphicsSceneMouseMove)
        object->mouseMoveEvent(&event);
    else
        object->mouseReleaseEvent(&event);
}

std::unique_ptr<CBaseObject> makeShape(const QString &kindId, QSizeF size, const pagehost::ObjectRegistry &registry)
{
    std::unique_ptr<CBaseObject> object(registry.createObject(kindId));
    const QPointF end(size.width(), size.height());
    sendMouse(object.get(), QEvent::GraphicsSceneMousePress, QPointF(0, 0));
    sendMouse(object.get(), QEvent::GraphicsSceneMouseMove, end);
    sendMouse(object.get(), QEvent::GraphicsSceneMouseRelease, end);
    return object;
}

QString templateName(const QString &kindId)
{
    return kindId.section(QLatin1Char('.'), 1);
}
