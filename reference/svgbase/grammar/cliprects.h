#pragma once

#include "grammar/lengths.h"

#include <QtCore/QRectF>

#include <optional>

namespace Svg {

/// The rectangle of the property "clip" (CSS Masking 1, appendix on the clip property): distances of its sides from
/// the left and the top of a box; a side without a length is that of the box.
struct ClipRect
{
    std::optional<Length> top;
    std::optional<Length> right;
    std::optional<Length> bottom;
    std::optional<Length> left;
};

/// "auto" or "rect()" of four sides, all separated by commas or all by spaces. No value for invalid text.
std::optional<ClipRect> parseClipRect(QStringView text);

/// The rectangle in `box`, in units of the box; empty if its sides cross.
QRectF clipRectIn(const QRectF &box, const ClipRect &clip, const LengthContext &context);

} // namespace Svg
