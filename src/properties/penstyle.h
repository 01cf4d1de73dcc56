#pragma once

#include <QtCore/qnamespace.h>

/// The pen style of that number; a solid line for numbers that are no style, which damaged data may contain.
inline Qt::PenStyle penStyleFromInt(int number)
{
    return number < 0 || number > int(Qt::CustomDashLine) ? Qt::SolidLine : Qt::PenStyle(number);
}
