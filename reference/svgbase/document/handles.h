#pragma once

#include "tree/tree.h"

#include <svgbase/qzesvgnode.h>

class DocumentPrivate;
class QZeSvgTinyDocument;

/// Implementation of a public node: an index in a document. Node objects are created on request.
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

    /// Null once the document is deleted.
    DocumentPrivate *document;
    Svg::NodeIndex index;
};
