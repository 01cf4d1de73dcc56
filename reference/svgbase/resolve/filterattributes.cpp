#include "resolve/filterattributes.h"

#include "grammar/inputlimits.h"
#include "grammar/lengths.h"
#include "grammar/numbers.h"
#include "properties/effectproperties.h"
#include "properties/keywords.h"
#include "resolve/filterfunctions.h"
#include "resolve/primitivereaders.h"

#include <cmath>

namespace Svg {

namespace {

constexpr int matrixSize = 20;
constexpr double defaultShadow = 2;

const Keyword<CompositeOperator> compositeOperators[] = {
    {QLatin1String("over"), CompositeOperator::Over},
    {QLatin1String("in"), CompositeOperator::In},
    {QLatin1String("out"), CompositeOperator::Out},
    {QLatin1String("atop"), CompositeOperator::Atop},
    {QLatin1String("xor"), CompositeOperator::Xor},
    {QLatin1String("lighter"), CompositeOperator::Lighter},
    {QLatin1String("arithmetic"), CompositeOperator::Arithmetic},
};

const Keyword<EdgeMode> edgeModes[] = {
    {QLatin1String("none"), EdgeMode::None},
    {QLatin1String("duplicate"), EdgeMode::Duplicate},
    {QLatin1String("wrap"), EdgeMode::Wrap},
};

class PrimitiveReader
{
public:
    PrimitiveReader(const Tree &tree, NodeIndex node, const ComputedStyle &style, const PrimitiveUnits &units)
        : m_tree(tree)
        , m_index(node)
        , m_node(tree.node(node))
        , m_style(style)
        , m_units(units)
    {
    }

    FilterPrimitive read();

private:
    QString text(const char *name) const { return m_node.attributes.value(QLatin1String(name)); }
    double number(const char *name, double fallback) const;
    QSizeF pair(const char *name, double fallback) const;
    QSizeF scaled(const QSizeF &size) const;
    void readRegion();
    void readExtent(const char *name, double fallback);
    void readOffset(double fallback);
    void readFlood();
    void readComposite();
    void readMatrix();
    void readTransfer();
    void readMergeInputs();
    std::optional<double> place(AttributeId id, Axis axis) const;

