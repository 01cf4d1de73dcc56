#include "scene/patternbuilder.h"

#include "grammar/inputlimits.h"
#include "grammar/viewboxes.h"
#include "resolve/patternchain.h"
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
        , m_ofBounds(m_chain.isTileOfBounds())
        , m_fontSize(context.document.facts(pattern)->style->font.size)
    {
        m_pattern.node = pattern;
        m_pattern.opacity = target.opacity;
    }

    PatternPointer build();

private:
    bool placeTile();
    bool placeContent(QTransform *toPattern, QSizeF *viewport) const;
    double length(const char *name, Axis axis) const;
    QTransform ownTransform() const;
    uint key() const;
    PatternPointer known() const;

    BuildContext &m_context;
    const PatternTarget &m_target;
    PatternChain m_chain;
    bool m_ofBounds;
    /// Of the pattern's own element, user units.
    double m_fontSize;
    Pattern m_pattern;
};

double PatternBuilder::length(const char *name, Axis axis) const
{
    const QSizeF base = m_ofBounds ? QSizeF(1, 1) : m_target.viewport;
    const Length length = parseLength(m_chain.value(QString(QLatin1String(name)))).value_or(Length());
    return toUserUnits(length, axis, {base, m_fontSize});
}

bool PatternBuilder::placeTile()
{
    const QRectF box(length("x", Axis::Horizontal), length("y", Axis::Vertical), length("width", Axis::Horizontal),
                     length("height", Axis::Vertical));
    const QRectF &b = m_target.bounds;
    m_pattern.tile = box;
    if (m_ofBounds)
        m_pattern.tile = QRectF(b.x() + box.x() * b.width(), b.y() + box.y() * b.height(), box.width() * b.width(),
                                box.height() * b.height());
    return box.width() > 0 && box.height() > 0 && !m_pattern.tile.isEmpty();
}

// The content starts at the corner of the tile.
bool PatternBuilder::placeContent(QTransform *toPattern, QSizeF *viewport) const
{
    const QRectF &tile = m_pattern.tile;
    const QString boxText = m_chain.value(QStringLiteral("viewBox"));
    *viewport = m_target.viewport;
    const std::optional<QRectF> box = parseViewBox(boxText);
    if (box) {
        const AspectRatio ratio = parseAspectRatio(m_chain.value(QStringLiteral("preserveAspectRatio")));
        const std::optional<QTransform> fitted = viewBoxTransform(*box, tile, ratio);
        *toPattern = fitted.value_or(QTransform());
        *viewport = box->size();
        return fitted.has_value();
    }
    const QSizeF scale = m_chain.isContentOfBounds() ? m_target.bounds.size() : QSizeF(1, 1);
    *toPattern = QTransform(scale.width(), 0, 0, scale.height(), tile.x(), tile.y());
    return !m_chain.isContentOfBounds() || !m_target.bounds.isEmpty();
}

QTransform PatternBuilder::ownTransform() const
{
    const QSizeF box = m_ofBounds ? QSizeF(1, 1) : m_target.viewport;
    return resolved(m_chain.transform(), QRectF(QPointF(), box), m_fontSize);
}

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
    if (m_ofBounds || m_chain.isContentOfBounds())
        m_pattern.bounds = m_target.bounds;
    m_pattern.viewport = m_target.viewport;
    if (const PatternPointer pattern = known())
        return pattern;
    if (m_context.patterns.size() >= Limits::patterns) {
        m_context.report.add(Message::TooManyPatterns,
                             QStringLiteral("Tiles of patterns beyond %1 are left out.").arg(Limits::patterns),
                             m_pattern.node);
        return nullptr;
    }
    auto *facts = new Facts;
    const FactsPointer content(facts);
    if (!placeTile() || !placeContent(&facts->toDocument, &facts->viewport))
        return nullptr;
    m_pattern.toTarget = ownTransform();
    if (!m_pattern.toTarget.isInvertible())
        return nullptr;
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
