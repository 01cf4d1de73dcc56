// Colours, paints, opacities and lists of filter functions.

#include "grammarinput.h"

#include "grammar/colors.h"
#include "grammar/filterlists.h"
#include "grammar/paints.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const std::optional<QColor> color = Svg::parseColor(text);
    require(!color || color->isValid(), "a colour is valid");
    const std::optional<Svg::Paint> paint = Svg::parsePaint(text);
    if (color)
        require(paint && paint->kind == Svg::Paint::Color && paint->color == *color, "a colour is a paint");
    const std::optional<double> opacity = Svg::parseOpacity(text);
    require(!opacity || (*opacity >= 0 && *opacity <= 1), "an opacity is a share");
    Svg::functionReference(text);
    Svg::parseFilterList(text, Svg::FilterUnits::Optional);
    return 0;
}
