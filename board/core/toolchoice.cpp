#include "core/toolchoice.h"

namespace board {

void ToolChoice::offer(Tool tool)
{
    if (isOffered(tool))
        return;
    m_offered.insert(tool);
    Q_EMIT offersChanged();
}

void ToolChoice::choose(Tool tool)
{
    if (isOffered(tool))
        set(tool, false);
}

void ToolChoice::keep(bool kept)
{
    set(m_tool, kept && m_tool != Tool::Select);
}

void ToolChoice::finish()
{
    if (!m_kept)
        set(Tool::Select, false);
}

void ToolChoice::set(Tool tool, bool kept)
{
    if (tool == m_tool && kept == m_kept)
        return;
    m_tool = tool;
    m_kept = kept;
    Q_EMIT changed();
}

} // namespace board
