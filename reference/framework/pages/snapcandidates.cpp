#include <pages/snapcandidates.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <host/controlpointplaces.h>
#include <host/followedobjects.h>

#include <QtCore/QSet>
#include <QtWidgets/QGraphicsView>

#include <algorithm>
#include <utility>

namespace pagehost {

namespace {

constexpr size_t mostPartners = 64;

/// The whole page where no view shows a part of it.
QRectF visibleArea(const Page &page)
{
    QRectF area;
    const QList<QGraphicsView *> views = page.scene()->views();
    for (const QGraphicsView *view : views)
        if (view->isVisible())
            area |= view->mapToScene(view->viewport()->rect()).boundingRect();
    return area.isNull() ? page.rect() : area;
}

bool followsOthers(CBaseObject &object)
{
    const auto numbers = followedObjects(object);
    return numbers && std::any_of(numbers->begin(), numbers->end(), [](quint32 number) { return number != 0; });
}

/// Square of the distance between two boxes; 0 where they meet.
double distanceOf(const QRectF &one, const QRectF &other)
{
    const double across = std::max({0.0, other.left() - one.right(), one.left() - other.right()});
    const double down = std::max({0.0, other.top() - one.bottom(), one.top() - other.bottom()});
    return across * across + down * down;
}

QVector<QPointF> pointsOf(CBaseObject &object)
{
    QVector<QPointF> points;
    const QVector<ConnectionPlace> places = connectionPlaces(object);
    for (const ConnectionPlace &place : places)
        points.append(place.point);
    const QVector<ControlPointPlace> controlPoints = controlPointPlaces(object);
    for (const ControlPointPlace &place : controlPoints)
        points.append(place.centre);
    return points;
}

} // namespace

SnapCandidates::SnapCandidates(const Page &page, const QVector<CBaseObject *> &moving)
{
    const QRectF visible = visibleArea(page);
    const QSet<CBaseObject *> dragged(moving.begin(), moving.end());
    const QVector<CBaseObject *> objects = page.objects();
    for (CBaseObject *object : objects) {
        if (!object->isVisible() || dragged.contains(object))
            continue;
        const QRectF box = boundsOf({object});
        if (visible.intersects(box) && !followsOthers(*object))
            m_candidates.push_back({object, box, std::nullopt});
    }
}

QVector<SnapPartner> SnapCandidates::nearest(const QRectF &box)
{
    std::vector<std::pair<double, size_t>> order;
    order.reserve(m_candidates.size());
    for (size_t i = 0; i < m_candidates.size(); ++i)
        order.emplace_back(distanceOf(m_candidates[i].box, box), i);
    const size_t count = std::min(order.size(), mostPartners);
    std::partial_sort(order.begin(), order.begin() + std::ptrdiff_t(count), order.end());

    QVector<SnapPartner> partners;
    partners.reserve(int(count));
    for (size_t i = 0; i < count; ++i) {
        Candidate &candidate = m_candidates[order[i].second];
        if (!candidate.points)
            candidate.points = pointsOf(*candidate.object);
        partners.append({candidate.box, *candidate.points});
    }
    return partners;
}

void SnapCandidates::forget(const CBaseObject *object)
{
    const auto isIt = [object](const Candidate &candidate) { return candidate.object == object; };
    m_candidates.erase(std::remove_if(m_candidates.begin(), m_candidates.end(), isIt), m_candidates.end());
}

} // namespace pagehost
