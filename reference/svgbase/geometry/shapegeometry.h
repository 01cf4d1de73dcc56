#pragma once

#include "grammar/lengths.h"
#include "style/cascade.h"
#include "tree/message.h"
#include "tree/tree.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// The geometry of a basic shape or a path, user units.
struct Geometry
{
    QPainterPath path;
    /// Known exactly even where nothing is drawn, as for a rectangle without width.
    QRectF bounds;
    bool valid = false;
    /// Elements that end an open subpath where it began.
    QVector<int> openEnds{};
};

/// Reads the lengths of one element, from its attributes or from what style says in their place.
class LengthReader
{
public:
    LengthReader(const Node &node, const ComputedStyle &style, const QSizeF &viewport)
        : m_attributes(node.attributes)
        , m_styled(style.attributes)
        , m_context{viewport, style.font.size, style.font.rootSize}
    {
    }
    /// For elements whose lengths style can't give.
    LengthReader(const Attributes &attributes, const LengthContext &context)
        : m_attributes(attributes)
        , m_context(context)
    {
    }

    /// User units; the fallback where the attribute is absent or no length.
    double value(AttributeId id, Axis axis, double fallback = 0) const;
    /// The same, the fallback for what is below 0, too.
    double size(AttributeId id, Axis axis, double fallback = 0) const;
    bool has(AttributeId id) const;
    /// Whether it is a length that a size can have, which a negative one is not.
    bool hasSize(AttributeId id) const;

private:
    const AttributeValue &held(AttributeId id) const { return styledAttribute(m_attributes, m_styled, id); }

    const Attributes &m_attributes;
    QVector<Attribute> m_styled;
    LengthContext m_context;
};

/// The geometry of every kind but text and images. What could not be read is described in `problem`, when given.
Geometry shapeGeometry(const Node &node, const ComputedStyle &style, const QSizeF &viewport,
                       Problem *problem = nullptr);
/// The bounding box of a circle or an ellipse, user units.
QRectF ellipseBox(const Node &node, const ComputedStyle &style, const QSizeF &viewport);

} // namespace Svg
