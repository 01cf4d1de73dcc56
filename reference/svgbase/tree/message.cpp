#include "tree/message.h"

#include "grammar/inputlimits.h"

#include <algorithm>

namespace Svg {

void Messages::add(const Message &message)
{
    const auto hasCode = [&](const Message &known) { return known.code == message.code; };
    if (m_list.size() < Limits::messages || std::none_of(m_list.begin(), m_list.end(), hasCode))
        m_list.append(message);
}

void Messages::warn(Message::Code code, const QString &text, qint64 line, qint64 column, const QString &elementId)
{
    add({Message::Warning, text, line, column, elementId, code});
}

void Messages::fail(Message::Code code, const QString &text, qint64 line, qint64 column)
{
    m_list.append({Message::Error, text, line, column, QString(), code});
}

} // namespace Svg
