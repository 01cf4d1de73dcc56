#include <pagehost/creation.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <host/geometry.h>
#include <pages/eventcopy.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

#include <cmath>

namespace pagehost {

namespace {

/// A press and release closer together than this are a click.
constexpr double clickPixels = 4;
/// Side of an object without a default size that is made by a click, scene units.
constexpr double plainSide = 100;

/// Limited to the largest size of an object.
QPointF possibleWay(const QPointF &way)
{
    return {qBound(-longestSide, way.x(), longestSide), qBound(-longestSide, way.y(), longestSide)};
}

QPointF square(const QPointF &way)
{
    const double side = qMax(std::abs(way.x()), std::abs(way.y()));
    return {std::copysign(side, way.x()), std::copysign(side, way.y())};
}

} // namespace

CreationTool::CreationTool(const ObjectRegistry *registry, QObject *parent)
    : QObject(parent)
    , m_registry(registry)
{
}

CreationTool::~CreationTool()
{
    cancel();
}

bool CreationTool::begin(PageScene *scene, const QString &kindId)
{
    cancel();
    if (!scene || !m_registry->hasKind(kindId))
        return false;
    m_scene = scene;
    m_kindId = kindId;
    m_scene->setCreationTool(this);
    return true;
}

void CreationTool::cancel()
{
    if (!isActive())
        return;
    if (m_object) {
        m_scene->removeItem(m_object);
        m_object->SetPage(nullptr);
        m_object->deleteLater();
        m_object = nullptr;
    }
    stop();
    Q_EMIT cancelled();
}

void CreationTool::stop()
{
    if (m_scene && m_scene->creationTool() == this)
        m_scene->setCreationTool(nullptr);
    m_scene = nullptr;
    m_object = nullptr;
    m_kindId.clear();
}

bool CreationTool::press(QGraphicsSceneMouseEvent *event)
{
    if (!isActive() || m_object || event->button() != Qt::LeftButton)
        return isActive();
    m_object = m_registry->createObject(m_kindId);
    if (!m_object) {
        cancel();
        return true;
    }
    m_dragged = false;
    m_start = event->scenePos();
    m_end = m_start;
    m_object->SetPage(m_scene->page());
    m_object->setZValue(m_scene->page()->objectCount());
    m_object->CPSRootObject::setPos(m_start, false);
    m_scene->addItem(m_object);
    sendToObject(QEvent::GraphicsSceneMousePress, *event);
    return true;
}

bool CreationTool::move(QGraphicsSceneMouseEvent *event)
{
    if (!m_object)
        return isActive();
    if (!follow(*event))
        return true;
    m_object->CPSRootObject::setPos(dragRect().topLeft(), false);
    sendToObject(QEvent::GraphicsSceneMouseMove, *event);
    keepStartCorner();
    return true;
}

bool CreationTool::release(QGraphicsSceneMouseEvent *event)
{
    if (!m_object)
        return isActive();
    if (event->button() != Qt::LeftButton)
        return true;
    follow(*event);
    m_object->CPSRootObject::setPos(dragRect().topLeft(), false);
    sendToObject(QEvent::GraphicsSceneMouseRelease, *event);
    keepStartCorner();
    if (!m_object->isCreateFinished()) {
        cancel();
        return true;
    }
    CBaseObject *object = m_object;
    Page *page = m_scene->page();
    stop();
    addObjects(page, {object});
    Q_EMIT created(object);
    return true;
}

CBaseObject *CreationTool::createAt(PageScene *scene, const QString &kindId, const QPointF &scenePos)
{
    if (!begin(scene, kindId))
        return nullptr;
    CBaseObject *made = nullptr;
    const auto take = [&made](CBaseObject *object) { made = object; };
    const auto connection = connect(this, &CreationTool::created, this, take); // ends before `made` does
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setButton(Qt::LeftButton);
    event.setScenePos(scenePos);
    press(&event);
    release(&event);
    disconnect(connection);
    return made;
}

QRectF CreationTool::dragRect() const
{
    return QRectF(m_start, m_end).normalized();
}

bool CreationTool::follow(const QGraphicsSceneMouseEvent &event)
{
    const QPointF way = possibleWay(event.scenePos() - m_start);
    const double clickDistance = clickPixels / m_object->getCurZoomRate();
    m_dragged = m_dragged || std::hypot(way.x(), way.y()) >= clickDistance;
    if (m_dragged)
        m_end = m_start + (event.modifiers().testFlag(Qt::ShiftModifier) ? square(way) : way);
    return m_dragged;
}

void CreationTool::sendToObject(int eventType, const QGraphicsSceneMouseEvent &event)
{
    if (m_object->isCreateFinished()) {
        sizeFinishedObject(eventType);
        return;
    }
    QGraphicsSceneMouseEvent copy{QEvent::Type(eventType)};
    copyMouseEvent(event, *m_object, dragRect().bottomRight() - event.scenePos(), copy);
    copy.setModifiers(Qt::NoModifier);
    switch (eventType) {
    case QEvent::GraphicsSceneMousePress:
        m_object->mousePressEvent(&copy);
        break;
    case QEvent::GraphicsSceneMouseMove:
        m_object->mouseMoveEvent(&copy);
        break;
    default:
        m_object->mouseReleaseEvent(&copy);
        break;
    }
}

void CreationTool::sizeFinishedObject(int eventType)
{
    if (m_dragged)
        m_object->setSize(dragRect().size(), false, false);
    else if (eventType == QEvent::GraphicsSceneMouseRelease && m_object->getClientRect().isEmpty())
        m_object->setSize({plainSide, plainSide}, false, false);
}

void CreationTool::keepStartCorner()
{
    const QRectF rect = m_object->getClientRect();
    const double left = m_end.x() < m_start.x() ? rect.right() : rect.left();
    const double top = m_end.y() < m_start.y() ? rect.bottom() : rect.top();
    m_object->CPSRootObject::setPos(m_start - QPointF(left, top), false);
}

} // namespace pagehost
