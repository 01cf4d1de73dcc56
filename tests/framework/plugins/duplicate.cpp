#include "framework/plugins/testplugin.h"

/// Offers a kind that "good" has too, and one of its own.
class DuplicatePlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    DuplicatePlugin()
    {
        addKind("test.one", "IDS_TEST_ONE");
        addKind("test.three", "IDS_TEST_THREE");
        addText("en", "IDS_TEST_ONE", "Another one");
        addText("en", "IDS_TEST_THREE", "Three");
    }
};

#include "duplicate.moc"
