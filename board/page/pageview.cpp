#include "page/pageview.h"

#include "look/sizes.h"
#include "look/theme.h"
#include "page/desk.h"
#include "page/draghint.h"
#include "page/labelwriting.h"
#include "page/links.h"
#include "page/pagefit.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/pagetool.h>

#include <framework/cbaseobject.h>

#include <QtCore/QMimeData>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTouchEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <array>
#include <cmath>
#include <utility>

namespace board {

const char *const kindMimeType = "application/x-gliololok-kind";

namespace {

/// Above and below a page that is shown as a whole, with large buttons, in a low window, and at its sides, logical
/// pixels.
constexpr int usualMargin = 8;
constexpr int largeMargin = 16;
constexpr int lowMargin = 4;
constexpr int sideMargin = 16;
/// Between a page and the shelf.
constexpr int shelfMargin = shelfGap;
/// A window below this is low.
constexpr int lowHeight = 720;
/// Zoom by one notch of the wheel.
constexpr double wheelFactor = 1.2;
constexpr double degreesPerNotch = 120;
constexpr std::array<double, 14> zoomSteps{0.1, 0.25, 0.33, 0.5, 0.67, 0.75, 1, 1.25, 1.5, 2, 3, 4, 6, 8};
constexpr double zoomEpsilon = 1e-6;

/// Of the topmost object there.
bool openLinkAt(const QGraphicsView &view, const QPoint &pos)
{
    const QList<QGraphicsItem *> items = view.items(pos);
    for (QGraphicsItem *item : items)
        if (auto *object = dynamic_cast<CBaseObject *>(item))
            return openLink(linkAt(*object, view.mapToScene(pos)));
    return false;
}

} // namespace

PageView::PageView(QWidget *parent)
    : QGraphicsView(parent)
    , m_band(this)
    , m_keys(this)
    , m_textMark(this)
    , m_touch(viewport())
    , m_penRest(pagehost::Pointer::Pen)
    , m_writing(new LabelWriting(this))
{
    setObjectName(QStringLiteral("mainGraphicsView"));
    // A page is the same for readers of every language; bars on it say for themselves how they run.
    setLayoutDirection(Qt::LeftToRight);
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(NoAnchor);
    setFrameShape(NoFrame);
    setDragMode(NoDrag);
    setAcceptDrops(true);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    connect(m_writing, &LabelWriting::ended, this, &PageView::writingEnded);
    connect(&m_touch, &TouchInput::withdrawn, this, &PageView::takeBack);
    connect(&m_touch, &TouchInput::held, this, &PageView::hold);
    connect(&m_touch, &TouchInput::pulled, this, &PageView::pull);
    connect(&m_touch, &TouchInput::restedLong, this, &PageView::openMenu);
    connect(&m_penRest, &Resting::rested, this, &PageView::openMenu);
    connect(&m_touch, &TouchInput::penLeft, this, [this] { setPenErases(false); });
}

void PageView::setPage(pagehost::Page *page)
{
    if (page == m_page)
        return;
    m_band.cancel();
    settle();
    if (m_page) {
        m_page->select({});
        disconnect(m_page, nullptr, this, nullptr);
        disconnect(m_page->scene(), nullptr, this, nullptr);
    }
    m_page = page;
    m_keys.setPage(page);
    setScene(page ? page->scene() : nullptr);
    if (page)
        followPage();
    Q_EMIT pageShown();
}

void PageView::followPage()
{
    const QVector<CBaseObject *> objects = m_page->objects();
    for (CBaseObject *object : objects)
        hideMirrorHandles(object);
    connect(m_page, &pagehost::Page::objectAdded, this, &PageView::hideMirrorHandles);
    // Only the hint of an empty page is the view's own; objects ask for repaints themselves.
    connect(m_page, &pagehost::Page::objectAdded, viewport(), QOverload<>::of(&QWidget::update));
    connect(m_page, &pagehost::Page::objectRemoved, viewport(), QOverload<>::of(&QWidget::update));
    // The scene leaves out what it takes to be covered.
    connect(m_page, &pagehost::Page::backgroundChanged, viewport(), QOverload<>::of(&QWidget::update));
    connect(m_page->scene(), &pagehost::PageScene::copyDropped, this, &PageView::copyDropped);
    m_page->scene()->setLargeHandles(m_hasLargeGrips);
    connect(m_page, &pagehost::Page::sizeChanged, this, [this] { m_fitted ? showFitted() : updateSceneArea(); });
    m_fitted ? showFitted() : updateSceneArea();
    if (m_page->document())
        m_page->document()->setZoomRate(m_zoom);
}

/// Mirroring is a command. Its handles would lie on neighbours and take their clicks.
void PageView::hideMirrorHandles(CBaseObject *object)
{
    object->setHandlesDisable(CObjAction::ACT_MirrorHorizontal, true);
    object->setHandlesDisable(CObjAction::ACT_MirrorVertical, true);
}

void PageView::setBare(bool bare)
{
    m_isBare = bare;
    m_fitted ? showFitted() : viewport()->update();
}

void PageView::setBareColor(const QColor &color)
{
    m_bareColor = color;
    viewport()->update();
}

void PageView::setLargeGrips(bool large)
{
    m_hasLargeGrips = large;
    if (m_page)
        m_page->scene()->setLargeHandles(large);
}

void PageView::setEmptyHint(const EmptyHint &hint)
{
    m_hint = hint;
    viewport()->update();
}

void PageView::setShelfEdge(Qt::Edge edge)
{
    m_shelfEdge = edge;
    m_shelfMargin = edge == Qt::LeftEdge || edge == Qt::RightEdge ? shelfMargin : sideMargin;
    const auto room = [edge](Qt::Edge one) { return edge == one ? shelfGap + sizes().shelf : 0; };
    setViewportMargins(room(Qt::LeftEdge), room(Qt::TopEdge), room(Qt::RightEdge), room(Qt::BottomEdge));
    if (m_fitted)
        showFitted();
}

void PageView::setZoom(double rate, const QPoint &anchor)
{
    if (!m_page)
        return;
    beginZooming();
    const QPointF fixedPoint = mapToScene(anchor);
    applyZoom(qBound(smallestZoom, rate, largestZoom));
    bringTo(fixedPoint, anchor);
}

void PageView::beginZooming()
{
    m_fitted = false;
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

/// Scrolls a place to `pos`, viewport coordinates.
void PageView::bringTo(const QPointF &scenePos, const QPointF &pos)
{
    const QPointF moved = viewportTransform().map(scenePos);
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x() - pos.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y() - pos.y()));
}

