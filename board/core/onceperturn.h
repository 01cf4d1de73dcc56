#pragma once

#include <QtCore/QTimer>

#include <functional>

namespace board {

/// Work that much of what happens asks for and that is done once when control returns to the event loop: a
/// thousand changes bring a panel up to date once.
class OncePerTurn
{
public:
    explicit OncePerTurn(const std::function<void()> &work);

    void request();

private:
    std::function<void()> m_work;
    QTimer m_timer;
};

} // namespace board
