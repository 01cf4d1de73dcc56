#include "window/objectpanel.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/properties/propertypanel.h"
#include "panels/settings/settingspanel.h"
#include "panels/stylepanel.h"

#include <framework/cbaseobject.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

constexpr int headingPixels = 15;

} // namespace

ObjectPanel::ObjectPanel(const Workspace *workspace, QWidget *parent)
    : QScrollArea(parent)
    , m_workspace(workspace)
    , m_title(new QLabel)
    , m_settings(new SettingsPanel(workspace))
    , m_style(new StylePanel(workspace))
    , m_fold(new QToolButton)
    , m_properties(new PropertyPanel(workspace))
    , m_refresh([this] { refresh(); })
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(largeGap, largeGap, largeGap, largeGap);
    column->setSpacing(largeGap);
    QFont font = m_title->font();
    font.setPixelSize(headingPixels);
    font.setBold(true);
    m_title->setFont(font);
    m_title->setWordWrap(true);
    m_title->setTextFormat(Qt::PlainText);
    m_fold->setText(workspace->text("IDS_BOARD_PROPERTIES"));
    m_fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_fold->setCheckable(true);
    m_fold->setAutoRaise(true);
    connect(m_fold, &QToolButton::toggled, this, &ObjectPanel::foldProperties);
    for (QWidget *part :
         {static_cast<QWidget *>(m_title), static_cast<QWidget *>(m_settings), static_cast<QWidget *>(m_style),
          static_cast<QWidget *>(m_fold), static_cast<QWidget *>(m_properties)})
        column->addWidget(part);
    column->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The page keeps the keys while the mouse is used here.
    setFocusPolicy(Qt::NoFocus);
    foldProperties();
    refresh();
}

void ObjectPanel::setPage(pagehost::Page *page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    if (page)
        connect(page, &pagehost::Page::selectionChanged, this, [this] { m_refresh.request(); });
    m_style->setPage(page);
    m_settings->setPage(page);
    m_properties->setPage(page);
    refresh();
}

void ObjectPanel::settle()
{
    m_settings->settle();
    m_properties->settle();
}

void ObjectPanel::showAllProperties()
{
    m_fold->setChecked(true);
    widget()->layout()->activate();
    ensureWidgetVisible(m_properties);
    m_properties->comeToFront();
}

void ObjectPanel::foldProperties()
{
    m_fold->setArrowType(m_fold->isChecked() ? Qt::DownArrow : Qt::RightArrow);
    m_properties->setVisible(m_fold->isChecked());
}

void ObjectPanel::refresh()
{
    const QVector<CBaseObject *> objects = m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
    if (objects.isEmpty())
        m_title->setText(m_workspace->text("IDS_BOARD_PAGE"));
    else if (objects.size() == 1)
        m_title->setText(m_workspace->text(objects.first()->kindName()));
    else
        m_title->setText(m_workspace->text("IDS_BOARD_SEVERAL").arg(objects.size()));
    m_settings->setVisible(!objects.isEmpty());
    m_fold->setVisible(!objects.isEmpty());
    m_properties->setVisible(!objects.isEmpty() && m_fold->isChecked());
    widget()->layout()->activate();
    m_settings->comeToFront();
    m_properties->comeToFront();
}

} // namespace board
