#include <kit/treewalk.h>

#include <svgbase/qzesvgstructurenode.h>

#include <QtCore/QVector>

namespace shapekit {

namespace {

struct Visit
{
    QZeSvgNode *node;
    QString keeps;
    bool followsPen;
};

/// Appends visits of the children, the first one last, so that it is taken first.
void addChildren(QVector<Visit> &pending, const QZeSvgStructureNode &parent, const QString &keeps, bool followsPen)
{
    const QList<QZeSvgNode *> children = parent.children();
    for (int i = children.size() - 1; i >= 0; --i)
        pending.append({children.at(i), keeps, followsPen});
}

} // namespace

void forEachNode(const QZeSvgStructureNode &root, const LookVisitor &visit)
{
    QVector<Visit> pending;
    addChildren(pending, root, {}, false);
    while (!pending.isEmpty()) {
        Visit next = pending.takeLast();
        const QString own = next.node->attribute(QStringLiteral("keeps"));
        if (!own.isEmpty())
            next.keeps += QLatin1Char(' ') + own;
        next.followsPen |= next.node->attribute(QStringLiteral("fill_follows")) == QLatin1String("pen");
        visit(*next.node, next.keeps, next.followsPen);
        if (next.node->type() == QZeSvgNode::Group)
            addChildren(pending, *static_cast<QZeSvgStructureNode *>(next.node), next.keeps, next.followsPen);
    }
}

} // namespace shapekit
