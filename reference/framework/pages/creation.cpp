#include <pagehost/creation.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <pages/creationcourse.h>
#include <pages/snapper.h>

#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace pagehost {

namespace {

/// Side of an object without a default size that is made by a click, scene units.
constexpr double plainSide = 100;

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
        m_scene->snapper().clearGuides();
        m_scene->endSnapping();
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
    m_course.reset();
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
    m_course = std::make_unique<CreationCourse>(pointer, m_scene->snapper());
    m_object->SetPage(m_scene->page());
    m_object->setZValue(m_scene->page()->objectCount());
    m_object->CPSRootObject::setPos(m_course->start(), false);
    m_scene->addItem(m_object);
    sendToObject(QEvent::GraphicsSceneMousePress);
}

void CreationTool::move(const ToolPointer &pointer)
{
    if (!m_object || !m_course->follow(pointer))
        return;
    m_object->CPSRootObject::setPos(m_course->box().topLeft(), false);
    sendToObject(QEvent::GraphicsSceneMouseMove);
    keepStart();
    m_course->showGuides(boundsOf({m_object}));
    m_scene->updateGuides();
}

void CreationTool::release(const ToolPointer &pointer)
{
    if (!m_object)
        return;
    m_course->follow(pointer);
    m_object->CPSRootObject::setPos(m_course->box().topLeft(), false);
    sendToObject(QEvent::GraphicsSceneMouseRelease);
    keepStart();
    m_scene->endSnapping();
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
    pointer.modifiers = Qt::AltModifier; // the place is given: it does not snap
    press(pointer);
    release(pointer);
    disconnect(connection);
    return made;
}

void CreationTool::sendToObject(int eventType)
{
    if (m_object->isCreateFinished()) {
        sizeFinishedObject(eventType);
        return;
    }
    QGraphicsSceneMouseEvent event{QEvent::Type(eventType)};
    event.setScenePos(m_course->box().bottomRight());
    event.setPos(m_object->mapFromScene(event.scenePos()));
    event.setButtonDownScenePos(Qt::LeftButton, m_course->start());
    event.setButtonDownPos(Qt::LeftButton, m_object->mapFromScene(m_course->start()));
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
    if (m_course->isDrag())
        m_object->setSize(m_course->box().size(), false, false);
    else if (eventType == QEvent::GraphicsSceneMouseRelease && m_object->getClientRect().isEmpty())
        m_object->setSize({plainSide, plainSide}, false, false);
}

/// The object may have chosen another size.
void CreationTool::keepStart()
{
    m_object->CPSRootObject::setPos(m_course->placeOf(m_object->getClientRect()), false);
}

} // namespace pagehost
