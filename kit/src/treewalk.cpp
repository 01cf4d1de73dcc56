#include <shapekit/treewalk.h>

#include <svgbase/qzesvgstructurenode.h>

#include <QtCore/QVector>

namespace shapekit {

namespace {

struct Visit
{
    QZeSvgNode *node;
    NodeLook look; ///< from the enclosing groups
};

NodeLook withOwn(NodeLook look, const QZeSvgNode &node)
{
    const QString keeps = node.attribute(QStringLiteral("keeps"));
    look.keepsFill |= keeps.contains(QLatin1String("fill"));
    look.keepsStroke |= keeps.contains(QLatin1String("stroke"));
    look.fillFollowsPen |= node.attribute(QStringLiteral("fill_follows")) == QLatin1String("pen");
    look.strokeFollowsPen |= node.attribute(QStringLiteral("stroke_follows")) == QLatin1String("pen");
    return look;
}

/// Appends visits of the children in reverse, so that the first one is taken first.
void addChildren(QVector<Visit> &pending, const QZeSvgStructureNode &parent, const NodeLook &look)
{
    const QList<QZeSvgNode *> children = parent.children();
    for (int i = children.size() - 1; i >= 0; --i)
        pending.append({children.at(i), look});
}

} // namespace

void forEachNode(const QZeSvgStructureNode &root, const LookVisitor &visit)
{
    QVector<Visit> pending;
    addChildren(pending, root, {});
    while (!pending.isEmpty()) {
        const Visit next = pending.takeLast();
        const NodeLook look = withOwn(next.look, *next.node);
        visit(*next.node, look);
        if (next.node->type() == QZeSvgNode::Group)
            addChildren(pending, *static_cast<QZeSvgStructureNode *>(next.node), look);
    }
}

} // namespace shapekit
