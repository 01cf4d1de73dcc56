#include "framework/plugins/testplugin.h"

class GoodPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    GoodPlugin()
    {
        addKind("test.one", "IDS_TEST_ONE");
        addKind("test.two", "IDS_TEST_TWO");
        addText("en", "IDS_TEST_ONE", "One");
        addText("en", "IDS_TEST_TWO", "Two");
        addText("de", "IDS_TEST_ONE", "Eins");
    }
};

#include "good.moc"
