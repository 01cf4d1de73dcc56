#include "ink/tools/pentool.h"

#include "ink/core/ink.h"
#include "ink/core/strokefit.h"
#include "ink/tools/steptexts.h"
#include "ink/tools/tipcursor.h"

#include <shapekit/kind.h>

#include <QtGui/QPolygonF>

#include <algorithm>
#include <cmath>

namespace ink {

namespace {

constexpr int highlighterAlpha = 110;
constexpr int holdingTime = 500;
/// Nearer points say nothing about the line, pixels.
constexpr double shortestStep = 0.75;

/// Smaller strokes are a rest before writing, pixels.
constexpr double leastHeld = 24;

constexpr double noPressure = -1;

/// The longer side of their box.
double sizeOf(const QVector<QPointF> &places)
{
    const QRectF box = QPolygonF(places).boundingRect();
    return std::max(box.width(), box.height());
}

QVector<QPointF> placesOf(const QVector<StrokePoint> &points)
{
    QVector<QPointF> places;
    for (const StrokePoint &point : points)
        places.append(point.place);
    return places;
}

} // namespace

PenTool::PenTool(pagehost::ToolPage *page, const shapekit::Kind &kind, bool isHighlighter)
    : m_page(page)
    , m_kind(kind)
    , m_isHighlighter(isHighlighter)
{
}

void PenTool::setStyle(const pagehost::ToolStyle &style)
{
    m_color = style.color;
    if (m_isHighlighter)
        m_color.setAlpha(highlighterAlpha);
    m_width = style.width;
    m_usesPressure = style.usesPressure;
    m_straightens = style.straightens;
}

StrokePoint PenTool::pointOf(const pagehost::ToolPointer &pointer) const
{
    return {pointer.pos, m_usesPressure ? pointer.pressure : noPressure};
}

QCursor PenTool::cursor(double pixel) const
{
    return tipCursor(m_color, m_width / pixel);
}

void PenTool::press(const pagehost::ToolPointer &pointer)
{
    cancel();
    CBaseObject *object = m_page->createObject(m_kind.id());
    m_stroke = Ink::of(object);
    if (!m_stroke)
        return;
    m_points = {pointOf(pointer)};
    m_pixel = pointer.pixel;
    m_form.reset();
    m_hasShift = false;
    m_stroke->begin(m_points, m_color, m_width);
    m_page->add(object);
}

void PenTool::move(const pagehost::ToolPointer &pointer)
{
    if (!m_stroke)
        return;
    const QPointF step = pointer.pos - m_points.last().place;
    if (std::hypot(step.x(), step.y()) >= shortestStep * pointer.pixel)
        follow(pointer);
}

void PenTool::follow(const pagehost::ToolPointer &pointer)
{
    m_points.append(pointOf(pointer));
    m_hasShift = pointer.modifiers.testFlag(Qt::ShiftModifier);
    show();
}

void PenTool::show()
{
    const QPointF last = m_points.last().place;
    if (m_hasShift)
        showForm(lineBetween(m_points.first().place, last));
    else if (m_form)
        showForm(draggedForm(*m_form, m_restingPlace, last));
    else
        m_stroke->redraw(m_points);
}

/// A form has the pressure of the stroke's start all along.
void PenTool::showForm(const StrokeForm &form)
{
    QVector<StrokePoint> points;
    const QVector<QPointF> places = placesAlong(form);
    for (const QPointF &place : places)
        points.append({place, m_points.first().pressure});
    m_stroke->redraw(points);
}

void PenTool::release(const pagehost::ToolPointer &pointer)
{
    if (!m_stroke)
        return;
    if (pointer.pos != m_points.last().place)
        follow({pointer.pos, m_points.last().pressure, pointer.pixel, pointer.modifiers});
    m_stroke = nullptr;
    m_page->commit(drawnText.key(&m_kind), pagehost::ToolPage::Stay);
}

bool PenTool::cancel()
{
    if (!m_stroke)
        return false;
    m_stroke = nullptr;
    m_page->revert();
    return true;
}

int PenTool::stillTime() const
{
    return m_straightens ? holdingTime : 0;
}

void PenTool::heldStill()
{
    if (!m_stroke || m_points.size() < 2 || m_form)
        return;
    const QVector<QPointF> places = placesOf(m_points);
    if (!m_hasShift && sizeOf(places) < leastHeld * m_pixel)
        return;
    const StrokeForm form = m_hasShift ? lineBetween(places.first(), places.last()) : formOf(places);
    // Who rests while writing goes on writing.
    if (form.kind == StrokeForm::Line && !m_hasShift && !runsStraight(places))
        return;
    m_restingPlace = places.last();
    m_form = form;
    show();
}

} // namespace ink
