#include <svgbase/qzesvgstructurenode.h>

#include "document/documentprivate.h"

using namespace Svg;

QZeSvgStructureNode::QZeSvgStructureNode(std::unique_ptr<QZeSvgNodePrivate> record)
    : QZeSvgNode(std::move(record))
{
}

QZeSvgStructureNode::~QZeSvgStructureNode() = default;

QList<QZeSvgNode *> QZeSvgStructureNode::children() const
{
    QList<QZeSvgNode *> list;
    const QZeSvgNodePrivate *record = QZeSvgNodePrivate::of(this);
    if (!record->document)
        return list;
    const Tree &tree = record->document->content.tree();
    for (NodeIndex child = tree.node(record->index).firstChild; child != noNode; child = tree.node(child).next)
        if (Svg::isDrawable(tree.node(child).kind))
            list.append(record->document->nodeObject(child));
    return list;
}

void QZeSvgStructureNode::addChild(QZeSvgNode *node, const QString &id)
{
    const QZeSvgNodePrivate *here = QZeSvgNodePrivate::of(this);
    if (!node || !here->document)
        return;
    const QZeSvgNodePrivate *added = QZeSvgNodePrivate::of(node);
    if (added->document != here->document || !here->document->content.canAppend(here->index, added->index))
        return;
    here->document->content.append(here->index, added->index, id);
    here->document->adopt(node);
}

void QZeSvgStructureNode::removeChild(QZeSvgNode *node)
{
    const QZeSvgNodePrivate *here = QZeSvgNodePrivate::of(this);
    if (!node || !here->document)
        return;
    const QZeSvgNodePrivate *removed = QZeSvgNodePrivate::of(node);
    if (removed->document != here->document)
        return;
    const Node &element = here->document->content.tree().node(removed->index);
    if (element.linked && element.parent == here->index)
        here->document->content.remove(removed->index);
}
