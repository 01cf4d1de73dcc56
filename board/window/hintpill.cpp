#include "window/hintpill.h"

#include "look/accessiblerole.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>

namespace board {

namespace {

constexpr QMargins inside(14, 7, 14, 7);
constexpr int footGap = 24;
constexpr int headGap = 12;

} // namespace

HintPill::HintPill(QWidget *view)
    : QLabel(view)
{
    setObjectName(QStringLiteral("hintPill"));
    setLayoutDirection(QGuiApplication::layoutDirection());
    setAccessibleRole(this, QAccessible::AlertMessage);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setContentsMargins(inside);
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::ToolTipText);
    view->installEventFilter(this);
    hide();
}

void HintPill::showHint(const QString &text, Qt::Edge edge)
{
    m_edge = edge;
    const bool isNews = !text.isEmpty() && (text != this->text() || !isVisible());
    setText(text);
    setVisible(!text.isEmpty());
    place();
    if (isNews)
        announce(this, text);
}

/// Long hints are cut off rather than wider than the view.
void HintPill::place()
{
    const QSize room = parentWidget()->size();
    const QSize size = sizeHint().boundedTo(room);
    const int top = m_edge == Qt::TopEdge ? headGap : room.height() - size.height() - footGap;
    setGeometry((room.width() - size.width()) / 2, top, size.width(), size.height());
}

bool HintPill::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QLabel::eventFilter(watched, event);
}

void HintPill::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    painter.end();
    QLabel::paintEvent(event);
}

} // namespace board
