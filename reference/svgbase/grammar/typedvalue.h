#pragma once

#include "grammar/lengths.h"
#include "grammar/pathdata.h"
#include "grammar/transforms.h"

#include <QtCore/QVector>
#include <QtGui/QColor>

#include <variant>

namespace Svg {

/// A value of a property or of an attribute that is no text.
using TypedValue = std::variant<QVector<Length>, QColor, PathValue, TransformList>;

/// The shortest text that reads back as the same value.
QString valueText(const TypedValue &value);
/// A colour as "#rrggbb", or "#rrggbbaa" where it is not opaque; empty for an invalid one.
QString colorText(const QColor &color);

} // namespace Svg
