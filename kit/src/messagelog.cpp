#include <shapekit/messagelog.h>

#include <algorithm>

namespace shapekit {

namespace {

/// A shape that reports something else with every drawing must not fill the memory.
constexpr int mostMessages = 200;

} // namespace

void MessageLog::report(const pagehost::PluginMessage &message)
{
    const auto isSame = [&](const pagehost::PluginMessage &known) { return known.told() == message.told(); };
    if (m_messages.size() >= mostMessages || std::any_of(m_messages.cbegin(), m_messages.cend(), isSame))
        return;
    m_messages.append(message);
    if (m_listener)
        m_listener(message);
}

bool MessageLog::has(const QString &code, const QString &element) const
{
    return std::any_of(m_messages.cbegin(), m_messages.cend(), [&](const pagehost::PluginMessage &known) {
        return known.code == code && known.element == element;
    });
}

} // namespace shapekit
