#include "resolve/primitivereaders.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "properties/keywords.h"

#include <cmath>
#include <numeric>

namespace Svg {

namespace {

constexpr int usualOrder = 3;
/// Each octave adds half as much as the one before; later ones change no byte.
constexpr int mostOctaves = 10;
constexpr double leastShininess = 1;
constexpr double mostShininess = 128;

const Keyword<Displacement::Channel> channels[] = {
    {QLatin1String("R"), Displacement::Red},
    {QLatin1String("G"), Displacement::Green},
    {QLatin1String("B"), Displacement::Blue},
    {QLatin1String("A"), Displacement::Alpha},
};

const Keyword<Convolution::Edges> edgeModes[] = {
    {QLatin1String("duplicate"), Convolution::Duplicate},
    {QLatin1String("wrap"), Convolution::Wrap},
    {QLatin1String("none"), Convolution::Transparent},
};

QString text(const Attributes &attributes, const char *name)
{
    return attributes.value(QString(QLatin1String(name)));
}

double number(const Attributes &attributes, const char *name, double fallback)
{
    const double read = numberOf(attributes.held(QLatin1String(name))).value_or(fallback);
    return qBound(-Limits::coordinate, read, Limits::coordinate);
}

double positiveNumber(const Attributes &attributes, const char *name, double fallback)
{
    const double read = number(attributes, name, fallback);
    return read < 0 ? fallback : read;
}

int wholeNumber(const Attributes &attributes, const char *name, int fallback)
{
    return int(number(attributes, name, fallback));
}

// One number is used for both directions.
std::optional<QSizeF> numberPair(const QString &text)
{
    const std::optional<QVector<double>> numbers = parseNumberList(text);
    if (!numbers || numbers->isEmpty() || numbers->size() > 2)
        return std::nullopt;
    return QSizeF(numbers->first(), numbers->last());
}

/// Positions and heights of lights: shares of the bounding box in its units.
class LightReader
{
public:
    LightReader(const Attributes &attributes, const PrimitiveUnits &units)
        : m_attributes(attributes)
        , m_units(units)
    {
    }

    QVector3D point(const char *x, const char *y, const char *z) const
    {
        const QVector3D given(coordinate(x), coordinate(y), coordinate(z));
        if (!m_units.ofBounds)
            return given;
        const QRectF &b = m_units.bounds;
        const double diagonal = std::hypot(b.width(), b.height()) / M_SQRT2;
        return QVector3D(float(b.x() + double(given.x()) * b.width()),
                         float(b.y() + double(given.y()) * b.height()), float(double(given.z()) * diagonal));
    }

private:
    float coordinate(const char *name) const { return float(number(m_attributes, name, 0)); }