    const Tree &m_tree;
    NodeIndex m_index;
    const Node &m_node;
    const ComputedStyle &m_style;
    const PrimitiveUnits &m_units;
    FilterPrimitive m_result;
};

double PrimitiveReader::number(const char *name, double fallback) const
{
    return parseNumber(text(name)).value_or(fallback);
}

// One number is used for both directions; negative ones disable the effect.
QSizeF PrimitiveReader::pair(const char *name, double fallback) const
{
    const std::optional<QVector<double>> numbers = parseNumberList(text(name));
    if (!numbers || numbers->isEmpty() || numbers->size() > 2)
        return QSizeF(fallback, fallback);
    const QSizeF size(numbers->first(), numbers->last());
    return size.width() < 0 || size.height() < 0 ? QSizeF(0, 0) : size;
}

QSizeF PrimitiveReader::scaled(const QSizeF &size) const
{
    if (!m_units.ofBounds)
        return size;
    return QSizeF(size.width() * m_units.bounds.width(), size.height() * m_units.bounds.height());
}

std::optional<double> PrimitiveReader::place(AttributeId id, Axis axis) const
{
    const std::optional<Length> length = lengthOf(m_node.attributes.held(id));
    if (!length)
        return std::nullopt;
    const QSizeF base = m_units.ofBounds ? QSizeF(1, 1) : m_units.viewport;
    return toUserUnits(*length, axis, {base, m_style.font.size});
}

void PrimitiveReader::readRegion()
{
    PrimitiveRegion &region = m_result.region;
    region.x = place(AttributeId::X, Axis::Horizontal);
    region.y = place(AttributeId::Y, Axis::Vertical);
    region.width = place(AttributeId::Width, Axis::Horizontal);
    region.height = place(AttributeId::Height, Axis::Vertical);
    if (!m_units.ofBounds)
        return;
    const QRectF &b = m_units.bounds;
    if (region.x)
        region.x = b.x() + *region.x * b.width();
    if (region.y)
        region.y = b.y() + *region.y * b.height();
    if (region.width)
        *region.width *= b.width();
    if (region.height)
        *region.height *= b.height();
}

void PrimitiveReader::readExtent(const char *name, double fallback)
{
    const QSizeF extent = scaled(pair(name, fallback));
    m_result.extent = QSizeF(qMin(extent.width(), Limits::coordinate), qMin(extent.height(), Limits::coordinate));
}

void PrimitiveReader::readOffset(double fallback)
{
    const QSizeF offset = scaled(QSizeF(number("dx", fallback), number("dy", fallback)));
    m_result.offset = QPointF(qBound(-Limits::coordinate, offset.width(), Limits::coordinate),
                              qBound(-Limits::coordinate, offset.height(), Limits::coordinate));
}

void PrimitiveReader::readFlood()
{
    const auto &effects = m_style.effects;
    m_result.color = effects ? effects->floodColor : QColor(Qt::black);
    if (effects)
        m_result.color.setAlphaF(m_result.color.alphaF() * effects->floodOpacity);
}

void PrimitiveReader::readComposite()
{
    applyKeyword(m_result.compositeOperator, text("operator"), compositeOperators);
    m_result.coefficients = {number("k1", 0), number("k2", 0), number("k3", 0), number("k4", 0)};
}

// Any other type counts as "matrix".
bool isColorMatrixType(const QString &type)
{
    return type == QLatin1String("saturate") || type == QLatin1String("hueRotate");
}

// A wrong number of values leaves colours unchanged.
void PrimitiveReader::readMatrix()
{
    const QString type = text("type");
    const std::optional<QVector<double>> values = parseNumberList(text("values"));
    const int count = values ? values->size() : 0;
    m_result.matrix = identityMatrix();
    if (type == QLatin1String("luminanceToAlpha"))
        m_result.matrix = luminanceToAlphaMatrix();
    else if (type == QLatin1String("saturate") && count == 1)
        m_result.matrix = saturateMatrix(values->first());
    else if (type == QLatin1String("hueRotate") && count == 1)
        m_result.matrix = hueRotateMatrix(values->first());
    else if (!isColorMatrixType(type) && count == matrixSize)
        std::copy(values->begin(), values->end(), m_result.matrix.begin());
}

double interpolated(const QVector<double> &values, double share)
{
    const int last = values.size() - 1;
    const int step = qMin(int(share * last), last - 1);
    return last == 0 ? values.first()
                     : values.at(step) + (share * last - step) * (values.at(step + 1) - values.at(step));
}

double stepped(const QVector<double> &values, double share)
{
    return values.at(qMin(int(share * values.size()), values.size() - 1));
}

// Filter Effects 1 §9.7.
QByteArray readTable(const Attributes &attributes)
{
    const auto number = [&](const char *name, double fallback) {
        return numberOf(attributes.held(QLatin1String(name))).value_or(fallback);
    };
    const QString type = attributes.value(QStringLiteral("type"));
    const QVector<double> values =
        numbersOf(attributes.held(QStringLiteral("tableValues"))).value_or(QVector<double>());
    if (type == QLatin1String("table") && !values.isEmpty())
        return transferTable([&](double c) { return interpolated(values, c); });
    if (type == QLatin1String("discrete") && !values.isEmpty())
        return transferTable([&](double c) { return stepped(values, c); });
    if (type == QLatin1String("linear"))
        return transferTable([s = number("slope", 1), i = number("intercept", 0)](double c) { return s * c + i; });
    if (type == QLatin1String("gamma")) {
        return transferTable([a = number("amplitude", 1), e = number("exponent", 1),
                              o = number("offset", 0)](double c) { return a * std::pow(c, e) + o; });
    }
    return transferTable([](double c) { return c; });
}

void PrimitiveReader::readTransfer()
{
    m_result.tables.fill(transferTable([](double c) { return c; }));
    for (NodeIndex at = m_node.firstChild; at != noNode; at = m_tree.node(at).next) {
        const ElementKind kind = m_tree.node(at).kind;
        if (kind >= ElementKind::FeFuncR && kind <= ElementKind::FeFuncA)
            m_result.tables[size_t(kind) - size_t(ElementKind::FeFuncR)] = readTable(m_tree.node(at).attributes);
    }
}

void PrimitiveReader::readMergeInputs()
{
    m_result.inputs.clear();
    for (NodeIndex at = m_node.firstChild; at != noNode; at = m_tree.node(at).next)
        if (m_tree.node(at).kind == ElementKind::FeMergeNode && m_result.inputs.size() < Limits::filterPrimitives)
            m_result.inputs.append(m_tree.node(at).attributes.value(QStringLiteral("in")));
}

FilterPrimitive PrimitiveReader::read()
{
    m_result.kind = m_node.kind;
    m_result.inputs = QStringList{text("in"), text("in2")};
    m_result.result = text("result");
    m_result.linear = m_style.filtersLinear;
    readRegion();
    switch (m_node.kind) {
    case ElementKind::FeGaussianBlur:
        readExtent("stdDeviation", 0);
        applyKeyword(m_result.edges, text("edgeMode"), edgeModes);
        break;
    case ElementKind::FeDropShadow:
        readExtent("stdDeviation", defaultShadow);
        readOffset(defaultShadow);
        readFlood();
        break;
    case ElementKind::FeOffset:
        readOffset(0);
        break;
    case ElementKind::FeFlood:
        readFlood();
        break;
    case ElementKind::FeBlend:
        m_result.blendMode = blendModeOf(text("mode"));
        break;
    case ElementKind::FeComposite:
        readComposite();
        break;
    case ElementKind::FeColorMatrix:
        readMatrix();
        break;
    case ElementKind::FeComponentTransfer:
        readTransfer();
        break;
    case ElementKind::FeMorphology:
        m_result.dilates = text("operator") == QLatin1String("dilate");
        readExtent("radius", 0);
        break;
    case ElementKind::FeMerge:
        readMergeInputs();
        break;
    case ElementKind::FeConvolveMatrix:
        m_result.convolution = std::make_shared<const Convolution>(readConvolution(m_node.attributes));
        break;
    case ElementKind::FeDisplacementMap:
        m_result.displacement = std::make_shared<const Displacement>(readDisplacement(m_node.attributes, m_units));
        break;
    case ElementKind::FeDiffuseLighting:
    case ElementKind::FeSpecularLighting:
        m_result.lighting = std::make_shared<const Lighting>(readLighting(m_tree, m_index, m_style, m_units));
        break;
    case ElementKind::FeTurbulence:
        m_result.turbulence = std::make_shared<const Turbulence>(readTurbulence(m_node.attributes));
        break;
    default:
        break;
    }
    return std::move(m_result);
}

} // namespace

FilterPrimitive readPrimitive(const Tree &tree, NodeIndex node, const ComputedStyle &style,
                              const PrimitiveUnits &units)
{
    return PrimitiveReader(tree, node, style, units).read();
}

QString imageReference(const Node &node)
{
    const bool plain = node.attributes.contains(AttributeId::Href);
    return node.attributes.value(plain ? AttributeId::Href : AttributeId::XlinkHref);
}

QTransform filterImageFit(const Node &node, const ImageContent &image, const QRectF &region)
{
    const AspectRatio ratio = parseAspectRatio(node.attributes.value(AttributeId::PreserveAspectRatio));
    return contentFit(image, region, ratio);
}

} // namespace Svg
