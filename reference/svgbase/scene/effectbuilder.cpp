#include "scene/effectbuilder.h"

#include "resolve/effectattributes.h"
#include "resolve/effectregion.h"
#include "resolve/resolver.h"
#include "scene/filterbuilder.h"
#include "scene/layerwrapping.h"
#include "scene/objectbounds.h"
#include "scene/openreference.h"

#include <optional>

namespace Svg {

namespace {

class EffectBuilder
{
public:
    EffectBuilder(BuildContext &context, NodeIndex node, const FactsPointer &facts)
        : m_context(context)
        , m_node(node)
        , m_facts(facts)
        , m_space(facts->toDocument)
    {
    }

    bool addClip(LayerEffects *layer);
    bool addClipShape(LayerEffects *layer);
    bool addMask(LayerEffects *layer);
    bool addFilter(LayerEffects *layer);

private:
    const Node &element(NodeIndex index) const { return m_context.document.tree().node(index); }
    NodeIndex find(const QString &id, ElementKind kind) const;
    const QRectF &bounds();
    QRectF shapeBox(ShapeBox box);
    bool contentFacts(NodeIndex holder, bool ofBounds, const QTransform &own, FactsPointer *facts);
    bool buildClip(NodeIndex clip, DisplayItems *items);
    bool buildMask(NodeIndex mask, MaskMode mode, LayerEffects *layer);

