#pragma once

#include "grammar/lengths.h"

#include <QtCore/QRectF>

#include <optional>

namespace Svg {

/// The rectangle of the property "clip" (CSS Masking 1, appendix on the clip property): how far its sides lie from
/// the left and the top of a box; a side without a length is that of the box.
struct ClipRect
{
    std::optional<Length> top;
    std::optional<Length> right;
    std::optional<Length> bottom;
    std::optional<Length> left;
};

/// "auto" or "rect()" of four sides, all separated by commas or all by spaces. Nothing when the text breaks the
/// grammar.
std::optional<ClipRect> parseClipRect(QStringView text);

/// The rectangle as it stands in `box`, in its units; empty where its sides cross.
QRectF clipRectIn(const QRectF &box, const ClipRect &clip, const LengthContext &context);

} // namespace Svg
