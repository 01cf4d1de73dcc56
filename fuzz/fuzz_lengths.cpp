// Lengths, view boxes and aspect ratios: user units stay within the range of coordinates.

#include "grammarinput.h"

#include "grammar/inputlimits.h"
#include "grammar/lengths.h"
#include "grammar/viewboxes.h"

#include <QtCore/QtMath>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const std::optional<Svg::Length> length = Svg::parseLength(text);
    for (const Svg::Axis axis : {Svg::Axis::Horizontal, Svg::Axis::Vertical, Svg::Axis::Diagonal}) {
        const double units = length ? Svg::toUserUnits(*length, axis, {QSizeF(300, 200), 16}) : 0;
        require(qAbs(units) <= Svg::Limits::coordinate, "a length is within the range of coordinates");
    }
    const std::optional<QRectF> box = Svg::parseViewBox(text);
    require(!box || (box->width() >= 0 && box->height() >= 0), "a view box has no negative side");
    const Svg::AspectRatio ratio = Svg::parseAspectRatio(text);
    if (box)
        Svg::viewBoxTransform(*box, QRectF(0, 0, 30, 20), ratio);
    return 0;
}
