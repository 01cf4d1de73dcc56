#include <pages/framedrag.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/objectframe.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <host/geometry.h>
#include <host/handlelayout.h>
#include <host/turncatch.h>

#include <algorithm>
#include <cmath>

namespace pagehost {

namespace {

constexpr double smallestSide = 1;
constexpr double degreesPerRadian = 180 / 3.14159265358979323846;

double angleOf(const QPointF &vector)
{
    return std::atan2(vector.y(), vector.x()) * degreesPerRadian;
}

/// How many times as long a side becomes.
double growthOf(double length, double change)
{
    return length > 0 ? qBound(smallestSide, length + change, longestSide) / length : 1;
}

} // namespace

QVector<CBaseObject *> framedObjects(const Page &page)
{
    QVector<CBaseObject *> objects;
    const QVector<CBaseObject *> selected = page.selectedObjects();
    for (CBaseObject *object : selected)
        if (!object->isLocked() && object->canDo(OperationMove))
            objects.append(object);
    return objects.size() > 1 ? objects : QVector<CBaseObject *>();
}

HandleLayout layoutOfFrame(const QVector<CBaseObject *> &objects)
{
    const CBaseObject *any = objects.first();
    const auto *scene = dynamic_cast<const PageScene *>(any->scene());
    return {boundsOf(objects), any->getCurZoomRate(), scene && scene->hasLargeHandles()};
}

FrameDrag::FrameDrag(const QVector<CBaseObject *> &objects, CObjAction::ACT_Def handle, const QPointF &press)
    : m_handle(handle)
    , m_press(press)
    , m_frame(boundsOf(objects))
{
    const bool isResize = HandleLayout::isResize(handle);
    m_before = takeSnapshots(objects, isResize ? GeometrySnapshot::WithContent : GeometrySnapshot::PlaceOnly);
}

bool FrameDrag::contains(const CBaseObject *object) const
{
    const auto isIt = [object](const GeometrySnapshot &snapshot) { return snapshot.object() == object; };
    return std::any_of(m_before.begin(), m_before.end(), isIt);
}

void FrameDrag::moveTo(const QPointF &scenePos, Qt::KeyboardModifiers modifiers)
{
    // A click must not even change last digits.
    m_moved = m_moved || scenePos != m_press;
    if (!m_moved)
        return;
    if (HandleLayout::isResize(m_handle))
        scale(scenePos - m_press);
    else
        turn(scenePos, modifiers);
}

void FrameDrag::scale(const QPointF &way) const
{
    const QPointF side(HandleLayout::side(m_handle));
    const double across = growthOf(m_frame.width(), side.x() * way.x());
    const double down = growthOf(m_frame.height(), side.y() * way.y());
    const QPointF fixed = m_frame.center() - QPointF(side.x() * m_frame.width(), side.y() * m_frame.height()) / 2;
    scaleTogether(m_before, fixed, across, down);
}

void FrameDrag::turn(const QPointF &scenePos, Qt::KeyboardModifiers modifiers)
{
    const QPointF centre = m_frame.center();
    const double wanted = angleOf(scenePos - centre) - angleOf(m_press - centre);
    m_degrees = normalizedDegrees(caughtTurn(wanted, modifiers, *m_before.first().object()));
    turnTogether(m_before, centre, m_degrees);
}

void FrameDrag::finish() const
{
    const bool isResize = HandleLayout::isResize(m_handle);
    pushGeometryChange(m_before, isResize ? QStringLiteral("IDS_UNDO_RESIZE") : QStringLiteral("IDS_UNDO_ROTATE"));
}

void FrameDrag::cancel() const
{
    for (const GeometrySnapshot &snapshot : m_before)
        snapshot.restore();
}

} // namespace pagehost
