#include "geometry/shapegeometry.h"

#include "grammar/inputlimits.h"
#include "grammar/pathdata.h"
#include "grammar/points.h"
#include "style/cascade.h"

namespace Svg {

namespace {

// A radius that is absent, "auto" or negative takes the other's value (SVG 2 §10.2 and §10.4).
QSizeF cornerRadii(const LengthReader &lengths)
{
    const double rx = lengths.size(AttributeId::Rx, Axis::Horizontal);
    const double ry = lengths.size(AttributeId::Ry, Axis::Vertical);
    return QSizeF(lengths.hasSize(AttributeId::Rx) ? rx : ry, lengths.hasSize(AttributeId::Ry) ? ry : rx);
}

// Begins after the first corner and goes clockwise, which dashes follow (SVG 2 §10.2).
void addRoundedRect(const QRectF &rect, double radiusX, double radiusY, QPainterPath *path)
{
    const QSizeF corner(2 * radiusX, 2 * radiusY);
    const double right = rect.right() - corner.width();
    const double bottom = rect.bottom() - corner.height();
    path->moveTo(rect.left() + radiusX, rect.top());
    path->arcTo(QRectF(QPointF(right, rect.top()), corner), 90, -90);
    path->arcTo(QRectF(QPointF(right, bottom), corner), 0, -90);
    path->arcTo(QRectF(QPointF(rect.left(), bottom), corner), 270, -90);
    path->arcTo(QRectF(rect.topLeft(), corner), 180, -90);
    path->closeSubpath();
}

Geometry rectGeometry(const LengthReader &lengths)
{
    const QRectF rect(
        lengths.value(AttributeId::X, Axis::Horizontal), lengths.value(AttributeId::Y, Axis::Vertical),
        lengths.size(AttributeId::Width, Axis::Horizontal), lengths.size(AttributeId::Height, Axis::Vertical));
    Geometry geometry{QPainterPath(), rect, true};
    if (rect.isEmpty())
        return geometry;
    const QSizeF radii = cornerRadii(lengths);
    const double radiusX = qMin(radii.width(), rect.width() / 2);
    const double radiusY = qMin(radii.height(), rect.height() / 2);
    if (radiusX > 0 && radiusY > 0)
        addRoundedRect(rect, radiusX, radiusY, &geometry.path);
    else
        geometry.path.addRect(rect);
    return geometry;
}

Geometry ellipseGeometry(const QRectF &box)
{
    Geometry geometry{QPainterPath(), box, true};
    if (!box.isEmpty())
        geometry.path.addEllipse(box);
    return geometry;
}

// A line without length has caps, which a painter only gives to one that has some (SVG 2 §13.5.5).
QPointF beside(const QPointF &point)
{
    return point + QPointF(dotLength, 0);
}

Geometry lineGeometry(const LengthReader &lengths)
{
    const QPointF from(lengths.value(AttributeId::X1, Axis::Horizontal),
                       lengths.value(AttributeId::Y1, Axis::Vertical));
    const QPointF to(lengths.value(AttributeId::X2, Axis::Horizontal),
                     lengths.value(AttributeId::Y2, Axis::Vertical));
    Geometry geometry{QPainterPath(from), QRectF(from, to).normalized(), true};
    geometry.path.lineTo(from == to ? beside(to) : to);
    return geometry;
}

Problem pointsProblem(const Points &points)
{
    if (points.tooLong)
        return {Message::TooManySegments,
                QStringLiteral("Points beyond %1 are left out.").arg(Limits::pathSegments + 1)};
    return {Message::InvalidPoints, QStringLiteral("The list of points ends at its first error.")};
}

Geometry pointsGeometry(const Attributes &attributes, bool closed, Problem *problem)
{
    const Points points = pointsOf(attributes.held(AttributeId::Points));
    if (!points.complete && problem)
        *problem = pointsProblem(points);
    if (points.points.isEmpty())
        return Geometry();
    Geometry geometry{QPainterPath(points.points.first()), points.points.boundingRect(), true};
    for (int i = 1; i < points.points.size(); ++i)
        geometry.path.lineTo(points.points.at(i));
    if (geometry.path.elementCount() == 1 && (closed || points.points.size() > 1))
        geometry.path.lineTo(beside(points.points.first()));
    else if (closed)
        geometry.path.closeSubpath();
    else if (geometry.path.elementCount() > 1 && isAtSamePlace(points.points.first(), points.points.last()))
        geometry.openEnds.append(geometry.path.elementCount() - 1);
    return geometry;
}

Problem pathProblem(const PathData &data)
{
    const int character = data.errorAt + 1;
    if (data.tooLong)
        return {Message::TooManySegments,
                QStringLiteral("The path has too many segments and is cut at character %1.").arg(character)};
    return {Message::InvalidPathData,
            QStringLiteral("The path data ends at an error in character %1.").arg(character)};
}

// Style sheets write path("M 0 0"), or "none".
PathData readPath(const AttributeValue &value)
{
    const QString *text = value.asText();
    if (!text || !text->startsWith(QLatin1String("path(")))
        return pathDataOf(value);
    const int begin = text->indexOf(text->at(qMin(5, text->size() - 1)), 5) + 1;
    return parsePathData(text->mid(begin, text->lastIndexOf(QLatin1Char(')')) - begin - 1));
}

Geometry pathGeometry(const PathData &data, Problem *problem)
{
    if (data.errorAt >= 0 && problem)
        *problem = pathProblem(data);
    if (data.path.elementCount() == 0)
        return Geometry();
    return {data.path, data.path.boundingRect(), true, data.openEnds};
}

} // namespace

double LengthReader::value(AttributeId id, Axis axis, double fallback) const
{
    const AttributeValue &value = held(id);
    if (value.isEmpty())
        return fallback;
    const std::optional<Length> length = lengthOf(value);
    return length ? toUserUnits(*length, axis, m_context) : fallback;
}

double LengthReader::size(AttributeId id, Axis axis, double fallback) const
{
    const double given = value(id, axis, fallback);
    return given < 0 ? fallback : given;
}

bool LengthReader::has(AttributeId id) const
{
    return lengthOf(held(id)).has_value();
}

bool LengthReader::hasSize(AttributeId id) const
{
    const std::optional<Length> length = lengthOf(held(id));
    return length && length->value >= 0;
}

QRectF ellipseBox(const Node &node, const ComputedStyle &style, const QSizeF &viewport)
{
    const LengthReader lengths(node, style, viewport);
    const double r = lengths.size(AttributeId::R, Axis::Diagonal);
    const QSizeF radii = node.kind == ElementKind::Circle ? QSizeF(r, r) : cornerRadii(lengths);
    const double rx = radii.width();
    const double ry = radii.height();
    const double cx = lengths.value(AttributeId::Cx, Axis::Horizontal);
    const double cy = lengths.value(AttributeId::Cy, Axis::Vertical);
    return QRectF(cx - rx, cy - ry, 2 * rx, 2 * ry);
}

Geometry shapeGeometry(const Node &node, const ComputedStyle &style, const QSizeF &viewport, Problem *problem)
{
    const LengthReader lengths(node, style, viewport);
    switch (node.kind) {
    case ElementKind::Rect:
        return rectGeometry(lengths);
    case ElementKind::Circle:
    case ElementKind::Ellipse:
        return ellipseGeometry(ellipseBox(node, style, viewport));
    case ElementKind::Line:
        return lineGeometry(lengths);
    case ElementKind::Polyline:
        return pointsGeometry(node.attributes, false, problem);
    case ElementKind::Polygon:
        return pointsGeometry(node.attributes, true, problem);
    case ElementKind::Path:
        return pathGeometry(readPath(styledAttribute(node, style, AttributeId::D)), problem);
    default:
        return Geometry();
    }
}

} // namespace Svg
