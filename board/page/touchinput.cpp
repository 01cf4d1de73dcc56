#include "page/touchinput.h"

#include <QtCore/QLineF>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtGui/QTouchEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <utility>

namespace board {

namespace {

constexpr double millimetresPerInch = 25.4;
/// For a screen that doesn't know its size.
constexpr double usualDotsPerInch = 96;
constexpr double leastDotsPerInch = 20;
/// Between two taps of a double click, pixels.
constexpr double doubleTapReach = 24;

double dotsPerInch(const QWidget &widget)
{
    const double dots = widget.screen() ? widget.screen()->physicalDotsPerInch() : usualDotsPerInch;
    return qIsFinite(dots) && dots >= leastDotsPerInch ? dots : usualDotsPerInch;
}

QPointF middleOf(const QVector<Contact> &fingers)
{
    QPointF sum;
    for (const Contact &finger : fingers)
        sum += finger.pos;
    return sum / fingers.size();
}

/// Mean distance of the fingers from their middle.
double spreadOf(const QVector<Contact> &fingers)
{
    const QPointF middle = middleOf(fingers);
    double sum = 0;
    for (const Contact &finger : fingers)
        sum += QLineF(finger.pos, middle).length();
    return sum / fingers.size();
}

} // namespace

TouchInput::TouchInput(QWidget *viewport)
    : QObject(viewport)
    , m_viewport(viewport)
    , m_rest(pagehost::Pointer::Finger)
{
    viewport->setAttribute(Qt::WA_AcceptTouchEvents);
    viewport->setAttribute(Qt::WA_TabletTracking);
    m_clock.start();
    connect(&m_rest, &Resting::rested, this, &TouchInput::restedLong);
    // Only the application hears that a pen comes near.
    qApp->installEventFilter(this);
}

Contact TouchInput::contactOf(int id, const QPointF &pos, const QSizeF &pixels) const
{
    return {id, pos, pixels / dotsPerInch(*m_viewport) * millimetresPerInch};
}

void TouchInput::touch(const QTouchEvent &event)
{
    m_hasTouches = true;
    const bool isCancelled = event.type() == QEvent::TouchCancel;
    QVector<Contact> down;
    std::optional<QPointF> lifted;
    const QList<QTouchEvent::TouchPoint> &points = event.touchPoints();
    for (const QTouchEvent::TouchPoint &point : points) {
        const bool isDown = point.state() != Qt::TouchPointReleased && !isCancelled;
        if (isDown)
            down.append(contactOf(point.id(), point.pos(), point.ellipseDiameters()));
        else if (point.id() == m_finger && !isCancelled)
            lifted = point.pos();
    }
    const bool isTool = m_judge.judge(down, m_clock.elapsed()) == TouchJudge::Use::Tool;
    const QVector<Contact> &fingers = m_judge.fingers();
    if (m_finger && (!isTool || fingers.first().id != *m_finger))
        lift(lifted);
    waitForRest(fingers);
    if (isTool && m_finger)
        move(fingers.first());
    else if (isTool)
        press(fingers.first());
    if (m_judge.use() == TouchJudge::Use::View)
        pull(fingers);
    else
        m_holding.clear();
}

/// Without a place where it was lifted, the finger was only meant as the first of several, or a palm.
void TouchInput::lift(const std::optional<QPointF> &pos)
{
    m_finger.reset();
    if (!pos) {
        m_lastTapTime.reset();
        Q_EMIT withdrawn();
        return;
    }
    send(QEvent::MouseButtonRelease, *pos);
    m_lastTapTime = m_isTap ? std::make_optional(m_clock.elapsed()) : std::nullopt;
    m_lastTap = *pos;
}

void TouchInput::press(const Contact &finger)
{
    m_finger = finger.id;
    m_pressed = m_pos = finger.pos;
    m_isTap = true;
    const bool isSecondTap = m_lastTapTime &&
                             m_clock.elapsed() - *m_lastTapTime < QApplication::doubleClickInterval() &&
                             QLineF(m_lastTap, finger.pos).length() < doubleTapReach;
    send(isSecondTap ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, finger.pos);
}

void TouchInput::move(const Contact &finger)
{
    if (std::exchange(m_pos, finger.pos) == finger.pos)
        return;
    m_isTap = m_isTap && QLineF(m_pressed, finger.pos).length() < pagehost::dragStart(pagehost::Pointer::Finger);
    send(QEvent::MouseMove, finger.pos);
}

void TouchInput::pull(const QVector<Contact> &fingers)
{
    QVector<int> holding;
    for (const Contact &finger : fingers)
        holding.append(finger.id);
    const QPointF middle = middleOf(fingers);
    const double spread = spreadOf(fingers);
    if (holding != m_holding) {
        m_holding = holding;
        m_spread = spread;
        Q_EMIT held(middle);
        return;
    }
    Q_EMIT pulled(middle, m_spread > 0 ? spread / m_spread : 1);
}

/// Of a single finger from where it came down.
void TouchInput::waitForRest(const QVector<Contact> &fingers)
{
    if (fingers.size() != 1 || m_judge.use() == TouchJudge::Use::Nothing)
        return m_rest.end();
    const bool hasBegun = m_finger == fingers.first().id || !m_holding.isEmpty();
    hasBegun ? m_rest.move(fingers.first().pos) : m_rest.press(fingers.first().pos);
}

void TouchInput::send(QEvent::Type type, const QPointF &pos)
{
    const QPointF global = m_viewport->mapToGlobal(QPoint(0, 0)) + pos;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, pos, global, button, held, QApplication::keyboardModifiers(),
                      Qt::MouseEventSynthesizedByApplication);
    QApplication::sendEvent(m_viewport, &event);
}

void TouchInput::drop()
{
    if (m_judge.use() == TouchJudge::Use::Nothing)
        return;
    m_judge.drop();
    m_rest.end();
    m_holding.clear();
    if (m_finger)
        lift({});
}

void TouchInput::seePen()
{
    m_judge.seePen(m_clock.elapsed());
    drop();
}

bool TouchInput::isCopy(const QMouseEvent &event) const
{
    const bool isMade =
        event.source() == Qt::MouseEventSynthesizedByQt || event.source() == Qt::MouseEventSynthesizedBySystem;
    return isMade && m_hasTouches && !m_judge.isPenNear(m_clock.elapsed());
}

bool TouchInput::eventFilter(QObject *watched, QEvent *event)
{
    const bool isEntry = event->type() == QEvent::TabletEnterProximity;
    if (isEntry || event->type() == QEvent::TabletLeaveProximity) {
        m_judge.setPenNear(isEntry, m_clock.elapsed());
        seePen();
        if (!isEntry)
            Q_EMIT penLeft();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace board
