// Values with custom properties: "NAME=VALUE" lines, the last line being the value. Results are of bounded length.

#include "grammarinput.h"

#include "grammar/inputlimits.h"
#include "properties/customproperties.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    constexpr int longestResult = 4096;
    const QStringList lines = fuzzedText(data, size).split(QLatin1Char('\n'));
    Svg::CustomProperties properties;
    for (const QString &line : lines)
        properties.insert(line.section(QLatin1Char('='), 0, 0), line.section(QLatin1Char('='), 1));
    int charactersLeft = Svg::Limits::leastSubstitutedCharacters;
    properties.settle(&charactersLeft);
    const std::optional<QString> value = Svg::withVariables(lines.constLast(), properties);
    require(!value || value->size() <= longestResult, "a value is not longer than it may be");
    return 0;
}
