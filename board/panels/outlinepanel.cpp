#include "panels/outlinepanel.h"

#include "core/objectnames.h"
#include "core/selecting.h"
#include "core/workspace.h"
#include "look/icons.h"
#include "look/theme.h"
#include "panels/outlinetree.h"

#include <pagehost/commands.h>
#include <pagehost/outline.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace board {

namespace {

/// Of an item: the index of its row.
constexpr int rowRole = Qt::UserRole;

bool areVisible(const QVector<CBaseObject *> &objects)
{
    return std::any_of(objects.begin(), objects.end(),
                       [](const CBaseObject *object) { return object->QGraphicsItem::isVisible(); });
}

bool areLocked(const QVector<CBaseObject *> &objects)
{
    return std::all_of(objects.begin(), objects.end(),
                       [](const CBaseObject *object) { return object->isLocked(); });
}

int indexOf(const QTreeWidgetItem *item)
{
    return item->data(OutlineTree::NameColumn, rowRole).toInt();
}

/// Its column shows a picture alone.
void nameButton(QTreeWidgetItem *row, OutlineTree::Column column, const QString &name)
{
    row->setToolTip(column, name);
    row->setData(column, Qt::AccessibleTextRole, name);
}

} // namespace

OutlinePanel::OutlinePanel(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_nothing(new QLabel(workspace->text("IDS_BOARD_OUTLINE_EMPTY"), this))
    , m_tree(new OutlineTree(this))
    , m_refresh(this, [this] { refresh(); })
{
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->setWordWrap(true);
    m_tree->setAccessibleName(workspace->text("IDS_BOARD_OUTLINE"));
    // The page keeps the keys while the mouse is used here.
    m_tree->setFocusPolicy(Qt::TabFocus);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(largeGap, largeGap, largeGap, largeGap);
    column->addWidget(m_nothing);
    column->addWidget(m_tree, 1);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &OutlinePanel::select);
    connect(m_tree, &QTreeWidget::itemChanged, this, &OutlinePanel::rename);
    connect(m_tree, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem *item) { m_folded.insert(groupOf(item)); });
    connect(m_tree, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem *item) { m_folded.remove(groupOf(item)); });
    connect(m_tree, &OutlineTree::eyePressed, this, &OutlinePanel::toggleVisible);
    connect(m_tree, &OutlineTree::lockPressed, this, &OutlinePanel::toggleLock);
    connect(m_tree, &OutlineTree::rowsDropped, this, &OutlinePanel::drop);
}

void OutlinePanel::setPage(pagehost::Page *page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    m_rows.clear();
    m_tree->clear();
    m_folded.clear();
    m_shown.clear();
    const auto request = [this] { m_refresh.request(); };
    if (page) {
        connect(page, &pagehost::Page::selectionChanged, this, request);
        connect(page, &pagehost::Page::contentChanged, this, request);
        connect(page, &pagehost::Page::objectAdded, this, request);
        connect(page, &pagehost::Page::objectRemoved, this, request);
    }
    request();
}

bool OutlinePanel::Row::operator==(const Row &other) const
{
    return depth == other.depth && group == other.group && object == other.object && title == other.title &&
           isVisible == other.isVisible && isLocked == other.isLocked;
}

/// Rows stay what they are where nothing has changed: one of them may be under the mouse, about to be dragged.
void OutlinePanel::refresh()
{
    if (m_tree->isRenaming())
        return;
    const QSignalBlocker quiet(m_tree);
    QVector<Row> rows;
    if (m_page)
        addRows(rows, 0, 0);
    if (rows != m_rows) {
        const int scrolled = m_tree->verticalScrollBar()->value();
        m_rows = rows;
        rebuild();
        m_tree->doItemsLayout();
        m_tree->verticalScrollBar()->setValue(scrolled);
    }
    m_nothing->setVisible(rows.isEmpty());
    m_tree->setVisible(!rows.isEmpty());
    showSelection();
    scrollToSelection();
}

void OutlinePanel::addRows(QVector<Row> &rows, quint32 level, int depth) const
{
    const QVector<pagehost::GroupUnit> units = m_page->grouping().unitsOf(level);
    for (auto unit = units.rbegin(); unit != units.rend(); ++unit) {
        rows.append({depth, unit->group, unit->group == 0 ? unit->objects.first() : nullptr,
                     titleOf(*m_workspace, *m_page, *unit), areVisible(unit->objects), areLocked(unit->objects)});
        if (unit->group != 0)
            addRows(rows, unit->group, depth + 1);
    }
}

void OutlinePanel::rebuild()
{
    m_tree->clear();
    QVector<QTreeWidgetItem *> parents{m_tree->invisibleRootItem()};
    for (int index = 0; index < m_rows.size(); ++index) {
        const Row &row = m_rows.at(index);
        parents.resize(row.depth + 1);
        parents.append(addItem(row, index, parents.last()));
    }
}

