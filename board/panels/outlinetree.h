#pragma once

#include <QtWidgets/QTreeWidget>

namespace board {

/// The rows of the outline: a name, an eye and a lock. A press on eye or lock leaves the selection alone; rows that
/// are dropped stay where they are, since the page decides.
class OutlineTree : public QTreeWidget
{
    Q_OBJECT

public:
    enum Column { NameColumn, EyeColumn, LockColumn };

    explicit OutlineTree(QWidget *parent = nullptr);

    /// While the user writes a name.
    bool isRenaming() const { return state() == EditingState; }

Q_SIGNALS:
    void eyePressed(QTreeWidgetItem *item);
    void lockPressed(QTreeWidgetItem *item);
    /// The selected rows go among the rows of `parent`, null for the outermost ones, directly above the row
    /// `below`, null for the end.
    void rowsDropped(QTreeWidgetItem *parent, QTreeWidgetItem *below);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void applySizes();
    bool pressButton(const QMouseEvent *event);
    void dropAt(QTreeWidgetItem *target, DropIndicatorPosition position);
};

} // namespace board
