#pragma once

#include <shapekit/place.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>

class QDataStream;

namespace declared {

using Places = QVector<shapekit::Place>;

/// @name Places where control points were put, with the sizes of the shape at those times
/// Reading stops at damaged data: points behind it stay where they are.
/// @{
QByteArray bytesOf(const Places &places);
Places placesFrom(QDataStream &in);
/// Four numbers each: x, y, width and height.
QJsonArray toJson(const Places &places);
Places placesFrom(const QJsonArray &saved);
/// @}

} // namespace declared
