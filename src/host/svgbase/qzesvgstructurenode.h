#pragma once

#include <svgbase/qzesvgnode.h>

#include <QtCore/QList>

/// A node with children: a group, or the document itself.
class SVGBASE_EXPORT QZeSvgStructureNode : public QZeSvgNode
{
public:
    ~QZeSvgStructureNode() override;

    /// The drawable children in document order. Definitions, titles, style sheets and removed nodes are not listed.
    QList<QZeSvgNode *> children() const;
    /// Appends a node under the given id and takes ownership: its "id" becomes that id and named lookup finds it. A
    /// node that is already a child somewhere moves here. Null, an ancestor of this node and a node of another
    /// document are ignored; the caller keeps those.
    void addChild(QZeSvgNode *node, const QString &id);
    /// Removes a child: it is no longer drawn, listed or found by name, but stays alive until its document dies.
    /// Ignores a node that is not a child of this one.
    void removeChild(QZeSvgNode *node);

protected:
    /// For the library alone.
    explicit QZeSvgStructureNode(std::unique_ptr<QZeSvgNodePrivate> record);
};
