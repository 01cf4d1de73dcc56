#include "tree/message.h"

#include "inputlimits.h"

namespace Svg {

void Messages::add(const Message &message)
{
    if (m_list.size() < Limits::messages || message.severity == Message::Error)
        m_list.append(message);
}

void Messages::warn(const QString &text, qint64 line, qint64 column, const QString &elementId)
{
    add({Message::Warning, text, line, column, elementId});
}

void Messages::fail(const QString &text, qint64 line, qint64 column)
{
    add({Message::Error, text, line, column, QString()});
}

} // namespace Svg