void PageView::setZoom(double rate)
{
    setZoom(rate, viewport()->rect().center());
}

void PageView::zoomIn()
{
    for (const double step : zoomSteps)
        if (step > m_zoom + zoomEpsilon)
            return setZoom(step);
}

void PageView::zoomOut()
{
    for (auto step = zoomSteps.rbegin(); step != zoomSteps.rend(); ++step)
        if (*step < m_zoom - zoomEpsilon)
            return setZoom(*step);
}

void PageView::fitPage()
{
    m_fitted = true;
    showFitted();
}

void PageView::showFitted()
{
    if (!m_page)
        return;
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int highMargin = areSizesLarge() ? largeMargin : usualMargin;
    const int margin = window()->height() < lowHeight ? lowMargin : highMargin;
    const QSize margins = m_isBare ? QSize(0, 0) : QSize(m_shelfMargin + sideMargin, 2 * margin);
    const QSizeF room = viewport()->size() - margins;
    const double rate = m_isBare ? coveringRate(m_page->size(), room) : fittingRate(m_page->size(), room);
    applyZoom(qBound(smallestZoom, rate, largestZoom));
    const double aside = m_isBare ? 0 : (sideMargin - m_shelfMargin) / 2.0 / m_zoom;
    centerOn(m_page->rect().center() + QPointF(m_shelfEdge == Qt::RightEdge ? -aside : aside, 0));
}

