#include "noderecord.h"
#include "recordingsvg.h"

#include <recordinghost/log/calllog.h>

#include <QtCore/QtMath>

using recording::log;

QZeSvgNode::QZeSvgNode(std::unique_ptr<QZeSvgNodePrivate> record)
    : d(std::move(record))
{
}

QZeSvgNode::~QZeSvgNode() = default;

QZeSvgNode::Type QZeSvgNode::type() const
{
    return d->type;
}

QString QZeSvgNode::nodeId() const
{
    return d->attributes.value("id");
}

QZeSvgStructureNode *QZeSvgNode::parent() const
{
    return d->shownParent;
}

bool QZeSvgNode::isVisible() const
{
    const bool structural = type() == Group || type() == Document;
    return d->attributes.value("display") != "none" &&
           (structural || d->attributes.value("visibility", "visible") == "visible");
}

bool QZeSvgNode::canMoveHorizontally() const
{
    return d->attributes.value("x_move") != "0";
}

bool QZeSvgNode::canMoveVertically() const
{
    return d->attributes.value("y_move") != "0";
}

QString QZeSvgNode::attribute(const QString &name) const
{
    return d->attributes.value(name);
}

void QZeSvgNode::setAttribute(const QString &name, const QString &value)
{
    log(d->name(), "setAttribute", {name, value});
    d->attributes[name] = value;
}

void QZeSvgNode::setNumericAttribute(const QString &name, double value)
{
    log(d->name(), "setNumericAttribute", {name, value});
    if (qIsFinite(value))
        d->setNumber(name, value);
}

QRectF QZeSvgNode::boundingRect() const
{
    log(d->name(), "boundingRect");
    return d->bounds();
}

QRectF QZeSvgNode::transformedBounds() const
{
    QRectF bounds = d->bounds();
    for (const QZeSvgNode *child : qAsConst(d->children))
        if (child->isVisible())
            bounds = bounds.united(child->transformedBounds());
    return bounds;
}

double QZeSvgNode::strokeWidth() const
{
    return d->attributes.value("stroke") == "none" ? 0 : d->number("stroke-width", 1);
}

QLineF QZeSvgNode::line() const
{
    if (type() != Line)
        return {};
    return {d->number("x1"), d->number("y1"), d->number("x2"), d->number("y2")};
}

QPainterPath QZeSvgNode::path() const
{
    return type() == Path ? simplePath(d->attributes.value("d")) : QPainterPath();
}

QPolygonF QZeSvgNode::polygon() const
{
    return type() == Polygon ? simplePolygon(d->attributes.value("points")) : QPolygonF();
}

QZeSvgNode *QZeSvgNode::clone() const
{
    log(d->name(), "clone");
    return recording::svg().clonesFail ? nullptr : QZeSvgNodePrivate::clone(this);
}

QZeSvgStructureNode::QZeSvgStructureNode(std::unique_ptr<QZeSvgNodePrivate> record)
    : QZeSvgNode(std::move(record))
{
}

QZeSvgStructureNode::~QZeSvgStructureNode() = default;

QList<QZeSvgNode *> QZeSvgStructureNode::children() const
{
    return QZeSvgNodePrivate::of(this)->children;
}

void QZeSvgStructureNode::addChild(QZeSvgNode *node, const QString &id)
{
    QZeSvgNodePrivate *own = QZeSvgNodePrivate::of(this);
    log(own->name(), "addChild", {id});
    if (!node)
        return;
    QZeSvgNodePrivate *record = QZeSvgNodePrivate::of(node);
    if (record->holder) {
        QZeSvgNodePrivate *former = QZeSvgNodePrivate::of(record->holder);
        former->children.removeAll(node);
        former->removed.removeAll(node);
    }
    record->attributes["id"] = id;
    record->holder = this;
    record->shownParent = type() == Document ? nullptr : this;
    own->children.append(node);
}

void QZeSvgStructureNode::removeChild(QZeSvgNode *node)
{
    QZeSvgNodePrivate *own = QZeSvgNodePrivate::of(this);
    log(own->name(), "removeChild", {node ? QZeSvgNodePrivate::of(node)->name() : QString()});
    if (own->children.removeAll(node) > 0)
        own->removed.append(node);
}
