#include "scene/objectbounds.h"

#include "grammar/inputlimits.h"

namespace Svg {

namespace {

// A text's bounds are those of its character cells, whatever is drawn in them.
QRectF boundsIn(const Facts &facts, ElementKind kind, const QTransform &fromDocument)
{
    const QTransform transform = facts.toDocument * fromDocument;
    if (transform.type() <= QTransform::TxScale || kind == ElementKind::Text || facts.outlines.isEmpty())
        return transform.mapRect(facts.localBounds);
    QRectF bounds;
    for (const Outline &outline : facts.outlines)
        bounds |= transform.map(outline.path).boundingRect();
    return bounds;
}

/// A union that keeps boxes without area, such as those of lines.
class BoundsUnion
{
public:
    void add(const QRectF &box)
    {
        if (m_any) {
            const QRectF &b = m_bounds;
            m_bounds = QRectF(QPointF(qMin(b.left(), box.left()), qMin(b.top(), box.top())),
                              QPointF(qMax(b.right(), box.right()), qMax(b.bottom(), box.bottom())));
        } else {
            m_bounds = box;
        }
        m_any = true;
    }
    QRectF bounds() const { return m_bounds; }

private:
    QRectF m_bounds;
    bool m_any = false;
};

} // namespace

QRectF objectBounds(BuildContext &context, NodeIndex node, const FactsPointer &facts)
{
    const Node &element = context.document.tree().node(node);
    if (hasGeometry(element.kind) || element.kind == ElementKind::Image)
        return facts->hasGeometry ? facts->localBounds : QRectF();
    const QTransform fromDocument = facts->toDocument.inverted();
    BoundsUnion all;
    const auto enter = [&](NodeIndex index, const FactsPointer &below) {
        if (!below->displayed)
            return false;
        if (++context.boundsVisits > Limits::boundsVisits) {
            context.report.add(Message::TooManyBoundsVisits,
                               QStringLiteral("Measuring bounding boxes takes too long; some are too small."),
                               node);
            return false;
        }
        if (below->hasGeometry)
            all.add(boundsIn(*below, context.document.tree().node(index).kind, fromDocument));
        return true;
    };
    const bool used = context.document.facts(node) != facts;
    if (used)
        walkUsed(context.document, node, facts, {enter, {}}, &context.boundsBudget);
    else
        walkDrawing(context.document, node, {enter, {}}, &context.boundsBudget);
    return all.bounds();
}

} // namespace Svg
