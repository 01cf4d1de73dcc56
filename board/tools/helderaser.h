#pragma once

#include "core/toolchoice.h"

#include <QtCore/QObject>

#include <optional>

namespace board {

class PageView;

/// Puts the eraser into the hand while the button of the pen is held or its other end is used, then the former
/// tool.
class HeldEraser : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    HeldEraser(const PageView *view, ToolChoice *choice, QObject *parent);

private:
    void hold(bool isHeld);

    struct Former
    {
        Tool tool;
        bool isKept;
    };

    ToolChoice *m_choice;
    std::optional<Former> m_former; ///< while the eraser is held
};

} // namespace board
