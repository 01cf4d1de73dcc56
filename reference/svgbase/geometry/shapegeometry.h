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
    /// Exact even where nothing is drawn, as for a rectangle without width.
    QRectF bounds;
    bool valid = false;
    /// Elements that end an open subpath where it began.
    QVector<int> openEnds{};
};

/// Reads the lengths of one element, from its attributes or its style.
class LengthReader
{
public:
    LengthReader(const Node &node, const ComputedStyle &style, const QSizeF &viewport)
        : m_attributes(node.attributes)
        , m_styled(style.attributes)
        , m_context{viewport, style.font.size, style.font.rootSize}
    {
    }
    /// For elements whose lengths are not properties.
    LengthReader(const Attributes &attributes, const LengthContext &context)
        : m_attributes(attributes)
        , m_context(context)
    {
    }

    /// User units; the fallback when the attribute is absent or not a length.
    double value(AttributeId id, Axis axis, double fallback = 0) const;
    /// The same, with the fallback for negative values, too.
    double size(AttributeId id, Axis axis, double fallback = 0) const;
    bool has(AttributeId id) const;
    /// Whether it is a length that a size can have, which excludes negative ones.
    bool hasSize(AttributeId id) const;

private:
    const AttributeValue &held(AttributeId id) const { return styledAttribute(m_attributes, m_styled, id); }

    const Attributes &m_attributes;
    QVector<Attribute> m_styled;
    LengthContext m_context;
};

/// The geometry of every kind except text and images. `problem`, when given, receives what could not be read.
Geometry shapeGeometry(const Node &node, const ComputedStyle &style, const QSizeF &viewport,
                       Problem *problem = nullptr);
/// The bounding box of a circle or an ellipse, user units.
QRectF ellipseBox(const Node &node, const ComputedStyle &style, const QSizeF &viewport);

} // namespace Svg
