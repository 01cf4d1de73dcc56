#pragma once

#include <kit/singleshapeplugin.h>

class BlockArrowPlugin : public shapekit::SingleShapePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)

public:
    BlockArrowPlugin();
};
