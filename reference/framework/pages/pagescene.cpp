#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/pagetool.h>
#include <pagehost/selection.h>

#include <host/gripdrag.h>
#include <host/objectplace.h>
#include <host/shownhandles.h>
#include <host/undocapture.h>
#include <pages/enddrag.h>
#include <pages/eventcopy.h>
#include <pages/framedrag.h>
#include <pages/gripcourse.h>
#include <pages/gripfinder.h>
#include <pages/overlaypainter.h>
#include <pages/snapper.h>
#include <pages/toolinput.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QGraphicsSceneMouseEvent>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>

namespace pagehost {

namespace {

/// Guides stay this long after the end of a drag, milliseconds.
constexpr int guideTime = 400;

} // namespace

PageScene::PageScene(Page *page)
    : QGraphicsScene(QRectF(QPointF(0, 0), page->size()))
    , m_page(page)
    , m_tool(std::make_unique<ToolInput>())
    , m_snapper(std::make_unique<Snapper>(page))
{
    connect(this, &QGraphicsScene::selectionChanged, this, &PageScene::updateOverlay);
    if (Document *document = page->document()) {
        connect(document, &Document::zoomRateChanged, this, &PageScene::zoomChanged);
        connect(document, &Document::documentStateChanged, this, &PageScene::stateChanged);
        connect(document, &Document::editingBlockedChanged, this, &PageScene::updateOverlay);
    }
    m_overlayTimer.setSingleShot(true);
    connect(&m_overlayTimer, &QTimer::timeout, this, &PageScene::repaintOverlay);
    m_guideTimer.setSingleShot(true);
    connect(&m_guideTimer, &QTimer::timeout, this, [this] {
        m_snapper->clearGuides();
        updateOverlay();
    });
}

PageScene::~PageScene() = default;

Grip PageScene::gripAt(const QPointF &scenePos, Pointer pointer) const
{
    return isEditable() ? findGrip(*m_page, scenePos, pointer) : Grip();
}

bool PageScene::isNearFrame(const QPointF &scenePos, Pointer pointer) const
{
    return isInFrame(*m_page, scenePos, frameReach(pointer));
}

Pointer PageScene::pointerOf(Qt::MouseEventSource source) const
{
    return source == Qt::MouseEventNotSynthesized ? Pointer::Mouse : m_madeMouse;
}

void PageScene::setLargeHandles(bool large)
{
    m_hasLargeHandles = large;
    updateOverlay();
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
    if (m_dragModifiers.testFlag(Qt::ControlModifier) && isDragging() && canDropCopy())
        return Qt::DragCopyCursor;
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
    if (!tool()->isDrawing())
        beginGesture();
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

void PageScene::setSnapping(bool on)
{
    m_snapper->setOn(on);
}

bool PageScene::isSnapping() const
{
    return m_snapper->isOn();
}

void PageScene::setGrid(double distance)
{
    if (distance == grid())
        return;
    m_snapper->setGrid(distance);
    update();
}

double PageScene::grid() const
{
    return m_snapper->grid();
}

void PageScene::updateGuides()
{
    m_guideTimer.stop();
    updateOverlay();
}

void PageScene::endSnapping()
{
    m_snapper->end();
    m_guideTimer.start(guideTime);
    updateOverlay();
}

bool PageScene::isBusy() const
{
    return isDragging() || (tool() && tool()->isDrawing());
}

bool PageScene::isDragging() const
{
    return m_drag.object != nullptr;
}

bool PageScene::event(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        m_tool->leave();
    return QGraphicsScene::event(event);
}

void PageScene::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (usesTool()) {
        if (event->button() == Qt::LeftButton)
            pressTool(toolPointer(*event, pixel(), pointerOf(event->source())));
        event->accept();
        return;
    }
    if (event->button() != Qt::LeftButton) {
        QGraphicsScene::mousePressEvent(event);
        return;
    }
    Grip grip = gripAt(event->scenePos(), pointerOf(event->source()));
    if (grip.kind == Grip::Nothing) {
        event->ignore();
        return;
    }
    const bool reachesBelow = grip.kind == Grip::Body && event->modifiers().testFlag(Qt::ControlModifier) &&
                              !event->modifiers().testFlag(Qt::ShiftModifier);
    CBaseObject *selected = reachesBelow ? findBelow(*m_page, event->scenePos()).selected : nullptr;
    if (selected)
        grip.object = selected;
    pressGrip(grip, event);
    m_takesBelow = selected != nullptr;
}

void PageScene::beginGesture()
{
    const QVector<CBaseObject *> selected = m_page->selectedObjects();
    m_selectedBefore = QVector<QPointer<CBaseObject>>(selected.begin(), selected.end());
    Q_EMIT gestureStarted();
}

void PageScene::pressGrip(const Grip &grip, QGraphicsSceneMouseEvent *event)
{
    beginGesture();
    m_drag = grip;
    if (grip.kind == Grip::ControlPoint)
        m_reshaped = {grip.object, GeometrySnapshot::WithContent};
    m_pressPos = event->scenePos();
    m_lastPos = m_pressPos;
    m_dragModifiers = {};
    event->accept();
    std::unique_ptr<EndDrag> end;
    if (grip.kind == Grip::FrameHandle)
        m_frameDrag = std::make_unique<FrameDrag>(framedObjects(*m_page), grip.action, m_pressPos);
    else if (grip.kind == Grip::ControlPoint)
        end = EndDrag::begin(m_page, grip.object, m_pressPos + grip.offset);
    else if (grip.kind == Grip::Handle)
        // To the object, the same place may be its body, or one of its control points.
        GripDrag::begin(*grip.object, grip.action, *event);
    if (!m_frameDrag && !end && grip.kind != Grip::Handle)
        deliver(event, m_drag.offset);
    if (isDragging()) {
        m_course = std::make_unique<GripCourse>(grip, m_pressPos + grip.offset, draggedObjects(), *m_snapper);
        m_course->setEndDrag(std::move(end));
    }
    updateOverlay();
}

/// The selected objects as they were at the press of the drag that is going on; none for a control point's.
QVector<GeometrySnapshot> PageScene::dragStart() const
{
    if (m_frameDrag)
        return m_frameDrag->before();
    const GripDrag *drag = isDragging() ? GripDrag::running(*m_drag.object) : nullptr;
    return drag ? drag->before() : QVector<GeometrySnapshot>();
}

QVector<CBaseObject *> PageScene::draggedObjects() const
{
    QVector<CBaseObject *> objects;
    const QVector<GeometrySnapshot> start = dragStart();
    for (const GeometrySnapshot &snapshot : start)
        objects.append(snapshot.object());
    return objects;
}

/// `offset`: from the mouse to the point that the object gets, scene units.
void PageScene::deliver(QGraphicsSceneMouseEvent *event, const QPointF &offset) const
{
    QGraphicsSceneMouseEvent copy(event->type());
    copyMouseEvent(*event, *m_drag.object, offset, copy);
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

/// Hands a move or the release of a drag to the object, where the drag's course leads it.
void PageScene::lead(QGraphicsSceneMouseEvent *event, Pointer kind)
{
    const DragPointer pointer{event->scenePos() + m_drag.offset, event->modifiers(), pixel(), kind};
    m_dragPointer = kind;
    m_lastPos = event->scenePos();
    m_dragModifiers = event->modifiers();
    const QPointF led = m_course->lead(pointer);
    if (m_frameDrag)
        m_frameDrag->moveTo(led, event->modifiers());
    else if (EndDrag *end = m_course->endDrag())
        end->moveTo(pointer.pos, led, pixel());
    else
        deliver(event, led == pointer.pos ? m_drag.offset : led - event->scenePos());
    // The object may have left the page.
    if (m_course)
        m_course->showGuides();
    updateGuides();
}

void PageScene::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (moveTool(toolPointer(*event, pixel(), pointerOf(event->source())))) {
        event->accept();
    } else if (isDragging() && event->buttons()) {
        lead(event, pointerOf(event->source()));
        event->accept();
    } else if (!event->buttons()) {
        setHover(gripAt(event->scenePos(), pointerOf(event->source())));
    }
    if (QWidget *viewport = event->widget())
        viewport->setCursor(cursorAt(event->scenePos()));
}

void PageScene::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (usesTool()) {
        if (event->button() == Qt::LeftButton)
            releaseTool(toolPointer(*event, pixel(), pointerOf(event->source())));
        event->accept();
        return;
    }
    if (!isDragging() || event->button() != Qt::LeftButton) {
        QGraphicsScene::mouseReleaseEvent(event);
        return;
    }
    releaseGrip(event);
}

