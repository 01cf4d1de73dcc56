#include "scene/markerbuilder.h"

#include "geometry/markervertices.h"
#include "resolve/markerforms.h"
#include "scene/layereffects.h"
#include "scene/layerwrapping.h"
#include "scene/openreference.h"

#include <optional>

namespace Svg {

namespace {

/// A marker that an element refers to.
struct Marker
{
    NodeIndex node = noNode;
    FactsPointer own;
    MarkerForm form;
};

class MarkerBuilder
{
public:
    MarkerBuilder(BuildContext &context, const MarkedElement &element, DisplayItems *items)
        : m_context(context)
        , m_element(element)
        , m_items(items)
    {
    }

    void append(const QVector<MarkerVertex> &vertices);

private:
    std::optional<Marker> marker(const QString &id) const;
    void appendOne(const Marker &marker, const MarkerVertex &vertex);

    BuildContext &m_context;
    const MarkedElement &m_element;
    DisplayItems *m_items;
};

std::optional<Marker> MarkerBuilder::marker(const QString &id) const
{
    const Tree &tree = m_context.document.tree();
    const NodeIndex node = tree.findId(id);
    if (node == noNode || tree.node(node).kind != ElementKind::Marker || !OpenReference::isAllowed(m_context, node))
        return std::nullopt;
    const FactsPointer own = m_context.document.facts(node);
    const std::optional<MarkerForm> form =
        markerForm(tree.node(node), *own->style, m_element.strokeWidth, m_element.facts->viewport);
    return form ? std::make_optional(Marker{node, own, *form}) : std::nullopt;
}

void MarkerBuilder::appendOne(const Marker &marker, const MarkerVertex &vertex)
{
    const MarkerForm &form = marker.form;
    double angle = form.turns ? vertex.angle : form.angle;
    if (form.turnsBackAtStart && vertex.role == MarkerVertex::Start)
        angle += 180;
    QTransform placed = QTransform::fromTranslate(vertex.place.x(), vertex.place.y());
    placed.rotate(angle);
    placed.scale(form.scale, form.scale);
    auto *facts = new Facts;
    const FactsPointer holder(facts);
    facts->style = marker.own->style;
    facts->viewport = form.viewport;
    const QTransform boxToDocument = form.boxToPlace * placed * m_element.facts->toDocument;
    facts->toDocument = form.contentToBox * boxToDocument;
    const auto context = std::make_shared<PaintContext>();
    context->fill = m_element.fill;
    context->stroke = m_element.stroke;
    facts->context = context;
    DisplayItems content = m_context.content.children(m_context, marker.node, holder, ContentUse::Drawing);
    if (content.isEmpty())
        return;
    const double opacity = marker.own->style->opacity;
    if (form.cut || opacity < 1) {
        const auto layer = std::make_shared<LayerEffects>();
        layer->hasRegion = form.cut.has_value();
        layer->region.addRect(form.cut.value_or(QRectF()));
        layer->regionToDocument = boxToDocument;
        wrapInLayer(m_context, marker.node, layer, &content);
        content.first().opacity = opacity;
    }
    *m_items += content;
}

void MarkerBuilder::append(const QVector<MarkerVertex> &vertices)
{
    const MarkerStyle &style = *m_element.facts->style->markers;
    const QString ids[] = {style.start, style.mid, style.end};
    for (const MarkerVertex::Role role : {MarkerVertex::Start, MarkerVertex::Mid, MarkerVertex::End}) {
        const std::optional<Marker> known = marker(ids[role]);
        if (!known)
            continue;
        const OpenReference open(m_context, known->node);
        for (const MarkerVertex &vertex : vertices)
            if (vertex.role == role && !m_context.budget.exhausted)
                appendOne(*known, vertex);
    }
}

} // namespace

void appendMarkers(BuildContext &context, const MarkedElement &element, DisplayItems *items)
{
    const Node &node = context.document.tree().node(element.node);
    const LengthContext lengths{element.facts->viewport, element.facts->style->font.size};
    MarkerBuilder(context, element, items).append(markerVertices(node, lengths));
}

} // namespace Svg
