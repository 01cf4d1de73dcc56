#include <framework/cbaseobject.h>

#include <pagehost/pagescene.h>

#include <host/gripdrag.h>
#include <host/objectpage.h>
#include <host/rootobjectprivate.h>

#include <QtCore/QLineF>
#include <QtGui/QKeyEvent>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QGraphicsView>

#include <algorithm>
#include <cmath>

namespace {

/// Host type of objects whose class gives none.
constexpr int plainObjectType = 1000;
/// Room for the pictures of a large screen full of objects, KB. Qt's default of 10 MB is less than a window of
/// small objects needs; views would then repaint every object each time.
constexpr int pictureRoom = 64 * 1024;

/// Largest distance from whole pixels, in pixels, at which a cached picture still shows a moved object exactly.
constexpr double pixelTolerance = 1e-3;

bool isWhole(double pixels)
{
    return std::abs(pixels - std::round(pixels)) < pixelTolerance;
}

/// Whether a cached picture of the object can be shown elsewhere: its edges keep their position between pixels.
/// `delta` in scene units.
bool movesByWholePixels(const CBaseObject &object, const QPointF &delta)
{
    const QList<QGraphicsView *> views = object.scene() ? object.scene()->views() : QList<QGraphicsView *>();
    return std::all_of(views.begin(), views.end(), [&](const QGraphicsView *view) {
        const QLineF way = view->transform().map(QLineF(QPointF(0, 0), delta));
        const double ratio = view->devicePixelRatioF();
        return isWhole(way.dx() * ratio) && isWhole(way.dy() * ratio);
    });
}

void makeRoomForPictures()
{
    if (QPixmapCache::cacheLimit() < pictureRoom)
        QPixmapCache::setCacheLimit(pictureRoom);
}

} // namespace

CBaseObject::CBaseObject(int kind, bool selectable, QGraphicsItem *parent, IPsPage *page)
    : QGraphicsTextItem(parent)
    , CPSRootObject(page, this)
    , m_kind(kind)
{
    setFlag(ItemIsSelectable, selectable);
    setFlag(ItemSendsGeometryChanges);
    // Views cache a picture of each object and repaint it after update(), so an untouched page costs next to
    // nothing.
    setCacheMode(DeviceCoordinateCache);
    makeRoomForPictures();
}

CBaseObject::~CBaseObject() = default;

QRectF CBaseObject::boundingRect() const
{
    auto &object = const_cast<CBaseObject &>(*this);
    return CPSRootObjectPrivate::of(object).bounds.rectangle(object);
}

QPainterPath CBaseObject::shape() const
{
    auto &object = const_cast<CBaseObject &>(*this);
    const QPainterPath region = CPSRootObjectPrivate::of(object).bounds.region(object);
    if (!region.isEmpty())
        return region;
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
    CPSRootObjectPrivate &host = CPSRootObjectPrivate::of(*this);
    host.isPainting = true;
    OnQPainterDraw(painter);
    host.isPainting = false;
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
    CPSRootObjectPrivate &host = CPSRootObjectPrivate::of(*this);
    pagehost::PageScene *scene = pageSceneOf(*this);
    switch (change) {
    case ItemPositionChange:
        if (!movesByWholePixels(*this, value.toPointF() - pos()))
            host.dropPicture();
        return QGraphicsTextItem::itemChange(change, value);
    case ItemSelectedHasChanged:
        host.dropPaintedArea();
        host.dropPicture();
        break;
    case ItemPositionHasChanged:
    case ItemRotationHasChanged:
    case ItemVisibleHasChanged:
    case ItemZValueHasChanged:
    case ItemOpacityHasChanged:
        noteChange(*this);
        break;
    default:
        return QGraphicsTextItem::itemChange(change, value);
    }
    if (scene)
        scene->updateOverlay();
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
