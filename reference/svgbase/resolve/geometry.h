#pragma once

#include "grammar/lengths.h"
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
};

/// Reads the lengths of one element.
class LengthReader
{
public:
    LengthReader(const Attributes &attributes, const LengthContext &context)
        : m_attributes(attributes)
        , m_context(context)
    {
    }

    /// User units; the fallback where the attribute is absent or no length.
    double value(AttributeId id, Axis axis, double fallback = 0) const;
    /// The same, nothing below 0.
    double size(AttributeId id, Axis axis, double fallback = 0) const;
    bool has(AttributeId id) const;

private:
    const Attributes &m_attributes;
    LengthContext m_context;
};

/// The geometry of every kind but text. What could not be read is described in `problem`, when given.
Geometry shapeGeometry(const Node &node, const LengthContext &context, QString *problem = nullptr);
/// The bounding box of a circle or an ellipse, user units.
QRectF ellipseBox(const Node &node, const LengthContext &context);

} // namespace Svg
