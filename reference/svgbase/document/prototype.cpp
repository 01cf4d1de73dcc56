#include "document/prototype.h"

#include "document/documentreading.h"
#include "resolve/resolver.h"
#include "resolve/viewports.h"
#include "style/rules.h"
#include "tree/reader.h"

namespace Svg {

namespace {

QVector<FactsPointer> resolveAll(const Tree &tree, Messages *messages, ContentMeasuring *measuring)
{
    GradientCache gradients;
    DocumentFonts fonts;
    const Resolver resolver(tree, 1, {&gradients, &fonts, measuring, documentReader()}, messages);
    QVector<FactsPointer> facts(tree.size());
    for (NodeIndex at = rootNode; at != noNode; at = tree.following(at, rootNode)) {
        const NodeIndex parent = tree.node(at).parent;
        facts[at] = resolver.resolve(at, parent == noNode ? FactsPointer() : facts.at(parent));
    }
    return facts;
}

void settleStylingFlags(Prototype::Settled *settled)
{
    for (NodeIndex at = 0; at < settled->tree.size(); ++at) {
        const ComputedStyle &style = *settled->facts.at(at)->style;
        const bool takesFill = style.fill.kind != Paint::None;
        const bool takesStroke = style.stroke.kind != Paint::None;
        if (takesFill && takesStroke)
            continue;
        settled->tree.edit(at).takesFill = takesFill;
        settled->tree.edit(at).takesStroke = takesStroke;
    }
}

} // namespace

Prototype::Prototype(const Tree &tree, const Messages &messages)
    : m_tree(tree)
    , m_viewBox(rootViewBox(tree.node(rootNode)))
    , m_messages(messages)
{
    m_tree.settleIds();
}

const Prototype::Settled &Prototype::settled() const
{
    std::call_once(m_once, [this] {
        Messages messages = m_messages;
        m_settled.tree = m_tree;
        m_settled.tree.setRules(StyleRules::compile(m_tree, &messages));
        ContentMeasuring measuring;
        m_settled.facts = resolveAll(m_settled.tree, &messages, &measuring);
        m_settled.measuresContent = measuring.used;
        m_settled.messages = messages.list();
        settleStylingFlags(&m_settled);
    });
    return m_settled;
}

PrototypePointer makePrototype(const QByteArray &text, Messages *messages)
{
    Tree tree;
    if (!readTree(text, &tree, messages))
        return nullptr;
    return std::make_shared<const Prototype>(tree, *messages);
}

} // namespace Svg
