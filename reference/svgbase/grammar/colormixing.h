#pragma once

#include "grammar/cursor.h"

#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// What a colour may be made of, and how deep in others it stands.
struct ColorContext
{
    /// What "currentColor" stands for; invalid where it is none.
    QColor current;
    int depth = 0;
};

/// A colour inside another: the cursor is left behind it. Nothing for what is none, or nested too deep.
std::optional<QColor> readInnerColor(Cursor &cursor, const ColorContext &context);

/// "color-mix(in <space> [shorter|longer|increasing|decreasing hue]?, <colour> <percentage>?, ...)" (CSS Color 5
/// §2): two colours in a space of CSS Color 4. The cursor stands behind the bracket that opens, and is left behind
/// the one that closes.
std::optional<QColor> readColorMix(Cursor &cursor, const ColorContext &context);

/// Names of spaces have digits and hyphens in them; in lower case.
QString takeSpaceName(Cursor &cursor);

} // namespace Svg
