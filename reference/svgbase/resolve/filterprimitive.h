#pragma once

#include "filters/pixelfilters.h"
#include "grammar/blendmodes.h"
#include "tree/elementkinds.h"

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>
#include <QtGui/QColor>

#include <array>
#include <memory>
#include <optional>

namespace Svg {

/// The subregion of a primitive, as far as its attributes set it, units of the filtered element.
struct PrimitiveRegion
{
    std::optional<double> x;
    std::optional<double> y;
    std::optional<double> width;
    std::optional<double> height;
};

enum class CompositeOperator : quint8 { Over, In, Out, Atop, Xor, Lighter, Arithmetic };

struct Convolution;
struct Displacement;
struct Lighting;
struct Turbulence;

/// A primitive with its attributes resolved; its kind decides which members are used.
struct FilterPrimitive
{
    ElementKind kind = ElementKind::FeMerge;
    /// Names of standard inputs or earlier results; empty for the previous result.
    QStringList inputs;
    QString result;
    PrimitiveRegion region;
    /// Whether it works in linear light.
    bool linear = true;

    /// Standard deviations, radii; units of the filtered element.
    QSizeF extent{0, 0};
    QPointF offset;
    EdgeMode edges = EdgeMode::None;
    QColor color;
    BlendMode blendMode = BlendMode::Normal;
    CompositeOperator compositeOperator = CompositeOperator::Over;
    std::array<double, 4> coefficients{};
    /// Five columns for each of red, green, blue and alpha.
    std::array<double, 20> matrix{};
    /// New values by old ones: red, green, blue, alpha.
    std::array<QByteArray, 4> tables;
    bool dilates = false;
    std::shared_ptr<const Convolution> convolution;
    std::shared_ptr<const Displacement> displacement;
    std::shared_ptr<const Lighting> lighting;
    std::shared_ptr<const Turbulence> turbulence;
};

} // namespace Svg
