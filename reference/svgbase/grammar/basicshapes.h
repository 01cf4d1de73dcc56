#pragma once

#include <QtCore/QRectF>
#include <QtCore/QStringView>
#include <QtGui/QPainterPath>

#include <optional>

namespace Svg {

/// Reference box of a CSS shape.
enum class ShapeBox : quint8 { Fill, Stroke, View };

/// A box by its name; boxes of CSS layout map to those of SVG (CSS Masking 1 §6.1).
std::optional<ShapeBox> parseShapeBox(QStringView word);

/// A "clip-path" with a shape: its reference box, and its function, empty for the box itself.
struct ClipShape
{
    ShapeBox box = ShapeBox::Stroke;
    QString function;
};

/// No value for text that is neither a box nor a readable function.
std::optional<ClipShape> parseClipShape(QStringView text);

/// The outline of "inset()", "xywh()", "rect()", "circle()", "ellipse()", "polygon()" or "path()" relative to a
/// box, units of the box (CSS Shapes 1 §3). No value for invalid text.
std::optional<QPainterPath> basicShape(QStringView text, const QRectF &box, double fontSize);

} // namespace Svg
