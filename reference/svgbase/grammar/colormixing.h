#pragma once

#include "grammar/cursor.h"

#include <QtCore/QStringView>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// Context of a colour: the present colour, and the nesting depth.
struct ColorContext
{
    /// Value of "currentColor"; invalid if there is none.
    QColor current;
    int depth = 0;
    /// Reads the colours inside of this one; parseColor() sets it.
    std::optional<QColor> (*parse)(QStringView text, const ColorContext &context) = nullptr;
};

/// Reads a colour inside another and moves the cursor behind it. No value for other text, or at the nesting limit.
std::optional<QColor> readInnerColor(Cursor &cursor, const ColorContext &context);

/// "color-mix(in <space> [shorter|longer|increasing|decreasing hue]?, <colour> <percentage>?, ...)" (CSS Color 5
/// §2): two colours in a space of CSS Color 4. The cursor starts behind the opening bracket and ends behind the
/// closing one.
std::optional<QColor> readColorMix(Cursor &cursor, const ColorContext &context);

/// Reads the name of a space, which may contain digits and hyphens; in lower case.
QString takeSpaceName(Cursor &cursor);

} // namespace Svg
