#include "presenting/fadingdock.h"

#include "look/motion.h"
#include "look/sizes.h"
#include "look/surface.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsOpacityEffect>
#include <QtWidgets/QHBoxLayout>

namespace board {

namespace {

constexpr int distanceFromEdges = 24;
constexpr int thickness = 56;
constexpr int largeThickness = 80;
constexpr int endGap = 6;

bool isPointer(QEvent::Type type)
{
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease;
}

} // namespace

FadingDock::FadingDock(QWidget *under)
    : QWidget(under)
    , m_under(under)
    , m_row(new QHBoxLayout(this))
    , m_opacity(new QGraphicsOpacityEffect(this))
    , m_shadow(new SurfaceShadow(this, under))
{
    setObjectName(QStringLiteral("presentingDock"));
    setLayoutDirection(QGuiApplication::layoutDirection());
    setFixedHeight(areSizesLarge() ? largeThickness : thickness);
    m_row->setContentsMargins(endGap, 0, endGap, 0);
    m_row->setSpacing(smallGap);
    setGraphicsEffect(m_opacity);
    m_opacity->setOpacity(1);
    connect(&m_fading, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_opacity->setOpacity(value.toDouble());
        m_shadow->setStrength(value.toDouble());
    });
    connect(&m_fading, &QVariantAnimation::finished, this, [this] { setVisible(m_isShown); });
    for (QTimer *timer : {&m_patience, &m_pointerPatience}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
        timer->setInterval(patience);
        timer->start();
    }
    connect(&m_patience, &QTimer::timeout, this, &FadingDock::fade);
    connect(&m_pointerPatience, &QTimer::timeout, this, [this] { hidePointer(true); });
    // Not the hidden one of the view.
    setCursor(Qt::ArrowCursor);
    under->installEventFilter(this);
}

/// A view that scrolls takes what lies on it along.
void FadingDock::moveEvent(QMoveEvent *)
{
    layOut();
}

void FadingDock::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSurface(&painter, *this);
}

/// Above a curtain, too.
void FadingDock::appear()
{
    raise();
    setShown(true);
    m_patience.start();
}

void FadingDock::fade()
{
    if (!underMouse())
        setShown(false);
}

void FadingDock::hidePointer(bool hidden)
{
    if (hidden == m_isPointerHidden)
        return;
    m_isPointerHidden = hidden;
    hidden ? m_under->setCursor(Qt::BlankCursor) : m_under->unsetCursor();
}

void FadingDock::setShown(bool shown)
{
    if (shown == m_isShown)
        return;
    m_isShown = shown;
    if (shown)
        show();
    m_fading.stop();
    const bool fades = currentTheme() != Theme::HighContrast;
    m_fading.setDuration(fades ? timeOf(Motion::PresentingBar) : 0);
    m_fading.setStartValue(m_opacity->opacity());
    m_fading.setEndValue(shown ? 1.0 : 0.0);
    m_fading.start();
}

bool FadingDock::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        layOut();
    // The view sets its cursor whenever something under the pointer changes.
    if (event->type() == QEvent::CursorChange && m_isPointerHidden && m_under->cursor().shape() != Qt::BlankCursor)
        m_under->setCursor(Qt::BlankCursor);
    if (!isPointer(event->type()))
        return false;
    hidePointer(false);
    m_pointerPatience.start();
    const QPoint pos = static_cast<QMouseEvent *>(event)->pos();
    if (geometry().adjusted(-reach, -reach, reach, reach).contains(pos))
        appear();
    return false;
}

void FadingDock::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event);
    m_patience.stop();
}

void FadingDock::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    m_patience.start();
}

void FadingDock::layOut()
{
    adjustSize();
    const int end = m_under->width() - width() - distanceFromEdges;
    move(isRightToLeft() ? end : distanceFromEdges, m_under->height() - height() - distanceFromEdges);
    raise();
}

} // namespace board
