#include "window/sidepanel.h"

#include "core/workspace.h"
#include "look/icons.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/theme.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace board {

SidePanel::SidePanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_tabRow(new QHBoxLayout)
    , m_tabs(new QButtonGroup(this))
    , m_parts(new QStackedWidget(this))
    , m_pin(new QToolButton(this))
{
    setAccessibleName(workspace->text("IDS_BOARD_PANEL"));
    m_pin->setIcon(icon(Icon::Pin));
    sizeAsBarButton(m_pin);
    m_pin->setCheckable(true);
    m_pin->setToolTip(workspace->text("IDS_BOARD_PIN"));
    m_pin->setAccessibleName(m_pin->toolTip());
    m_pin->setFocusPolicy(Qt::TabFocus);
    m_tabRow->setContentsMargins(mediumGap, mediumGap, mediumGap, mediumGap);
    m_tabRow->setSpacing(smallGap);
    m_tabRow->addStretch();
    m_tabRow->addWidget(m_pin);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(m_tabRow);
    column->addWidget(m_parts, 1);
    connect(m_tabs, QOverload<int>::of(&QButtonGroup::idClicked), m_parts, &QStackedWidget::setCurrentIndex);
}

void SidePanel::addTab(const QString &title, QWidget *part)
{
    const int index = m_parts->addWidget(part);
    auto *tab = new QToolButton(this);
    tab->setText(title);
    tab->setCheckable(true);
    tab->setChecked(index == 0);
    // A least width would let it become narrower than its text.
    followSizes(tab, [tab] { tab->setFixedHeight(sizes().barButton); });
    tab->setFocusPolicy(Qt::TabFocus);
    m_tabs->addButton(tab, index);
    m_tabRow->insertWidget(index, tab);
}

void SidePanel::showTab(const QWidget *part)
{
    for (int i = 0; i < m_parts->count(); ++i) {
        if (m_parts->widget(i) != part && !m_parts->widget(i)->isAncestorOf(part))
            continue;
        m_tabs->button(i)->setChecked(true);
        m_parts->setCurrentIndex(i);
    }
}

} // namespace board
