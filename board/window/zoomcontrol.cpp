#include "window/zoomcontrol.h"

#include "core/actions.h"
#include "core/workspace.h"
#include "look/icons.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "page/pageview.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

QString percentText(double rate)
{
    return QStringLiteral("%1 %").arg(qRound(rate * 100));
}

QToolButton *buttonOf(QAction *action, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setDefaultAction(action);
    sizeAsTextButton(button);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(action->text());
    return button;
}

/// With a picture of its own, which a change of the action would replace.
QToolButton *stepButton(QAction *action, Icon picture, QWidget *parent)
{
    QToolButton *button = buttonOf(action, parent);
    const auto showPicture = [=] { button->setIcon(icon(picture)); };
    QObject::connect(action, &QAction::changed, button, showPicture);
    showPicture();
    return button;
}

} // namespace

ZoomControl::ZoomControl(const Workspace *workspace, const Actions *actions, PageView *view, QWidget *parent)
    : QWidget(parent)
    , m_rate(new QToolButton(this))
{
    auto *menu = new QMenu(m_rate);
    for (const double rate : {0.25, 0.5, 1.0, 2.0, 4.0, 8.0})
        menu->addAction(percentText(rate), view, [view, rate] { view->setZoom(rate); });
    menu->addSeparator();
    menu->addAction(actions->fitPage);
    m_rate->setMenu(menu);
    m_rate->setPopupMode(QToolButton::InstantPopup);
    m_rate->setToolTip(workspace->text("IDS_BOARD_ZOOM"));
    m_rate->setAccessibleName(m_rate->toolTip());
    m_rate->setFocusPolicy(Qt::TabFocus);
    followSizes(m_rate, [this] {
        m_rate->setFixedHeight(sizes().barButton);
        m_rate->setMinimumWidth(m_rate->fontMetrics().horizontalAdvance(percentText(8)) + 20);
    });

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_steps = {stepButton(actions->zoomOut, Icon::Remove, this), stepButton(actions->zoomIn, Icon::Add, this),
               buttonOf(actions->fitPage, this)};
    row->addWidget(m_steps[0]);
    row->addWidget(m_rate);
    row->addWidget(m_steps[1]);
    row->addWidget(m_steps[2]);
    connect(view, &PageView::zoomChanged, this, &ZoomControl::showZoom);
    showZoom(view->zoom());
}

void ZoomControl::setFolded(bool folded)
{
    for (QToolButton *button : qAsConst(m_steps))
        button->setVisible(!folded);
    // Whoever asks for the size at once gets the new one.
    layout()->invalidate();
    updateGeometry();
}

void ZoomControl::showZoom(double rate)
{
    m_rate->setText(percentText(rate));
}

} // namespace board
