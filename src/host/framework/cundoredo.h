#pragma once

#include <framework/framework_global.h>

class CWbUndoCmd;
class QUndoStack;

/// The process-wide undo stack.
class FRAMEWORK_EXPORT CUndoRedo
{
public:
    /// The only instance; never null.
    static CUndoRedo *GetInstance();

    /// Takes ownership of the command and calls its redo() once. The command outlives the call: the stack never
    /// deletes or merges it while pushing.
    void push(CWbUndoCmd *command);
    /// The stack behind the facade, for undo views, menus and tests; never null.
    QUndoStack *stack() const;

private:
    CUndoRedo();
    ~CUndoRedo();
    QUndoStack *m_stack;
};
