#include "window/objectpanel.h"

#include "commands/menuplan.h"
#include "core/workspace.h"
#include "look/icons.h"
#include "look/linestart.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "panels/foldingsection.h"
#include "panels/objecthead.h"
#include "panels/properties/propertypanel.h"
#include "panels/settings/settingspanel.h"
#include "panels/stylepanel.h"

#include <framework/cbaseobject.h>

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace board {

ObjectPanel::ObjectPanel(const Workspace *workspace, const Commands *commands, NewLook *newLook, QWidget *parent)
    : QScrollArea(parent)
    , m_workspace(workspace)
    , m_head(new ObjectHead(workspace))
    , m_more(new QToolButton)
    , m_settings(new SettingsPanel(workspace))
    , m_text(new SettingsPanel(workspace, SettingsPanel::Text))
    , m_textSection(new FoldingSection(workspace->text("IDS_TOOL_TEXT"), m_text))
    , m_style(new StylePanel(workspace, commands, newLook))
    , m_properties(new PropertyPanel(workspace))
    , m_allProperties(new FoldingSection(workspace->text("IDS_BOARD_ALL_PROPERTIES"), m_properties))
    , m_refresh([this] { refresh(); })
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setSpacing(largeGap);
    m_textSection->remember(QStringLiteral("text"), true);
    m_allProperties->remember(QStringLiteral("allProperties"), false);
    for (QWidget *part :
         {makeTop(*commands), static_cast<QWidget *>(m_settings), static_cast<QWidget *>(m_textSection),
          static_cast<QWidget *>(m_style), static_cast<QWidget *>(m_allProperties)})
        column->addWidget(part);
    column->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->installEventFilter(this);
    makeRoom(false);
    // The page keeps the keys while the mouse is used here.
    setFocusPolicy(Qt::NoFocus);
    refresh();
}

/// The menu of the objects stands at their name.
QWidget *ObjectPanel::makeTop(const Commands &commands)
{
    m_more->setIcon(icon(Icon::More));
    m_more->setToolTip(m_workspace->text("IDS_BOARD_MORE"));
    m_more->setAccessibleName(m_more->toolTip());
    m_more->setFocusPolicy(Qt::TabFocus);
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setMenu(new QMenu(m_more));
    fillMenu(m_more->menu(), objectMenuPlan(), commands, *m_workspace);
    sizeAsBarButton(m_more);
    auto *top = new QWidget;
    followSizes(top, [top] { top->setMinimumHeight(sizes().barButton); });
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_head, 1);
    row->addWidget(m_more, 0, Qt::AlignTop);
    return top;
}

void ObjectPanel::setPage(pagehost::Page *page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    if (page) {
        const auto refreshSoon = [this] { m_refresh.request(); };
        connect(page, &pagehost::Page::selectionChanged, this, refreshSoon);
        connect(page, &pagehost::Page::contentChanged, this, refreshSoon);
    }
    m_style->setPage(page);
    m_settings->setPage(page);
    m_text->setPage(page);
    m_properties->setPage(page);
    refresh();
}

/// The scroll bar takes the place of the margin, so that rows keep their width.
bool ObjectPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == verticalScrollBar() && event->type() == QEvent::Show)
        makeRoom(true);
    else if (watched == verticalScrollBar() && event->type() == QEvent::Hide)
        makeRoom(false);
    return QScrollArea::eventFilter(watched, event);
}

void ObjectPanel::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    m_refresh.request();
}

void ObjectPanel::makeRoom(bool isScrollBarShown)
{
    const int extent = verticalScrollBar()->sizeHint().width();
    const int margin = qMax(largeGap, extent);
    const int end = isScrollBarShown ? margin - extent : margin;
    widget()->layout()->setContentsMargins(alongLines(largeGap, largeGap, end, largeGap));
}

void ObjectPanel::settle()
{
    m_settings->settle();
    m_text->settle();
    m_properties->settle();
}

void ObjectPanel::showText()
{
    m_textSection->setOpen(true);
    refresh();
    widget()->layout()->activate();
    ensureWidgetVisible(m_textSection);
}

void ObjectPanel::showAllProperties()
{
    m_allProperties->setOpen(true);
    widget()->layout()->activate();
    ensureWidgetVisible(m_properties);
    m_properties->comeToFront();
}

void ObjectPanel::refresh()
{
    const QVector<CBaseObject *> objects = m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
    m_head->showSelection(m_page);
    m_more->setVisible(!objects.isEmpty());
    m_settings->setVisible(!objects.isEmpty());
    // Whether there is a section is known only afterwards, and hidden panels don't follow.
    if (isVisible())
        m_text->refresh();
    m_textSection->setVisible(!objects.isEmpty() && !m_text->isEmpty());
    m_allProperties->setVisible(!objects.isEmpty());
    // A name of several lines takes its room at once, from the inside to the outside.
    for (QWidget *part = m_head; part != viewport(); part = part->parentWidget())
        part->layout()->activate();
    m_settings->comeToFront();
    m_properties->comeToFront();
}

} // namespace board
