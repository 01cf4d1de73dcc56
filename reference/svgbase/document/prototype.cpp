#include "document/prototype.h"

#include "resolve/resolver.h"
#include "tree/reader.h"

namespace Svg {

namespace {

void resolveAll(Prototype *prototype, Messages *messages)
{
    const Tree &tree = prototype->tree;
    const Resolver resolver(tree, 1, messages);
    prototype->facts.resize(tree.size());
    for (NodeIndex at = rootNode; at != noNode; at = tree.following(at, rootNode)) {
        const NodeIndex parent = tree.node(at).parent;
        const FactsPointer above = parent == noNode ? FactsPointer() : prototype->facts.at(parent);
        prototype->facts[at] = resolver.resolve(at, above);
    }
}

void settleStylingFlags(Prototype *prototype)
{
    Tree &tree = prototype->tree;
    for (NodeIndex at = 0; at < tree.size(); ++at) {
        const ComputedStyle &style = prototype->facts.at(at)->style;
        const bool takesFill = style.fill.kind != Paint::None;
        const bool takesStroke = style.stroke.kind != Paint::None;
        if (takesFill && takesStroke)
            continue;
        tree.edit(at).takesFill = takesFill;
        tree.edit(at).takesStroke = takesStroke;
    }
}

} // namespace

std::optional<Prototype> makePrototype(const QByteArray &text, Messages *messages)
{
    Prototype prototype;
    if (!readTree(text, &prototype.tree, messages))
        return std::nullopt;
    // Settled here, so that sharing documents never write to it.
    prototype.tree.findId(QStringLiteral(" "));
    prototype.viewBox = rootViewBox(prototype.tree.node(rootNode));
    resolveAll(&prototype, messages);
    settleStylingFlags(&prototype);
    prototype.messages = messages->list();
    return prototype;
}

} // namespace Svg
