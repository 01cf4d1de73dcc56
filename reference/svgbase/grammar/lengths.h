#pragma once

#include "grammar/cursor.h"

#include <QtCore/QSizeF>

#include <memory>
#include <optional>

namespace Svg {

/// What a length's number counts. Absolute units are turned into user units (px) when they are read.
enum class Unit { User, Percent, Em, Ex, Ch, Rem, ViewWidth, ViewHeight, ViewMin, ViewMax };

/// The side of the viewport that percentages refer to.
enum class Axis { Horizontal, Vertical, Diagonal };

/// What calculations keep until percentages and font sizes are known.
struct DeferredLength;

/// A length (SVG 1.1 §4.2).
struct Length
{
    double value = 0;
    Unit unit = Unit::User;
    /// What a calculation adds to it: user units, font sizes.
    double plusUser = 0;
    double plusEm = 0;
    /// Counts instead of everything above, where a function has to choose between lengths; null for most.
    std::shared_ptr<const DeferredLength> deferred = nullptr;
};

/// What relative units are relative to; user units.
struct LengthContext
{
    QSizeF viewport;
    double fontSize = 16;
    double rootFontSize = 16;
};

bool readLength(Cursor &cursor, Length *length);
/// Text that is one length, white space around it aside.
std::optional<Length> parseLength(QStringView text);
/// The length in user units, held inside the range of drawable coordinates.
double toUserUnits(const Length &length, Axis axis, const LengthContext &context);

} // namespace Svg
