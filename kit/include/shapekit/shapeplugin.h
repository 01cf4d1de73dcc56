#pragma once

#include <shapekit/kindplugin.h>

#include <QtCore/QObject>

namespace shapekit {

/// The plug-in of a shape: offers the one kind that the shape's source file defines. It is compiled into each
/// shape.
class ShapePlugin : public QObject, public KindPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PAGEHOST_OBJECTPLUGIN_IID)
    Q_INTERFACES(pagehost::ObjectPlugin)
};

} // namespace shapekit
