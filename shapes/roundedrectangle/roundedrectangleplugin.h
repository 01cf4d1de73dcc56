#pragma once

#include <kit/singleshapeplugin.h>

class RoundedRectanglePlugin : public shapekit::SingleShapePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    RoundedRectanglePlugin();
};
