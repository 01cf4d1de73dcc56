#include "resolve/gradients.h"

#include "grammar/colors.h"
#include "grammar/inputlimits.h"
#include "grammar/lengths.h"
#include "grammar/linearlight.h"
#include "style/cascade.h"
#include "tree/references.h"

#include <QtCore/QLineF>
#include <QtGui/QTransform>

#include <cmath>

namespace Svg {

namespace {

/// Distance of stops below the resolution of a painter's colour table.
constexpr double offsetStep = 1e-6;

/// Most gradients that are kept at a time.
constexpr int mostKnown = 1000;

/// A gradient and those it refers to, nearest first: later ones supply what earlier ones omit.
class GradientChain
{
public:
    GradientChain(const Tree &tree, NodeIndex gradient, TreeStyles *styles);

    bool isEmpty() const { return m_nodes.isEmpty(); }
    bool isCut() const { return m_cut; }
    ElementKind kind() const { return m_tree.node(m_nodes.first()).kind; }
    AttributeValue held(AttributeId id) const;
    ServerTransform transform() const;
    QGradientStops stops(double opacity) const;

private:
    NodeIndex nodeWithStops() const;

    const Tree &m_tree;
    TreeStyles *m_styles;
    QVector<NodeIndex> m_nodes;
    bool m_cut = false;
};

bool isGradient(ElementKind kind)
{
    return kind == ElementKind::LinearGradient || kind == ElementKind::RadialGradient;
}

// A chain that returns to one of its own gradients ends there.
GradientChain::GradientChain(const Tree &tree, NodeIndex gradient, TreeStyles *styles)
    : m_tree(tree)
    , m_styles(styles)
{
    NodeIndex at = gradient;
    while (at != noNode && isGradient(tree.node(at).kind) && !m_nodes.contains(at)) {
        m_cut = m_nodes.size() == Limits::gradientReferences;
        if (m_cut)
            return;
        m_nodes.append(at);
        at = tree.findId(hrefTarget(tree.node(at).attributes));
    }
}

// Points belong to linear and circles to radial gradients: a reference to the other kind doesn't inherit them
// (SVG 1.1 §13.2.2, §13.2.3).
bool isOfKind(AttributeId id, ElementKind kind)
{
    switch (id) {
    case AttributeId::X1:
    case AttributeId::Y1:
    case AttributeId::X2:
    case AttributeId::Y2:
        return kind == ElementKind::LinearGradient;
    case AttributeId::Cx:
    case AttributeId::Cy:
    case AttributeId::R:
    case AttributeId::Fx:
    case AttributeId::Fy:
    case AttributeId::Fr:
        return kind == ElementKind::RadialGradient;
    default:
        return true;
    }
}

AttributeValue GradientChain::held(AttributeId id) const
{
    for (const NodeIndex index : m_nodes) {
        const Node &node = m_tree.node(index);
        if (isOfKind(id, node.kind) && node.attributes.contains(id))
            return node.attributes.held(id);
    }
    return AttributeValue();
}

// The nearest gradient that sets the attribute.
ServerTransform GradientChain::transform() const
{
    ServerTransform result;
    for (const NodeIndex index : m_nodes) {
        const Node &node = m_tree.node(index);
        const ServerTransform own = serverTransform(node, m_styles->styleOf(m_tree, index),
                                                    node.attributes.held(AttributeId::GradientTransform));
        if (result.transform.isEmpty())
            result.transform = own.transform;
        if (result.origin.isEmpty())
            result.origin = own.origin;
    }
    return result;
}

NodeIndex GradientChain::nodeWithStops() const
{
    for (const NodeIndex index : m_nodes) {
        for (NodeIndex child = m_tree.node(index).firstChild; child != noNode; child = m_tree.node(child).next)
            if (m_tree.node(child).kind == ElementKind::Stop)
                return index;
    }
    return noNode;
}

QGradientStops GradientChain::stops(double opacity) const
{
    QGradientStops stops;
    const NodeIndex holder = nodeWithStops();
    if (holder == noNode)
        return stops;
    const ComputedStyle around = m_styles->styleOf(m_tree, holder);
    for (NodeIndex child = m_tree.node(holder).firstChild; child != noNode; child = m_tree.node(child).next) {
        const Node &stop = m_tree.node(child);
        if (stop.kind != ElementKind::Stop)
            continue;
        if (stops.size() == Limits::gradientStops)
            break;
        const ComputedStyle style = cascade(m_tree, child, {around, QSizeF()});
        QColor color = style.stopColor;
        color.setAlphaF(color.alphaF() * style.stopOpacity * opacity);
        const double offset = shareOf(stop.attributes.held(AttributeId::Offset)).value_or(0);
        // Offsets never decrease (SVG 1.1 §13.2.4).
        stops.append({stops.isEmpty() ? offset : qMax(offset, stops.constLast().first), color});
    }
    return stops;
}

// A painter replaces a stop by a second one of the same offset, where SVG has a sharp edge.
void separate(QGradientStops &stops)
{
    for (int i = 1; i < stops.size(); ++i)
        stops[i].first = qMax(stops[i].first, stops[i - 1].first + offsetStep);
    double highest = 1;
    for (int i = stops.size() - 1; i >= 0; --i) {
        stops[i].first = qMin(stops[i].first, highest);
        highest = qMax(0.0, stops[i].first - offsetStep);
    }
}

QColor mixedInLight(const QColor &a, const QColor &b, double share)
{
    const auto mixed = [share](int from, int to) {
        return encodedFromLinear((1 - share) * linearFromEncoded(from) + share * linearFromEncoded(to));
    };
    QColor color(mixed(a.red(), b.red()), mixed(a.green(), b.green()), mixed(a.blue(), b.blue()));
    color.setAlphaF((1 - share) * a.alphaF() + share * b.alphaF());
    return color;
}

// Painters interpolate encoded colours only: stops in between follow linear light (SVG 1.1 §11.7.1).
QGradientStops followingLight(const QGradientStops &stops)
{
    constexpr int parts = 16;
    QGradientStops result{stops.constFirst()};
    for (int i = 1; i < stops.size(); ++i) {
        const QGradientStop &from = stops.at(i - 1);
        const QGradientStop &to = stops.at(i);
        for (int part = 1; part < parts && to.first > from.first; ++part) {
            const double share = part / double(parts);
            result.append(
                {from.first + share * (to.first - from.first), mixedInLight(from.second, to.second, share)});
        }
        result.append(to);
    }
    return result;
}

/// Lengths of a gradient; its units decide whether percentages refer to the bounds or the viewport.
class GradientLengths
{
public:
    GradientLengths(const GradientChain &chain, const GradientTarget &target, double fontSize)
        : m_chain(chain)
        , m_ofBounds(chain.held(AttributeId::GradientUnits).text() != QLatin1String("userSpaceOnUse"))
        , m_context{m_ofBounds ? QSizeF(1, 1) : target.viewport, fontSize}
    {
    }

