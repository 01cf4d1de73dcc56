#pragma once

#include "core/toolchoice.h"
#include "window/drawer.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QSlider;
class QVBoxLayout;

namespace board {

class ColorButton;
class Commands;
class Shelf;
class ShelfButton;
class ToolSettings;
class Workspace;

/// Settings of the pen or the highlighter in use that its shelf doesn't have: one's own pens, more colours, any
/// width, pressure, straight lines. Opens beside the shelf.
class PenOptions : public Drawer
{
    Q_OBJECT

public:
    struct Parts
    {
        const Workspace *workspace;
        Commands *commands;
        ToolChoice *tools;
        ToolSettings *settings;
        Shelf *shelf;
    };

    /// Lies in `view`. All of `parts` must outlive this.
    PenOptions(const Parts &parts, QWidget *view);

    /// Opens for the tool in use, else for the pen; or closes.
    void toggle();

private:
    void fill();
    QWidget *makePens();
    QWidget *makeColors();
    QWidget *makeWidth();
    QWidget *makeBoxes();
    ShelfButton *makeColor(const QColor &color);
    void followTool();
    void showSettings();
    bool hasOptions() const;

    const Workspace *m_workspace;
    Commands *m_commands;
    ToolChoice *m_tools;
    ToolSettings *m_settings;
    Shelf *m_shelf;
    Tool m_tool = Tool::Select; ///< that the parts are made for
    QWidget *m_content = nullptr;
    QVector<ShelfButton *> m_pens;
    QVector<ShelfButton *> m_colors; ///< in the order of those on offer
    ColorButton *m_anyColor = nullptr;
    QSlider *m_width = nullptr;
    QLabel *m_widthText = nullptr;
    QCheckBox *m_pressure = nullptr;
    QCheckBox *m_straight = nullptr;
};

} // namespace board
