#pragma once

#include <QtCore/QRectF>
#include <QtCore/QStringView>
#include <QtCore/QVector>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

/// A "viewBox" (SVG 1.1 §7.7); no value if it is invalid or has a negative side.
std::optional<QRectF> parseViewBox(QStringView text);
/// The same of numbers without a text.
std::optional<QRectF> viewBoxOf(const QVector<double> &numbers);

/// A "preserveAspectRatio": how a view box is fitted into a viewport (SVG 1.1 §7.8).
struct AspectRatio
{
    /// Position of the picture in the remaining space: 0, 0.5 or 1 of it.
    double alignX = 0.5;
    double alignY = 0.5;
    bool stretch = false;
    /// Covers the viewport instead of fitting inside it.
    bool slice = false;
};

/// Invalid text gives the default, "xMidYMid meet".
AspectRatio parseAspectRatio(QStringView text);
/// Maps the corners of a box with an area to those of another.
QTransform boxMapping(const QRectF &box, const QRectF &target);
/// Maps the view box into the viewport; no value if either is empty.
std::optional<QTransform> viewBoxTransform(const QRectF &viewBox, const QRectF &viewport, const AspectRatio &ratio);

} // namespace Svg
