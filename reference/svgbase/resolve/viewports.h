#pragma once

#include "grammar/lengths.h"
#include "resolve/facts.h"
#include "tree/tree.h"

#include <QtCore/QRectF>
#include <QtGui/QTransform>

namespace Svg {

/// The view box from the root element's attributes; null without one.
QRectF rootViewBox(const Node &root);
/// Reference of percentages directly below the root, user units.
QSizeF rootViewport(const Node &root, const QSizeF &window);
/// The root's own size; percentages are of the window.
QSizeF rootSize(const Node &root, const QSizeF &window);
/// The root's own transform, which applies after its view box was fitted, in document units (SVG 2 §8.10).
QTransform rootTransform(const Node &root, const QTransform &own, const QSizeF &window);
/// The area of a document shown in a window of that size: its view box, else the area of its "width" and "height".
/// Empty if nothing is shown.
QRectF shownArea(const Node &root, const QSizeF &window);

/// Where a nested "svg" or a used "symbol" places its content.
struct Fit
{
    /// From the content's units to those around.
    QTransform transform;
    QSizeF viewport;
    /// In the units around. Empty when nothing is drawn.
    QRectF place;
};

/// Clip of an element with the viewport `box`, in the same units: the box, unless it may overflow, or the rectangle
/// of "clip" (SVG 1.1 §14.3.3). Percentages refer to `viewport`.
std::optional<QRectF> viewportCut(const ComputedStyle &style, const QRectF &box, const QSizeF &viewport);

/// Origin of a "marker" or a "symbol" by its "refX" and "refY", units of its content (SVG 2 §5.5, §13.7.1).
QPointF referencePoint(const Attributes &attributes, const LengthContext &context);

/// `used` is the size from a "use".
Fit nestedFit(const Node &node, const ComputedStyle &style, const QSizeF &viewport, const UsedSize &used);

} // namespace Svg
