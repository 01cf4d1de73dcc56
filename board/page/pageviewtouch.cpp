// Fingers and pens on the view of a page.

#include "page/pageview.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/pagetool.h>

#include <QtGui/QContextMenuEvent>
#include <QtGui/QTabletEvent>
#include <QtGui/QTouchEvent>
#include <QtWidgets/QApplication>

namespace board {

/// A finger has begun what it was not meant to.
void PageView::takeBack()
{
    m_doubleClicked.reset();
    m_panning = false;
    m_band.cancel();
    if (m_page)
        m_page->scene()->cancelDrag();
}

void PageView::hold(const QPointF &pos)
{
    m_heldPlace = viewportTransform().inverted().map(pos);
    m_heldZoom = m_zoom;
}

/// Everything is reckoned from where the fingers took hold, so that rounding does not add up.
void PageView::pull(const QPointF &pos, double factor)
{
    if (!m_page)
        return;
    const double rate = qBound(smallestZoom, m_heldZoom * factor, largestZoom);
    if (rate != m_zoom) {
        beginZooming();
        applyZoom(rate);
    }
    bringTo(m_heldPlace, pos);
}

/// In place of what the press has begun. A tool goes on: a stroke that is held becomes straight. So does a drag
/// where there are no menus, while presenting.
void PageView::openMenu(const QPoint &pos)
{
    if (!m_page || m_page->scene()->tool() || contextMenuPolicy() != Qt::CustomContextMenu)
        return;
    m_touch.drop();
    takeBack();
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, viewport()->mapToGlobal(pos));
    QApplication::sendEvent(viewport(), &event);
}

/// Accepted even where it does nothing: else Qt makes a mouse of it.
void PageView::useTouch(QTouchEvent *event)
{
    if (m_page)
        m_page->scene()->setMadeMouse(pagehost::Pointer::Finger);
    m_touch.touch(*event);
    event->accept();
}

void PageView::setPenErases(bool erases)
{
    if (erases == m_penErases)
        return;
    m_penErases = erases;
    Q_EMIT penErases(erases);
}

/// Notes which end of the pen is used, and its button. True for presses of the button, which do nothing else.
bool PageView::turnPen(const QTabletEvent *event)
{
    constexpr Qt::MouseButtons barrel = Qt::RightButton | Qt::MiddleButton;
    if (!m_penIsDown)
        setPenErases(event->pointerType() == QTabletEvent::Eraser || event->buttons() & barrel);
    if (event->button() == Qt::LeftButton)
        m_penIsDown = event->type() == QEvent::TabletPress;
    return event->button() & barrel;
}

void PageView::waitForRest(const QTabletEvent *event)
{
    if (event->button() == Qt::LeftButton && event->type() == QEvent::TabletPress)
        m_penRest.press(event->posF());
    else if (event->type() == QEvent::TabletMove)
        m_penRest.move(event->posF());
    else
        m_penRest.end();
}

/// Of a pen, the mouse events that Qt makes lack pressure and parts of pixels. A pen without a tool is a mouse, and
/// so is one in the air.
bool PageView::usePen(QTabletEvent *event)
{
    event->ignore();
    m_touch.seePen();
    if (!m_page)
        return false;
    m_page->scene()->setMadeMouse(pagehost::Pointer::Pen);
    waitForRest(event);
    if (turnPen(event)) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::TabletMove && event->buttons() == Qt::NoButton)
        return false;
    pagehost::ToolPointer pointer;
    pointer.kind = pagehost::Pointer::Pen;
    pointer.pos = viewportTransform().inverted().map(event->posF());
    pointer.pressure = event->pressure();
    pointer.pixel = 1 / m_zoom;
    pointer.modifiers = event->modifiers();
    pagehost::PageScene *scene = m_page->scene();
    const bool isMain = event->button() == Qt::LeftButton;
    bool isUsed = scene->tool() != nullptr;
    if (event->type() == QEvent::TabletPress && isMain)
        isUsed = scene->pressTool(pointer);
    else if (event->type() == QEvent::TabletMove)
        isUsed = scene->moveTool(pointer);
    else if (event->type() == QEvent::TabletRelease && isMain)
        isUsed = scene->releaseTool(pointer);
    event->setAccepted(isUsed);
    if (isUsed)
        Q_EMIT pointerMoved(pointer.pos);
    return isUsed;
}

} // namespace board
