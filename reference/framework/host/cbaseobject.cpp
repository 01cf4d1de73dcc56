#include <framework/cbaseobject.h>

#include <pagehost/pagescene.h>

#include <host/gripdrag.h>
#include <host/rootobjectprivate.h>

#include <QtGui/QKeyEvent>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>

namespace {

/// Host type of an object whose class does not give one of its own.
constexpr int plainObjectType = 1000;
/// Room for the pictures of a large screen full of objects, KB. Qt's own 10 MB are less than a window of small
/// objects takes; views would then paint every object anew each time.
constexpr int pictureRoom = 64 * 1024;

void makeRoomForPictures()
{
    if (QPixmapCache::cacheLimit() < pictureRoom) {
        QPixmapCache::setCacheLimit(pictureRoom);
    }
}

} // namespace

CBaseObject::CBaseObject(int kind, bool selectable, QGraphicsItem *parent, IPsPage *page)
    : QGraphicsTextItem(parent)
    , CPSRootObject(page, this)
    , m_kind(kind)
{
    setFlag(ItemIsSelectable, selectable);
    setFlag(ItemSendsGeometryChanges);
    // Views keep a picture of each object and paint it anew after update(): an untouched page costs next to
    // nothing.
    setCacheMode(DeviceCoordinateCache);
    makeRoomForPictures();
}

CBaseObject::~CBaseObject() = default;

QRectF CBaseObject::boundingRect() const
{
    return CPSRootObjectPrivate::currentBounds(const_cast<CBaseObject &>(*this));
}

QPainterPath CBaseObject::shape() const
{
    const QPainterPath region = CPSRootObjectPrivate::currentRegion(const_cast<CBaseObject &>(*this));
    if (!region.isEmpty()) {
        return region;
    }
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
    OnQPainterDraw(painter);
}

int CBaseObject::type() const
{
    return UserType + plainObjectType;
}

void CBaseObject::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
}

void CBaseObject::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
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
    pagehost::PageScene *scene = CPSRootObjectPrivate::pageScene(*this);
    switch (change) {
    case ItemSelectedHasChanged:
        CPSRootObjectPrivate::dropPaintedArea(*this);
        break;
    case ItemPositionHasChanged:
    case ItemRotationHasChanged:
    case ItemVisibleHasChanged:
    case ItemZValueHasChanged:
    case ItemOpacityHasChanged:
        CPSRootObjectPrivate::noteChange(*this);
        break;
    default:
        return QGraphicsTextItem::itemChange(change, value);
    }
    if (scene) {
        scene->updateOverlay();
    }
    return QGraphicsTextItem::itemChange(change, value);
}

void CBaseObject::regenRegionShape(QGraphicsItem *item)
{
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
