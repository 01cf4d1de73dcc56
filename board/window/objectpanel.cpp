#include "window/objectpanel.h"

#include "core/objectnames.h"
#include "core/workspace.h"
#include "look/linestart.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "panels/foldingsection.h"
#include "panels/properties/propertypanel.h"
#include "panels/settings/settingspanel.h"
#include "panels/stylepanel.h"

#include <framework/cbaseobject.h>

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

namespace board {

namespace {

constexpr int headingPixels = 15;
constexpr int largeHeadingPixels = 21;

} // namespace

ObjectPanel::ObjectPanel(const Workspace *workspace, const Commands *commands, NewLook *newLook, QWidget *parent)
    : QScrollArea(parent)
    , m_workspace(workspace)
    , m_title(new QLabel)
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
    followSizes(m_title, [this] {
        QFont font = QApplication::font();
        font.setPixelSize(areSizesLarge() ? largeHeadingPixels : headingPixels);
        font.setBold(true);
        m_title->setFont(font);
    });
    m_title->setAlignment(lineStart() | Qt::AlignVCenter);
    m_title->setWordWrap(true);
    m_title->setTextFormat(Qt::PlainText);
    m_textSection->remember(QStringLiteral("text"), true);
    m_allProperties->remember(QStringLiteral("allProperties"), false);
    for (QWidget *part : {static_cast<QWidget *>(m_title), static_cast<QWidget *>(m_settings),
                          static_cast<QWidget *>(m_textSection), static_cast<QWidget *>(m_style),
                          static_cast<QWidget *>(m_allProperties)})
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
    if (objects.isEmpty())
        m_title->setText(m_workspace->text("IDS_BOARD_PAGE"));
    else
        m_title->setText(titleOf(*m_workspace, *m_page, objects));
    m_settings->setVisible(!objects.isEmpty());
    // Whether there is a section is known only afterwards, and hidden panels don't follow.
    if (isVisible())
        m_text->refresh();
    m_textSection->setVisible(!objects.isEmpty() && !m_text->isEmpty());
    m_allProperties->setVisible(!objects.isEmpty());
    widget()->layout()->activate();
    m_settings->comeToFront();
    m_properties->comeToFront();
}

} // namespace board
