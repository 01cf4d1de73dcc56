#include "core/onceperturn.h"

namespace board {

OncePerTurn::OncePerTurn(const std::function<void()> &work)
    : m_work(work)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { m_work(); });
}

void OncePerTurn::request()
{
    if (!m_timer.isActive())
        m_timer.start(0);
}

} // namespace board
