#include "recordingframework.h"
#include "rootrecord.h"

#include <framework/cbaseobject.h>
#include <recordinghost/log/calllog.h>

#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

void log(const char *operation, const QVariantList &arguments = {})
{
    recording::log(QStringLiteral("object"), operation, arguments);
}

} // namespace

CBaseObject::CBaseObject(int kind, bool selectable, QGraphicsItem *parent, IPsPage *page)
    : QGraphicsTextItem(parent)
    , CPSRootObject(page, this)
    , m_kind(kind)
{
    log("CBaseObject", {kind, selectable, parent != nullptr, page != nullptr});
    setFlag(ItemIsSelectable, selectable);
    setFlag(ItemIsMovable, selectable);
}

CBaseObject::~CBaseObject() = default;

QRectF CBaseObject::boundingRect() const
{
    return clientRect;
}

QPainterPath CBaseObject::shape() const
{
    if (regionPath)
        return *regionPath;
    QPainterPath path;
    path.addRect(clientRect);
    return path;
}

bool CBaseObject::contains(const QPointF &point) const
{
    return shape().contains(point);
}

void CBaseObject::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    log("paint");
    OnQPainterDraw(painter);
}

int CBaseObject::type() const
{
    return UserType + 1;
}

void CBaseObject::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    log("mousePressEvent", {event->pos()});
}

void CBaseObject::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    log("mouseMoveEvent", {event->pos()});
}

void CBaseObject::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    log("mouseReleaseEvent", {event->pos()});
}

void CBaseObject::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    log("mouseDoubleClickEvent", {event->pos()});
}

void CBaseObject::keyPressEvent(QKeyEvent *)
{
    log("keyPressEvent");
}

QString CBaseObject::getObjName()
{
    return CPSRootObject::getObjName();
}

void CBaseObject::OnQPainterDraw(QPainter *painter)
{
    CPSRootObject::OnQPainterDraw(painter);
}

bool CBaseObject::canDo(OperationType operation)
{
    return CPSRootObject::canDo(operation);
}

bool CBaseObject::save(QDataStream &out)
{
    return CPSRootObject::save(out);
}

bool CBaseObject::load(QDataStream &in)
{
    return CPSRootObject::load(in);
}

bool CBaseObject::saveJson(QJsonObject &object)
{
    return CPSRootObject::saveJson(object);
}

bool CBaseObject::loadJson(QJsonObject &object)
{
    return CPSRootObject::loadJson(object);
}

void CBaseObject::setSize(QSizeF size, bool flag, bool redraw)
{
    CPSRootObject::setSize(size, flag, redraw);
}

QVariant CBaseObject::itemChange(GraphicsItemChange change, const QVariant &value)
{
    log("itemChange", {int(change)});
    return QGraphicsTextItem::itemChange(change, value);
}

void CBaseObject::regenRegionShape(QGraphicsItem *item)
{
    log("CBaseObject::regenRegionShape");
    CPSRootObject::regenRegionShape(item);
}

int CBaseObject::GetType() const
{
    return type() - UserType;
}

int CBaseObject::kind() const
{
    return m_kind;
}

QGraphicsItem *CBaseObject::GetGraphicsItemPtr()
{
    return this;
}
