#include <host/handlelayout.h>

#include <framework/cpsrootobject.h>

#include <cmath>

namespace {

/// On objects smaller than this on screen, presses inside go to the object.
constexpr double smallObjectPixels = 3 * HandleLayout::hitRadiusPixels;

double distance(const QPointF &from, const QPointF &to)
{
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

OperationType operationOf(CObjAction::ACT_Def handle)
{
    if (HandleLayout::isResize(handle))
        return OperationResize;
    return handle == CObjAction::ACT_Rotate ? OperationRotate : OperationMirror;
}

} // namespace

HandleLayout::HandleLayout(const QRectF &clientRect, double zoom)
    : m_rect(clientRect)
    , m_zoom(std::isfinite(zoom) && zoom > 0 ? zoom : 1)
{
}

const QVector<CObjAction::ACT_Def> &HandleLayout::handles()
{
    static const QVector<CObjAction::ACT_Def> all{
        CObjAction::ACT_ResizeTop,        CObjAction::ACT_ResizeLeft,        CObjAction::ACT_ResizeRight,
        CObjAction::ACT_ResizeBottom,     CObjAction::ACT_ResizeTopLeft,     CObjAction::ACT_ResizeTopRight,
        CObjAction::ACT_ResizeBottomLeft, CObjAction::ACT_ResizeBottomRight, CObjAction::ACT_Rotate,
        CObjAction::ACT_MirrorHorizontal, CObjAction::ACT_MirrorVertical};
    return all;
}

bool HandleLayout::isResize(CObjAction::ACT_Def handle)
{
    return handle >= CObjAction::ACT_ResizeTopLeft && handle <= CObjAction::ACT_ResizeBottomRight;
}

QPoint HandleLayout::side(CObjAction::ACT_Def handle)
{
    switch (handle) {
    case CObjAction::ACT_ResizeTopLeft:
        return {-1, -1};
    case CObjAction::ACT_ResizeTop:
    case CObjAction::ACT_Rotate:
        return {0, -1};
    case CObjAction::ACT_ResizeTopRight:
        return {1, -1};
    case CObjAction::ACT_ResizeLeft:
        return {-1, 0};
    case CObjAction::ACT_ResizeRight:
    case CObjAction::ACT_MirrorHorizontal:
        return {1, 0};
    case CObjAction::ACT_ResizeBottomLeft:
        return {-1, 1};
    case CObjAction::ACT_ResizeBottom:
    case CObjAction::ACT_MirrorVertical:
        return {0, 1};
    case CObjAction::ACT_ResizeBottomRight:
        return {1, 1};
    default:
        return {0, 0};
    }
}

QPointF HandleLayout::position(CObjAction::ACT_Def handle) const
{
    const QPointF towards(side(handle));
    const double stem = isResize(handle) ? 0 : fromPixels(stemPixels);
    const QRectF around = frame();
    return {around.center().x() + towards.x() * (around.width() / 2 + stem),
            around.center().y() + towards.y() * (around.height() / 2 + stem)};
}

CObjAction::ACT_Def HandleLayout::hit(const QPointF &itemPos, const QVector<CObjAction::ACT_Def> &enabled) const
{
    const bool isSmall = qMin(m_rect.width(), m_rect.height()) < fromPixels(smallObjectPixels);
    if (isSmall && m_rect.contains(itemPos))
        return CObjAction::ACT_None;
    CObjAction::ACT_Def nearest = CObjAction::ACT_None;
    double best = fromPixels(hitRadiusPixels);
    for (const CObjAction::ACT_Def handle : enabled) {
        const double away = distance(position(handle), itemPos);
        if (away <= best) {
            best = away;
            nearest = handle;
        }
    }
    return nearest;
}

QRectF HandleLayout::frame() const
{
    const double margin = fromPixels(frameMarginPixels);
    return m_rect.adjusted(-margin, -margin, margin, margin);
}

QRectF HandleLayout::bounds() const
{
    const double reach = fromPixels(stemPixels + hitRadiusPixels);
    return frame().adjusted(-reach, -reach, reach, reach);
}

QVector<CObjAction::ACT_Def> offeredHandles(CPSRootObject &object)
{
    QVector<CObjAction::ACT_Def> offered;
    for (const CObjAction::ACT_Def handle : HandleLayout::handles())
        if (!object.isHandleDisabled(handle) && object.canDo(operationOf(handle)))
            offered.append(handle);
    return offered;
}

QVector<CObjAction::ACT_Def> frameHandles()
{
    QVector<CObjAction::ACT_Def> handles;
    for (const CObjAction::ACT_Def handle : HandleLayout::handles())
        if (operationOf(handle) != OperationMirror)
            handles.append(handle);
    return handles;
}
