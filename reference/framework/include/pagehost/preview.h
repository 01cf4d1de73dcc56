#pragma once

#include <framework/framework_global.h>

#include <functional>
#include <memory>

class UndoCapture;

namespace pagehost {

/// Shows the effect of a change while the user is still choosing, for instance while a slider moves. Its undo steps
/// never reach the history: they revert the change.
class FRAMEWORK_EXPORT Preview
{
public:
    Preview();
    /// Reverts the shown change.
    ~Preview();
    Preview(const Preview &) = delete;
    Preview &operator=(const Preview &) = delete;

    /// Reverts the change shown before and runs `change`, which must be completely undoable.
    void show(const std::function<void()> &change);
    /// Reverts the shown change; does nothing without one.
    void takeBack();
    /// Whether a change is shown.
    bool isShowing() const { return m_capture != nullptr; }

private:
    std::unique_ptr<UndoCapture> m_capture;
};

} // namespace pagehost
