#pragma once

#include "grammar/blendmodes.h"

#include <QtGui/QImage>

namespace Svg {

/// All pictures here hold premultiplied colours with alpha.

/// Fades the picture where the coverage of the same size is not opaque.
void keepCovered(QImage *picture, const QImage &coverage);
/// Replaces every pixel's alpha by its luminance times its alpha (CSS Masking 1 §7.4), in linear light if wanted.
void turnLuminanceIntoAlpha(QImage *picture, bool linear);
/// Paints the source over the backdrop at a place in its pixels. For the modes that painters do not know
/// (Compositing 1 §5.2).
void blendOver(QImage *backdrop, const QPoint &place, const QImage &source, double opacity, BlendMode mode);

} // namespace Svg