    const Attributes &m_attributes;
    const PrimitiveUnits &m_units;
};

LightSource readLight(ElementKind kind, const Attributes &attributes, const PrimitiveUnits &units)
{
    const LightReader reader(attributes, units);
    LightSource light;
    light.azimuth = number(attributes, "azimuth", 0);
    light.elevation = number(attributes, "elevation", 0);
    light.place = reader.point("x", "y", "z");
    light.pointsAt = reader.point("pointsAtX", "pointsAtY", "pointsAtZ");
    light.focus = positiveNumber(attributes, "specularExponent", 1);
    light.cone = parseNumber(text(attributes, "limitingConeAngle"));
    light.kind = kind == ElementKind::FeDistantLight ? LightSource::Distant
                 : kind == ElementKind::FePointLight ? LightSource::Point
                                                     : LightSource::Spot;
    return light;
}

bool isLight(ElementKind kind)
{
    return kind >= ElementKind::FeDistantLight && kind <= ElementKind::FeSpotLight;
}

QSize readOrder(const Attributes &attributes)
{
    const QSizeF usual(usualOrder, usualOrder);
    const QSizeF order = numberPair(text(attributes, "order")).value_or(usual);
    const auto isWhole = [](double side) {
        return side >= 1 && side <= Limits::convolutionFactors && side == std::floor(side);
    };
    return isWhole(order.width()) && isWhole(order.height()) ? order.toSize() : usual.toSize();
}

// Factors that cancel out leave a rounding error, depending on their order: it counts as 0.
double sumOf(const QVector<double> &factors)
{
    constexpr double roundingShare = 1e-12;
    const auto addSize = [](double sum, double factor) { return sum + qAbs(factor); };
    const double sum = std::accumulate(factors.constBegin(), factors.constEnd(), 0.0);
    const double size = std::accumulate(factors.constBegin(), factors.constEnd(), 0.0, addSize);
    return qAbs(sum) <= size * roundingShare ? 0 : sum;
}

// 0 and an absent value mean the sum, which preserves brightness (SVG 1.1 §15.13).
void divide(QVector<double> *factors, double divisor)
{
    const double sum = sumOf(*factors);
    const double used = divisor != 0 ? divisor : sum != 0 ? sum : 1;
    for (double &factor : *factors)
        factor /= used;
}

bool readTarget(const Attributes &attributes, Convolution *result)
{
    const QSize &order = result->order;
    result->target = QPoint(wholeNumber(attributes, "targetX", order.width() / 2),
                            wholeNumber(attributes, "targetY", order.height() / 2));
    return QRect(QPoint(), order).contains(result->target);
}

} // namespace

// Frequencies are not lengths, so the units of the filter's lengths do not apply (SVG 1.1 §15.5).
Turbulence readTurbulence(const Attributes &attributes)
{
    Turbulence result;
    const QSizeF frequency = numberPair(text(attributes, "baseFrequency")).value_or(QSizeF(0, 0));
    if (frequency.width() >= 0 && frequency.height() >= 0)
        result.frequency = frequency;
    result.octaves = qBound(0, wholeNumber(attributes, "numOctaves", 1), mostOctaves);
    result.fractal = text(attributes, "type") == QLatin1String("fractalNoise");
    result.stitches = text(attributes, "stitchTiles") == QLatin1String("stitch");
    result.start = number(attributes, "seed", 0);
    return result;
}

Lighting readLighting(const Tree &tree, NodeIndex node, const ComputedStyle &style, const PrimitiveUnits &units)
{
    const Attributes &attributes = tree.node(node).attributes;
    Lighting result;
    result.specular = tree.node(node).kind == ElementKind::FeSpecularLighting;
    result.surfaceScale = number(attributes, "surfaceScale", 1);
    result.reflection = positiveNumber(attributes, result.specular ? "specularConstant" : "diffuseConstant", 1);
    result.shininess = qBound(leastShininess, number(attributes, "specularExponent", 1), mostShininess);
    if (style.effects)
        result.color = style.effects->lightingColor;
    for (NodeIndex at = tree.node(node).firstChild; at != noNode; at = tree.node(at).next) {
        if (!isLight(tree.node(at).kind))
            continue;
        result.light = readLight(tree.node(at).kind, tree.node(at).attributes, units);
        break;
    }
    return result;
}

Convolution readConvolution(const Attributes &attributes)
{
    Convolution result;
    result.order = readOrder(attributes);
    result.bias = number(attributes, "bias", 0);
    applyKeyword(result.edges, text(attributes, "edgeMode"), edgeModes);
    result.preservesAlpha = text(attributes, "preserveAlpha") == QLatin1String("true");
    QVector<double> factors = parseNumberList(text(attributes, "kernelMatrix")).value_or(QVector<double>());
    const int count = result.order.width() * result.order.height();
    if (factors.size() != count || count > Limits::convolutionFactors || !readTarget(attributes, &result))
        return result;
    divide(&factors, number(attributes, "divisor", 0));
    result.factors = factors;
    return result;
}

Displacement readDisplacement(const Attributes &attributes, const PrimitiveUnits &units)
{
    Displacement result;
    const double scale = number(attributes, "scale", 0);
    result.scale = units.ofBounds ? units.bounds.size() * scale : QSizeF(scale, scale);
    applyKeyword(result.across, text(attributes, "xChannelSelector"), channels);
    applyKeyword(result.down, text(attributes, "yChannelSelector"), channels);
    return result;
}

} // namespace Svg
