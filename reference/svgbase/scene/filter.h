#pragma once

#include "filters/pixelfilters.h"
#include "paint/displaylist.h"

#include <array>
#include <memory>
#include <optional>

namespace Svg {

/// The subregion of a primitive where its attributes give it, units of the filtered element.
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

/// One step of a filter; which members count depends on its kind.
struct FilterPrimitive
{
    ElementKind kind = ElementKind::FeMerge;
    /// Names of standard inputs or earlier results; empty for the result before this one.
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
    /// What an "feImage" shows.
    QVector<DisplayItem> items;
};

/// A "filter" element, or a filter function, which knows no region.
struct FilterStep
{
    std::optional<QRectF> region;
    QVector<FilterPrimitive> primitives;
};

/// What the "filter" property of an element amounts to.
struct Filter
{
    QVector<FilterStep> steps;
    /// What "FillPaint" and "StrokePaint" stand for, units of the filtered element.
    QBrush fillPaint = Qt::NoBrush;
    QBrush strokePaint = Qt::NoBrush;
    /// From the units of the filtered element.
    QTransform toDocument;
    QTransform toPainter;
};

/// How far from what it is made of a pixel of the result may lie, units of the filtered element.
QSizeF filterReach(const Filter &filter);
/// What the result may cover of the painter, where the element covers `content`.
QRectF filteredBounds(const Filter &filter, const QRectF &content);

} // namespace Svg
