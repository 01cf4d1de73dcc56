#include "framework/plugins/testplugin.h"

/// Was built against a version of the library that promises something else.
class NextmajorPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_INTERFACE " 2.0.0")

public:
    NextmajorPlugin()
    {
        addKind("test.nextmajor", "IDS_TEST_VERSION");
        addText("en", "IDS_TEST_VERSION", "Of another version");
    }
};

#include "nextmajor.moc"