void PageView::applyZoom(double rate)
{
    m_zoom = rate;
    setTransform(QTransform::fromScale(rate, rate));
    updateSceneArea();
    if (m_page->document())
        m_page->document()->setZoomRate(rate);
    viewport()->update();
    Q_EMIT zoomChanged(rate);
}

void PageView::updateSceneArea()
{
    // Half a window around the page lets any corner of it be brought to the middle.
    const QSizeF margin = QSizeF(viewport()->size()) / m_zoom / 2;
    setSceneRect(m_page->rect().adjusted(-margin.width(), -margin.height(), margin.width(), margin.height()));
}

void PageView::settle()
{
    finishKeys();
    m_writing->end();
    if (!m_page)
        return;
    m_page->scene()->cancelDrag();
}

void PageView::cancel()
{
    if (!m_page)
        return;
    if (m_band.isActive())
        return m_band.cancel();
    if (m_page->scene()->cancelDrag() || m_page->leaveGroup())
        return;
    if (m_page->scene()->tool())
        Q_EMIT toolGivenUp();
    else if (!m_keys.goBack())
        m_page->select({});
}

bool PageView::isEditable() const
{
    return m_page && (!m_page->document() || m_page->document()->editingBlocked() == 0);
}

bool PageView::wantsToPan(const QMouseEvent *event) const
{
    return event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_spaceDown);
}

void PageView::panTo(const QPoint &pos)
{
    const QPoint delta = pos - m_panPos;
    m_panPos = pos;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - delta.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - delta.y());
}

void PageView::mousePressEvent(QMouseEvent *event)
{
    finishKeys();
    m_panPos = event->pos();
    if (wantsToPan(event)) {
        m_panning = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
        return;
    }
    QGraphicsView::mousePressEvent(event);
    if (event->isAccepted() || event->button() != Qt::LeftButton || !isEditable())
        return;
    event->accept();
    const bool extend = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    m_band.begin(m_page, event->pos(), extend, pagehost::dragStart(pointerOf(event)));
}

void PageView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Quick clicks with Ctrl go further down.
    if (event->modifiers() & Qt::ControlModifier)
        return mousePressEvent(event);
    // Somebody who clicks and then quickly drags means a drag: after the object has seen the double click, its
    // second press is a press like any other.
    const quint32 group = m_page ? m_page->enteredGroup() : 0;
    QGraphicsView::mouseDoubleClickEvent(event);
    const bool hasEntered = m_page && m_page->enteredGroup() != group;
    mousePressEvent(event);
    if (!hasEntered)
        m_doubleClicked = event->pos();
}

void PageView::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT pointerMoved(mapToScene(event->pos()));
    if (m_panning)
        return panTo(event->pos());
    if (m_band.isActive())
        return m_band.moveTo(event->pos());
    QGraphicsView::mouseMoveEvent(event);
    if (event->buttons() == Qt::NoButton)
        updateCursor(event->pos());
    else
        showHint(event->globalPos());
}

void PageView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_panning)
        m_panning = false;
    else if (m_band.isActive())
        endBand(event);
    else
        QGraphicsView::mouseReleaseEvent(event);
    updateCursor(event->pos());
    showHint(event->globalPos());
    const std::optional<QPoint> doubleClicked = std::exchange(m_doubleClicked, std::nullopt);
    const bool usesTool = m_page && m_page->scene()->tool();
    const bool isClick = (event->pos() - m_panPos).manhattanLength() < QApplication::startDragDistance();
    if (m_isBare && !usesTool && isClick && event->button() == Qt::LeftButton && openLinkAt(*this, event->pos()))
        return;
    if (doubleClicked && !usesTool &&
        (event->pos() - *doubleClicked).manhattanLength() < QApplication::startDragDistance())
        writeAt(event->pos());
}

