#pragma once

#include <checklist/shapedriver.h>

#include <QtCore/QStringList>

namespace shapetest {

/// The shapes that are tested number by number, by the name of their file.
QStringList shapeNames();
/// All shapes there are; one that is declared in a file is "declared/NAME".
QStringList allShapeNames();
/// The id of a shape's kind.
QString kindOf(const QString &name);
/// The file of a plug-in.
QString pluginFile(const QString &name);
/// The plug-in of a shape.
pagehost::ObjectPlugin *pluginOf(const QString &name);

/// A shape by its name.
class ShapeDriver : public checklist::ShapeDriver
{
public:
    explicit ShapeDriver(const QString &name)
        : checklist::ShapeDriver(pluginOf(name), kindOf(name))
    {
    }
};

} // namespace shapetest
