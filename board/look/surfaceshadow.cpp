#include "look/surfaceshadow.h"

#include "look/surface.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

namespace board {

namespace {

/// The window that a menu lies on, which others may have opened.
QWidget *windowBelow(const QMenu &menu)
{
    QWidget *below = menu.parentWidget();
    while (below && (!below->isWindow() || below->windowType() == Qt::Popup))
        below = below->parentWidget();
    return below;
}

class MenuWatch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *menu = event->type() == QEvent::Show ? qobject_cast<QMenu *>(watched) : nullptr;
        QWidget *below = menu ? windowBelow(*menu) : nullptr;
        if (below)
            new SurfaceShadow(menu, below);
        return false;
    }
};

} // namespace

void castShadowsOfMenus()
{
    static const QPointer<MenuWatch> watch = [] {
        auto *made = new MenuWatch(qApp);
        qApp->installEventFilter(made);
        return made;
    }();
}

SurfaceShadow::SurfaceShadow(QWidget *surface, QWidget *below)
    : QWidget(below)
    , m_surface(surface)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    surface->installEventFilter(this);
    connect(surface, &QObject::destroyed, this, &QObject::deleteLater);
    follow();
}

void SurfaceShadow::setCast(bool cast)
{
    m_isCast = cast;
    follow();
}

void SurfaceShadow::setStrength(double strength)
{
    m_strength = strength;
    update();
}

QRect SurfaceShadow::surfaceRect() const
{
    if (!m_surface->isWindow())
        return m_surface->geometry();
    return {parentWidget()->mapFromGlobal(m_surface->pos()), m_surface->size()};
}

void SurfaceShadow::follow()
{
    setVisible(m_isCast && !m_surface->isHidden());
    if (isHidden())
        return;
    setGeometry(surfaceRect().marginsAdded(surfaceShadowMargins()));
    followOrder();
}

/// A popup window lies above all of its window's parts.
void SurfaceShadow::followOrder()
{
    m_surface->isWindow() ? raise() : stackUnder(m_surface);
}

bool SurfaceShadow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::Show:
        follow();
        break;
    case QEvent::Hide:
        follow();
        if (m_surface->isWindow())
            deleteLater();
        break;
    case QEvent::ZOrderChange:
        followOrder();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

/// A view that scrolls takes what lies on it along.
void SurfaceShadow::moveEvent(QMoveEvent *)
{
    follow();
}

void SurfaceShadow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(m_strength);
    paintSurfaceShadow(&painter, rect().marginsRemoved(surfaceShadowMargins()));
}

} // namespace board
