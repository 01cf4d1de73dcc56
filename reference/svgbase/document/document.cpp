#include "document/document.h"

#include "resolve/resolver.h"
#include "resolve/viewports.h"
#include "style/cascade.h"
#include "style/rules.h"

namespace Svg {

Document::Document(const PrototypePointer &prototype)
    : m_prototype(prototype)
    , m_tree(prototype->tree())
{
}

void Document::settle()
{
    if (m_settled)
        return;
    const Prototype::Settled &settled = m_prototype->settled();
    m_tree = settled.tree;
    m_facts = settled.facts;
    m_measuring.used = settled.measuresContent;
    m_settled = true;
}

bool Document::isCurrent(NodeIndex index, const FactsPointer &above) const
{
    const FactsPointer &facts = m_facts.at(index);
    if (!facts || facts->parent != above || m_changes.value(index) != NoChange)
        return false;
    return facts->referenceRevision == 0 || facts->referenceRevision == m_referenceRevision;
}

FactsPointer Document::facts(NodeIndex index)
{
    settle();
    if (!m_changed)
        return m_facts.at(index);
    QVarLengthArray<NodeIndex, 16> chain;
    for (NodeIndex at = index; at != noNode; at = m_tree.node(at).parent)
        chain.append(at);
    FactsPointer above;
    for (int i = chain.size() - 1; i >= 0; --i)
        above = factsBelow(chain[i], above);
    return above;
}

FactsPointer Document::factsBelow(NodeIndex child, const FactsPointer &above)
{
    if (m_changed && !isCurrent(child, above)) {
        m_facts[child] = resolver().resolve(child, above, keptFacts(child, above));
        if (child < m_changes.size())
            m_changes[child] = NoChange;
    }
    return m_facts.at(child);
}

KeptFacts Document::keptFacts(NodeIndex index, const FactsPointer &above) const
{
    const FactsPointer &facts = m_facts.at(index);
    if (!facts)
        return {};
    const quint8 change = m_changes.value(index);
    const bool sameGeometry = !(change & GeometryChange);
    // Selectors may test any attribute.
    const bool sameStyle = !(change & StyleChange) && facts->inheritsAlike(above) && !m_tree.rules();
    return {facts.data(), sameStyle, sameGeometry, sameGeometry};
}

std::unique_ptr<SettledTree> Document::imageDocument(const ImageContent &image, const QSizeF &window) const
{
    auto shown = std::make_unique<Document>(image.document);
    shown->setWindow(window);
    shown->settle();
    return shown;
}

StyleOverridePointer Document::stylePointer(NodeIndex index) const
{
    return index < m_overrides.size() ? m_overrides.at(index) : StyleOverridePointer();
}

void Document::setStyleOverride(NodeIndex index, const StyleOverridePointer &override)
{
    if (index >= m_overrides.size()) {
        if (!override)
            return;
        m_overrides.resize(m_tree.size());
    }
    m_overrides[index] = override;
    ++m_revision;
}

void Document::setStylingFlags(NodeIndex index, bool takesFill, bool takesStroke)
{
    settle();
    Node &node = m_tree.edit(index);
    node.takesFill = takesFill;
    node.takesStroke = takesStroke;
}

void Document::setWindow(const QSizeF &size)
{
    if (size == m_tree.window())
        return;
    const QSizeF before = rootViewport(m_tree.node(rootNode), m_tree.window());
    settle();
    const bool hasTransform =
        !styledAttribute(m_tree.node(rootNode), *facts(rootNode)->style, AttributeId::Transform).isEmpty();
    m_tree.setWindow(size);
    if (rootViewport(m_tree.node(rootNode), size) == before && !hasTransform)
        return;
    m_facts[rootNode].reset();
    structureChanged();
}

void Document::settleRules()
{
    m_tree.setRules(StyleRules::compile(m_tree));
    m_facts.fill(FactsPointer());
}

void Document::structureChanged()
{
    if (m_tree.hasStyleSheets())
        settleRules();
    ++m_revision;
    ++m_referenceRevision;
    ++m_animationRevision;
    m_changed = true;
}

} // namespace Svg
