#pragma once

#include <QtCore/QString>

// Nodes of a template that form the outline of a shape, by their ids.

namespace shapekit {

/// Of the figure that is hit as a whole, filled or not.
QString areaId();
bool isFigure(const QString &id);

} // namespace shapekit
