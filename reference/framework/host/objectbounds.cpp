#include <host/objectbounds.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectplugin.h>

#include <host/geometry.h>
#include <host/handlelayout.h>

#include <QtCore/QDataStream>
#include <QtGui/QPainterPath>

namespace {

/// Margin for lines and labels beyond the client rectangle of an object that gives no painted area, item units.
constexpr double overhang = 8;

/// The object's answer to pagehost::PaintedArea; empty without an answer, or for one that is not a rectangle.
QRectF askedPaintedArea(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::PaintedArea, out))
        return {};
    QRectF area;
    QDataStream in(bytes);
    in >> area;
    return isFinite(area) ? area : QRectF();
}

} // namespace

QRectF ObjectBounds::rectangle(CBaseObject &object)
{
    if (m_rectangleIsStale) {
        m_rectangleIsStale = false;
        m_rectangle = wanted(object);
    }
    return m_rectangle;
}

QPainterPath ObjectBounds::region(CBaseObject &object)
{
    if (m_regionIsStale && object.isCreateFinished()) {
        m_isFixed = true;
        object.regenRegionShape(nullptr);
        m_isFixed = false;
    }
    return object.getRegionPath() ? *object.getRegionPath() : QPainterPath();
}

bool ObjectBounds::refresh(CBaseObject &object, const std::function<void()> &aboutToChange)
{
    if (m_isFixed)
        return false;
    m_rectangleIsStale = !object.scene();
    if (m_rectangleIsStale)
        return false;
    const QRectF next = wanted(object);
    if (next == m_rectangle)
        return false;
    aboutToChange();
    m_rectangle = next;
    return true;
}

void ObjectBounds::dropRegion()
{
    m_regionIsStale = true;
    dropPaintedArea();
}

QRectF ObjectBounds::wanted(CBaseObject &object)
{
    if (!m_paintedArea)
        m_paintedArea = askedPaintedArea(object);
    QRectF bounds = object.getClientRect().united(*m_paintedArea);
    if (m_paintedArea->isEmpty()) {
        const double margin = m_regionIsStale ? overhang : 0;
        bounds.adjust(-margin, -margin, margin, margin);
        // It may show an earlier look, but is the best one known.
        const QPainterPath *region = object.getRegionPath();
        bounds = region ? bounds.united(region->controlPointRect()) : bounds;
    }
    // Control points may extend beyond the rectangle by half their size, whatever that is on screen.
    const double reach = object.isSelected() ? HandleLayout::controlPointPixels : 1;
    const double margin = HandleLayout(object.getClientRect(), object.getCurZoomRate()).fromPixels(reach);
    return bounds.adjusted(-margin, -margin, margin, margin);
}
