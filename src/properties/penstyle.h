#pragma once

#include <QtCore/qnamespace.h>

/// The pen style with that number. A number that is none, as damaged data may bring, gives a solid line.
inline Qt::PenStyle penStyleFromInt(int number)
{
    return number < 0 || number > int(Qt::CustomDashLine) ? Qt::SolidLine : Qt::PenStyle(number);
}