void PageView::writeAt(const QPoint &pos)
{
    if (!m_writing->writeAt(pos) && m_writing->isFree(pos))
        Q_EMIT textWanted(mapToScene(pos));
}

bool PageView::isWriting() const
{
    return m_writing->isWriting();
}

bool PageView::canWriteLabel() const
{
    return m_writing->canWriteSelected();
}

bool PageView::writeFirstLabel(bool ofNewObject)
{
    return m_writing->writeSelected(ofNewObject);
}

/// Of the drag that is going on. Only an object that is selected alone shows what it can be dragged at.
void PageView::showHint(const QPoint &pointer)
{
    const QVector<CBaseObject *> selected = m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
    QString hint = selected.size() == 1 ? dragHintOf(*selected.first()) : QString();
    if (m_page && hint.isEmpty())
        hint = textOf(m_page->scene()->dragFigures());
    if (m_showsHint || !hint.isEmpty())
        showDragHint(hint, pointer, viewport());
    m_showsHint = !hint.isEmpty();
}

void PageView::endBand(const QMouseEvent *event)
{
    const bool extend = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    const bool isNear = m_page->scene()->isNearFrame(mapToScene(event->pos()), pointerOf(event));
    if (!m_band.isBand() && !extend && !isNear)
        m_page->select({});
    m_band.finish();
}

pagehost::Pointer PageView::pointerOf(const QMouseEvent *event) const
{
    return m_page ? m_page->scene()->pointerOf(event->source()) : pagehost::Pointer::Mouse;
}

void PageView::updateCursor(const QPoint &pos)
{
    if (m_spaceDown)
        viewport()->setCursor(Qt::OpenHandCursor);
    else if (m_page)
        viewport()->setCursor(m_page->scene()->cursorAt(mapToScene(pos)));
}

void PageView::wheelEvent(QWheelEvent *event)
{
    const double notches = event->angleDelta().y() / degreesPerNotch;
    if (event->modifiers() & Qt::ControlModifier) {
        setZoom(m_zoom * std::pow(wheelFactor, notches), event->position().toPoint());
        return event->accept();
    }
    if (event->modifiers() & Qt::ShiftModifier) {
        QScrollBar *bar = horizontalScrollBar();
        bar->setValue(bar->value() - qRound(notches * bar->singleStep() * 3));
        return event->accept();
    }
    QGraphicsView::wheelEvent(event);
}

bool PageView::nudge(const QKeyEvent *event)
{
    const double step = keyStep(*m_page, event->modifiers());
    switch (event->key()) {
    case Qt::Key_Left:
        return m_nudging.move(m_page, {-step, 0});
    case Qt::Key_Right:
        return m_nudging.move(m_page, {step, 0});
    case Qt::Key_Up:
        return m_nudging.move(m_page, {0, -step});
    case Qt::Key_Down:
        return m_nudging.move(m_page, {0, step});
    default:
        return false;
    }
}

void PageView::finishKeys()
{
    m_nudging.finish();
    m_keys.finish();
}

/// Keys that can be held, and those that walk.
bool PageView::useKeyOfPage(const QKeyEvent *event)
{
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        return m_keys.walkObjects(event->key() == Qt::Key_Tab);
    return m_keys.keyPress(*event) || nudge(event);
}

bool PageView::focusNextPrevChild(bool next)
{
    return m_keys.walk(next) || QGraphicsView::focusNextPrevChild(next);
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    if (!m_page)
        return QGraphicsView::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape && m_page->scene()->isBusy()) {
        cancel();
        return event->accept();
    }
    if (isEditable() && useKeyOfPage(event))
        return event->accept();
    finishKeys();
    if (event->key() == Qt::Key_Escape) {
        cancel();
        return event->accept();
    }
    if (event->key() == Qt::Key_Space && !m_page->scene()->isBusy()) {
        m_spaceDown = true;
        viewport()->setCursor(Qt::OpenHandCursor);
        return event->accept();
    }
    QGraphicsView::keyPressEvent(event);
    // Of a drag that the key has changed.
    if (m_page->scene()->isDragging())
        showHint(QCursor::pos());
}

