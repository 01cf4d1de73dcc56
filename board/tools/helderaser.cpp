#include "tools/helderaser.h"

#include "page/pageview.h"

#include <utility>

namespace board {

HeldEraser::HeldEraser(const PageView *view, ToolChoice *choice, QObject *parent)
    : QObject(parent)
    , m_choice(choice)
{
    connect(view, &PageView::penErases, this, &HeldEraser::hold);
}

/// Somebody who has chosen another tool in the meantime keeps that.
void HeldEraser::hold(bool isHeld)
{
    if (isHeld && m_choice->isOffered(Tool::Eraser) && m_choice->tool() != Tool::Eraser) {
        m_former = Former{m_choice->tool(), m_choice->isKept()};
        m_choice->choose(Tool::Eraser);
        return;
    }
    const std::optional<Former> former = std::exchange(m_former, std::nullopt);
    if (isHeld || !former || m_choice->tool() != Tool::Eraser)
        return;
    m_choice->choose(former->tool);
    m_choice->keep(former->isKept);
}

} // namespace board
