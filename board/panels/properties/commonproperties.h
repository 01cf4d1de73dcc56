#pragma once

#include "panels/editors/numbereditor.h"

#include <pagehost/attributestream.h>

namespace board {

struct CommonProperty
{
    pagehost::AttributeDescription property; ///< of the first object
    NumberRange range;                       ///< numbers that all of the objects take
    bool isMixed = false;                    ///< the objects have different values
};

/// The numbers that a property takes, with as many decimals as its step needs.
NumberRange numbersOf(const pagehost::AttributeDescription &property);

/// The properties that all of several objects have: same id, same kind, same entries. In the order of the first.
QVector<CommonProperty> commonProperties(const QVector<QVector<pagehost::AttributeDescription>> &objects);

} // namespace board
