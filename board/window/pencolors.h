#pragma once

#include <QtWidgets/QWidget>

namespace board {

class ToolChoice;
class ToolSettings;
class Workspace;

/// The colours of the pen in a row. A press on one takes the pen in that colour.
class PenColors : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this.
    PenColors(const Workspace &workspace, ToolChoice *tools, ToolSettings *settings, QWidget *parent = nullptr);

private:
    void addColors(const Workspace &workspace);
    void showChoice();

    ToolChoice *m_tools;
    ToolSettings *m_settings;
};

} // namespace board
