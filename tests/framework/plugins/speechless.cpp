#include "framework/plugins/testplugin.h"

/// Has German texts only.
class SpeechlessPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    SpeechlessPlugin()
    {
        addKind("test.speechless", "IDS_TEST_SPEECHLESS");
        addText("de", "IDS_TEST_SPEECHLESS", "Stumm");
    }
};

#include "speechless.moc"
