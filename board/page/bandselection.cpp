#include "page/bandselection.h"

#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtCore/QLineF>
#include <QtWidgets/QGraphicsView>

namespace board {

BandSelection::BandSelection(QGraphicsView *view)
    : m_view(view)
    , m_band(QRubberBand::Rectangle, view->viewport())
{
}

void BandSelection::begin(pagehost::Page *page, const QPoint &pos, bool extend, double least)
{
    m_page = page;
    m_start = pos;
    m_least = least;
    m_before = page->selectedObjects();
    m_kept = extend ? m_before : QVector<CBaseObject *>();
    m_band.hide();
}

void BandSelection::moveTo(const QPoint &pos)
{
    if (!isActive())
        return;
    if (!isBand() && QLineF(m_start, pos).length() < m_least)
        return;
    m_band.setGeometry(QRect(m_start, pos).normalized());
    m_band.show();
    selectTouched();
}

void BandSelection::finish()
{
    m_band.hide();
    m_page = nullptr;
    m_before.clear();
    m_kept.clear();
}

void BandSelection::cancel()
{
    if (!isActive())
        return;
    m_page->select(m_before);
    finish();
}

void BandSelection::selectTouched()
{
    QPainterPath area;
    area.addPolygon(m_view->mapToScene(m_band.geometry()));
    area.closeSubpath();
    QVector<CBaseObject *> selected = m_kept;
    const QVector<CBaseObject *> objects = m_page->objects();
    for (CBaseObject *object : objects) {
        // The rectangles decide most cases, and cheaply.
        const bool touched = object->isVisible() && !object->isLocked() &&
                             object->sceneBoundingRect().intersects(area.boundingRect()) &&
                             object->mapToScene(object->shape()).intersects(area);
        if (!touched || selected.contains(object))
            continue;
        const QVector<CBaseObject *> unit = m_page->unitOf(object);
        for (CBaseObject *member : unit)
            if (!selected.contains(member))
                selected.append(member);
    }
    if (selected != m_page->selectedObjects())
        m_page->select(selected);
}

} // namespace board
