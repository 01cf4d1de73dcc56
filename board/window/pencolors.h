#pragma once

#include <QtWidgets/QWidget>

namespace board {

class ToolChoice;
class ToolSettings;

/// The colours of the pen in a row. A press on one takes the pen in that colour.
class PenColors : public QWidget
{
    Q_OBJECT

public:
    /// Both must outlive this.
    PenColors(ToolChoice *tools, ToolSettings *settings, QWidget *parent = nullptr);

private:
    void addColors();
    void showChoice();

    ToolChoice *m_tools;
    ToolSettings *m_settings;
};

} // namespace board
