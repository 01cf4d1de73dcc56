#pragma once

#include "panels/properties/attributestream.h"

namespace board {

struct CommonProperty
{
    PropertyDescription property; ///< of the first object, with the numbers that all of them take
    bool isMixed = false;         ///< the objects have different values
};

/// The properties that all of several objects have: same id, same kind, same entries. In the order of the first.
QVector<CommonProperty> commonProperties(const QVector<QVector<PropertyDescription>> &objects);

} // namespace board