void PageScene::releaseGrip(QGraphicsSceneMouseEvent *event)
{
    event->accept();
    if (event->modifiers().testFlag(Qt::ControlModifier) && canDropCopy()) {
        dropCopy(event->modifiers());
        return;
    }
    if (takeBelow())
        return;
    lead(event, pointerOf(event->source()));
    if (m_frameDrag)
        m_frameDrag->finish();
    if (m_course && m_course->endDrag())
        m_course->endDrag()->finish();
    endDrag();
}

bool PageScene::canDropCopy() const
{
    const GripDrag *drag = m_drag.kind == Grip::Body ? GripDrag::running(*m_drag.object) : nullptr;
    return drag && drag->hasMoved() && !drag->before().isEmpty();
}

/// Ends a press with Ctrl that has not become a drag.
bool PageScene::takeBelow()
{
    GripDrag *drag = m_takesBelow ? GripDrag::running(*m_drag.object) : nullptr;
    if (!drag || drag->hasMoved())
        return false;
    GripDrag::forget(*m_drag.object);
    endDrag();
    m_page->select(findBelow(*m_page, m_pressPos).next);
    return true;
}

/// The objects return, and whoever can copy them makes copies where they were dragged to.
void PageScene::dropCopy(Qt::KeyboardModifiers modifiers)
{
    leadAgain(modifiers);
    GripDrag *drag = GripDrag::running(*m_drag.object);
    const GeometrySnapshot &first = drag->before().first();
    const QPointF way = first.object()->getPos() - first.pos();
    drag->putBack();
    GripDrag::forget(*m_drag.object);
    endDrag();
    Q_EMIT copyDropped(way);
}

