#include "page/nudging.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

namespace board {

namespace {

constexpr double usualStep = 8;
constexpr double fineStep = 1;
constexpr double stepsWithShift = 10;

QVector<CBaseObject *> movable(const pagehost::Page *page)
{
    QVector<CBaseObject *> objects;
    const QVector<CBaseObject *> selected = page->selectedObjects();
    for (CBaseObject *object : selected)
        if (!object->isLocked())
            objects.append(object);
    return objects;
}

QVector<CBaseObject *> objectsOf(const QVector<pagehost::GeometrySnapshot> &snapshots)
{
    QVector<CBaseObject *> objects;
    for (const pagehost::GeometrySnapshot &snapshot : snapshots)
        objects.append(snapshot.object());
    return objects;
}

} // namespace

double keyStep(const pagehost::Page &page, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::AltModifier)
        return fineStep;
    const double grid = page.scene()->grid();
    const double step = grid > 0 ? grid : usualStep;
    return modifiers & Qt::ShiftModifier ? stepsWithShift * step : step;
}

bool Nudging::move(pagehost::Page *page, const QPointF &delta)
{
    const QVector<CBaseObject *> objects = movable(page);
    if (objects.isEmpty())
        return false;
    if (objectsOf(m_before) != objects) {
        finish();
        m_before = pagehost::takeSnapshots(objects, pagehost::GeometrySnapshot::PlaceOnly);
    }
    for (CBaseObject *object : objects)
        object->setPos(object->getPos() + delta, true);
    return true;
}

void Nudging::finish()
{
    if (m_before.isEmpty())
        return;
    pagehost::pushGeometryChange(m_before, QStringLiteral("IDS_BOARD_NUDGE"));
    m_before.clear();
}

} // namespace board
