#include "animation/motion.h"

#include "geometry/shapegeometry.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "grammar/paints.h"
#include "grammar/pathdata.h"

namespace Svg {

namespace {

constexpr double halfTurn = 180;

QString valueOf(const Attributes &attributes, const char *name)
{
    return attributes.value(QLatin1String(name)).trimmed();
}

NodeIndex motionPathOf(const Tree &tree, NodeIndex animation)
{
    NodeIndex child = tree.node(animation).firstChild;
    while (child != noNode && tree.node(child).kind != ElementKind::MotionPath)
        child = tree.node(child).next;
    return child;
}

QPainterPath referredPath(const Tree &tree, NodeIndex motionPath, const LengthContext &lengths,
                          const FactsOfNode &factsOf)
{
    const Attributes &attributes = tree.node(motionPath).attributes;
    QString id = localReference(attributes.value(AttributeId::Href));
    if (id.isEmpty())
        id = localReference(attributes.value(AttributeId::XlinkHref));
    const NodeIndex target = tree.findId(id);
    if (target == noNode)
        return QPainterPath();
    return shapeGeometry(tree.node(target), *factsOf(target)->style, lengths.viewport).path;
}

std::optional<QPointF> parsePlace(const QString &text, const LengthContext &lengths)
{
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    Length x;
    Length y;
    cursor.skipSpace();
    if (!readLength(cursor, &x))
        return std::nullopt;
    cursor.skipCommaSpace();
    if (!readLength(cursor, &y))
        return std::nullopt;
    cursor.skipSpace();
    if (!cursor.atEnd())
        return std::nullopt;
    return QPointF(toUserUnits(x, Axis::Horizontal, lengths), toUserUnits(y, Axis::Vertical, lengths));
}

QPainterPath polyline(const QString &values, const LengthContext &lengths)
{
    QStringList items = values.split(QLatin1Char(';'));
    if (items.constLast().trimmed().isEmpty())
        items.removeLast();
    QPainterPath path;
    for (int i = 0; i < qMin(items.size(), Limits::animationValues); ++i) {
        const std::optional<QPointF> place = parsePlace(items.at(i), lengths);
        if (!place)
            return QPainterPath();
        if (i == 0)
            path.moveTo(*place);
        else
            path.lineTo(*place);
    }
    return path;
}

// "to" alone starts where the element is without motion, and so does "by".
QPainterPath straightWay(const Attributes &attributes, const LengthContext &lengths)
{
    const QPointF from = parsePlace(valueOf(attributes, "from"), lengths).value_or(QPointF());
    std::optional<QPointF> to = parsePlace(valueOf(attributes, "to"), lengths);
    if (!to) {
        to = parsePlace(valueOf(attributes, "by"), lengths);
        if (to)
            *to += from;
    }
    if (!to)
        return QPainterPath();
    QPainterPath path(from);
    path.lineTo(*to);
    return path;
}

// In this order of precedence (SVG 1.1 §19.2.15).
QPainterPath wayOf(const Tree &tree, NodeIndex animation, const LengthContext &lengths, const FactsOfNode &factsOf)
{
    const Attributes &attributes = tree.node(animation).attributes;
    const NodeIndex motionPath = motionPathOf(tree, animation);
    if (motionPath != noNode)
        return referredPath(tree, motionPath, lengths, factsOf);
    if (attributes.contains(QStringLiteral("path")))
        return parsePathData(attributes.value(QStringLiteral("path"))).path;
    const QString values = valueOf(attributes, "values");
    return values.isEmpty() ? straightWay(attributes, lengths) : polyline(values, lengths);
}

bool isByAlone(const Attributes &attributes)
{
    return valueOf(attributes, "values").isEmpty() && attributes.contains(QStringLiteral("by")) &&
           !attributes.contains(QStringLiteral("from")) && !attributes.contains(QStringLiteral("to")) &&
           !attributes.contains(QStringLiteral("path"));
}

} // namespace

Motion::Motion(const QPainterPath &path)
    : m_way(path)
    , m_stops(m_way.vertices())
{
}

bool Motion::readKeys(const Attributes &attributes)
{
    const CalcMode mode = calcModeOf(attributes, CalcMode::Paced);
    const QString points = valueOf(attributes, "keyPoints");
    if (!points.isEmpty() && mode != CalcMode::Paced) {
        const std::optional<QVector<double>> shares = parseSemicolonNumbers(points);
        if (!shares || shares->isEmpty() || valueOf(attributes, "keyTimes").isEmpty())
            return false;
        m_stops.clear();
        for (const double share : *shares)
            m_stops.append(qBound(0.0, share, 1.0) * m_way.length());
    }
    const std::optional<Keyframes> frames = Keyframes::read(attributes, mode, m_stops.size());
    if (!frames)
        return false;
    m_frames = *frames;
    if (mode == CalcMode::Paced) {
        QVector<double> distances;
        for (int i = 1; i < m_stops.size(); ++i)
            distances.append(m_stops.at(i) - m_stops.at(i - 1));
        m_frames.pace(distances);
    }
    return true;
}

void Motion::readRotation(const Attributes &attributes)
{
    const QString text = valueOf(attributes, "rotate");
    if (text == QLatin1String("auto"))
        m_rotation = Auto;
    else if (text == QLatin1String("auto-reverse"))
        m_rotation = AutoReverse;
    else
        m_angle = parseNumber(text).value_or(0);
}

std::optional<Motion> Motion::read(const Tree &tree, NodeIndex animation, const LengthContext &lengths,
                                   const FactsOfNode &factsOf, int *room)
{
    // Once no room is left, paths are not even read.
    if (*room < 0)
        return std::nullopt;
    const Attributes &attributes = tree.node(animation).attributes;
    const QPainterPath way = wayOf(tree, animation, lengths, factsOf);
    *room -= way.elementCount();
    if (way.elementCount() == 0 || *room < 0)
        return std::nullopt;
    Motion motion(way);
    if (!motion.readKeys(attributes))
        return std::nullopt;
    motion.readRotation(attributes);
    motion.m_additive = valueOf(attributes, "additive") == QLatin1String("sum") || isByAlone(attributes);
    motion.m_accumulates = valueOf(attributes, "accumulate") == QLatin1String("sum");
    return motion;
}

TransformList Motion::transforms(const RoundPosition &position) const
{
    const KeyframePosition frame = m_frames.at(position.progress);
    double distance = m_stops.at(frame.index);
    if (frame.share > 0)
        distance += (m_stops.at(frame.index + 1) - distance) * frame.share;
    PathMeasure::Place place = m_way.at(distance);
    if (m_accumulates)
        place.point += m_way.at(m_way.length()).point * double(position.round);
    const double turn = m_rotation == Fixed ? m_angle : m_rotation == Auto ? place.angle : place.angle + halfTurn;
    TransformList list{{TransformFunction::Translate, 2, {place.point.x(), place.point.y()}}};
    if (turn != 0)
        list.append({TransformFunction::Rotate, 1, {turn}});
    return list;
}

} // namespace Svg
