#include "scene/listbuilder.h"

#include "grammar/inputlimits.h"
#include "resolve/contextpaint.h"
#include "resolve/drawingwalk.h"
#include "resolve/visiblebounds.h"
#include "scene/buildcontext.h"
#include "scene/controlpoints.h"
#include "scene/effectbuilder.h"
#include "scene/imagebuilder.h"
#include "scene/layereffects.h"
#include "scene/layerwrapping.h"
#include "scene/markerbuilder.h"
#include "scene/patternbuilder.h"

namespace Svg {

namespace {

/// Marks an element without a layer.
constexpr int noLayer = -1;

struct PaintedParts
{
    bool fill = true;
    bool stroke = true;
};

class ListBuilder
{
public:
    ListBuilder(BuildContext &context, ContentUse use)
        : m_context(context)
        , m_document(context.document)
        , m_use(use)
    {
    }

    BuiltList build();
    DisplayItems buildContent(NodeIndex holder, const FactsPointer &facts);
    DisplayItems buildElement(NodeIndex node, const FactsPointer &facts);

private:
    DrawingVisitor visitor();
    bool enter(NodeIndex node, const FactsPointer &facts);
    void leave(NodeIndex node);
    void leaveControl();
    void reportReferences();
    bool isAllowed(ElementKind kind) const;
    void addPainted(NodeIndex node, const FactsPointer &facts, bool layered);
    void addShape(NodeIndex node, const FactsPointer &facts, bool layered, const PaintedParts &parts);
    void addText(NodeIndex node, const FactsPointer &facts, bool layered);
    void addOutline(NodeIndex node, const FactsPointer &facts, bool layered, const PaintedParts &parts,
                    int outline);
    void addGlyphPicture(NodeIndex node, const FactsPointer &facts, bool layered, const Outline &outline);
    PatternPointer pattern(NodeIndex node, const Facts &facts, Paint::Kind kind, double opacity);
    bool hasMarkers(ElementKind kind, const Facts &facts) const;
    void addMarkers(NodeIndex node, const FactsPointer &facts);
    void beginLayer(NodeIndex node, const FactsPointer &facts, const std::shared_ptr<LayerEffects> &effects);
    void endLayer();
    bool isFadedAsOne(NodeIndex node, const FactsPointer &facts) const;
    bool isSilhouette() const { return m_use == ContentUse::Clipping; }
    bool isInControl() const { return m_context.control != noNode; }
    DisplayItems &target() { return isInControl() && !m_isContent ? m_result.controlPoints : m_result.items; }