void PageScene::endDrag()
{
    m_drag = {};
    m_takesBelow = false;
    m_course.reset();
    m_frameDrag.reset();
    endSnapping();
    updateOverlay();
}

bool PageScene::beginPointDrag(CBaseObject *object, const QPointF &scenePos)
{
    CObjAction::ACT_Def action = CObjAction::ACT_None;
    const bool isPoint = object->CheckHitTestHandlers(scenePos, action) && action == CObjAction::ACT_None;
    if (isBusy() || !isEditable() || object->isLocked() || !object->isSelected() || !isPoint)
        return false;
    QGraphicsSceneMouseEvent press(QEvent::GraphicsSceneMousePress);
    press.setButton(Qt::LeftButton);
    press.setButtons(Qt::LeftButton);
    press.setScenePos(scenePos);
    pressGrip({Grip::ControlPoint, object, CObjAction::ACT_None, {}, -1}, &press);
    return true;
}

void PageScene::dragPointTo(const QPointF &scenePos)
{
    if (!isDragging())
        return;
    QGraphicsSceneMouseEvent move(QEvent::GraphicsSceneMouseMove);
    move.setButtons(Qt::LeftButton);
    move.setScenePos(scenePos);
    if (EndDrag *end = m_course ? m_course->endDrag() : nullptr)
        end->moveTo(scenePos, scenePos, pixel());
    else
        deliver(&move, {});
}

void PageScene::endPointDrag()
{
    if (!isDragging())
        return;
    QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
    release.setButton(Qt::LeftButton);
    if (EndDrag *end = m_course ? m_course->endDrag() : nullptr)
        end->finish();
    else
        deliver(&release, {});
    endDrag();
}

void PageScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    const Grip grip = usesTool() || event->button() != Qt::LeftButton
                          ? Grip()
                          : gripAt(event->scenePos(), pointerOf(event->source()));
    if (!grip.object || grip.kind == Grip::FrameHandle) {
        event->ignore();
        return;
    }
    event->accept();
    if (grip.kind == Grip::Body && m_page->enterGroupOf(grip.object))
        return;
    m_drag = grip;
    deliver(event, grip.offset);
    m_drag = {};
}

void PageScene::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
    if ((event->key() == Qt::Key_Escape && cancelDrag()) || followKey(event, true) || useToolKey(event)) {
        event->accept();
        return;
    }
    const QVector<CBaseObject *> selected = m_page->selectedObjects();
    if (selected.size() == 1)
        selected.first()->keyPressEvent(event);
}

void PageScene::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(followKey(event, false));
}

/// Keys that are held while something is dragged or drawn.
bool PageScene::followKey(const QKeyEvent *event, bool isPressed)
{
    if (event->key() == Qt::Key_Space)
        return usesTool() && m_tool->setMovesStart(isPressed);
    return followModifiers(event);
}

