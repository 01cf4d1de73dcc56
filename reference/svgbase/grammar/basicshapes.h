#pragma once

#include <QtCore/QRectF>
#include <QtCore/QStringView>
#include <QtGui/QPainterPath>

#include <optional>

namespace Svg {

/// What a shape of CSS is measured by.
enum class ShapeBox : quint8 { Fill, Stroke, View };

/// A box by its name; boxes of CSS layout stand for those that SVG has (CSS Masking 1 §6.1).
std::optional<ShapeBox> parseShapeBox(QStringView word);

/// A "clip-path" that is a shape: which box it relates to, and its function, empty for the box itself.
struct ClipShape
{
    ShapeBox box = ShapeBox::Stroke;
    QString function;
};

/// Nothing for a text that is neither a box nor a function that could be read.
std::optional<ClipShape> parseClipShape(QStringView text);

/// The outline of "inset()", "xywh()", "rect()", "circle()", "ellipse()", "polygon()" or "path()" relative to a
/// box, units of the box (CSS Shapes 1 §3). Nothing for what breaks the grammar.
std::optional<QPainterPath> basicShape(QStringView text, const QRectF &box, double fontSize);

} // namespace Svg
