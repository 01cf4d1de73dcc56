#pragma once

#include <declared/reader/message.h>

#include <pagehost/objectplugin.h>

namespace declared {

/// A message about a file as the host is told of it.
pagehost::PluginMessage pluginMessage(const Message &message, const QString &path);

} // namespace declared
