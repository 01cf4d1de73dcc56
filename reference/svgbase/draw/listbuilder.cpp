#include "draw/listbuilder.h"

#include "document/drawingwalk.h"
#include "draw/controlpoints.h"

namespace Svg {

namespace {

class ListBuilder
{
public:
    explicit ListBuilder(Document &document)
        : m_document(document)
    {
    }

    BuiltList build();

private:
    bool enter(NodeIndex node, const FactsPointer &facts);
    void leave(NodeIndex node, const FactsPointer &facts);
    void addShape(NodeIndex node, const FactsPointer &facts);
    void beginLayer(NodeIndex node, const FactsPointer &facts);
    void endLayer();
    bool isLayered(NodeIndex node, const FactsPointer &facts) const;
    QVector<DisplayItem> &target() { return m_control == noNode ? m_result.items : m_result.controlPoints; }

    Document &m_document;
    BuiltList m_result;
    /// Open layers of the present target, as places in it.
    QVector<int> m_layers;
    /// The control point that is being visited.
    NodeIndex m_control = noNode;
    QPointF m_controlCentre;
};

bool paintsNothing(const Outline &outline)
{
    return outline.fill.style() == Qt::NoBrush && outline.pen.style() == Qt::NoPen;
}

template<typename Painted> bool paintsTwice(const Painted &painted)
{
    return painted.fill.style() != Qt::NoBrush && painted.pen.style() != Qt::NoPen;
}

Outline effectiveOutline(const Document &document, NodeIndex node, const Facts &facts, int index)
{
    const StyleOverride *override = document.styleOverride(node);
    const Outline &own = facts.outlines.at(index);
    return override ? overridden(own, facts.style, *override) : own;
}

// Fill and stroke of one shape, and the shapes of a group, are faded as one picture (SVG 1.1 §14.5).
bool ListBuilder::isLayered(NodeIndex node, const FactsPointer &facts) const
{
    if (facts->style.opacity >= 1)
        return false;
    if (!hasGeometry(m_document.tree().node(node).kind))
        return true;
    return facts->outlines.size() > 1 ||
           (facts->outlines.size() == 1 && paintsTwice(effectiveOutline(m_document, node, *facts, 0)));
}

void ListBuilder::beginLayer(NodeIndex node, const FactsPointer &facts)
{
    DisplayItem item;
    item.kind = DisplayItem::BeginLayer;
    item.node = node;
    item.facts = facts;
    item.opacity = facts->style.opacity;
    m_layers.append(target().size());
    target().append(item);
}

void ListBuilder::endLayer()
{
    QVector<DisplayItem> &items = target();
    const int begin = m_layers.takeLast();
    // A layer around one single stroke or fill is the same as fading that one.
    const bool single = items.size() == begin + 2 && items.at(begin + 1).kind == DisplayItem::Shape;
    if (items.size() == begin + 1) {
        items.removeLast();
    } else if (single && !paintsTwice(items.at(begin + 1))) {
        DisplayItem shape = items.takeLast();
        shape.opacity *= items.takeLast().opacity;
        items.append(shape);
    } else {
        DisplayItem end;
        end.kind = DisplayItem::EndLayer;
        end.node = items.at(begin).node;
        items.append(end);
    }
}

void ListBuilder::addShape(NodeIndex node, const FactsPointer &facts)
{
    for (int i = 0; i < facts->outlines.size(); ++i) {
        const Outline outline = effectiveOutline(m_document, node, *facts, i);
        if (paintsNothing(outline))
            continue;
        DisplayItem item;
        item.node = node;
        item.facts = facts;
        item.override = m_document.stylePointer(node);
        item.outline = i;
        item.control = m_control != noNode;
        item.controlCentre = m_controlCentre;
        item.fill = outline.fill;
        item.pen = outline.pen;
        if (!isLayered(node, facts))
            item.opacity = facts->style.opacity;
        target().append(item);
    }
}

bool ListBuilder::enter(NodeIndex node, const FactsPointer &facts)
{
    if (!facts->displayed || facts->style.opacity <= 0)
        return false;
    const Node &element = m_document.tree().node(node);
    if (m_control == noNode && isControlPointId(element.attributes.value(AttributeId::Id))) {
        m_control = node;
        m_controlCentre = m_document.visibleBounds(node).center();
    }
    if (isLayered(node, facts))
        beginLayer(node, facts);
    if (facts->style.visible)
        addShape(node, facts);
    return true;
}

void ListBuilder::leave(NodeIndex node, const FactsPointer &facts)
{
    if (isLayered(node, facts))
        endLayer();
    if (m_control != node)
        return;
    m_control = noNode;
    m_controlCentre = QPointF();
}

BuiltList ListBuilder::build()
{
    walkDrawing(m_document, rootNode,
                DrawingVisitor{[this](NodeIndex node, const FactsPointer &facts) { return enter(node, facts); },
                               [this](NodeIndex node, const FactsPointer &facts) { leave(node, facts); }});
    return std::move(m_result);
}

} // namespace

BuiltList buildList(Document &document)
{
    return ListBuilder(document).build();
}

} // namespace Svg
