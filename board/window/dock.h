#pragma once

#include "core/toolchoice.h"

#include <QtCore/QVector>
#include <QtWidgets/QWidget>

#include <optional>

class QMenu;

namespace board {

class Commands;
class DockButton;
class Workspace;

/// The tools in a bar at an edge of the window. Tools that nobody offers are left out.
///
/// Where the bar is too short, its gaps close, its buttons shrink, and then the rarer tools go into a menu.
class Dock : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this.
    Dock(const Workspace *workspace, const Commands *commands, ToolChoice *tools, QWidget *parent = nullptr);

    /// Stands behind the tools while the bar lies at the top or the bottom and has room for it.
    void setColors(QWidget *colors);
    /// While blocked, tools are grey, and a press on one only says so.
    void setBlocked(bool blocked);
    /// While letters are written, Text is shown as the chosen tool.
    void setWriting(bool isWriting);
    /// Does as a first press on the tool; without a tool, on the last entry of the bar.
    void use(std::optional<Tool> tool);
    /// The edge of the window that the bar lies at.
    void setEdge(Qt::Edge edge);
    Qt::Edge edge() const { return m_edge; }
    /// Across the edge, logical pixels.
    int thickness() const;
    DockButton *buttonOf(Tool tool) const;
    DockButton *insertButton() const { return m_insert; }
    DockButton *moreButton() const { return m_more; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A tool has been pressed while all are blocked; without one, the last entry of the bar.
    void pressedInVain(const QString &name, std::optional<board::Tool> tool);
    /// A tool has been pressed while letters are written: they are done before it is used.
    void writingDone();
    /// The user wants to choose a shape.
    void shapesRequested();
    /// The pen or the highlighter was pressed again.
    void optionsRequested();
    /// The user drags the bar by its empty part; global coordinates.
    void dragged(const QPoint &pos);
    /// A finger has come down on a button.
    void touched();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Entry
    {
        DockButton *button;
        std::optional<Tool> tool; ///< none for what is done at once
        int group;
        bool isRare; ///< goes into the menu first
    };
    /// Of the buttons along the bar.
    struct Measure
    {
        int side;
        int gap;
        bool isFolded; ///< rare tools are in the menu
    };

    void addTools();
    void addEnds();
    void describeTools();
    void press(std::optional<Tool> tool);
    bool isOffered(const Entry &entry) const;
    void showOffers();
    void showChoice();
    bool isVertical() const;
    int length() const { return isVertical() ? height() : width(); }
    int needed(const Measure &measure) const;
    int neededForColors() const;
    void putColors(int start, int end);
    /// From the widest to the shortest.
    QVector<Measure> measures() const;
    Measure fitting() const;
    void arrange();
    void put(DockButton *button, int start, int side);
    void fillMore(bool folded);

    const Commands *m_commands;
    ToolChoice *m_tools;
    QVector<Entry> m_entries;
    DockButton *m_insert = nullptr;
    DockButton *m_more;
    QMenu *m_moreMenu;
    QWidget *m_colors = nullptr;
    QVector<DockButton *> m_ends; ///< from the far end
    QVector<int> m_lines;         ///< along the bar
    Qt::Edge m_edge = Qt::LeftEdge;
    bool m_blocked = false;
    bool m_isWriting = false;
    bool m_dragging = false;
};

} // namespace board