    BuildContext &m_context;
    SettledTree &m_document;
    ContentUse m_use;
    /// Only elements of the drawing itself are control points.
    bool m_isContent = false;
    BuiltList m_result;
    /// By open element: where its layer begins in the present target.
    QVector<int> m_layers;
    /// Kinds of open elements; a clip path depends on its parent.
    QVector<ElementKind> m_kinds;
};

bool paintsNothing(const Outline &outline)
{
    return outline.fill.style() == Qt::NoBrush && outline.pen.style() == Qt::NoPen;
}

bool paintsTwice(const Outline &outline)
{
    return outline.fill.style() != Qt::NoBrush && outline.pen.style() != Qt::NoPen;
}

Outline effectiveOutline(const SettledTree &document, NodeIndex node, const Facts &facts, int index)
{
    const StyleOverridePointer override = document.stylePointer(node);
    const Outline &own = facts.outlines.at(index);
    return override ? overridden(own, *facts.style, *override) : own;
}

// Fill and stroke of one shape, and the shapes of a group, are faded as one picture (SVG 1.1 §14.5).
bool ListBuilder::isFadedAsOne(NodeIndex node, const FactsPointer &facts) const
{
    if (facts->style->opacity >= 1 || isSilhouette())
        return false;
    const ElementKind kind = m_document.tree().node(node).kind;
    if (!hasGeometry(kind) || hasMarkers(kind, *facts))
        return true;
    return facts->outlines.size() > 1 ||
           (facts->outlines.size() == 1 && paintsTwice(effectiveOutline(m_document, node, *facts, 0)));
}

void ListBuilder::beginLayer(NodeIndex node, const FactsPointer &facts,
                             const std::shared_ptr<LayerEffects> &effects)
{
    DisplayItem item;
    item.node = node;
    item.facts = facts;
    item.opacity = isSilhouette() ? 1 : facts->style->opacity;
    item.controlCentre = m_context.controlCentre;
    item.content = GroupItem{effects, 0};
    m_layers.last() = target().size();
    target().append(item);
}

// Whether fading the item equals fading a group with nothing else in it.
bool canBeFaded(const DisplayItem &item)
{
    if (std::holds_alternative<GroupItem>(item.content))
        return false;
    const auto *shape = std::get_if<ShapeItem>(&item.content);
    return !shape || !paintsTwice(shownOutline(item, *shape));
}

void ListBuilder::endLayer()
{
    DisplayItems &items = target();
    const int begin = m_layers.constLast();
    const int count = items.size() - begin - 1;
    const auto &effects = std::get<GroupItem>(items.at(begin).content).effects;
    if (count == 0 && !(effects && effects->filter)) {
        items.removeLast();
    } else if (count == 1 && !effects && canBeFaded(items.constLast())) {
        items.last().opacity *= items.at(begin).opacity;
        items.remove(begin);
    } else {
        std::get<GroupItem>(items[begin].content).count = count;
    }
}

// Null where the outline's own paint is used; a pattern that can't be built leaves nothing to paint.
PatternPointer ListBuilder::pattern(NodeIndex node, const Facts &facts, Paint::Kind kind, double opacity)
{
    if (node == noNode)
        return nullptr;
    if (const ContextPaint *paint = contextPaint(facts, kind))
        return buildPattern(m_context, node, {paint->bounds, paint->viewport, opacity});
    return buildPattern(m_context, node, {facts.localBounds, facts.viewport, opacity});
}

// The colours are the font's own; the fill decides whether the picture is shown, and its opacity. Pictures clip
// nothing: they have no silhouette.
void ListBuilder::addGlyphPicture(NodeIndex node, const FactsPointer &facts, bool layered, const Outline &outline)
{
    if (isSilhouette() || outline.fill.style() == Qt::NoBrush)
        return;
    DisplayItem item;
    item.node = node;
    item.facts = facts;
    const bool isPlain = outline.fill.style() == Qt::SolidPattern && outline.fillPattern == noNode;
    item.opacity = isPlain ? outline.fill.color().alphaF() : double(outline.fillOpacity);
    if (!layered)
        item.opacity *= facts->style->opacity;
    appendGlyphPicture(m_context, item, *outline.picture, &target());
}

void ListBuilder::addOutline(NodeIndex node, const FactsPointer &facts, bool layered, const PaintedParts &parts,
                             int index)
{
    Outline outline = effectiveOutline(m_document, node, *facts, index);
    if (outline.picture) {
        if (parts.fill)
            addGlyphPicture(node, facts, layered, outline);
        return;
    }
    if (!parts.fill)
        outline.fill = Qt::NoBrush;
    if (!parts.stroke)
        outline.pen = QPen(Qt::NoPen);
    if (isSilhouette() ? !parts.fill : paintsNothing(outline))
        return;
    ShapeItem shape;
    shape.override = m_document.stylePointer(node);
    shape.outline = index;
    shape.silhouette = isSilhouette();
    shape.paintsFill = parts.fill;
    shape.paintsStroke = parts.stroke;
    if (parts.fill && !isSilhouette())
        shape.fillPattern = pattern(outline.fillPattern, *facts, outline.fillKind, double(outline.fillOpacity));
    if (parts.stroke && !isSilhouette())
        shape.strokePattern =
            pattern(outline.strokePattern, *facts, outline.strokeKind, double(outline.strokeOpacity));
    DisplayItem item;
    item.node = node;
    item.facts = facts;
    item.controlCentre = m_context.controlCentre;
    item.content = shape;
    if (!layered && !isSilhouette())
        item.opacity = facts->style->opacity;
    target().append(item);
}

void ListBuilder::addShape(NodeIndex node, const FactsPointer &facts, bool layered, const PaintedParts &parts)
{
    for (int i = 0; i < facts->outlines.size(); ++i)
        addOutline(node, facts, layered, parts, i);
}

// Each part of a text is painted in an order of its own.
void ListBuilder::addText(NodeIndex node, const FactsPointer &facts, bool layered)
{
    for (int i = 0; i < facts->outlines.size(); ++i) {
        if (!facts->outlines.at(i).strokeFirst) {
            addOutline(node, facts, layered, {true, true}, i);
            continue;
        }
        addOutline(node, facts, layered, {false, true}, i);
        addOutline(node, facts, layered, {true, false}, i);
    }
}

// Only these have vertices for markers (SVG 1.1 §11.6.2).
bool takesMarkers(ElementKind kind)
{
    return kind == ElementKind::Line || kind == ElementKind::Polyline || kind == ElementKind::Polygon ||
           kind == ElementKind::Path;
}

bool ListBuilder::hasMarkers(ElementKind kind, const Facts &facts) const
{
    return facts.style->markers && takesMarkers(kind) && facts.hasGeometry && !isSilhouette();
}

void ListBuilder::addMarkers(NodeIndex node, const FactsPointer &facts)
{
    const StyleOverridePointer override = m_document.stylePointer(node);
    MarkedElement element;
    element.node = node;
    element.facts = facts;
    element.strokeWidth = facts->style->strokeWidth;
    if (override && override->strokeWidth)
        element.strokeWidth = *override->strokeWidth;
    if (!facts->outlines.isEmpty()) {
        const Outline outline = effectiveOutline(m_document, node, *facts, 0);
        element.fill = handedDown(*facts, outline.fillKind, unfadedBrush(outline.fill, facts->style->fillOpacity),
                                  outline.fillPattern);
        const QBrush stroke = override && override->strokeColor
                                  ? QBrush(*override->strokeColor)
                                  : unfadedBrush(outline.strokePaint, facts->style->strokeOpacity);
        element.stroke = handedDown(*facts, outline.strokeKind, stroke, outline.strokePattern);
    }
    appendMarkers(m_context, element, &target());
}

// A clip path accepts shapes, texts, and uses of them, but no use of a use and no groups.
bool ListBuilder::isAllowed(ElementKind kind) const
{
    if (!isSilhouette())
        return true;
    if (kind == ElementKind::Use)
        return m_kinds.isEmpty();
    return hasGeometry(kind);
}

void ListBuilder::addPainted(NodeIndex node, const FactsPointer &facts, bool layered)
{
    if (m_document.tree().node(node).kind == ElementKind::Text) {
        addText(node, facts, layered);
        return;
    }
    const PaintOrder &order = facts->style->paintOrder;
    for (int i = 0; i < int(order.size()); ++i) {
        const bool strokeFollows = i + 1 < int(order.size()) && order[i + 1] == PaintStep::Stroke;
        if (order[i] == PaintStep::Markers) {
            if (hasMarkers(m_document.tree().node(node).kind, *facts))
                addMarkers(node, facts);
        } else if (order[i] == PaintStep::Fill && strokeFollows) {
            addShape(node, facts, layered, {true, true});
            ++i;
        } else {
            addShape(node, facts, layered, {order[i] == PaintStep::Fill, order[i] == PaintStep::Stroke});
        }
    }
}

void addCut(const Facts &facts, std::shared_ptr<LayerEffects> *layer)
{
    if (!*layer)
        *layer = std::make_shared<LayerEffects>();
    QPainterPath cut;
    cut.addRect(*facts.fitted().cut);
    const QTransform map = facts.fitted().aroundToDocument;
    LayerEffects &effects = **layer;
    if (effects.hasRegion)
        effects.region = effects.regionToDocument.map(effects.region) & map.map(cut);
    else
        effects.region = cut;
    effects.regionToDocument = effects.hasRegion ? QTransform() : map;
    effects.hasRegion = true;
}

bool ListBuilder::enter(NodeIndex node, const FactsPointer &facts)
{
    const Node &element = m_document.tree().node(node);
    if (!facts->displayed || !isAllowed(element.kind) || (facts->style->opacity <= 0 && !isSilhouette()))
        return false;
    const bool startsControl =
        !isInControl() && !m_isContent && isControlPointId(element.attributes.value(AttributeId::Id));
    if (startsControl) {
        m_context.control = node;
        m_context.controlCentre = visibleBounds(m_document, node).center();
    }
    BuiltEffects effects;
    if (facts->style->effects)
        effects = isSilhouette() ? buildClipOnly(m_context, node, facts) : buildEffects(m_context, node, facts);
    if (!effects.drawn) {
        if (startsControl)
            leaveControl();
        return false;
    }
    if (facts->fitted().cut && !isSilhouette())
        addCut(*facts, &effects.layer);
    const bool layered = effects.layer || isFadedAsOne(node, facts);
    m_layers.append(noLayer);
    m_kinds.append(element.kind);
    if (layered)
        beginLayer(node, facts, effects.layer);
    // Of a text only the visible parts have outlines.
    if (facts->style->visible || element.kind == ElementKind::Text)
        addPainted(node, facts, layered);
    if (facts->style->visible && facts->image)
        appendImage(m_context, node, facts, &target());
    return true;
}

void ListBuilder::leaveControl()
{
    m_context.control = noNode;
    m_context.controlCentre.reset();
}

void ListBuilder::leave(NodeIndex node)
{
    if (m_layers.constLast() != noLayer)
        endLayer();
    m_layers.removeLast();
    m_kinds.removeLast();
    if (m_context.control == node)
        leaveControl();
}

DrawingVisitor ListBuilder::visitor()
{
    return {[this](NodeIndex node, const FactsPointer &facts) { return enter(node, facts); },
            [this](NodeIndex node, const FactsPointer &) { leave(node); }};
}

void ListBuilder::reportReferences()
{
    const WalkBudget &budget = m_context.budget;
    if (budget.exhausted || m_context.boundsBudget.exhausted)
        m_context.report.add(
            Message::TooManyReferences,
            QStringLiteral("References add more than %1 elements; some are left out.").arg(Limits::useInstances));
    if (budget.tooDeep != noNode)
        m_context.report.add(
            Message::UseTooDeep,
            QStringLiteral("What is used more than %1 times inside each other is left out.").arg(Limits::useDepth),
            budget.tooDeep);
}

BuiltList ListBuilder::build()
{
    walkDrawing(m_document, rootNode, visitor(), &m_context.budget);
    // Elements blend with the drawing, never with its backdrop (Compositing 1 §3.3).
    if (m_context.blends)
        wrapInLayer(m_context, rootNode, nullptr, &m_result.items);
    reportReferences();
    m_result.report = m_context.report;
    return std::move(m_result);
}

DisplayItems ListBuilder::buildContent(NodeIndex holder, const FactsPointer &facts)
{
    m_isContent = true;
    walkChildren(m_document, holder, facts, visitor(), &m_context.budget);
    return m_result.items;
}

DisplayItems ListBuilder::buildElement(NodeIndex node, const FactsPointer &facts)
{
    m_isContent = true;
    walkUsed(m_document, node, facts, visitor(), &m_context.budget);
    return m_result.items;
}

/// Builds content in the way the whole drawing is built.
class WalkedContent final : public ContentBuilder
{
public:
    DisplayItems children(BuildContext &context, NodeIndex holder, const FactsPointer &facts,
                          ContentUse use) const override
    {
        return ListBuilder(context, use).buildContent(holder, facts);
    }
    DisplayItems element(BuildContext &context, NodeIndex node, const FactsPointer &facts) const override
    {
        return ListBuilder(context, ContentUse::Drawing).buildElement(node, facts);
    }
};

} // namespace

BuiltList buildList(SettledTree &document)
{
    document.settle();
    const WalkedContent content;
    BuildContext context(document, content);
    return ListBuilder(context, ContentUse::Drawing).build();
}

} // namespace Svg