void PageView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->isAutoRepeat())
        return event->accept();
    finishKeys();
    if (event->key() == Qt::Key_Space) {
        m_spaceDown = false;
        updateCursor(viewport()->mapFromGlobal(QCursor::pos()));
    }
    QGraphicsView::keyReleaseEvent(event);
    if (m_page && m_page->scene()->isDragging())
        showHint(QCursor::pos());
}

void PageView::focusOutEvent(QFocusEvent *event)
{
    finishKeys();
    m_spaceDown = false;
    QGraphicsView::focusOutEvent(event);
}

bool PageView::event(QEvent *event)
{
    // The shelf is part of the desk.
    if (event->type() == QEvent::Paint)
        QPainter(this).fillRect(rect(), themeColors().desk);
    // During a drag the key lets go of what is caught; otherwise it goes to the menus.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt &&
        m_page && m_page->scene()->isBusy()) {
        event->accept();
        return true;
    }
    return QGraphicsView::event(event);
}

bool PageView::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Leave:
        Q_EMIT pointerLeft();
        break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        useTouch(static_cast<QTouchEvent *>(event));
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        if (m_touch.isCopy(*static_cast<QMouseEvent *>(event)))
            return true;
        break;
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        if (usePen(static_cast<QTabletEvent *>(event)))
            return true;
        break;
    default:
        break;
    }
    return QGraphicsView::viewportEvent(event);
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (!m_page)
        return;
    m_fitted ? showFitted() : updateSceneArea();
}

void PageView::drawBackground(QPainter *painter, const QRectF &rect)
{
    paintDesk(painter, rect, m_zoom, m_isBare ? m_bareColor : themeColors().desk);
    if (!m_page)
        return;
    if (!m_isBare)
        paintShadow(painter, m_page->rect(), m_zoom);
    // A background that can be seen through lies on paper, not on its shadow.
    paintPaper(painter, m_page->rect());
    QGraphicsView::drawBackground(painter, rect);
}

/// Fades objects off the page, below frames and handles.
void PageView::drawForeground(QPainter *painter, const QRectF &rect)
{
    if (m_page && !m_isBare)
        paintVeil(painter, rect, *m_page);
    QGraphicsView::drawForeground(painter, rect);
}

/// Whoever has a second page has begun.
bool PageView::isNewBoard() const
{
    return isEditable() && m_page->objectCount() == 0 && m_page->document() && m_page->document()->pageCount() == 1;
}

void PageView::paintEvent(QPaintEvent *event)
{
    QGraphicsView::paintEvent(event);
    if (m_isBare || !m_page)
        return;
    QPainter painter(viewport());
    m_textMark.paint(&painter);
    m_keys.paint(&painter);
    if (!isNewBoard() || m_page->scene()->isBusy())
        return;
    paintEmptyHint(&painter, mapFromScene(m_page->rect()).boundingRect(), m_hint);
}

void PageView::dragEnterEvent(QDragEnterEvent *event)
{
    acceptDrag(event);
}

void PageView::dragMoveEvent(QDragMoveEvent *event)
{
    acceptDrag(event);
}

void PageView::acceptDrag(QDropEvent *event) const
{
    const QMimeData &data = *event->mimeData();
    event->setAccepted(m_page && (data.hasFormat(kindMimeType) || (m_dropTest && m_dropTest(data))));
}

void PageView::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    if (!event->mimeData()->hasFormat(kindMimeType)) {
        Q_EMIT dataDropped(*event->mimeData(), mapToScene(event->pos()));
        return;
    }
    Q_EMIT kindDropped(QString::fromUtf8(event->mimeData()->data(kindMimeType)), mapToScene(event->pos()));
}

} // namespace board
