#pragma once

#include <QtCore/QRectF>
#include <QtCore/QStringView>
#include <QtGui/QTransform>

#include <optional>

namespace Svg {

/// A "viewBox" (SVG 1.1 §7.7); nothing when it breaks the grammar or has a negative side.
std::optional<QRectF> parseViewBox(QStringView text);

/// How a view box is fitted into a viewport (SVG 1.1 §7.8).
struct AspectRatio
{
    /// Where the picture stands in the room that is left over: 0, 0.5 or 1 of it.
    double alignX = 0.5;
    double alignY = 0.5;
    bool stretch = false;
    /// Cover the viewport instead of staying inside it.
    bool slice = false;
};

/// Text that breaks the grammar gives the default, "xMidYMid meet".
AspectRatio parseAspectRatio(QStringView text);
/// Maps the view box into the viewport; nothing when either is empty.
std::optional<QTransform> viewBoxTransform(const QRectF &viewBox, const QRectF &viewport, const AspectRatio &ratio);

} // namespace Svg
