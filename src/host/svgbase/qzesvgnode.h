#pragma once

#include <svgbase/svgbase_global.h>

#include <QtCore/QLineF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPainterPath>
#include <QtGui/QPolygonF>

#include <memory>

class QZeSvgNodePrivate;
class QZeSvgStructureNode;

/// A node of an SVG document.
///
/// A node that is part of a document belongs to that document. A removed node stays alive until its document dies,
/// since a drag or an undo step may still point to it. All geometry is in document units (the coordinates of the
/// document's view box), with the transforms of the node and of its ancestors applied.
class SVGBASE_EXPORT QZeSvgNode
{
public:
    /// Kinds of node, numbered as Qt SVG numbers them.
    enum Type {
        Document = 0,
        Group = 1,
        Defs = 2,
        Switch = 3,
        Animation = 4,
        Arc = 5,
        Circle = 6,
        Ellipse = 7,
        Image = 8,
        Line = 9,
        Path = 10,
        Polygon = 11,
        Polyline = 12,
        Rect = 13,
        Text = 14,
        TextArea = 15,
        Tspan = 16,
        Use = 17,
        Video = 18
    };

    virtual ~QZeSvgNode();
    QZeSvgNode(const QZeSvgNode &) = delete;
    QZeSvgNode &operator=(const QZeSvgNode &) = delete;

    /// The kind of the node.
    Type type() const;
    /// The node's "id" attribute; empty when it has none.
    QString nodeId() const;
    /// The structure node that holds this node; null for a node directly under the document and for the document.
    QZeSvgStructureNode *parent() const;

    /// False when the node's own "display" is none; for a node that is not a structure node also when its resolved
    /// "visibility" is not visible (a hidden group may hold visible children).
    bool isVisible() const;
    /// Whether dragging may change x. A template forbids it with x_move="0".
    bool canMoveHorizontally() const;
    /// Whether dragging may change y. A template forbids it with y_move="0".
    bool canMoveVertically() const;

    /// Document-wide fill settings reach the node only while this is on; drawing ignores it.
    void setFillEnabled(bool on) { m_fillEnabled = on; }
    /// Document-wide stroke settings reach the node only while this is on; drawing ignores it.
    void setStrokeEnabled(bool on) { m_strokeEnabled = on; }
    /// See setFillEnabled().
    bool isFillEnabled() const { return m_fillEnabled; }
    /// See setStrokeEnabled().
    bool isStrokeEnabled() const { return m_strokeEnabled; }

    /// The text of an attribute as the template or a later write gives it, presentation attributes included; empty
    /// when the node does not have it.
    QString attribute(const QString &name) const;
    /// Sets an attribute from text, with the same effect as in the template. Text that the attribute's grammar
    /// rejects is kept as text and has the effect that it has in a template. A null string removes the attribute.
    void setAttribute(const QString &name, const QString &value);
    /// Sets one of "x", "y", "width", "height", "rx", "ry" (and any other numeric attribute) in the node's own user
    /// units. For a circle or an ellipse "x" and "y" are the corner of its bounding box, "width", "height", "rx"
    /// and "ry" size it with that corner fixed. The bounds follow at once. A value that is not finite is ignored.
    void setNumericAttribute(const QString &name, double value);

    /// Bounding rectangle of the geometry, document units, without the stroke; empty for a node without geometry.
    QRectF boundingRect() const;
    /// Bounding rectangle, document units, of all geometry that the node draws, children included.
    QRectF transformedBounds() const;
    /// Width of the resolved stroke, user units; 0 for a stroke of "none".
    double strokeWidth() const;

    /// The two end points of a line node, document units; a null line for any other type.
    QLineF line() const;
    /// The outline of a path node, document units; empty for any other type.
    QPainterPath path() const;
    /// The corners of a polygon node, document units; empty for any other type.
    QPolygonF polygon() const;

    /// A copy of the node and its children, with the same attributes, flags and parent() but in no child list. The
    /// caller owns it until QZeSvgStructureNode::addChild takes ownership.
    QZeSvgNode *clone() const;

protected:
    /// For the library alone.
    explicit QZeSvgNode(std::unique_ptr<QZeSvgNodePrivate> record);

private:
    friend class QZeSvgNodePrivate;
    std::unique_ptr<QZeSvgNodePrivate> d;
    bool m_fillEnabled = true;
    bool m_strokeEnabled = true;
};
