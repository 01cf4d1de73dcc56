#include "ink/core/strokepath.h"

#include <shapekit/pathtext.h>

#include <QtCore/QLineF>

#include <algorithm>
#include <array>
#include <cmath>

namespace ink {

namespace {

using shapekit::PathText;

constexpr double narrowestWidth = 0.4;
/// A point alone becomes a line of this length, so that its round caps make a dot.
constexpr double dotLength = 0.01;
/// Beyond this turn (cosine of the angle) the sides of a line no longer meet: a disc joins its parts.
constexpr double sharpestTurn = 0.7;
/// Rubbed lines are looked at in pieces of this part of the eraser.
constexpr double rubbedPiece = 0.25;
constexpr int mostPieces = 4096;

double lengthOf(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

QPointF unit(QPointF vector)
{
    const double length = lengthOf(vector);
    return length > 0 ? vector / length : QPointF(1, 0);
}

QPointF normal(QPointF direction)
{
    return {-direction.y(), direction.x()};
}

double dot(QPointF a, QPointF b)
{
    return QPointF::dotProduct(a, b);
}

/// Control points of the curve from a point to the next, which at each point runs parallel to its neighbours.
std::array<QPointF, 2> controlsAfter(const QVector<StrokePoint> &points, int index)
{
    const QPointF before = points.at(std::max(0, index - 1)).place;
    const QPointF from = points.at(index).place;
    const QPointF to = points.at(index + 1).place;
    const QPointF after = points.at(std::min(points.size() - 1, index + 2)).place;
    return {from + (to - before) / 6, to - (after - from) / 6};
}

StrokePoint between(const QVector<StrokePoint> &points, int index, double part)
{
    const std::array<QPointF, 2> controls = controlsAfter(points, index);
    const StrokePoint &from = points.at(index);
    const StrokePoint &to = points.at(index + 1);
    const double rest = 1 - part;
    const QPointF place = from.place * (rest * rest * rest) + controls[0] * (3 * rest * rest * part) +
                          controls[1] * (3 * rest * part * part) + to.place * (part * part * part);
    return {place, from.pressure + (to.pressure - from.pressure) * part};
}

double distanceTo(const QLineF &line, QPointF point)
{
    const QPointF way = line.p2() - line.p1();
    const double square = dot(way, way);
    const double part = square > 0 ? qBound(0.0, dot(point - line.p1(), way) / square, 1.0) : 0;
    return lengthOf(point - line.pointAt(part));
}

void addDisc(PathText &path, const StrokePoint &point, double width)
{
    const double radius = width / 2 * widthUnder(point.pressure);
    path.ellipse({point.place - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)});
}

/// A line without sharp turns, from one point to another one: its left side there, its right side back.
void addStrip(PathText &path, const QVector<StrokePoint> &points, int first, int last, double width)
{
    QVector<QPointF> right;
    for (int i = first; i <= last; ++i) {
        const QPointF from = points.at(std::max(first, i - 1)).place;
        const QPointF to = points.at(std::min(last, i + 1)).place;
        const QPointF side = normal(unit(to - from)) * (width / 2 * widthUnder(points.at(i).pressure));
        const QPointF left = points.at(i).place - side;
        i == first ? path.moveTo(left) : path.lineTo(left);
        right.append(points.at(i).place + side);
    }
    for (auto point = right.rbegin(); point != right.rend(); ++point)
        path.lineTo(*point);
    path.close();
}

bool turnsSharply(const QVector<StrokePoint> &points, int index, double width)
{
    const QPointF in = points.at(index).place - points.at(index - 1).place;
    const QPointF out = points.at(index + 1).place - points.at(index).place;
    const double reach = width * largestWidth;
    const double sharpest = std::min(lengthOf(in), lengthOf(out)) < reach ? (1 + sharpestTurn) / 2 : sharpestTurn;
    return dot(unit(in), unit(out)) < sharpest;
}

QVector<StrokePoint> inPieces(const QVector<StrokePoint> &points, const QLineF &line, double distance)
{
    QVector<StrokePoint> pieces{points.first()};
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QLineF part(points.at(i).place, points.at(i + 1).place);
        const bool isNear = distanceOf(part, line) <= 2 * distance;
        const int count =
            isNear ? qBound(1, int(std::ceil(part.length() / (rubbedPiece * distance))), mostPieces) : 1;
        for (int piece = 1; piece < count; ++piece)
            pieces.append(between(points, i, double(piece) / count));
        pieces.append(points.at(i + 1));
    }
    return pieces;
}

} // namespace

