#include "framework/plugins/testplugin.h"

/// Was built against a later version of the library.
class NewerPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_INTERFACE " 1.99.0")

public:
    NewerPlugin()
    {
        addKind("test.newer", "IDS_TEST_VERSION");
        addText("en", "IDS_TEST_VERSION", "Of another version");
    }
};

#include "newer.moc"
