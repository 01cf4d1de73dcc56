#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagepainter.h>
#include <pagehost/pagetool.h>

#include <host/gripdrag.h>
#include <host/handlelayout.h>
#include <host/objectplace.h>
#include <host/undocapture.h>
#include <pages/eventcopy.h>
#include <pages/gripfinder.h>
#include <pages/highlightpainter.h>
#include <pages/overlaypainter.h>
#include <pages/toolinput.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QWidget>

namespace pagehost {

PageScene::PageScene(Page *page)
    : QGraphicsScene(QRectF(QPointF(0, 0), page->size()))
    , m_page(page)
    , m_tool(std::make_unique<ToolInput>())
{
    connect(this, &QGraphicsScene::selectionChanged, this, &PageScene::updateOverlay);
    if (Document *document = page->document()) {
        connect(document, &Document::zoomRateChanged, this, &PageScene::zoomChanged);
        connect(document, &Document::documentStateChanged, this, &PageScene::stateChanged);
        connect(document, &Document::editingBlockedChanged, this, &PageScene::updateOverlay);
    }
    m_overlayTimer.setSingleShot(true);
    connect(&m_overlayTimer, &QTimer::timeout, this, &PageScene::repaintOverlay);
}

PageScene::~PageScene() = default;

Grip PageScene::gripAt(const QPointF &scenePos) const
{
    return isEditable() ? findGrip(*m_page, scenePos) : Grip();
}

bool PageScene::isEditable() const
{
    const Document *document = m_page->document();
    return !document || (document->documentState() == 0 && document->editingBlocked() == 0);
}

QCursor PageScene::cursorAt(const QPointF &scenePos) const
{
    if (usesTool())
        return tool()->cursor(pixel());
    return cursorFor(isDragging() ? m_drag : gripAt(scenePos), isDragging());
}

void PageScene::setTool(PageTool *tool)
{
    m_tool->setTool(tool);
    setHover({});
}

PageTool *PageScene::tool() const
{
    return m_tool->tool();
}

bool PageScene::usesTool() const
{
    return tool() && isEditable();
}

double PageScene::pixel() const
{
    const Document *document = m_page->document();
    return document ? 1 / document->zoomRate() : 1;
}

bool PageScene::pressTool(const ToolPointer &pointer)
{
    if (!usesTool())
        return false;
    m_tool->press(pointer);
    Q_EMIT toolUsed();
    return true;
}

bool PageScene::moveTool(const ToolPointer &pointer)
{
    if (!usesTool())
        return false;
    m_tool->move(pointer);
    return true;
}

bool PageScene::releaseTool(const ToolPointer &pointer)
{
    if (!usesTool())
        return false;
    m_tool->release(pointer);
    Q_EMIT toolUsed();
    return true;
}

bool PageScene::isBusy() const
{
    return isDragging() || (tool() && tool()->isDrawing());
}

bool PageScene::isDragging() const
{
    return m_drag.object != nullptr;
}

void PageScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (usesTool()) {
        if (event->button() == Qt::LeftButton)
            pressTool(toolPointer(*event, pixel()));
        event->accept();
        return;
    }
    if (event->button() != Qt::LeftButton) {
        QGraphicsScene::mousePressEvent(event);
        return;
    }
    const Grip grip = gripAt(event->scenePos());
    if (grip.kind == Grip::Nothing) {
        event->ignore();
        return;
    }
    pressGrip(grip, event);
}

void PageScene::pressGrip(const Grip &grip, QGraphicsSceneMouseEvent *event)
{
    m_drag = grip;
    m_pressPos = event->scenePos();
    deliver(event);
    event->accept();
    updateOverlay();
}

void PageScene::deliver(QGraphicsSceneMouseEvent *event) const
{
    QGraphicsSceneMouseEvent copy(event->type());
    copyMouseEvent(*event, *m_drag.object, m_drag.offset, copy);
    switch (event->type()) {
    case QEvent::GraphicsSceneMousePress:
        m_drag.object->mousePressEvent(&copy);
        break;
    case QEvent::GraphicsSceneMouseMove:
        m_drag.object->mouseMoveEvent(&copy);
        break;
    case QEvent::GraphicsSceneMouseRelease:
        m_drag.object->mouseReleaseEvent(&copy);
        break;
    default:
        m_drag.object->mouseDoubleClickEvent(&copy);
        break;
    }
}

void PageScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (moveTool(toolPointer(*event, pixel()))) {
        event->accept();
    } else if (isDragging()) {
        deliver(event);
        event->accept();
    } else if (!event->buttons()) {
        setHover(gripAt(event->scenePos()));
    }
    if (QWidget *viewport = event->widget())
        viewport->setCursor(cursorAt(event->scenePos()));
}

void PageScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (usesTool()) {
        if (event->button() == Qt::LeftButton)
            releaseTool(toolPointer(*event, pixel()));
        event->accept();
        return;
    }
    if (!isDragging() || event->button() != Qt::LeftButton) {
        QGraphicsScene::mouseReleaseEvent(event);
        return;
    }
    deliver(event);
    event->accept();
    m_drag = {};
    updateOverlay();
}

void PageScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    const Grip grip = usesTool() || event->button() != Qt::LeftButton ? Grip() : gripAt(event->scenePos());
    if (!grip.object) {
        event->ignore();
        return;
    }
    m_drag = grip;
    deliver(event);
    m_drag = {};
    event->accept();
}

void PageScene::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
    if ((event->key() == Qt::Key_Escape && cancelDrag()) || useToolKey(event)) {
        event->accept();
        return;
    }
    const QVector<CBaseObject *> selected = m_page->selectedObjects();
    if (selected.size() == 1)
        selected.first()->keyPressEvent(event);
}

bool PageScene::useToolKey(QKeyEvent *event)
{
    if (!usesTool() || !tool()->keyPress(event->key()))
        return false;
    Q_EMIT toolUsed();
    return true;
}

bool PageScene::cancelDrag()
{
    if (m_tool->cancel())
        return true;
    if (!isDragging())
        return false;
    if (GripDrag *drag = GripDrag::running(*m_drag.object)) {
        drag->cancel();
        GripDrag::forget(*m_drag.object);
    } else {
        // The object's own release makes the undo step that restores its control point.
        const UndoCapture capture;
        QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
        release.setButton(Qt::LeftButton);
        release.setScenePos(m_pressPos);
        deliver(&release);
    }
    m_drag = {};
    updateOverlay();
    return true;
}

void PageScene::forget(CBaseObject *object)
{
    if (m_drag.object == object) {
        GripDrag::forget(*object);
        m_drag = {};
    }
    if (m_hover.object == object)
        m_hover = {};
    if (m_highlight == object)
        m_highlight = nullptr;
    updateOverlay();
}

void PageScene::setHover(const Grip &grip)
{
    const bool same = grip.object == m_hover.object && grip.kind == m_hover.kind && grip.action == m_hover.action;
    m_hover = grip;
    if (!same)
        updateOverlay();
}

void PageScene::setHighlight(CBaseObject *object, Highlight parts)
{
    if ((object == m_highlight && parts == m_highlightedParts) || (object && !m_page->contains(object)))
        return;
    m_highlight = object;
    m_highlightedParts = parts;
    updateOverlay();
}

void PageScene::updateOverlay()
{
    if (!m_overlayTimer.isActive())
        m_overlayTimer.start(0);
}

QRectF PageScene::frameBounds() const
{
    return pagehost::frameBounds(*m_page);
}

void PageScene::repaintOverlay()
{
    const QRectF covered = overlayBounds(*m_page).united(highlightBounds(m_highlight, m_pixel));
    const QRectF damaged = m_overlay.united(covered);
    m_overlay = covered;
    // A null rectangle would stand for the whole scene.
    if (!damaged.isNull())
        update(damaged);
}

// Only selected objects show control points.
void PageScene::stateChanged()
{
    const QVector<CBaseObject *> selected = m_page->selectedObjects();
    for (CBaseObject *object : selected)
        object->CPSRootObject::update();
    updateOverlay();
}

void PageScene::zoomChanged()
{
    const QVector<CBaseObject *> selected = m_page->selectedObjects();
    for (CBaseObject *object : selected)
        refreshBounds(*object);
    updateOverlay();
}

void PageScene::drawBackground(QPainter *painter, const QRectF &)
{
    paintPageBackground(m_page, painter, m_page->rect());
}

void PageScene::drawForeground(QPainter *painter, const QRectF &)
{
    if (m_highlight)
        m_pixel = paintHighlight(*m_highlight, *painter);
    if (m_highlight && m_highlightedParts == ObjectAndPlaces)
        paintConnectionPlaces(*m_highlight, *painter);
    const Document *document = m_page->document();
    if (document && document->documentState() != 0)
        return;
    const bool isMoving = isDragging() && m_drag.kind == Grip::Body;
    paintOverlay(*m_page, *painter, m_hover, isMoving || !isEditable());
}

} // namespace pagehost
