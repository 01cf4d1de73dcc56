#pragma once

#include "grammar/cursor.h"

#include <QtCore/QSizeF>

#include <memory>
#include <optional>

namespace Svg {

/// Unit of a length. Absolute units are converted to user units (px) when read.
enum class Unit { User, Percent, Em, Ex, Ch, Rem, ViewWidth, ViewHeight, ViewMin, ViewMax };

/// The side of the viewport that percentages refer to.
enum class Axis { Horizontal, Vertical, Diagonal };

/// A calculation that waits until percentages and font sizes are known.
struct DeferredLength;

/// A length (SVG 1.1 §4.2).
struct Length
{
    double value = 0;
    Unit unit = Unit::User;
    /// Added by a calculation: user units, font sizes.
    double plusUser = 0;
    double plusEm = 0;
    /// Replaces everything above for a function that chooses between lengths; null for most.
    std::shared_ptr<const DeferredLength> deferred = nullptr;

    bool operator==(const Length &other) const
    {
        return value == other.value && unit == other.unit && plusUser == other.plusUser && plusEm == other.plusEm &&
               deferred == other.deferred;
    }
};

/// Reference values of relative units; user units.
struct LengthContext
{
    QSizeF viewport;
    double fontSize = 16;
    double rootFontSize = 16;
};

/// As it stands behind a number; empty for user units.
QLatin1String unitText(Unit unit);
bool readLength(Cursor &cursor, Length *length);
/// Text that is one length; ignores white space around it.
std::optional<Length> parseLength(QStringView text);
/// The length in user units, clamped to the range of drawable coordinates.
double toUserUnits(const Length &length, Axis axis, const LengthContext &context);

} // namespace Svg
