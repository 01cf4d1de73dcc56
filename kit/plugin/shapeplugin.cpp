// The root object of a plug-in of shapes: gliololok_add_shape() compiles this file into each of them.

#include <shapekit/kind.h>
#include <shapekit/shapeplugin.h>

class GliololokShapePlugin : public shapekit::ShapePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    GliololokShapePlugin()
        : ShapePlugin(shapekit::pluginKinds())
    {
    }
};

#include "shapeplugin.moc"
