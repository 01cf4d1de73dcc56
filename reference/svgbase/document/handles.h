#pragma once

#include "tree/tree.h"

#include <svgbase/qzesvgnode.h>

class DocumentPrivate;
class QZeSvgTinyDocument;

/// What stands behind a public node: a place in a document. Node objects are made when somebody asks for one.
class QZeSvgNodePrivate
{
public:
    QZeSvgNodePrivate(DocumentPrivate *document, Svg::NodeIndex index)
        : document(document)
        , index(index)
    {
    }
    virtual ~QZeSvgNodePrivate() = default;
    QZeSvgNodePrivate(const QZeSvgNodePrivate &) = delete;
    QZeSvgNodePrivate &operator=(const QZeSvgNodePrivate &) = delete;

    static QZeSvgNodePrivate *of(const QZeSvgNode *node) { return node->d.get(); }
    static QZeSvgTinyDocument *cloneDocument(DocumentPrivate *document);
    static QZeSvgNode *makeNode(DocumentPrivate *document, Svg::NodeIndex index);

    /// Null once the document is gone.
    DocumentPrivate *document;
    Svg::NodeIndex index;
};
