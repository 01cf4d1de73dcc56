#include "framework/plugins/testplugin.h"

/// Offers only kinds that cannot be used.
class BarrenPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    BarrenPlugin()
    {
        addKind("no id", "IDS_TEST_BARREN");
        addKind("test.nameless", "IDS_TEST_NAMELESS");
        addText("en", "IDS_TEST_BARREN", "Barren");
    }
};

#include "barren.moc"
