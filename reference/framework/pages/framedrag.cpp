#include <pages/framedrag.h>

#include <framework/cbaseobject.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
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

QPointF centreOf(const GeometrySnapshot &snapshot)
{
    const QRectF rect({0, 0}, snapshot.size());
    return snapshot.pos() + rotated(rect.center(), snapshot.rotation());
}

void putCentre(CBaseObject &object, const QPointF &centre)
{
    object.CPSRootObject::setPos(centre - rotated(object.getClientRect().center(), object.rotation()), true);
}

/// Of an object whose page grows by these factors along its axes; an object that is turned can't become oblique.
QSizeF grownSize(const GeometrySnapshot &snapshot, double across, double down)
{
    const double angle = snapshot.rotation() / degreesPerRadian;
    const double ownAcross = std::hypot(across * std::cos(angle), down * std::sin(angle));
    const double ownDown = std::hypot(across * std::sin(angle), down * std::cos(angle));
    const QSizeF size(snapshot.size().width() * ownAcross, snapshot.size().height() * ownDown);
    return possibleSize(size).expandedTo({smallestSide, smallestSide});
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
    for (const GeometrySnapshot &snapshot : m_before) {
        CBaseObject &object = *snapshot.object();
        if (object.canDo(OperationResize))
            object.setSize(grownSize(snapshot, across, down), true, false);
        const QPointF away = centreOf(snapshot) - fixed;
        putCentre(object, fixed + QPointF(away.x() * across, away.y() * down));
    }
}

void FrameDrag::turn(const QPointF &scenePos, Qt::KeyboardModifiers modifiers)
{
    const QPointF centre = m_frame.center();
    const double wanted = angleOf(scenePos - centre) - angleOf(m_press - centre);
    m_degrees = normalizedDegrees(caughtTurn(wanted, modifiers, *m_before.first().object()));
    for (const GeometrySnapshot &snapshot : qAsConst(m_before)) {
        CBaseObject &object = *snapshot.object();
        if (object.canDo(OperationRotate)) {
            const double degrees = normalizedDegrees(snapshot.rotation() + m_degrees);
            object.setRotateByPoint(degrees, object.getClientRect().center(), true);
        }
        putCentre(object, centre + rotated(centreOf(snapshot) - centre, m_degrees));
    }
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
