#include <host/handlelayout.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr HandleSizes usualSizes{24, 9, {14, 6}, 20, 28, 12};
constexpr HandleSizes largeSizes{44, 16, {26, 10}, 36, 44, 20};
/// A side shorter than so many hit areas has no handle in its middle.
constexpr double hitSizesOfASide = 3;
/// Nor has one with a control point this near to it, pixels.
constexpr double pointDistance = 12;
/// Distances that differ by less are equal, pixels.
constexpr double tie = 1e-6;

double distance(const QPointF &from, const QPointF &to)
{
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

} // namespace

HandleLayout::HandleLayout(const QRectF &clientRect, double zoom, bool isLarge)
    : m_rect(clientRect)
    , m_zoom(std::isfinite(zoom) && zoom > 0 ? zoom : 1)
    , m_sizes(isLarge ? largeSizes : usualSizes)
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

bool HandleLayout::isSide(CObjAction::ACT_Def handle)
{
    return isResize(handle) && (side(handle).x() == 0 || side(handle).y() == 0);
}

int HandleLayout::rank(CObjAction::ACT_Def handle)
{
    if (!isResize(handle))
        return 3;
    return isSide(handle) ? 2 : 1;
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
    const double stem = isResize(handle) ? 0 : fromPixels(m_sizes.stem);
    const QRectF around = frame();
    return {around.center().x() + towards.x() * (around.width() / 2 + stem),
            around.center().y() + towards.y() * (around.height() / 2 + stem)};
}

bool HandleLayout::isHidden(CObjAction::ACT_Def handle, const QVector<QPointF> &points) const
{
    if (!isSide(handle))
        return false;
    const double length = side(handle).x() == 0 ? frame().width() : frame().height();
    const QPointF centre = position(handle);
    const double least = fromPixels(pointDistance);
    return length < fromPixels(hitSizesOfASide * m_sizes.hit) ||
           std::any_of(points.begin(), points.end(),
                       [&](const QPointF &point) { return distance(centre, point) <= least; });
}

QVector<CObjAction::ACT_Def> HandleLayout::unhidden(const QVector<CObjAction::ACT_Def> &handles,
                                                    const QVector<QPointF> &points) const
{
    QVector<CObjAction::ACT_Def> shown;
    std::copy_if(handles.begin(), handles.end(), std::back_inserter(shown),
                 [&](CObjAction::ACT_Def handle) { return !isHidden(handle, points); });
    return shown;
}

HandleLayout::Hit HandleLayout::hit(const QPointF &itemPos, const QVector<CObjAction::ACT_Def> &shown,
                                    double hitSize) const
{
    Hit nearest;
    for (const CObjAction::ACT_Def handle : shown) {
        const double away = distance(position(handle), itemPos) * m_zoom;
        const bool isFirst = nearest.handle == CObjAction::ACT_None;
        const bool isEqual = std::abs(away - nearest.distance) < tie;
        if (away > hitSize / 2)
            continue;
        if (isFirst || (isEqual ? rank(handle) < rank(nearest.handle) : away < nearest.distance))
            nearest = {handle, away};
    }
    const bool isBody =
        m_rect.contains(itemPos) && distance(m_rect.center(), itemPos) * m_zoom < nearest.distance - tie;
    return isBody ? Hit() : nearest;
}

QRectF HandleLayout::frame() const
{
    const double least = fromPixels(m_sizes.hit);
    const double margin = fromPixels(frameMarginPixels);
    const double across = std::max(margin, (least - m_rect.width()) / 2);
    const double down = std::max(margin, (least - m_rect.height()) / 2);
    return m_rect.adjusted(-across, -down, across, down);
}

QRectF HandleLayout::bounds() const
{
    const double reach = fromPixels(m_sizes.stem + m_sizes.hit / 2);
    return frame().adjusted(-reach, -reach, reach, reach);
}
