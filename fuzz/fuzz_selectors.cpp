// Selectors, matched against the elements of a small tree: the filter by ancestors' names never rejects a match.

#include "grammarinput.h"

#include "grammar/selectors.h"
#include "style/selectormatching.h"
#include "tree/reader.h"

namespace {

constexpr int steps = 10000;

Svg::Tree smallTree()
{
    Svg::Tree tree;
    Svg::Messages messages;
    Svg::readTree(
        "<svg><g id='a' class='x y'><rect class='x' fill='red'/><g><a href='#a'/><rect id='b'/></g></g>"
        "<g class='y'><text>t<tspan class='x'/></text></g><other:thing xmlns:other='urn:o' id='c'/></svg>",
        &tree, &messages);
    return tree;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    static const Svg::Tree tree = smallTree();
    const std::optional<QVector<Svg::Selector>> selectors = Svg::parseSelectors(fuzzedText(data, size));
    if (!selectors)
        return 0;
    require(!selectors->isEmpty(), "a list has selectors");
    for (const Svg::Selector &selector : *selectors) {
        const QVector<uint> above = Svg::ancestorNames(selector);
        for (Svg::NodeIndex at = 0; at < tree.size(); ++at)
            if (Svg::SelectorMatcher(tree, steps).matches(at, selector))
                require(Svg::AncestorNames(tree, at).mayHold(above), "what matches is not ruled out");
    }
    return 0;
}