    BuildContext &m_context;
    NodeIndex m_node;
    FactsPointer m_facts;
    QTransform m_space;
    std::optional<QRectF> m_bounds;
};

// Empty for one nested too deeply in others, so that these still clip as far as they can.
NodeIndex EffectBuilder::find(const QString &id, ElementKind kind) const
{
    const NodeIndex found = m_context.document.tree().findId(id);
    const bool counts =
        found != noNode && element(found).kind == kind && !OpenReference::isTooDeep(m_context, found);
    return counts ? found : noNode;
}

const QRectF &EffectBuilder::bounds()
{
    if (!m_bounds)
        m_bounds = objectBounds(m_context, m_node, m_facts);
    return *m_bounds;
}

// Content inherits from where it is defined and is placed where it is referred to.
bool EffectBuilder::contentFacts(NodeIndex holder, bool ofBounds, const QTransform &own, FactsPointer *result)
{
    if (ofBounds && bounds().isEmpty())
        return false;
    auto *facts = new Facts;
    *result = FactsPointer(facts);
    facts->style = m_context.document.facts(holder)->style;
    facts->viewport = m_facts->viewport;
    const QRectF box = ofBounds ? bounds() : QRectF(0, 0, 1, 1);
    facts->toDocument = QTransform(box.width(), 0, 0, box.height(), box.x(), box.y()) * own * m_space;
    return true;
}

bool EffectBuilder::buildClip(NodeIndex clip, DisplayItems *items)
{
    if (OpenReference::isOpen(m_context, clip))
        return false;
    const OpenReference open(m_context, clip);
    const Resolver resolver = m_context.document.resolver();
    const QTransform own = resolver.ownTransform(clip, *m_context.document.facts(clip));
    FactsPointer facts;
    if (!contentFacts(clip, isClipOfBounds(element(clip)), own, &facts))
        return false;
    *items = m_context.content.children(m_context, clip, facts, ContentUse::Clipping);
    if (items->isEmpty())
        return false;
    const auto &effects = facts->style->effects;
    const NodeIndex further = effects ? find(effects->clipPath, ElementKind::ClipPath) : noNode;
    if (further == noNode)
        return true;
    const auto layer = std::make_shared<LayerEffects>();
    layer->clips = true;
    if (!buildClip(further, &layer->clip))
        return false;
    wrapInLayer(m_context, clip, layer, items);
    return true;
}

QRectF EffectBuilder::shapeBox(ShapeBox box)
{
    if (box == ShapeBox::View)
        return QRectF(QPointF(), m_facts->viewport);
    QRectF result = bounds();
    if (box == ShapeBox::Fill || m_facts->outlines.isEmpty())
        return result;
    const double half =
        m_facts->outlines.constFirst().pen.style() == Qt::NoPen ? 0 : m_facts->style->strokeWidth / 2;
    return result.adjusted(-half, -half, half, half);
}

// False when nothing is left.
bool EffectBuilder::addClipShape(LayerEffects *layer)
{
    const std::optional<ShapeBox> box = clipShapeBox(*m_facts->style);
    if (!box)
        return true;
    layer->hasRegion = true;
    layer->region = clipShape(*m_facts->style, shapeBox(*box));
    layer->regionToDocument = m_space;
    return !layer->region.boundingRect().isEmpty();
}

bool EffectBuilder::addClip(LayerEffects *layer)
{
    if (!addClipShape(layer))
        return false;
    const NodeIndex clip = find(m_facts->style->effects->clipPath, ElementKind::ClipPath);
    if (clip == noNode)
        return true;
    layer->clips = true;
    return buildClip(clip, &layer->clip);
}

// Whether a mask uses alpha, by the masked element and by the mask itself.
bool isAlphaMask(MaskMode mode, const ComputedStyle &mask)
{
    const bool own = mask.effects && mask.effects->alphaMask;
    return mode == MaskMode::Alpha || (mode == MaskMode::MatchSource && own);
}

bool EffectBuilder::buildMask(NodeIndex mask, MaskMode mode, LayerEffects *layer)
{
    if (OpenReference::isOpen(m_context, mask))
        return false;
    const OpenReference open(m_context, mask);
    const EffectUnits units = maskUnits(element(mask));
    FactsPointer facts;
    if (!contentFacts(mask, units.contentOfBounds, QTransform(), &facts) ||
        (units.regionOfBounds && bounds().isEmpty()))
        return false;
    const QRectF area =
        effectRegion(element(mask), units.regionOfBounds, {bounds(), facts->viewport, facts->style->font.size});
    if (area.isEmpty())
        return false;
    const auto region = std::make_shared<LayerEffects>();
    region->hasRegion = true;
    region->region.addRect(area);
    region->regionToDocument = m_space;
    layer->masks = true;
    layer->alphaMask = isAlphaMask(mode, *facts->style);
    layer->linearMask = facts->style->mixesLinear;
    layer->mask = m_context.content.children(m_context, mask, facts, ContentUse::Drawing);
    if (layer->mask.isEmpty())
        return false;
    const auto &effects = facts->style->effects;
    const NodeIndex further = effects ? find(effects->mask, ElementKind::Mask) : noNode;
    if (further != noNode && !buildMask(further, effects->maskMode, region.get()))
        return false;
    wrapInLayer(m_context, mask, region, &layer->mask);
    return true;
}

bool EffectBuilder::addMask(LayerEffects *layer)
{
    const NodeIndex mask = find(m_facts->style->effects->mask, ElementKind::Mask);
    return mask == noNode || buildMask(mask, m_facts->style->effects->maskMode, layer);
}

// Of a group only plain colours are known: it has no box of its own for others.
QBrush paintOf(const Paint &paint, double opacity)
{
    QColor color = paint.color;
    if (paint.kind != Paint::Color || !color.isValid())
        return Qt::NoBrush;
    color.setAlphaF(color.alphaF() * opacity);
    return color;
}

bool EffectBuilder::addFilter(LayerEffects *layer)
{
    if (m_facts->style->effects->filter.isEmpty())
        return true;
    FilterTarget target{bounds(), m_facts->viewport, m_space, *m_facts->style};
    target.fillPaint = paintOf(m_facts->style->fill, m_facts->style->fillOpacity);
    target.strokePaint = paintOf(m_facts->style->stroke, m_facts->style->strokeOpacity);
    if (!m_facts->outlines.isEmpty() && m_facts->outlines.constFirst().fillPattern == noNode)
        target.fillPaint = m_facts->outlines.constFirst().fill;
    if (!m_facts->outlines.isEmpty() && m_facts->outlines.constFirst().strokePattern == noNode)
        target.strokePaint = m_facts->outlines.constFirst().strokePaint;
    const BuiltFilter built = buildFilter(m_context, target);
    layer->filter = built.filter;
    return built.drawn;
}

bool saysNothing(const LayerEffects &layer, const EffectStyle &style)
{
    return !layer.filter && !layer.hasRegion && !layer.clips && !layer.masks &&
           layer.blendMode == BlendMode::Normal && !style.isolated;
}

} // namespace

BuiltEffects buildEffects(BuildContext &context, NodeIndex node, const FactsPointer &facts)
{
    const EffectStyle &style = *facts->style->effects;
    BuiltEffects result;
    result.layer = std::make_shared<LayerEffects>();
    EffectBuilder builder(context, node, facts);
    result.layer->blendMode = style.blendMode;
    result.layer->isolated = style.isolated;
    context.blends = context.blends || style.blendMode != BlendMode::Normal;
    result.drawn = builder.addClip(result.layer.get()) && builder.addMask(result.layer.get()) &&
                   builder.addFilter(result.layer.get());
    if (saysNothing(*result.layer, style))
        result.layer.reset();
    return result;
}

BuiltEffects buildClipOnly(BuildContext &context, NodeIndex node, const FactsPointer &facts)
{
    BuiltEffects result;
    result.layer = std::make_shared<LayerEffects>();
    result.drawn = EffectBuilder(context, node, facts).addClip(result.layer.get());
    if (!result.layer->clips && !result.layer->hasRegion)
        result.layer.reset();
    return result;
}

} // namespace Svg
