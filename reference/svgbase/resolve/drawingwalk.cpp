#include "resolve/drawingwalk.h"

#include "grammar/inputlimits.h"
#include "resolve/resolver.h"
#include "resolve/settledtree.h"
#include "tree/conditions.h"
#include "tree/references.h"

namespace Svg {

namespace {

/// A node whose children are being visited.
struct Level
{
    NodeIndex node = noNode;
    FactsPointer facts;
    NodeIndex nextChild = noNode;
    /// Only the next child is visited, not its siblings.
    bool single = false;
    /// Inside used content: facts depend on the place of use.
    bool used = false;
};

class Walk
{
public:
    Walk(SettledTree &document, const DrawingVisitor &visitor, WalkBudget *budget)
        : m_document(document)
        , m_visitor(visitor)
        , m_budget(budget)
    {
    }

    void run(NodeIndex top, const FactsPointer &facts, bool used);
    void runChildren(NodeIndex holder, const FactsPointer &facts);

private:
    void visit(NodeIndex node, const FactsPointer &facts, bool used);
    void step();
    Level childrenOf(NodeIndex node, const FactsPointer &facts, bool used) const;
    NodeIndex usedNode(const Node &use) const;
    bool isOpen(NodeIndex node) const;
    bool isExhausted() const;
    void count(const Node &node, const Facts &facts);
    FactsPointer factsOf(NodeIndex node, const Level &level) const;

    SettledTree &m_document;
    const DrawingVisitor &m_visitor;
    QVector<Level> m_levels;
    WalkBudget *m_budget;
    int m_useDepth = 0;
};

bool Walk::isExhausted() const
{
    return m_budget->instances >= Limits::useInstances ||
           m_budget->outlineElements >= Limits::usedOutlineElements ||
           m_budget->characters >= Limits::usedCharacters;
}

void Walk::count(const Node &node, const Facts &facts)
{
    ++m_budget->instances;
    for (const Attribute &attribute : node.attributes)
        m_budget->characters += attribute.value.characterCount();
    for (const Outline &outline : facts.outlines)
        m_budget->outlineElements += outline.path.elementCount();
}

bool Walk::isOpen(NodeIndex node) const
{
    return std::any_of(m_levels.begin(), m_levels.end(), [node](const Level &level) { return level.node == node; });
}

NodeIndex Walk::usedNode(const Node &use) const
{
    const NodeIndex target = m_document.tree().findId(hrefTarget(use.attributes));
    if (target == noNode || target == rootNode || isOpen(target))
        return noNode;
    if (m_useDepth >= Limits::useDepth) {
        m_budget->tooDeep = target;
        return noNode;
    }
    const ElementKind kind = m_document.tree().node(target).kind;
    return isDrawable(kind) || kind == ElementKind::Symbol ? target : noNode;
}

Level Walk::childrenOf(NodeIndex index, const FactsPointer &facts, bool used) const
{
    const Node &node = m_document.tree().node(index);
    Level level{index, facts, noNode, false, used};
    if (node.kind == ElementKind::Use) {
        level.nextChild = usedNode(node);
        level.single = level.used = true;
    } else if (node.kind == ElementKind::Switch) {
        level.nextChild = firstAllowedChild(m_document.tree(), index);
        level.single = true;
    } else if (isStructure(node.kind)) {
        level.nextChild = node.firstChild;
    }
    return level;
}

FactsPointer Walk::factsOf(NodeIndex node, const Level &level) const
{
    if (!level.used)
        return m_document.factsBelow(node, level.facts);
    const Resolver resolver = m_document.resolver();
    const FactsPointer own = m_document.facts(node);
    return resolver.resolve(node, level.facts, {own.data(), own->inheritsAlike(level.facts), true, true});
}

void Walk::visit(NodeIndex node, const FactsPointer &facts, bool used)
{
    if (!m_visitor.enter(node, facts))
        return;
    m_levels.append(childrenOf(node, facts, used));
    if (m_document.tree().node(node).kind == ElementKind::Use)
        ++m_useDepth;
}

void Walk::step()
{
    Level &level = m_levels.last();
    const NodeIndex child = level.nextChild;
    if (child == noNode) {
        const Level done = m_levels.takeLast();
        if (m_document.tree().node(done.node).kind == ElementKind::Use)
            --m_useDepth;
        if (m_visitor.leave)
            m_visitor.leave(done.node, done.facts);
        return;
    }
    const Node &node = m_document.tree().node(child);
    const bool direct = m_document.tree().node(level.node).kind == ElementKind::Use;
    level.nextChild = level.single ? noNode : node.next;
    if (!isDrawable(node.kind) && !direct)
        return;
    const bool used = level.used;
    if (used && isExhausted()) {
        m_budget->exhausted = true;
        return;
    }
    const FactsPointer facts = factsOf(child, level);
    if (used)
        count(node, *facts);
    visit(child, facts, used);
}

void Walk::run(NodeIndex top, const FactsPointer &facts, bool used)
{
    visit(top, facts, used);
    while (!m_levels.isEmpty())
        step();
}

void Walk::runChildren(NodeIndex holder, const FactsPointer &facts)
{
    m_levels.append({holder, facts, m_document.tree().node(holder).firstChild, false, true});
    while (m_levels.size() > 1 || m_levels.first().nextChild != noNode)
        step();
}

} // namespace

void walkDrawing(SettledTree &document, NodeIndex top, const DrawingVisitor &visitor, WalkBudget *budget)
{
    WalkBudget own;
    Walk(document, visitor, budget ? budget : &own).run(top, document.facts(top), false);
}

void walkChildren(SettledTree &document, NodeIndex holder, const FactsPointer &facts, const DrawingVisitor &visitor,
                  WalkBudget *budget)
{
    Walk(document, visitor, budget).runChildren(holder, facts);
}

void walkUsed(SettledTree &document, NodeIndex top, const FactsPointer &facts, const DrawingVisitor &visitor,
              WalkBudget *budget)
{
    Walk(document, visitor, budget).run(top, facts, true);
}

void walkDrawing(SettledTree &document, NodeIndex top,
                 const std::function<bool(NodeIndex, const FactsPointer &)> &enter)
{
    walkDrawing(document, top, DrawingVisitor{enter, {}});
}

} // namespace Svg
