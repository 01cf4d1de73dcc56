#include "panels/outlinetree.h"

#include <QtGui/QDropEvent>
#include <QtWidgets/QHeaderView>

namespace board {

namespace {

constexpr int buttonColumnWidth = 28;
constexpr int iconSide = 16;

} // namespace

OutlineTree::OutlineTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(LockColumn + 1);
    setHeaderHidden(true);
    header()->setMinimumSectionSize(buttonColumnWidth);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    for (const int column : {EyeColumn, LockColumn}) {
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
        header()->resizeSection(column, buttonColumnWidth);
    }
    setIconSize(QSize(iconSide, iconSide));
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | DoubleClicked);
    setDragDropMode(InternalMove);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
}

bool OutlineTree::pressButton(const QMouseEvent *event)
{
    QTreeWidgetItem *item = itemAt(event->pos());
    const int column = columnAt(event->pos().x());
    if (!item || event->button() != Qt::LeftButton || column < EyeColumn)
        return false;
    if (column == EyeColumn)
        Q_EMIT eyePressed(item);
    else
        Q_EMIT lockPressed(item);
    return true;
}

void OutlineTree::mousePressEvent(QMouseEvent *event)
{
    if (!pressButton(event))
        QTreeWidget::mousePressEvent(event);
}

void OutlineTree::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!pressButton(event))
        QTreeWidget::mouseDoubleClickEvent(event);
}

/// The space bar presses the eye of the row.
void OutlineTree::keyPressEvent(QKeyEvent *event)
{
    QTreeWidgetItem *item = currentItem();
    if (item && event->key() == Qt::Key_Space)
        Q_EMIT eyePressed(item);
    else
        QTreeWidget::keyPressEvent(event);
}

void OutlineTree::dropEvent(QDropEvent *event)
{
    // Otherwise the view would remove the rows that it takes for moved.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    dropAt(itemAt(event->pos()), dropIndicatorPosition());
}

void OutlineTree::dropAt(QTreeWidgetItem *target, DropIndicatorPosition position)
{
    if (!target || position == OnViewport) {
        Q_EMIT rowsDropped(nullptr, nullptr);
        return;
    }
    QTreeWidgetItem *parent = target->parent();
    const int row = parent ? parent->indexOfChild(target) : indexOfTopLevelItem(target);
    const auto rowAt = [&](int index) { return parent ? parent->child(index) : topLevelItem(index); };
    const bool isOpen = target->isExpanded() && target->childCount() > 0;
    if (position == AboveItem)
        Q_EMIT rowsDropped(parent, target);
    else if (target->childCount() > 0 && (position == OnItem || isOpen))
        Q_EMIT rowsDropped(target, target->child(0));
    else
        Q_EMIT rowsDropped(parent, rowAt(row + 1));
}

} // namespace board
