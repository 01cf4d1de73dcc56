#include "ink/tools/erasertool.h"

#include "ink/core/ink.h"
#include "ink/core/strokepath.h"
#include "ink/tools/steptexts.h"
#include "ink/tools/tipcursor.h"

#include <shapekit/kind.h>

#include <framework/cbaseobject.h>

#include <QtCore/QLineF>

namespace ink {

EraserTool::EraserTool(pagehost::ToolPage *page, const shapekit::Kind &kind)
    : m_page(page)
    , m_kind(kind)
{
}

QCursor EraserTool::cursor(double pixel) const
{
    return tipCursor({}, m_style.width / pixel);
}

void EraserTool::press(const pagehost::ToolPointer &pointer)
{
    m_isRubbing = true;
    m_last = pointer.pos;
    rub(pointer);
}

void EraserTool::move(const pagehost::ToolPointer &pointer)
{
    if (m_isRubbing)
        rub(pointer);
}

void EraserTool::release(const pagehost::ToolPointer &pointer)
{
    if (!m_isRubbing)
        return;
    rub(pointer);
    m_isRubbing = false;
    m_page->commit(erasedText.key(&m_kind), pagehost::ToolPage::Stay);
}

bool EraserTool::cancel()
{
    if (!m_isRubbing)
        return false;
    m_isRubbing = false;
    m_page->revert();
    return true;
}

void EraserTool::rub(const pagehost::ToolPointer &pointer)
{
    const QLineF way(m_last, pointer.pos);
    m_last = pointer.pos;
    const bool isOther = pointer.modifiers.testFlag(Qt::ShiftModifier);
    const bool wholeStrokes = (m_style.variant == pagehost::WholeStrokes) != isOther;
    const double reach = m_style.width / 2;
    const QRectF area = QRectF(way.p1(), way.p2()).normalized().adjusted(-reach, -reach, reach, reach);
    const QVector<CBaseObject *> objects = m_page->objectsIn(area);
    for (CBaseObject *object : objects)
        if (!object->isLocked())
            rubOut(object, way, wholeStrokes);
}

void EraserTool::rubOut(CBaseObject *object, const QLineF &way, bool wholeStroke)
{
    Ink *stroke = Ink::of(object);
    if (!stroke)
        return;
    const QVector<StrokePoint> points = stroke->scenePoints();
    const double reach = m_style.width / 2 + (wholeStroke ? stroke->sceneWidth() / 2 : 0);
    if (!touches(points, way, reach))
        return;
    const auto parts = wholeStroke ? QVector<QVector<StrokePoint>>() : partsBeside(points, way, reach);
    for (const QVector<StrokePoint> &part : parts) {
        CBaseObject *rest = m_page->createObject(m_kind.id());
        if (Ink *piece = Ink::of(rest)) {
            piece->begin(part, stroke->getPenColor(), stroke->sceneWidth());
            m_page->add(rest, object);
        }
    }
    m_page->remove(object);
}

} // namespace ink
