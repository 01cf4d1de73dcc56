#pragma once

#include "core/toolchoice.h"

#include <QtWidgets/QWidget>

class QBoxLayout;
class QToolButton;

namespace board {

class ToolSettings;
class Workspace;

/// Colours, widths and variants of the tool in use, in the strip beside the dock. Hidden for tools that have none.
class Shelf : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this. Lies in the strip of `view` that is kept free for it.
    Shelf(const Workspace *workspace, const ToolChoice *tools, ToolSettings *settings, QWidget *view);

    /// Puts the shelf at an edge of the view.
    void setEdge(Qt::Edge edge);
    /// Hides it while something else stands in its place.
    void setCovered(bool covered);
    Qt::Edge edge() const { return m_edge; }

Q_SIGNALS:
    /// The user wants to see more of what the tool can do.
    void optionsRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void rebuild();
    void addColors(Tool tool);
    void addWidths(Tool tool);
    void addVariants(Tool tool);
    void addOptions();
    QToolButton *addMore(const QString &name);
    void addLine();
    void place();
    bool isVertical() const;

    const Workspace *m_workspace;
    const ToolChoice *m_tools;
    ToolSettings *m_settings;
    QBoxLayout *m_row;
    QWidget *m_content = nullptr; ///< null while there is nothing to choose
    bool m_isCovered = false;
    Qt::Edge m_edge = Qt::LeftEdge;
};

} // namespace board
