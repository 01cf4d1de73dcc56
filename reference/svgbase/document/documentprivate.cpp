#include "document/documentprivate.h"

#include "paint/displaylistcache.h"
#include "resolve/viewports.h"
#include "resolve/visiblebounds.h"
#include "scene/controlpoints.h"

using namespace Svg;

DocumentPrivate::DocumentPrivate(const PrototypePointer &prototype)
    : QZeSvgNodePrivate(this, rootNode)
    , content(prototype)
    , viewBox(prototype->viewBox())
{
}

DocumentPrivate::DocumentPrivate(const DocumentPrivate &other)
    : QZeSvgNodePrivate(this, rootNode)
    , content(other.content)
    , viewBox(other.viewBox)
    , viewBoxMeasured(other.viewBoxMeasured)
    , callback(other.callback)
    , lastSet(other.lastSet)
{
}

// Copies that callers still own outlive the document; they have no effect any more.
DocumentPrivate::~DocumentPrivate()
{
    DisplayListCache::forget(this);
    const auto nodes = m_nodes;
    m_nodes.clear();
    for (QZeSvgNode *node : nodes) {
        QZeSvgNodePrivate *record = QZeSvgNodePrivate::of(node);
        record->document = nullptr;
        if (!m_loose.contains(record->index))
            delete node;
    }
}

DocumentPrivate *DocumentPrivate::of(const QZeSvgTinyDocument *document)
{
    return static_cast<DocumentPrivate *>(QZeSvgNodePrivate::of(document));
}

QZeSvgNode *DocumentPrivate::nodeObject(NodeIndex index)
{
    if (index == rootNode)
        return publicDocument;
    content.settle();
    QZeSvgNode *&node = m_nodes[index];
    if (!node)
        node = makeNode(this, index);
    return node;
}

QZeSvgNode *DocumentPrivate::looseNode(NodeIndex index)
{
    m_loose.insert(index);
    return nodeObject(index);
}

void DocumentPrivate::adopt(QZeSvgNode *node)
{
    m_loose.remove(QZeSvgNodePrivate::of(node)->index);
}

// Only a copy that never became part of the document is deleted by its caller; its children are deleted with it.
void DocumentPrivate::nodeDeleted(QZeSvgNodePrivate *node)
{
    m_nodes.remove(node->index);
    if (!m_loose.remove(node->index))
        return;
    const Tree &tree = content.tree();
    for (NodeIndex at = node->index; at != noNode; at = tree.following(at, node->index)) {
        QZeSvgNode *below = m_nodes.take(at);
        if (!below)
            continue;
        QZeSvgNodePrivate::of(below)->document = nullptr;
        delete below;
    }
    content.discardSubtree(node->index);
}

void DocumentPrivate::storeFlags(NodeIndex top)
{
    for (auto it = m_nodes.constBegin(); it != m_nodes.constEnd(); ++it)
        if (content.tree().isWithin(it.key(), top))
            content.setStylingFlags(it.key(), it.value()->isFillEnabled(), it.value()->isStrokeEnabled());
}

bool DocumentPrivate::takesFill(NodeIndex index) const
{
    const QZeSvgNode *node = m_nodes.value(index);
    return node ? node->isFillEnabled() : content.tree().node(index).takesFill;
}

bool DocumentPrivate::takesStroke(NodeIndex index) const
{
    const QZeSvgNode *node = m_nodes.value(index);
    return node ? node->isStrokeEnabled() : content.tree().node(index).takesStroke;
}

void DocumentPrivate::restyle(bool (DocumentPrivate::*enabled)(NodeIndex) const,
                              const std::function<void(StyleOverride *)> &change)
{
    content.settle();
    const Tree &tree = content.tree();
    StyleOverridePointer lastOld;
    StyleOverridePointer lastNew;
    for (NodeIndex at = rootNode; at != noNode; at = tree.following(at, rootNode)) {
        if (!hasGeometry(tree.node(at).kind) || !(this->*enabled)(at))
            continue;
        const StyleOverridePointer old = content.stylePointer(at);
        // Nodes that shared an override continue to share one.
        if (!lastNew || old != lastOld) {
            auto *fresh = old ? new StyleOverride(*old) : new StyleOverride;
            lastNew = StyleOverridePointer(fresh);
            lastOld = old;
            change(fresh);
            if (old && *old == *fresh)
                lastNew = old;
        }
        if (lastNew != old)
            content.setStyleOverride(at, lastNew);
    }
}

NodeIndex DocumentPrivate::firstStyled(const std::function<bool(NodeIndex)> &wanted) const
{
    const Tree &tree = content.tree();
    NodeIndex at = rootNode;
    while (at != noNode) {
        const Node &node = tree.node(at);
        if (hasGeometry(node.kind) && !isControlPointId(node.attributes.value(AttributeId::Id)) && wanted(at))
            return at;
        const bool drawn = at == rootNode || isDrawable(node.kind);
        at = drawn ? tree.following(at, rootNode) : tree.followingBeside(at, rootNode);
    }
    return noNode;
}

NodeIndex DocumentPrivate::firstStroked()
{
    content.settle();
    return firstStyled([this](NodeIndex index) {
        return takesStroke(index) && drawnOutline(index).strokePaint.style() != Qt::NoBrush;
    });
}

NodeIndex DocumentPrivate::firstFilled()
{
    content.settle();
    return firstStyled(
        [this](NodeIndex index) { return takesFill(index) && drawnOutline(index).fill.style() != Qt::NoBrush; });
}

bool DocumentPrivate::hasAnimations() const
{
    const Tree &tree = content.tree();
    for (NodeIndex at = rootNode; at != noNode; at = tree.following(at, rootNode))
        if (isAnimation(tree.node(at).kind))
            return true;
    return false;
}

Outline DocumentPrivate::drawnOutline(NodeIndex index)
{
    const FactsPointer facts = content.facts(index);
    if (facts->outlines.isEmpty())
        return Outline();
    const StyleOverride *override = content.styleOverride(index);
    return override ? overridden(facts->outlines.first(), *facts->style, *override) : facts->outlines.first();
}

void DocumentPrivate::readViewBox()
{
    viewBox = rootViewBox(content.tree().node(rootNode));
    viewBoxMeasured = false;
}

QRectF DocumentPrivate::settledViewBox()
{
    if (viewBox.isNull()) {
        viewBox = visibleBounds(content, rootNode);
        viewBoxMeasured = true;
    }
    return viewBox;
}