    bool ofBounds() const { return m_ofBounds; }
    double value(AttributeId id, Axis axis, double fallbackPercent) const
    {
        const Length fallback{fallbackPercent, Unit::Percent};
        return toUserUnits(lengthOf(m_chain.held(id)).value_or(fallback), axis, m_context);
    }
    double valueOr(AttributeId id, Axis axis, double fallback) const
    {
        const std::optional<Length> length = lengthOf(m_chain.held(id));
        return length ? toUserUnits(*length, axis, m_context) : fallback;
    }

private:
    const GradientChain &m_chain;
    bool m_ofBounds;
    LengthContext m_context;
};

QGradient::Spread spread(const QString &method)
{
    if (method == QLatin1String("reflect"))
        return QGradient::ReflectSpread;
    if (method == QLatin1String("repeat"))
        return QGradient::RepeatSpread;
    return QGradient::PadSpread;
}

// Painters premultiply colours before interpolating; SVG interpolates each channel separately (SVG 1.1 §13.2.4).
void takeStops(QGradient *gradient, const QGradientStops &stops, QGradient::Spread spread)
{
    gradient->setInterpolationMode(QGradient::ComponentInterpolation);
    gradient->setStops(stops);
    gradient->setSpread(spread);
}

GradientCache::Known prepared(const GradientChain &chain, double opacity, const ComputedStyle &style)
{
    GradientCache::Known known;
    QGradientStops stops = chain.stops(opacity);
    known.stops = stops.size();
    if (stops.isEmpty())
        return known;
    known.last = stops.constLast().second;
    known.transform = chain.transform();
    known.fontSize = style.font.size;
    if (style.mixesLinear)
        stops = followingLight(stops);
    separate(stops);
    const QGradient::Spread method = spread(chain.held(AttributeId::SpreadMethod).text());
    if (chain.kind() == ElementKind::LinearGradient)
        takeStops(&known.linear, stops, method);
    else
        takeStops(&known.radial, stops, method);
    return known;
}

QBrush linearBrush(const GradientLengths &lengths, const GradientCache::Known &known)
{
    const QPointF from(lengths.value(AttributeId::X1, Axis::Horizontal, 0),
                       lengths.value(AttributeId::Y1, Axis::Vertical, 0));
    const QPointF to(lengths.value(AttributeId::X2, Axis::Horizontal, 100),
                     lengths.value(AttributeId::Y2, Axis::Vertical, 0));
    if (from == to)
        return QBrush(known.last);
    QLinearGradient gradient = known.linear;
    gradient.setStart(from);
    gradient.setFinalStop(to);
    return QBrush(gradient);
}

struct Circle
{
    QPointF centre;
    double radius;
};

// Painters draw nothing where the circles touch inside; moving the focus inwards a little makes no visible
// difference.
QPointF apart(const Circle &start, const Circle &end)
{
    constexpr double nearness = 1e-4;
    const double difference = end.radius - start.radius;
    const QPointF way = start.centre - end.centre;
    const double distance = std::hypot(way.x(), way.y());
    const bool touches = difference > 0 && qAbs(distance - difference) < nearness * difference;
    return touches ? end.centre + way * ((1 - nearness) * difference / distance) : start.centre;
}

QGradientStops reversed(const QGradientStops &stops)
{
    QGradientStops result;
    for (auto stop = stops.crbegin(); stop != stops.crend(); ++stop)
        result.append({1 - stop->first, stop->second});
    return result;
}

// From the first circle to the second; empty where both are the same (SVG 2 §14.2.3).
QBrush circlesBrush(QRadialGradient gradient, const Circle &start, const Circle &end)
{
    const double distance = QLineF(start.centre, end.centre).length();
    if (distance <= 0 && start.radius == end.radius)
        return Qt::NoBrush;
    // Painters require the second circle to be the larger one.
    const bool shrinks = start.radius - end.radius >= distance;
    if (shrinks)
        gradient.setStops(reversed(gradient.stops()));
    const Circle &inner = shrinks ? end : start;
    const Circle &outer = shrinks ? start : end;
    gradient.setCenter(outer.centre);
    gradient.setCenterRadius(outer.radius);
    gradient.setFocalPoint(apart(inner, outer));
    gradient.setFocalRadius(inner.radius);
    return QBrush(gradient);
}

QBrush radialBrush(const GradientLengths &lengths, const GradientCache::Known &known)
{
    const double cx = lengths.value(AttributeId::Cx, Axis::Horizontal, 50);
    const double cy = lengths.value(AttributeId::Cy, Axis::Vertical, 50);
    const double r = lengths.value(AttributeId::R, Axis::Diagonal, 50);
    if (r <= 0)
        return QBrush(known.last);
    const QPointF focus(lengths.valueOr(AttributeId::Fx, Axis::Horizontal, cx),
                        lengths.valueOr(AttributeId::Fy, Axis::Vertical, cy));
    // The area within the focal circle has the first colour.
    const double focalRadius = qMax(0.0, lengths.value(AttributeId::Fr, Axis::Diagonal, 0));
    return circlesBrush(known.radial, {focus, focalRadius}, {QPointF(cx, cy), r});
}

} // namespace

void GradientCache::setRevision(quint32 revision)
{
    if (revision == m_revision)
        return;
    m_known.clear();
    m_styles.clear();
    m_revision = revision;
}

const GradientCache::Known *GradientCache::find(NodeIndex gradient, double opacity) const
{
    return m_known.value({gradient, opacity}).get();
}

const GradientCache::Known *GradientCache::insert(NodeIndex gradient, double opacity, const Known &known)
{
    if (m_known.size() >= mostKnown)
        m_known.clear();
    return (m_known[{gradient, opacity}] = std::make_shared<const Known>(known)).get();
}

std::optional<QBrush> gradientBrush(const Tree &tree, NodeIndex index, const GradientTarget &target,
                                    GradientCache *cache)
{
    const GradientChain chain(tree, index, cache->styles());
    cache->setCutChain(chain.isCut());
    if (chain.isEmpty())
        return std::nullopt;
    const GradientCache::Known *known = cache->find(index, target.opacity);
    if (!known)
        known = cache->insert(index, target.opacity,
                              prepared(chain, target.opacity, cache->styles()->styleOf(tree, index)));
    if (known->stops == 0)
        return QBrush(Qt::NoBrush);
    if (known->stops == 1)
        return QBrush(known->last);
    const GradientLengths lengths(chain, target, known->fontSize);
    if (lengths.ofBounds() && target.bounds.isEmpty())
        return std::nullopt;
    const bool linear = chain.kind() == ElementKind::LinearGradient;
    QBrush brush = linear ? linearBrush(lengths, *known) : radialBrush(lengths, *known);
    const QSizeF box = lengths.ofBounds() ? QSizeF(1, 1) : target.viewport;
    QTransform toUser = resolved(known->transform, QRectF(QPointF(), box), known->fontSize);
    if (lengths.ofBounds()) {
        const QRectF &b = target.bounds;
        toUser *= QTransform(b.width(), 0, 0, b.height(), b.x(), b.y());
    }
    brush.setTransform(toUser);
    return brush;
}

} // namespace Svg
