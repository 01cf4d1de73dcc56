#pragma once

#include <QtCore/qnamespace.h>

/// The pen style with that number. A number that the type cannot hold, as damaged data may bring, gives a solid
/// line.
inline Qt::PenStyle penStyleFromInt(int number)
{
    return number < 0 || number > int(Qt::MPenStyle) ? Qt::SolidLine : Qt::PenStyle(number);
}
