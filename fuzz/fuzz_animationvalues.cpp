// Values, times and conditions of animations: halfway between two values is a value of the same form.

#include "grammarinput.h"

#include "animation/animatedvalue.h"
#include "animation/keyframes.h"
#include "grammar/clockvalues.h"

namespace {

void mix(const QString &first, const QString &second, const Svg::ValueContext &context)
{
    Svg::AnimatedValue a = Svg::parseAnimatedValue(first, context);
    Svg::AnimatedValue b = Svg::parseAnimatedValue(second, context);
    if (!Svg::makeAlike(&a, &b, context))
        return;
    const Svg::AnimatedValue half = Svg::between(a, b, 0.5);
    require(half.kind == a.kind && half.form == a.form && half.numbers.size() == a.numbers.size(),
            "what is between two values has their form");
    Svg::attributeValue(half, context).text();
    Svg::attributeValue(Svg::sumOf(a, b, 3), context).text();
    Svg::distanceBetween(a, b, context);
    Svg::zeroOf(a);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const QString first = text.section(QLatin1Char(';'), 0, 0);
    const QString second = text.section(QLatin1Char(';'), 1, 1);
    const Svg::LengthContext lengths{QSizeF(300, 200), 16};
    for (const char *attribute : {"x", "fill", "d", "stroke-dasharray", "display"})
        mix(first, second, Svg::valueContext(QLatin1String(attribute), lengths, Qt::black));
    for (const char *function : {"translate", "rotate", "scale", "skewX"})
        mix(first, second, Svg::transformContext(QLatin1String(function)));
    Svg::parseClockValue(text);
    Svg::parseTimingConditions(text);
    Svg::parseSemicolonNumbers(text);
    return 0;
}
