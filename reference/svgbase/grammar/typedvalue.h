#pragma once

#include "grammar/lengths.h"

#include <QtCore/QByteArray>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QTransform>

#include <variant>

namespace Svg {

/// Path data with all coordinates absolute.
struct PathValue
{
    /// Letters of "MLCQAZ".
    QByteArray commands;
    /// Those of all commands one after another; flags of arcs are 0 or 1.
    QVector<double> coordinates;
};

/// A value of a property or of an attribute that is no text.
using TypedValue = std::variant<QVector<Length>, QColor, PathValue, QTransform>;

} // namespace Svg
