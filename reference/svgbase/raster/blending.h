#pragma once

#include "grammar/blendmodes.h"

#include <QtGui/QImage>

namespace Svg {

/// All pictures here have premultiplied colours with alpha.

/// Fades the picture where the coverage of the same size is not opaque.
void keepCovered(QImage *picture, const QImage &coverage);
/// Replaces every pixel's alpha by its luminance times its alpha (CSS Masking 1 §7.4), optionally in linear light.
void turnLuminanceIntoAlpha(QImage *picture, bool linear);
/// Paints the source on the backdrop at a position in its pixels. For the modes that painters lack (Compositing 1
/// §5.2).
void blendOver(QImage *backdrop, const QPoint &place, const QImage &source, double opacity, BlendMode mode);

} // namespace Svg