double widthUnder(double pressure)
{
    return pressure < 0 ? 1 : narrowestWidth + (largestWidth - narrowestWidth) * std::min(pressure, 1.0);
}

QRectF boundsOf(const StrokeData &data)
{
    if (data.points.isEmpty())
        return {};
    QPointF least = data.points.first().place;
    QPointF most = least;
    for (const StrokePoint &point : data.points) {
        least = {std::min(least.x(), point.place.x()), std::min(least.y(), point.place.y())};
        most = {std::max(most.x(), point.place.x()), std::max(most.y(), point.place.y())};
    }
    const QPointF room(data.margin, data.margin);
    return {least - room, most + room};
}

QString linePath(const QVector<StrokePoint> &points)
{
    PathText path;
    if (points.isEmpty())
        return {};
    path.moveTo(points.first().place);
    if (points.size() == 1)
        path.lineTo(points.first().place + QPointF(dotLength, 0));
    for (int i = 0; i + 1 < points.size(); ++i) {
        const std::array<QPointF, 2> controls = controlsAfter(points, i);
        path.curveTo(controls[0], controls[1], points.at(i + 1).place);
    }
    return path.text();
}

QString pressedPath(const QVector<StrokePoint> &points, double width)
{
    if (points.isEmpty())
        return {};
    QVector<StrokePoint> smooth{points.first()};
    for (int i = 0; i + 1 < points.size(); ++i) {
        smooth.append(between(points, i, 0.5));
        smooth.append(points.at(i + 1));
    }
    PathText path;
    addDisc(path, smooth.first(), width);
    int first = 0;
    for (int i = 1; i < smooth.size(); ++i) {
        const bool isLast = i + 1 == smooth.size();
        if (!isLast && !turnsSharply(smooth, i, width))
            continue;
        addStrip(path, smooth, first, i, width);
        addDisc(path, smooth.at(i), width);
        first = i;
    }
    return path.text();
}

double distanceOf(const QLineF &one, const QLineF &other)
{
    if (one.intersects(other, nullptr) == QLineF::BoundedIntersection)
        return 0;
    return std::min({distanceTo(one, other.p1()), distanceTo(one, other.p2()), distanceTo(other, one.p1()),
                     distanceTo(other, one.p2())});
}

bool touches(const QVector<StrokePoint> &points, const QLineF &line, double distance)
{
    if (points.size() == 1)
        return distanceTo(line, points.first().place) <= distance;
    for (int i = 0; i + 1 < points.size(); ++i)
        if (distanceOf({points.at(i).place, points.at(i + 1).place}, line) <= distance)
            return true;
    return false;
}

QVector<QVector<StrokePoint>> partsBeside(const QVector<StrokePoint> &points, const QLineF &line, double distance)
{
    if (points.isEmpty() || !touches(points, line, distance))
        return {points};
    QVector<QVector<StrokePoint>> parts;
    QVector<StrokePoint> part;
    const auto endPart = [&] {
        if (part.size() > 1)
            parts.append(part);
        part.clear();
    };
    const QVector<StrokePoint> pieces = inPieces(points, line, distance);
    for (const StrokePoint &point : pieces)
        if (distanceTo(line, point.place) > distance)
            part.append(point);
        else
            endPart();
    endPart();
    return parts;
}

} // namespace ink
