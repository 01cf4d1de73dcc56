#pragma once

#include "core/onceperturn.h"
#include "core/toolchoice.h"
#include "look/icons.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QHBoxLayout;
class QToolButton;

namespace board {

class ColorButton;
class Commands;
class PageView;
class SettingsPanel;
class WidthButton;
class Workspace;

/// A bar beside the selected objects for what is changed most: fill, outline, the first of their settings, their
/// order, and more. Out of the way while something is dragged, moved by keys or written, and while another tool
/// than selecting is in use.
class StyleBar : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this; the bar lies on `view`.
    StyleBar(const Workspace *workspace, const Commands *commands, const ToolChoice *tools, PageView *view);

    /// While another part of the window shows the same.
    void setReplaced(bool replaced);
    SettingsPanel *setting() const { return m_setting; }

protected:
    /// Follows the view, its mouse and its keys.
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void addLook();
    void addCommands();
    QToolButton *addButton(Icon picture, const QString &name);
    QWidget *addLine();
    void followPage();
    bool isWanted() const;
    void arrange();
    void showValues(const QVector<CBaseObject *> &objects);
    void place();
    void setKeyMoves(bool moves);
    QRect boxOf(const QRectF &sceneRect) const;
    QVector<CBaseObject *> selection() const;

    const Workspace *m_workspace;
    const Commands *m_commands;
    const ToolChoice *m_tools;
    PageView *m_view;
    QPointer<pagehost::Page> m_page;
    QHBoxLayout *m_row;
    ColorButton *m_fill;
    ColorButton *m_outline;
    WidthButton *m_width;
    QWidget *m_lookLine = nullptr; ///< behind the look
    SettingsPanel *m_setting;
    QWidget *m_settingLine = nullptr;
    QToolButton *m_bringBack = nullptr; ///< only where the selection hangs off the page
    OncePerTurn m_arrange;
    bool m_isReplaced = false;
    bool m_isPressed = false; ///< the mouse, on the page
    bool m_keyMoves = false;
};

} // namespace board
