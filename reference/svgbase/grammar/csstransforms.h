#pragma once

#include "grammar/lengths.h"

#include <QtGui/QTransform>

namespace Svg {

/// A "transform" in the syntax of style sheets (CSS Transforms 1 §12): functions with units, separated by white
/// space; "none" is the identity. Percentages and relative units refer to `context`. No value for invalid text or a
/// result that is not finite.
std::optional<QTransform> parseCssTransform(QStringView text, const LengthContext &context);

/// The properties "translate", "rotate" and "scale" as one transform (CSS Transforms 2 §5), each a null text for
/// none; invalid ones are ignored.
QTransform individualTransforms(const QString &translate, const QString &rotate, const QString &scale,
                                const LengthContext &context);

/// A "transform-origin": one to three keywords, lengths or percentages (the third, a depth, has no effect in a
/// plane). No value for invalid text.
std::optional<QPointF> parseTransformOrigin(QStringView text, const LengthContext &context);

} // namespace Svg
