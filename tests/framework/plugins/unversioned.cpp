#include "framework/plugins/testplugin.h"

/// Was built before plug-ins told the version of the library.
class UnversionedPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_INTERFACE)

public:
    UnversionedPlugin()
    {
        addKind("test.unversioned", "IDS_TEST_VERSION");
        addText("en", "IDS_TEST_VERSION", "Of another version");
    }
};

#include "unversioned.moc"
