#include "resolve/contentbounds.h"

#include "geometry/openends.h"
#include "grammar/inputlimits.h"
#include "resolve/resolver.h"
#include "tree/conditions.h"
#include "tree/references.h"

#include <QtGui/QPainterPathStroker>

#include <algorithm>

namespace Svg {

namespace {

/// Tolerance for bounds of a stroke, as a share of its size.
constexpr double strokeTolerance = 1e-3;
/// Visits counted for a text, since it is laid out to be measured.
constexpr int visitsOfText = 10;

/// An element whose children are being measured.
struct Level
{
    NodeIndex node;
    FactsPointer facts;
    NodeIndex nextChild;
    bool single;
};

// Bounds of outlines with their strokes, whatever their paint; dashes count as lines.
QRectF strokedBounds(const Facts &facts)
{
    QRectF bounds = facts.toDocument.mapRect(facts.localBounds);
    for (const Outline &outline : facts.outlines) {
        if (outline.pen.style() == Qt::NoPen)
            continue;
        QPen pen = outline.pen;
        pen.setStyle(Qt::SolidLine);
        QPainterPathStroker stroker(pen);
        const QRectF box = outline.path.controlPointRect();
        stroker.setCurveThreshold((box.width() + box.height() + outline.pen.widthF()) * strokeTolerance);
        bounds |=
            facts.toDocument.map(stroker.createStroke(withOpenEnds(outline.path, outline.openEnds))).boundingRect();
    }
    return bounds;
}

class ContentMeter
{
public:
    ContentMeter(const Resolver &resolver, const Tree &tree, ContentBox box, ContentMeasuring *measuring)
        : m_resolver(resolver)
        , m_tree(tree)
        , m_box(box)
        , m_measuring(measuring)
    {
    }

    MeasuredContent measure(NodeIndex top, const FactsPointer &facts);

private:
    void enter(NodeIndex node, const FactsPointer &facts);
    void add(ElementKind kind, const Facts &facts);
    NodeIndex usedNode(const Node &use) const;

    const Resolver &m_resolver;
    const Tree &m_tree;
    ContentBox m_box;
    ContentMeasuring *m_measuring;
    QVector<Level> m_levels;
    MeasuredContent m_result;
    bool m_any = false;
};

// Boxes without area, as lines have, count, too.
void ContentMeter::add(ElementKind kind, const Facts &facts)
{
    const QRectF filled =
        kind == ElementKind::Text ? facts.toDocument.mapRect(facts.localBounds) : QRectF(facts.bounds);
    const QRectF box = m_box == ContentBox::Stroke ? strokedBounds(facts) : filled;
    QRectF &b = m_result.bounds;
    b = !m_any ? box
               : QRectF(QPointF(qMin(b.left(), box.left()), qMin(b.top(), box.top())),
                        QPointF(qMax(b.right(), box.right()), qMax(b.bottom(), box.bottom())));
    m_any = true;
}

NodeIndex ContentMeter::usedNode(const Node &use) const
{
    const NodeIndex target = m_tree.findId(hrefTarget(use.attributes));
    const auto isOpen = [target](const Level &level) { return level.node == target; };
    if (target == noNode || target == rootNode || m_levels.size() > Limits::depth ||
        std::any_of(m_levels.begin(), m_levels.end(), isOpen))
        return noNode;
    const ElementKind kind = m_tree.node(target).kind;
    return isDrawable(kind) || kind == ElementKind::Symbol ? target : noNode;
}

void ContentMeter::enter(NodeIndex index, const FactsPointer &facts)
{
    const Node &node = m_tree.node(index);
    m_measuring->visits += node.kind == ElementKind::Text ? visitsOfText : 1;
    if (!facts->displayed)
        return;
    const auto isContext = [](const Paint &paint) {
        return paint.kind == Paint::ContextFill || paint.kind == Paint::ContextStroke;
    };
    if (isContext(facts->style->fill) || isContext(facts->style->stroke))
        m_result.takesContextPaint = true;
    if (facts->hasGeometry)
        add(node.kind, *facts);
    Level level{index, facts, noNode, false};
    if (node.kind == ElementKind::Use) {
        level.nextChild = usedNode(node);
        level.single = true;
    } else if (node.kind == ElementKind::Switch) {
        level.nextChild = firstAllowedChild(m_tree, index);
        level.single = true;
    } else if (isStructure(node.kind)) {
        level.nextChild = node.firstChild;
    }
    m_levels.append(level);
}

MeasuredContent ContentMeter::measure(NodeIndex top, const FactsPointer &facts)
{
    enter(top, facts);
    while (!m_levels.isEmpty()) {
        Level &level = m_levels.last();
        const NodeIndex child = level.nextChild;
        if (child == noNode) {
            m_levels.removeLast();
            continue;
        }
        if (m_measuring->visits >= Limits::contentVisits) {
            m_result.tooMuch = m_measuring->cut = true;
            break;
        }
        const bool direct = m_tree.node(level.node).kind == ElementKind::Use;
        level.nextChild = level.single ? noNode : m_tree.node(child).next;
        if (direct || isDrawable(m_tree.node(child).kind))
            enter(child, m_resolver.resolve(child, level.facts));
    }
    return m_result;
}

} // namespace

MeasuredContent measuredContent(const Resolver &resolver, const Tree &tree, NodeIndex top,
                                const FactsPointer &facts, ContentBox box, ContentMeasuring *measuring)
{
    return ContentMeter(resolver, tree, box, measuring).measure(top, facts);
}

} // namespace Svg
