#pragma once

#include <QtCore/QString>

#include <memory>
#include <vector>

class CWbUndoCmd;

/// Grouped undo steps of CUndoRedo. A group opens on the stack with its first command, so that an empty one leaves
/// nothing.
namespace undogroups {

void begin(const QString &titleKey);
void end();

} // namespace undogroups

/// From construction to stopTaking(), pushed commands do not reach the stack; they are undone and deleted at the
/// end. Reverts a gesture that the user cancelled, without losing the commands that could be redone before it.
class UndoCapture
{
public:
    UndoCapture();
    ~UndoCapture();
    UndoCapture(const UndoCapture &) = delete;
    UndoCapture &operator=(const UndoCapture &) = delete;

    static UndoCapture *current();
    /// Lets commands reach the stack again; what was taken is still undone at the end.
    void stopTaking();
    void take(CWbUndoCmd *command);

private:
    UndoCapture *m_outer;
    bool m_takes = true;
    std::vector<std::unique_ptr<CWbUndoCmd>> m_commands;
};
