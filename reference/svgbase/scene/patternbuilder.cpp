#include "scene/patternbuilder.h"

#include "grammar/inputlimits.h"
#include "resolve/patternplaces.h"
#include "scene/openreference.h"

namespace Svg {

namespace {

class PatternBuilder
{
public:
    PatternBuilder(BuildContext &context, NodeIndex pattern, const PatternTarget &target)
        : m_context(context)
        , m_target(target)
        , m_chain(context.document.tree(), pattern)
    {
        m_pattern.node = pattern;
        m_pattern.opacity = target.opacity;
    }

    PatternPointer build();

private:
    uint key() const;
    PatternPointer known() const;

    BuildContext &m_context;
    const PatternTarget &m_target;
    PatternChain m_chain;
    Pattern m_pattern;
};

uint PatternBuilder::key() const
{
    const QRectF &b = m_pattern.bounds;
    const double values[] = {double(m_pattern.node),
                             b.x(),
                             b.y(),
                             b.width(),
                             b.height(),
                             m_pattern.viewport.width(),
                             m_pattern.viewport.height(),
                             m_pattern.opacity};
    return qHashRange(std::begin(values), std::end(values));
}

PatternPointer PatternBuilder::known() const
{
    const auto [begin, end] = m_context.patterns.equal_range(key());
    for (auto at = begin; at != end; ++at) {
        const PatternPointer &pattern = *at;
        if (pattern->node == m_pattern.node && pattern->bounds == m_pattern.bounds &&
            pattern->viewport == m_pattern.viewport && pattern->opacity == m_pattern.opacity)
            return pattern;
    }
    return nullptr;
}

PatternPointer PatternBuilder::build()
{
    const NodeIndex holder = m_chain.holder();
    if (holder == noNode || !OpenReference::isAllowed(m_context, m_pattern.node))
        return nullptr;
    if (m_chain.isTileOfBounds() || m_chain.isContentOfBounds())
        m_pattern.bounds = m_target.bounds;
    m_pattern.viewport = m_target.viewport;
    if (PatternPointer pattern = known())
        return pattern;
    if (m_context.patterns.size() >= Limits::patterns) {
        m_context.report.add(Message::TooManyPatterns,
                             QStringLiteral("Tiles of patterns beyond %1 are left out.").arg(Limits::patterns),
                             m_pattern.node);
        return nullptr;
    }
    const double fontSize = m_context.document.facts(m_pattern.node)->style->font.size;
    const std::optional<PatternPlace> place = patternPlace(m_chain, m_target.bounds, m_target.viewport, fontSize);
    if (!place)
        return nullptr;
    m_pattern.tile = place->tile;
    m_pattern.toTarget = place->toTarget;
    auto *facts = new Facts;
    const FactsPointer content(facts);
    facts->toDocument = place->toPattern;
    facts->viewport = place->contentViewport;
    facts->style = m_context.document.facts(holder)->style;
    const OpenReference open(m_context, m_pattern.node);
    m_pattern.items = m_context.content.children(m_context, holder, content, ContentUse::Drawing);
    if (m_pattern.items.isEmpty())
        return nullptr;
    return *m_context.patterns.insert(key(), std::make_shared<const Pattern>(m_pattern));
}

} // namespace

PatternPointer buildPattern(BuildContext &context, NodeIndex pattern, const PatternTarget &target)
{
    return PatternBuilder(context, pattern, target).build();
}

} // namespace Svg
