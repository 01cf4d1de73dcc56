#include "text/textway.h"

#include "geometry/shapegeometry.h"
#include "grammar/inputlimits.h"
#include "grammar/lengths.h"
#include "grammar/numbers.h"
#include "grammar/paints.h"
#include "grammar/pathdata.h"
#include "style/cascade.h"

#include <cmath>

namespace Svg {

namespace {

NodeIndex referredShape(const Tree &tree, const Attributes &attributes)
{
    QString id = localReference(attributes.value(AttributeId::Href));
    if (id.isEmpty())
        id = localReference(attributes.value(AttributeId::XlinkHref));
    return tree.findId(id);
}

// The shape's own transform applies, those around it don't (SVG 2 §11.8.1).
QPainterPath shapePath(const Tree &tree, NodeIndex shape, const QSizeF &viewport, const OwnTransform &transformOf)
{
    if (shape == noNode)
        return QPainterPath();
    const QPainterPath path = shapeGeometry(tree.node(shape), styleInTree(tree, shape), viewport).path;
    return transformOf(shape, viewport).map(path);
}

QPainterPath wayOf(const Tree &tree, NodeIndex textPath, const QSizeF &viewport, const OwnTransform &transformOf)
{
    const Attributes &attributes = tree.node(textPath).attributes;
    const QString data = attributes.value(QStringLiteral("path"));
    QPainterPath path = data.isEmpty() ? shapePath(tree, referredShape(tree, attributes), viewport, transformOf)
                                       : parsePathData(data).path;
    if (attributes.value(QStringLiteral("side")).trimmed() == QLatin1String("right"))
        path = path.toReversed();
    return path;
}

bool isSingleLoop(const QPainterPath &path)
{
    for (int i = 1; i < path.elementCount(); ++i)
        if (path.elementAt(i).isMoveTo())
            return false;
    return path.elementCount() > 2 && QPointF(path.elementAt(0)) == path.currentPosition();
}

// "pathLength" is the author's measure of the length.
double authorScale(const Tree &tree, NodeIndex textPath, double length)
{
    const NodeIndex shape = referredShape(tree, tree.node(textPath).attributes);
    if (shape == noNode)
        return 1;
    const std::optional<double> assumed = numberOf(tree.node(shape).attributes.held(AttributeId::PathLength));
    return assumed && *assumed > 0 ? length / *assumed : 1;
}

bool isFollowed(const QPainterPath &path)
{
    return path.elementCount() <= Limits::textPathElements;
}

} // namespace

TextWay::TextWay(const Tree &tree, NodeIndex textPath, const ComputedStyle &style, const QSizeF &viewport,
                 const OwnTransform &transformOf)
    : TextWay(tree, textPath, style, wayOf(tree, textPath, viewport, transformOf))
{
}

TextWay::TextWay(const Tree &tree, NodeIndex textPath, const ComputedStyle &style, const QPainterPath &path)
    : m_measure(isFollowed(path) ? path : QPainterPath())
    , m_tooLong(!isFollowed(path))
    , m_closed(isSingleLoop(path))
{
    const std::optional<Length> offset =
        lengthOf(tree.node(textPath).attributes.held(QStringLiteral("startOffset")));
    if (!offset)
        return;
    const double whole = length();
    m_startOffset = toUserUnits(*offset, Axis::Horizontal, {QSizeF(whole, whole), style.font.size});
    if (offset->unit != Unit::Percent)
        m_startOffset *= authorScale(tree, textPath, whole);
}

std::optional<PathMeasure::Place> TextWay::at(double distance, TextAnchor anchor) const
{
    const double whole = length();
    if (!m_closed) {
        if (distance < 0 || distance > whole)
            return std::nullopt;
        return m_measure.at(distance);
    }
    const double before = anchor == TextAnchor::Middle ? whole / 2 : anchor == TextAnchor::End ? whole : 0;
    const double around = distance - m_startOffset;
    if (around < -before || around > whole - before)
        return std::nullopt;
    const double rest = std::fmod(distance, whole);
    return m_measure.at(rest < 0 ? rest + whole : rest);
}

} // namespace Svg
