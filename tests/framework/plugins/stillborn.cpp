#include "framework/plugins/testplugin.h"

#include <stdexcept>

/// Throws before it is there.
class StillbornPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    StillbornPlugin() { throw std::runtime_error("no licence"); }
};

#include "stillborn.moc"
