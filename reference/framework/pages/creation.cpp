#include <pagehost/creation.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <host/geometry.h>

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
    m_scene->setTool(this);
    return true;
}

bool CreationTool::cancel()
{
    if (!isActive())
        return false;
    if (m_object) {
        m_scene->removeItem(m_object);
        m_object->SetPage(nullptr);
        m_object->deleteLater();
        m_object = nullptr;
    }
    stop();
    Q_EMIT cancelled();
    return true;
}

void CreationTool::stop()
{
    if (m_scene && m_scene->tool() == this)
        m_scene->setTool(nullptr);
    m_scene = nullptr;
    m_object = nullptr;
    m_kindId.clear();
}

void CreationTool::press(const ToolPointer &pointer)
{
    if (!isActive() || m_object)
        return;
    m_object = m_registry->createObject(m_kindId);
    if (!m_object) {
        cancel();
        return;
    }
    m_dragged = false;
    m_start = pointer.pos;
    m_end = m_start;
    m_object->SetPage(m_scene->page());
    m_object->setZValue(m_scene->page()->objectCount());
    m_object->CPSRootObject::setPos(m_start, false);
    m_scene->addItem(m_object);
    sendToObject(QEvent::GraphicsSceneMousePress);
}

void CreationTool::move(const ToolPointer &pointer)
{
    if (!m_object || !follow(pointer))
        return;
    m_object->CPSRootObject::setPos(dragRect().topLeft(), false);
    sendToObject(QEvent::GraphicsSceneMouseMove);
    keepStartCorner();
}

void CreationTool::release(const ToolPointer &pointer)
{
    if (!m_object)
        return;
    follow(pointer);
    m_object->CPSRootObject::setPos(dragRect().topLeft(), false);
    sendToObject(QEvent::GraphicsSceneMouseRelease);
    keepStartCorner();
    if (!m_object->isCreateFinished()) {
        cancel();
        return;
    }
    CBaseObject *object = m_object;
    Page *page = m_scene->page();
    stop();
    Q_EMIT finishing(object);
    addObjects(page, {object});
    Q_EMIT created(object);
}

CBaseObject *CreationTool::createAt(PageScene *scene, const QString &kindId, const QPointF &scenePos)
{
    if (!begin(scene, kindId))
        return nullptr;
    CBaseObject *made = nullptr;
    const auto take = [&made](CBaseObject *object) { made = object; };
    const auto connection = connect(this, &CreationTool::created, this, take); // ends before `made` does
    ToolPointer pointer;
    pointer.pos = scenePos;
    press(pointer);
    release(pointer);
    disconnect(connection);
    return made;
}

QRectF CreationTool::dragRect() const
{
    return QRectF(m_start, m_end).normalized();
}

bool CreationTool::follow(const ToolPointer &pointer)
{
    const QPointF way = possibleWay(pointer.pos - m_start);
    const double clickDistance = clickPixels / m_object->getCurZoomRate();
    m_dragged = m_dragged || std::hypot(way.x(), way.y()) >= clickDistance;
    if (m_dragged)
        m_end = m_start + (pointer.modifiers.testFlag(Qt::ShiftModifier) ? square(way) : way);
    return m_dragged;
}

void CreationTool::sendToObject(int eventType)
{
    if (m_object->isCreateFinished()) {
        sizeFinishedObject(eventType);
        return;
    }
    QGraphicsSceneMouseEvent event{QEvent::Type(eventType)};
    event.setScenePos(dragRect().bottomRight());
    event.setPos(m_object->mapFromScene(event.scenePos()));
    event.setButtonDownScenePos(Qt::LeftButton, m_start);
    event.setButtonDownPos(Qt::LeftButton, m_object->mapFromScene(m_start));
    event.setButton(eventType == QEvent::GraphicsSceneMouseMove ? Qt::NoButton : Qt::LeftButton);
    event.setButtons(eventType == QEvent::GraphicsSceneMouseRelease ? Qt::NoButton : Qt::LeftButton);
    switch (eventType) {
    case QEvent::GraphicsSceneMousePress:
        m_object->mousePressEvent(&event);
        break;
    case QEvent::GraphicsSceneMouseMove:
        m_object->mouseMoveEvent(&event);
        break;
    default:
        m_object->mouseReleaseEvent(&event);
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
