// Style sheets, selectors and style attributes: positions of problems lie within the text.

#include "grammarinput.h"

#include "grammar/mediaqueries.h"
#include "grammar/styleattribute.h"
#include "grammar/stylesheets.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const Svg::StyleSheet sheet = Svg::parseStyleSheet(text, {});
    for (const Svg::StyleProblem &problem : sheet.problems)
        require(problem.offset >= 0 && problem.offset <= text.size(), "a problem stands inside the text");
    Svg::parseSelectors(text);
    Svg::includesScreens(text);
    Svg::parseStyleAttribute(text);
    return 0;
}
