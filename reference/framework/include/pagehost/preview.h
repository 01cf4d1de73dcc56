#pragma once

#include <framework/framework_global.h>

#include <functional>
#include <memory>

class UndoCapture;

namespace pagehost {

/// Shows what a change would look like while the user is still choosing, for instance while a slider moves. The
/// undo steps of what is shown never reach the history: they take the change back.
class FRAMEWORK_EXPORT Preview
{
public:
    Preview();
    /// Takes back what is shown.
    ~Preview();
    Preview(const Preview &) = delete;
    Preview &operator=(const Preview &) = delete;

    /// Takes back what was shown before and runs `change`, which must be undoable in full.
    void show(const std::function<void()> &change);
    void takeBack();
    bool isShowing() const { return m_capture != nullptr; }

private:
    std::unique_ptr<UndoCapture> m_capture;
};

} // namespace pagehost