/// Modifiers count at once, not with the next move of the mouse.
bool PageScene::followModifiers(const QKeyEvent *event)
{
    constexpr int followed[] = {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt};
    if (std::find(std::begin(followed), std::end(followed), event->key()) == std::end(followed))
        return false;
    if (usesTool())
        return m_tool->setModifiers(event->modifiers());
    if (!isDragging())
        return false;
    leadAgain(event->modifiers());
    return true;
}

/// As if the mouse had moved to where it is.
void PageScene::leadAgain(Qt::KeyboardModifiers modifiers)
{
    QGraphicsSceneMouseEvent move(QEvent::GraphicsSceneMouseMove);
    move.setScenePos(m_lastPos);
    move.setLastScenePos(m_lastPos);
    move.setButtonDownScenePos(Qt::LeftButton, m_pressPos);
    move.setButtons(Qt::LeftButton);
    move.setModifiers(modifiers);
    lead(&move, m_dragPointer);
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
    const bool wasBusy = isBusy();
    if (!takeBack())
        return false;
    if (wasBusy) {
        selectAsBefore();
        Q_EMIT gestureCancelled();
    }
    return true;
}

void PageScene::selectAsBefore()
{
    QVector<CBaseObject *> selected;
    for (const QPointer<CBaseObject> &object : qAsConst(m_selectedBefore))
        if (object)
            selected.append(object);
    m_page->select(selected);
}

bool PageScene::takeBack()
{
    if (m_tool->cancel())
        return true;
    if (!isDragging())
        return false;
    if (m_frameDrag) {
        m_frameDrag->cancel();
    } else if (m_course && m_course->endDrag()) {
        m_course->endDrag()->cancel();
    } else if (GripDrag *drag = GripDrag::running(*m_drag.object)) {
        drag->cancel();
        GripDrag::forget(*m_drag.object);
    } else {
        releaseAtStart();
        // Undoing brings the point back, but what the shape has made of its moves may differ in the last digits.
        m_reshaped.restore();
    }
    m_snapper->clearGuides();
    endDrag();
    return true;
}

/// The object's own release makes the undo step that restores its control point.
void PageScene::releaseAtStart()
{
    const UndoCapture capture;
    QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
    release.setButton(Qt::LeftButton);
    release.setScenePos(m_pressPos);
    deliver(&release, m_drag.offset);
}

void PageScene::forget(CBaseObject *object)
{
    if (m_drag.object == object || (m_frameDrag && m_frameDrag->contains(object))) {
        GripDrag::forget(*m_drag.object);
        m_snapper->clearGuides();
        endDrag();
    } else if (m_course) {
        m_course->forget(object);
    }
    m_snapper->forget(object);
    if (m_hover.object == object)
        m_hover = {};
    if (m_highlight == object)
        m_highlight = nullptr;
    updateOverlay();
}

void PageScene::setHover(const Grip &grip)
{
    const bool same = grip.object == m_hover.object && grip.kind == m_hover.kind && grip.action == m_hover.action &&
                      grip.point == m_hover.point;
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

PageScene::DragFigures PageScene::dragFigures() const
{
    const QVector<CBaseObject *> objects = draggedObjects();
    DragFigures figures;
    if (objects.isEmpty() || (m_drag.kind == Grip::Body && !canDropCopy()))
        return figures;
    const bool isFrame = m_frameDrag != nullptr;
    if (m_drag.kind == Grip::Body) {
        figures.kind = DragFigures::Place;
        figures.place = boundsOf(objects).topLeft();
    } else if (HandleLayout::isResize(m_drag.action)) {
        figures.kind = DragFigures::Size;
        figures.size = isFrame ? boundsOf(objects).size() : m_drag.object->getClientRect().size();
    } else if (m_drag.action == CObjAction::ACT_Rotate) {
        figures.kind = DragFigures::Turn;
        figures.degrees = isFrame ? m_frameDrag->degrees() : m_drag.object->rotation();
    }
    return figures;
}

/// With its old place, where it has left that.
bool PageScene::showsOldPlace() const
{
    return m_drag.kind == Grip::Body ? canDropCopy() : isDragging();
}

QRectF PageScene::frameBounds() const
{
    return pagehost::frameBounds(*m_page);
}

QPointF PageScene::handlePlace(CBaseObject *object, CObjAction::ACT_Def handle)
{
    return object->mapToScene(layoutOf(*object).position(handle));
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

} // namespace pagehost
