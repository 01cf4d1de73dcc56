#include <declared/core/pluginmessage.h>

namespace declared {

pagehost::PluginMessage pluginMessage(const Message &message, const QString &path)
{
    const bool isError = message.severity == Message::Error;
    return {isError ? pagehost::PluginMessage::Error : pagehost::PluginMessage::Warning,
            message.code,
            path,
            message.line,
            message.column,
            QString(),
            message.text};
}

} // namespace declared
