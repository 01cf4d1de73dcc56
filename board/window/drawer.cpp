#include "window/drawer.h"

#include "look/surface.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace board {

namespace {

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::TabletPress || type == QEvent::TouchBegin;
}

} // namespace

Drawer::Drawer(QWidget *area, QWidget *slot, int width, int inset, int tallest)
    : QFrame(area)
    , m_shadow(new SurfaceShadow(this, area))
    , m_area(area)
    , m_slot(slot)
    , m_column(new QVBoxLayout(this))
    , m_usualWidth(width)
    , m_width(width)
    , m_inset(inset)
    , m_tallest(tallest)
{
    keepEdges();
    m_shadow->setCast(floats());
    if (slot) {
        slot->hide();
        slot->installEventFilter(this);
    }
    area->installEventFilter(this);
    hide();
}

/// A line at the side, or all round.
void Drawer::keepEdges()
{
    const int around = m_inset > 0 ? edgeWidth() : 0;
    m_column->setContentsMargins(edgeWidth(), around, edgeWidth(), around);
}

void Drawer::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        keepEdges();
}

/// Its parts may need more room in other letters.
bool Drawer::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        setUsualWidth(m_usualWidth);
    return QFrame::event(event);
}

void Drawer::setContent(QWidget *content)
{
    m_column->addWidget(content);
    setUsualWidth(m_usualWidth);
}

void Drawer::setUsualWidth(int width)
{
    m_usualWidth = width;
    // Styles give buttons their sizes, before they are shown for the first time.
    const QList<QWidget *> parts = findChildren<QWidget *>();
    for (const QWidget *part : parts)
        part->ensurePolished();
    m_column->activate();
    // Texts of some languages are longer.
    m_width = qMax(width, minimumSizeHint().width());
    if (m_slot)
        m_slot->setFixedWidth(m_width);
    place();
}

void Drawer::setSide(Qt::Edge side)
{
    m_side = side;
    place();
}

void Drawer::setOpen(bool open)
{
    if (open == m_isOpen)
        return;
    m_isOpen = open;
    setUsualWidth(m_usualWidth);
    arrange();
    Q_EMIT openChanged(open);
}

void Drawer::setPinned(bool pinned)
{
    if (pinned == m_isPinned || !m_slot)
        return;
    m_isPinned = pinned;
    arrange();
    Q_EMIT pinnedChanged(pinned);
}

void Drawer::arrange()
{
    qApp->removeEventFilter(this);
    if (m_isOpen && !m_isPinned)
        qApp->installEventFilter(this);
    if (m_slot)
        m_slot->setVisible(m_isOpen && m_isPinned);
    // Else the focus would go through whatever comes next.
    if (!m_isOpen && m_heir && isAncestorOf(window()->focusWidget()))
        m_heir->setFocus();
    m_shadow->setCast(floats());
    setVisible(m_isOpen);
    raise();
    place();
}

void Drawer::place()
{
    if (m_isPinned)
        return setGeometry(m_slot->geometry());
    if (m_place)
        return setGeometry(m_place({m_width, minimumSizeHint().height()}));
    const QRect room = m_area->rect().adjusted(m_inset, m_inset, -m_inset, -m_inset);
    const int height = qMin(room.height(), m_tallest);
    const int left = m_side == Qt::LeftEdge ? room.left() : room.right() + 1 - m_width;
    setGeometry(left, room.top(), m_width, height);
}

/// In this window, since lists and menus of its fields are windows of their own.
bool Drawer::isOutside(const QObject *watched) const
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (!widget || widget->window() != window() || widget == this || isAncestorOf(widget))
        return false;
    return std::none_of(m_openers.begin(), m_openers.end(), [widget](const QPointer<QWidget> &opener) {
        return opener && (widget == opener || opener->isAncestorOf(widget));
    });
}

bool Drawer::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPlace = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (isPlace && (watched == m_area || watched == m_slot))
        place();
    if (!m_isOpen || m_isPinned || !isOutside(watched))
        return false;
    if (isPress(event->type()))
        setOpen(false);
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return false;
    setOpen(false);
    return true;
}

void Drawer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || m_isPinned)
        return QFrame::keyPressEvent(event);
    setOpen(false);
}

void Drawer::paintEvent(QPaintEvent *)
{
    const ThemeColors colors = themeColors();
    QPainter painter(this);
    if (!floats()) {
        painter.fillRect(rect(), colors.border);
        return painter.fillRect(rect().adjusted(edgeWidth(), 0, -edgeWidth(), 0), colors.bar);
    }
    paintSurface(&painter, *this);
}

} // namespace board
