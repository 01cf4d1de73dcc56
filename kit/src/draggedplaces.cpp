#include <shapekit/draggedplaces.h>

#include <algorithm>

namespace shapekit {

namespace {

/// Two for each drag; undoing more drags than that across a change of zoom is off by a pixel or two.
constexpr int mostPlaces = 1000;
/// Document units; corners nearer than this are the same.
constexpr double cornerEpsilon = 1e-6;

bool isSameCorner(QPointF a, QPointF b)
{
    return (a - b).manhattanLength() < cornerEpsilon;
}

} // namespace

void DraggedPlaces::noteDrag(QPointF start, const QRectF &place)
{
    if (!m_places.isEmpty() && m_start == start) {
        m_places.last() = place;
        return;
    }
    m_start = start;
    append(QRectF(start, place.size()));
    append(place);
}

QPointF DraggedPlaces::meantCentre(const QRectF &place) const
{
    const auto isThere = [&](const QRectF &known) { return isSameCorner(known.topLeft(), place.topLeft()); };
    const auto found = std::find_if(m_places.crbegin(), m_places.crend(), isThere);
    return QRectF(place.topLeft(), found == m_places.crend() ? place.size() : found->size()).center();
}

void DraggedPlaces::append(const QRectF &place)
{
    if (m_places.size() == mostPlaces)
        m_places.removeFirst();
    m_places.append(place);
}

} // namespace shapekit
