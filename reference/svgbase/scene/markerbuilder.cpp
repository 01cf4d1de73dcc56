#include "scene/markerbuilder.h"

#include "geometry/markervertices.h"
#include "geometry/shapegeometry.h"
#include "grammar/angles.h"
#include "grammar/viewboxes.h"
#include "resolve/viewports.h"
#include "scene/layereffects.h"
#include "scene/layerwrapping.h"
#include "scene/openreference.h"

#include <optional>

namespace Svg {

namespace {

const Length defaultMarkerSize{3, Unit::User};

/// A marker as it stands at every vertex, before it is turned and moved there.
struct MarkerForm
{
    NodeIndex node = noNode;
    FactsPointer own;
    /// The box that the content is fitted into.
    QRectF box;
    /// Its clip, in the units of the box; none if it may overflow.
    std::optional<QRectF> cut;
    /// From the content's units to those of the box, the reference point at the origin.
    QTransform contentToBox;
    QTransform boxToPlace;
    QSizeF viewport;
    double scale = 1;
    double angle = 0;
    bool turns = false;
    bool turnsBackAtStart = false;
};

Length markerLength(const Attributes &attributes, const QString &name, const Length &fallback)
{
    return parseLength(attributes.value(name)).value_or(fallback);
}

void readOrientation(const Attributes &attributes, MarkerForm *form)
{
    const QString text = attributes.value(QStringLiteral("orient")).trimmed();
    form->turnsBackAtStart = text == QLatin1String("auto-start-reverse");
    form->turns = form->turnsBackAtStart || text == QLatin1String("auto");
    if (!form->turns)
        form->angle = parseAngle(text).value_or(0);
}

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
    std::optional<MarkerForm> form(const QString &id) const;
    bool fitContent(const Attributes &attributes, const LengthContext &context, MarkerForm *form) const;
    void appendOne(const MarkerForm &form, const MarkerVertex &vertex);

    BuildContext &m_context;
    const MarkedElement &m_element;
    DisplayItems *m_items;
};

bool MarkerBuilder::fitContent(const Attributes &attributes, const LengthContext &context, MarkerForm *form) const
{
    const QSizeF size(toUserUnits(markerLength(attributes, QStringLiteral("markerWidth"), defaultMarkerSize),
                                  Axis::Horizontal, context),
                      toUserUnits(markerLength(attributes, QStringLiteral("markerHeight"), defaultMarkerSize),
                                  Axis::Vertical, context));
    if (size.isEmpty())
        return false;
    form->box = QRectF(QPointF(), size);
    form->viewport = size;
    const std::optional<QRectF> viewBox = parseViewBox(attributes.value(AttributeId::ViewBox));
    if (viewBox) {
        const AspectRatio ratio = parseAspectRatio(attributes.value(AttributeId::PreserveAspectRatio));
        const std::optional<QTransform> fitted = viewBoxTransform(*viewBox, form->box, ratio);
        if (!fitted)
            return false;
        form->contentToBox = *fitted;
        form->viewport = viewBox->size();
    }
    const QPointF reference = referencePoint(attributes, {form->viewport, context.fontSize});
    const QPointF origin = form->contentToBox.map(reference);
    form->boxToPlace = QTransform::fromTranslate(-origin.x(), -origin.y());
    return true;
}

std::optional<MarkerForm> MarkerBuilder::form(const QString &id) const
{
    const Tree &tree = m_context.document.tree();
    MarkerForm form;
    form.node = tree.findId(id);
    if (form.node == noNode || tree.node(form.node).kind != ElementKind::Marker ||
        !OpenReference::isAllowed(m_context, form.node))
        return std::nullopt;
    const Attributes attributes = tree.node(form.node).attributes;
    form.own = m_context.document.facts(form.node);
    const ComputedStyle &style = *form.own->style;
    if (attributes.value(QStringLiteral("markerUnits")) != QLatin1String("userSpaceOnUse"))
        form.scale = m_element.strokeWidth;
    readOrientation(attributes, &form);
    if (!(form.scale > 0) || !fitContent(attributes, {m_element.facts->viewport, style.font.size}, &form))
        return std::nullopt;
    form.cut = viewportCut(style, form.box, m_element.facts->viewport);
    return form;
}

void MarkerBuilder::appendOne(const MarkerForm &form, const MarkerVertex &vertex)
{
    double angle = form.turns ? vertex.angle : form.angle;
    if (form.turnsBackAtStart && vertex.role == MarkerVertex::Start)
        angle += 180;
    QTransform placed = QTransform::fromTranslate(vertex.place.x(), vertex.place.y());
    placed.rotate(angle);
    placed.scale(form.scale, form.scale);
    auto *facts = new Facts;
    const FactsPointer holder(facts);
    facts->style = form.own->style;
    facts->viewport = form.viewport;
    const QTransform boxToDocument = form.boxToPlace * placed * m_element.facts->toDocument;
    facts->toDocument = form.contentToBox * boxToDocument;
    const auto context = std::make_shared<PaintContext>();
    context->fill = m_element.fill;
    context->stroke = m_element.stroke;
    facts->context = context;
    DisplayItems content = m_context.content.children(m_context, form.node, holder, ContentUse::Drawing);
    if (content.isEmpty())
        return;
    const double opacity = form.own->style->opacity;
    if (form.cut || opacity < 1) {
        const auto layer = std::make_shared<LayerEffects>();
        layer->hasRegion = form.cut.has_value();
        layer->region.addRect(form.cut.value_or(QRectF()));
        layer->regionToDocument = boxToDocument;
        wrapInLayer(m_context, form.node, layer, &content);
        content.first().opacity = opacity;
    }
    *m_items += content;
}

void MarkerBuilder::append(const QVector<MarkerVertex> &vertices)
{
    const MarkerStyle &style = *m_element.facts->style->markers;
    const QString ids[] = {style.start, style.mid, style.end};
    for (const MarkerVertex::Role role : {MarkerVertex::Start, MarkerVertex::Mid, MarkerVertex::End}) {
        const std::optional<MarkerForm> known = form(ids[role]);
        if (!known)
            continue;
        const OpenReference open(m_context, known->node);
        for (const MarkerVertex &vertex : vertices) {
            if (vertex.role == role && !m_context.budget.exhausted)
                appendOne(*known, vertex);
        }
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
