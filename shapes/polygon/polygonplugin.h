#pragma once

#include <kit/singleshapeplugin.h>

class PolygonPlugin : public shapekit::SingleShapePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    PolygonPlugin();
};
