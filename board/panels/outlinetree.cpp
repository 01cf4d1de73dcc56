#include "panels/outlinetree.h"

#include "look/sizes.h"
#include "panels/rowdelegate.h"

#include <QtGui/QDropEvent>
#include <QtWidgets/QHeaderView>

namespace board {

namespace {

/// Where rows are folded, for the mouse; fingers get as much as the row is high.
constexpr int foldWidth = 24;
/// Of the height of a row.
constexpr double iconPart = 0.57;

} // namespace

OutlineTree::OutlineTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(LockColumn + 1);
    setHeaderHidden(true);
    // Readers would tell the numbers of the columns.
    setHeaderLabels({{}, {}, {}});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    for (const int column : {EyeColumn, LockColumn})
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | DoubleClicked);
    setDragDropMode(InternalMove);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    followSizes(this, [this] { applySizes(); });
}

void OutlineTree::applySizes()
{
    const int side = sizes().listRow;
    header()->setMinimumSectionSize(side);
    for (const int column : {EyeColumn, LockColumn})
        header()->resizeSection(column, side);
    setIndentation(areSizesLarge() ? side : foldWidth);
    const int iconSide = qRound(side * iconPart);
    setIconSize(QSize(iconSide, iconSide));
    doItemsLayout();
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
