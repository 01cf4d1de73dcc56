#include "presenting/laserpointer.h"

#include "core/toolchoice.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsView>

namespace board {

namespace {

constexpr QRgb laserColor = 0xffed1c24;
/// Logical pixels.
constexpr double dotRadius = 7;
constexpr double haloRadius = 16;
constexpr double trailWidth = 7;
constexpr double haloOpacity = 0.25;
constexpr double trailOpacity = 0.6;
/// Milliseconds.
constexpr int frameTime = 16;

} // namespace

LaserPointer::LaserPointer(QGraphicsView *view, const ToolChoice *tools)
    : QWidget(view->viewport())
    , m_view(view)
    , m_tools(tools)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    resize(view->viewport()->size());
    m_clock.start();
    m_frames.setInterval(frameTime);
    m_frames.setTimerType(Qt::PreciseTimer);
    connect(&m_frames, &QTimer::timeout, this, &LaserPointer::step);
    connect(tools, &ToolChoice::changed, this, &LaserPointer::followTool);
    view->viewport()->installEventFilter(this);
    hide();
}

bool LaserPointer::isInUse() const
{
    return m_tools && m_tools->tool() == Tool::Laser;
}

void LaserPointer::followTool()
{
    if (isInUse())
        hidePointer();
    else
        leave();
}

void LaserPointer::hidePointer()
{
    QWidget *viewport = m_view->viewport();
    if (isInUse() && viewport->cursor().shape() != Qt::BlankCursor)
        viewport->setCursor(Qt::BlankCursor);
}

void LaserPointer::pointAt(const QPointF &scenePos)
{
    m_dot = scenePos;
    m_trail.add(scenePos, m_clock.elapsed());
    m_frames.start();
    show();
    raise();
    update();
}

void LaserPointer::leave()
{
    if (!isInUse())
        m_view->viewport()->unsetCursor();
    if (!m_dot)
        return;
    m_dot.reset();
    update();
    Q_EMIT left();
}

/// A trail that has faded needs no more frames.
void LaserPointer::step()
{
    update();
    if (!trail().isEmpty())
        return;
    m_frames.stop();
    setVisible(m_dot.has_value());
}

bool LaserPointer::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        resize(m_view->viewport()->size());
    // The view sets its cursor whenever something under the pointer changes.
    if (event->type() == QEvent::CursorChange)
        hidePointer();
    return isInUse() && usePointer(event);
}

bool LaserPointer::usePointer(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress: {
        const QPointF pos = m_view->mapToScene(static_cast<QMouseEvent *>(event)->pos());
        pointAt(pos);
        Q_EMIT pointed(pos);
        return true;
    }
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::Leave:
        leave();
        return false;
    default:
        return false;
    }
}

/// A view that scrolls takes what lies on it along.
void LaserPointer::moveEvent(QMoveEvent *)
{
    move(0, 0);
}

void LaserPointer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QVector<LaserTrail::Place> places = trail();
    for (int i = 1; i < places.size(); ++i) {
        QColor color(laserColor);
        color.setAlphaF(trailOpacity * places.at(i).opacity);
        painter.setPen(QPen(color, trailWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        painter.drawLine(QPointF(m_view->mapFromScene(places.at(i - 1).pos)),
                         QPointF(m_view->mapFromScene(places.at(i).pos)));
    }
    if (!m_dot)
        return;
    const QPointF dot = m_view->mapFromScene(*m_dot);
    QColor halo(laserColor);
    halo.setAlphaF(haloOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(dot, haloRadius, haloRadius);
    painter.setBrush(QColor(laserColor));
    painter.drawEllipse(dot, dotRadius, dotRadius);
}

} // namespace board
