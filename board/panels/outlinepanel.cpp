#include "panels/outlinepanel.h"

#include "core/workspace.h"
#include "look/theme.h"

#include <framework/cbaseobject.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace board {

OutlinePanel::OutlinePanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_nothing(new QLabel(workspace->text("IDS_BOARD_OUTLINE_EMPTY"), this))
    , m_list(new QListWidget(this))
    , m_refresh(this, [this] { refresh(); })
{
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->setWordWrap(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setAccessibleName(workspace->text("IDS_BOARD_OUTLINE"));
    // The page keeps the keys while the mouse is used here.
    m_list->setFocusPolicy(Qt::TabFocus);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(largeGap, largeGap, largeGap, largeGap);
    column->addWidget(m_nothing);
    column->addWidget(m_list, 1);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &OutlinePanel::select);
}

void OutlinePanel::setPage(pagehost::Page *page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    const auto request = [this] { m_refresh.request(); };
    if (page) {
        connect(page, &pagehost::Page::selectionChanged, this, request);
        connect(page, &pagehost::Page::contentChanged, this, request);
        connect(page, &pagehost::Page::objectAdded, this, request);
        connect(page, &pagehost::Page::objectRemoved, this, request);
    }
    request();
}

void OutlinePanel::refresh()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    const QVector<CBaseObject *> objects = m_page ? m_page->objects() : QVector<CBaseObject *>();
    const QVector<CBaseObject *> selected = m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
    for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
        auto *item = new QListWidgetItem(m_workspace->text((*object)->kindName()), m_list);
        item->setSelected(selected.contains(*object));
    }
    m_nothing->setVisible(objects.isEmpty());
    m_list->setVisible(!objects.isEmpty());
}

void OutlinePanel::select()
{
    const QVector<CBaseObject *> objects = m_page ? m_page->objects() : QVector<CBaseObject *>();
    // Shows other objects until it is refreshed.
    if (objects.size() != m_list->count())
        return;
    QVector<CBaseObject *> selected;
    for (int row = m_list->count() - 1; row >= 0; --row)
        if (m_list->item(row)->isSelected())
            selected.append(objects.at(objects.size() - 1 - row));
    m_page->select(selected);
}

} // namespace board
