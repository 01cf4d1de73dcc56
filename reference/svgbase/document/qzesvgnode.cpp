#include <svgbase/qzesvgnode.h>

#include "document/documentprivate.h"
#include "grammar/points.h"
#include "resolve/visiblebounds.h"

using namespace Svg;

namespace {

QZeSvgNode::Type typeOf(ElementKind kind)
{
    switch (kind) {
    case ElementKind::Document:
        return QZeSvgNode::Document;
    case ElementKind::Switch:
        return QZeSvgNode::Switch;
    case ElementKind::Use:
        return QZeSvgNode::Use;
    case ElementKind::Rect:
        return QZeSvgNode::Rect;
    case ElementKind::Circle:
        return QZeSvgNode::Circle;
    case ElementKind::Ellipse:
        return QZeSvgNode::Ellipse;
    case ElementKind::Line:
        return QZeSvgNode::Line;
    case ElementKind::Polyline:
        return QZeSvgNode::Polyline;
    case ElementKind::Polygon:
        return QZeSvgNode::Polygon;
    case ElementKind::Path:
        return QZeSvgNode::Path;
    case ElementKind::Text:
        return QZeSvgNode::Text;
    case ElementKind::Tspan:
    case ElementKind::TextPath:
    case ElementKind::Tref:
    case ElementKind::Characters:
        return QZeSvgNode::Tspan;
    case ElementKind::Image:
        return QZeSvgNode::Image;
    case ElementKind::Animate:
    case ElementKind::AnimateColor:
    case ElementKind::AnimateMotion:
    case ElementKind::AnimateTransform:
    case ElementKind::SetValue:
        return QZeSvgNode::Animation;
    case ElementKind::Group:
    case ElementKind::NestedSvg:
        return QZeSvgNode::Group;
    default:
        return QZeSvgNode::Defs;
    }
}

/// Gives access to protected constructors.
class PlainNode : public QZeSvgNode
{
public:
    explicit PlainNode(std::unique_ptr<QZeSvgNodePrivate> record)
        : QZeSvgNode(std::move(record))
    {
    }
};

class StructureNode : public QZeSvgStructureNode
{
public:
    explicit StructureNode(std::unique_ptr<QZeSvgNodePrivate> record)
        : QZeSvgStructureNode(std::move(record))
    {
    }
};

} // namespace

QZeSvgNode *QZeSvgNodePrivate::makeNode(DocumentPrivate *document, NodeIndex index)
{
    const Node &element = document->content.tree().node(index);
    auto record = std::make_unique<QZeSvgNodePrivate>(document, index);
    QZeSvgNode *node = isStructure(element.kind) ? static_cast<QZeSvgNode *>(new StructureNode(std::move(record)))
                                                 : new PlainNode(std::move(record));
    node->setFillEnabled(element.takesFill);
    node->setStrokeEnabled(element.takesStroke);
    return node;
}

QZeSvgNode::QZeSvgNode(std::unique_ptr<QZeSvgNodePrivate> record)
    : d(std::move(record))
{
}

QZeSvgNode::~QZeSvgNode()
{
    if (d->document && d->index != rootNode)
        d->document->nodeDeleted(d.get());
}

QZeSvgNode::Type QZeSvgNode::type() const
{
    return d->document ? typeOf(d->document->content.tree().node(d->index).kind) : Group;
}

QString QZeSvgNode::nodeId() const
{
    return d->document ? d->document->content.tree().node(d->index).attributes.value(AttributeId::Id) : QString();
}

QZeSvgStructureNode *QZeSvgNode::parent() const
{
    if (!d->document)
        return nullptr;
    const NodeIndex above = d->document->content.tree().node(d->index).parent;
    if (above == noNode || above == rootNode)
        return nullptr;
    return dynamic_cast<QZeSvgStructureNode *>(d->document->nodeObject(above));
}

bool QZeSvgNode::isVisible() const
{
    if (!d->document)
        return false;
    const FactsPointer facts = d->document->content.facts(d->index);
    const bool structure = isStructure(d->document->content.tree().node(d->index).kind);
    return facts->style->displayed && (structure || facts->style->visible);
}

bool QZeSvgNode::canMoveHorizontally() const
{
    return attribute(QStringLiteral("x_move")).trimmed() != QLatin1String("0");
}

bool QZeSvgNode::canMoveVertically() const
{
    return attribute(QStringLiteral("y_move")).trimmed() != QLatin1String("0");
}

QString QZeSvgNode::attribute(const QString &name) const
{
    return d->document ? d->document->content.attribute(d->index, name) : QString();
}

void QZeSvgNode::setAttribute(const QString &name, const QString &value)
{
    if (!d->document)
        return;
    d->document->content.setAttribute(d->index, name, value);
    if (d->index == rootNode && name == QLatin1String("viewBox"))
        d->document->readViewBox();
}

void QZeSvgNode::setNumericAttribute(const QString &name, double value)
{
    if (d->document)
        d->document->content.setNumericAttribute(d->index, name, value);
}

QRectF QZeSvgNode::boundingRect() const
{
    if (!d->document)
        return QRectF();
    const ElementKind kind = d->document->content.tree().node(d->index).kind;
    if (isStructure(kind) || kind == ElementKind::Use)
        return transformedBounds();
    return d->document->content.facts(d->index)->bounds;
}

QRectF QZeSvgNode::transformedBounds() const
{
    return d->document ? visibleBounds(d->document->content, d->index) : QRectF();
}

double QZeSvgNode::strokeWidth() const
{
    if (!d->document)
        return 0;
    const QPen pen = d->document->drawnOutline(d->index).pen;
    return pen.style() == Qt::NoPen ? 0 : pen.widthF();
}

QLineF QZeSvgNode::line() const
{
    if (type() != Line)
        return QLineF();
    const FactsPointer facts = d->document->content.facts(d->index);
    const QPainterPath path = facts->outlines.isEmpty() ? QPainterPath() : facts->outlines.first().path;
    if (path.elementCount() == 0)
        return QLineF();
    const QPointF from = path.elementAt(0);
    return facts->toDocument.map(QLineF(from, path.currentPosition()));
}

QPainterPath QZeSvgNode::path() const
{
    if (type() != Path)
        return QPainterPath();
    const FactsPointer facts = d->document->content.facts(d->index);
    return facts->outlines.isEmpty() ? QPainterPath() : facts->toDocument.map(facts->outlines.first().path);
}

QPolygonF QZeSvgNode::polygon() const
{
    if (type() != Polygon)
        return QPolygonF();
    const FactsPointer facts = d->document->content.facts(d->index);
    return facts->toDocument.map(parsePoints(attribute(QStringLiteral("points"))).points);
}

QZeSvgNode *QZeSvgNode::clone() const
{
    if (!d->document)
        return nullptr;
    if (d->index == rootNode)
        return QZeSvgNodePrivate::cloneDocument(d->document);
    d->document->storeFlags(d->index);
    return d->document->looseNode(d->document->content.copySubtree(d->index));
}
