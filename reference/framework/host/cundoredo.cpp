#include <framework/cundoredo.h>

#include <framework/cwbundocmd.h>

#include <host/undocapture.h>

#include <QtCore/QStringList>
#include <QtWidgets/QUndoStack>

namespace {

struct Groups
{
    QStringList waiting; ///< titles of open groups without a command yet
    int opened = 0;      ///< open groups that are macros on the stack
};

Groups &groups()
{
    static Groups instance;
    return instance;
}

UndoCapture *g_capture = nullptr;

void openWaitingGroups(QUndoStack *stack)
{
    Groups &all = groups();
    for (const QString &title : qAsConst(all.waiting))
        stack->beginMacro(title);
    all.opened += all.waiting.size();
    all.waiting.clear();
}

} // namespace

namespace undogroups {

void begin(const QString &titleKey)
{
    groups().waiting.append(titleKey);
}

void end()
{
    Groups &all = groups();
    if (!all.waiting.isEmpty()) {
        all.waiting.removeLast();
        return;
    }
    if (all.opened == 0)
        return;
    --all.opened;
    CUndoRedo::GetInstance()->stack()->endMacro();
}

} // namespace undogroups

UndoCapture::UndoCapture()
    : m_outer(g_capture)
{
    g_capture = this;
}

UndoCapture::~UndoCapture()
{
    stopTaking();
    for (auto command = m_commands.rbegin(); command != m_commands.rend(); ++command)
        (*command)->undo();
}

void UndoCapture::stopTaking()
{
    if (m_takes)
        g_capture = m_outer;
    m_takes = false;
}

UndoCapture *UndoCapture::current()
{
    return g_capture;
}

void UndoCapture::take(CWbUndoCmd *command)
{
    m_commands.emplace_back(command);
    command->redo();
}

CUndoRedo *CUndoRedo::GetInstance()
{
    // Never destroyed: commands may refer to objects that are deleted before static destructors run.
    static auto *instance = new CUndoRedo;
    return instance;
}

CUndoRedo::CUndoRedo()
    : m_stack(new QUndoStack)
{
}

CUndoRedo::~CUndoRedo()
{
    delete m_stack;
}

void CUndoRedo::push(CWbUndoCmd *command)
{
    if (!command)
        return;
    if (UndoCapture *capture = UndoCapture::current()) {
        capture->take(command);
        return;
    }
    openWaitingGroups(m_stack);
    command->setIdxCmd(m_stack->index());
    m_stack->push(command);
}

QUndoStack *CUndoRedo::stack() const
{
    return m_stack;
}