QTreeWidgetItem *OutlinePanel::addItem(const Row &row, int index, QTreeWidgetItem *parent)
{
    auto *item = new QTreeWidgetItem(parent);
    const Qt::ItemFlags drops = row.group == 0 ? Qt::NoItemFlags : Qt::ItemIsDropEnabled;
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled | drops);
    item->setText(OutlineTree::NameColumn, row.title);
    // In groups there is little room for it.
    item->setToolTip(OutlineTree::NameColumn, row.title);
    item->setData(OutlineTree::NameColumn, rowRole, index);
    item->setIcon(OutlineTree::EyeColumn, icon(row.isVisible ? Icon::Eye : Icon::EyeClosed, QPalette::Text));
    nameButton(item, OutlineTree::EyeColumn,
               m_workspace->text(row.isVisible ? "IDS_BOARD_HIDE" : "IDS_BOARD_SHOW"));
    item->setIcon(OutlineTree::LockColumn, icon(row.isLocked ? Icon::Lock : Icon::Unlocked, QPalette::Text));
    nameButton(item, OutlineTree::LockColumn,
               m_workspace->text(row.isLocked ? "IDS_BOARD_UNLOCK" : "IDS_BOARD_LOCK"));
    item->setExpanded(!m_folded.contains(row.group));
    return item;
}

/// A group is shown as selected where all of it is, its members where only they are.
void OutlinePanel::showSelection()
{
    QVector<QTreeWidgetItem *> rows;
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        rows.append(m_tree->topLevelItem(i));
    while (!rows.isEmpty()) {
        QTreeWidgetItem *row = rows.takeLast();
        const QVector<CBaseObject *> objects = objectsOf(row);
        const bool isSelected =
            !objects.isEmpty() && std::all_of(objects.begin(), objects.end(),
                                              [](const CBaseObject *object) { return object->isSelected(); });
        row->setSelected(isSelected);
        for (int i = 0; !isSelected && i < row->childCount(); ++i)
            rows.append(row->child(i));
    }
}

/// To its topmost row, and only to another selection: the user may have scrolled away since.
void OutlinePanel::scrollToSelection()
{
    const QVector<CBaseObject *> selected = m_page ? m_page->selectedObjects() : QVector<CBaseObject *>();
    if (selected == m_shown)
        return;
    m_shown = selected;
    const QList<QTreeWidgetItem *> rows = m_tree->selectedItems();
    if (rows.isEmpty())
        return;
    const auto isAbove = [](const QTreeWidgetItem *one, const QTreeWidgetItem *other) {
        return indexOf(one) < indexOf(other);
    };
    const QTreeWidgetItem *topmost = *std::min_element(rows.begin(), rows.end(), isAbove);
    unfoldAround(topmost);
    m_tree->scrollToItem(topmost);
}

void OutlinePanel::unfoldAround(const QTreeWidgetItem *item)
{
    for (QTreeWidgetItem *group = item->parent(); group; group = group->parent()) {
        m_folded.remove(groupOf(group));
        group->setExpanded(true);
    }
}

quint32 OutlinePanel::groupOf(const QTreeWidgetItem *item) const
{
    return item ? m_rows.value(indexOf(item)).group : 0;
}

QVector<CBaseObject *> OutlinePanel::objectsOf(const QTreeWidgetItem *item) const
{
    if (!m_page)
        return {};
    const Row row = m_rows.value(indexOf(item));
    if (row.group != 0)
        return m_page->grouping().objectsOf(row.group);
    return m_page->contains(row.object) ? QVector<CBaseObject *>{row.object} : QVector<CBaseObject *>();
}

QVector<CBaseObject *> OutlinePanel::chosenObjects() const
{
    QVector<CBaseObject *> chosen;
    const QList<QTreeWidgetItem *> items = m_tree->selectedItems();
    for (const QTreeWidgetItem *item : items)
        chosen += objectsOf(item);
    return chosen;
}

bool OutlinePanel::canChange() const
{
    const pagehost::Document *document = m_page ? m_page->document() : nullptr;
    return document && document->editingBlocked() == 0;
}

void OutlinePanel::select()
{
    if (m_page)
        selectMembers(*m_page, chosenObjects());
}

void OutlinePanel::rename(QTreeWidgetItem *item)
{
    const QString name = item->text(OutlineTree::NameColumn).trimmed();
    const quint32 group = groupOf(item);
    const QVector<CBaseObject *> objects = objectsOf(item);
    if (!objects.isEmpty() && canChange()) {
        const bool isKind = name == kindOf(*m_workspace, {group, objects});
        const QString given = isKind ? QString() : name;
        group == 0 ? pagehost::renameObject(m_page, objects.first(), given)
                   : pagehost::renameGroup(m_page, group, given);
    }
    // The page tells the name that holds.
    const QSignalBlocker quiet(m_tree);
    item->setText(OutlineTree::NameColumn, m_rows.value(indexOf(item)).title);
    m_refresh.request();
}

void OutlinePanel::toggleVisible(QTreeWidgetItem *item)
{
    const QVector<CBaseObject *> objects = objectsOf(item);
    if (canChange())
        pagehost::setObjectsVisible(m_page, objects, !areVisible(objects));
}

void OutlinePanel::toggleLock(QTreeWidgetItem *item)
{
    const QVector<CBaseObject *> objects = objectsOf(item);
    if (canChange())
        pagehost::setObjectsLocked(objects, !areLocked(objects));
}

void OutlinePanel::drop(QTreeWidgetItem *parent, QTreeWidgetItem *below)
{
    if (!canChange())
        return;
    const QVector<CBaseObject *> lower = below ? objectsOf(below) : QVector<CBaseObject *>();
    pagehost::placeObjects(m_page, chosenObjects(), groupOf(parent), lower.isEmpty() ? nullptr : lower.last());
}

} // namespace board
