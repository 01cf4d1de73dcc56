#include "line/core/linecourse.h"

#include "line/core/angledway.h"

#include <QtCore/QDataStream>
#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace line {

namespace {

/// A smaller bend is none. In lengths of the way, so that it doesn't depend on where the ends have been meanwhile.
constexpr double smallestBend = 1.0 / 64;
constexpr double largestBend = 8;
constexpr double stepDegrees = 15;
/// Ends are whole multiples of 1 / this, document units.
constexpr double placesPerUnit = 1 << 10;
/// Bends are whole multiples of 1 / this.
constexpr double bendsPerLength = 1 << 14;
/// No line reaches farther, document units.
constexpr double farthest = 1e5;
/// Of a detour; more are damage.
constexpr int mostCorners = 32;

double lengthOf(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

QPointF rightOf(QPointF way)
{
    return {-way.y(), way.x()};
}

QPointF unit(QPointF vector)
{
    const double length = lengthOf(vector);
    return length > 0 ? vector / length : QPointF(1, 0);
}

bool isOnPaper(QPointF point)
{
    return std::abs(point.x()) <= farthest && std::abs(point.y()) <= farthest;
}

QPointF roundedTo(QPointF point, double parts)
{
    return {std::round(point.x() * parts) / parts, std::round(point.y() * parts) / parts};
}

QPointF limited(QPointF bend)
{
    return {qBound(-largestBend, bend.x(), largestBend), qBound(-largestBend, bend.y(), largestBend)};
}

/// A length without extent, as the height of a level line, can't be stretched.
double factor(double length, double newLength)
{
    return length > 0 && newLength > 0 ? newLength / length : 1;
}

/// The turning point of a coordinate of the curve, if there is one between the ends.
void include(double &least, double &most, double start, double control, double end)
{
    const double divisor = start - 2 * control + end;
    const double part = divisor == 0 ? 0 : (start - control) / divisor;
    if (part <= 0 || part >= 1)
        return;
    const double rest = 1 - part;
    const double value = rest * rest * start + 2 * rest * part * control + part * part * end;
    least = std::min(least, value);
    most = std::max(most, value);
}

} // namespace

QPointF LineCourse::bendPoint() const
{
    const QPointF way = end - start;
    return start + way * bend.x() + rightOf(way) * bend.y();
}

void LineCourse::bendThrough(QPointF point)
{
    const QPointF way = end - start;
    const double square = QPointF::dotProduct(way, way);
    if (square == 0)
        return;
    const QPointF offset = point - start;
    const QPointF wanted(QPointF::dotProduct(offset, way), QPointF::dotProduct(offset, rightOf(way)));
    bend = limited(wanted / square);
    if (std::abs(roundedTo(bend, bendsPerLength).y()) < smallestBend)
        bend = {0.5, 0};
}

QPointF LineCourse::controlPoint() const
{
    return bendPoint() * 2 - (start + end) / 2;
}

QVector<QPointF> LineCourse::corners() const
{
    if (detour.isEmpty())
        return angledWay(start, startOut, end, endOut);
    return simplified(QVector<QPointF>{start} + detour + QVector<QPointF>{end});
}

QPointF LineCourse::middle() const
{
    if (!isAngled)
        return isStraight() ? (start + end) / 2 : (start + controlPoint() * 2 + end) / 4;
    const QVector<QPointF> way = corners();
    double left = 0;
    for (int i = 1; i < way.size(); ++i)
        left += lengthOf(way.at(i) - way.at(i - 1)) / 2;
    for (int i = 1; i < way.size(); ++i) {
        const QPointF piece = way.at(i) - way.at(i - 1);
        if (lengthOf(piece) >= left)
            return way.at(i - 1) + unit(piece) * left;
        left -= lengthOf(piece);
    }
    return end;
}

QPointF LineCourse::directionAtStart() const
{
    if (isAngled) {
        const QVector<QPointF> way = corners();
        return unit(way.value(1, end) - start);
    }
    return unit(isStraight() ? end - start : controlPoint() - start);
}

QPointF LineCourse::directionAtEnd() const
{
    if (isAngled) {
        const QVector<QPointF> way = corners();
        return unit(end - way.value(way.size() - 2, start));
    }
    return unit(isStraight() ? end - start : end - controlPoint());
}

QRectF LineCourse::bounds() const
{
    QPointF least(std::min(start.x(), end.x()), std::min(start.y(), end.y()));
    QPointF most(std::max(start.x(), end.x()), std::max(start.y(), end.y()));
    if (isAngled) {
        const QVector<QPointF> way = corners();
        for (const QPointF &corner : way) {
            least = {std::min(least.x(), corner.x()), std::min(least.y(), corner.y())};
            most = {std::max(most.x(), corner.x()), std::max(most.y(), corner.y())};
        }
    } else if (!isStraight()) {
        const QPointF control = controlPoint();
        include(least.rx(), most.rx(), start.x(), control.x(), end.x());
        include(least.ry(), most.ry(), start.y(), control.y(), end.y());
    }
    return {QPointF(std::floor(least.x() * placesPerUnit), std::floor(least.y() * placesPerUnit)) / placesPerUnit,
            QPointF(std::ceil(most.x() * placesPerUnit), std::ceil(most.y() * placesPerUnit)) / placesPerUnit};
}

LineCourse LineCourse::rounded() const
{
    LineCourse course = *this;
    course.start = roundedTo(start, placesPerUnit);
    course.end = roundedTo(end, placesPerUnit);
    course.bend = roundedTo(bend, bendsPerLength);
    for (QPointF &corner : course.detour)
        corner = roundedTo(corner, placesPerUnit);
    return course;
}

LineCourse LineCourse::stretchedTo(const QSizeF &size) const
{
    const QRectF box = bounds();
    const double x = factor(box.width(), size.width());
    const double y = factor(box.height(), size.height());
    const auto stretched = [&](QPointF point) {
        const QPointF way = point - box.topLeft();
        return box.topLeft() + QPointF(way.x() * x, way.y() * y);
    };
    LineCourse course = *this;
    course.start = stretched(start);
    course.end = stretched(end);
    for (QPointF &corner : course.detour)
        corner = stretched(corner);
    if (!isStraight())
        course.bendThrough(stretched(bendPoint()));
    return course;
}

QByteArray encoded(const QVector<QPointF> &detour)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (const QPointF &corner : detour)
        out << corner;
    return bytes;
}

QVector<QPointF> decodedDetour(const QByteArray &bytes)
{
    QVector<QPointF> detour;
    QDataStream in(bytes);
    while (!in.atEnd()) {
        QPointF corner;
        in >> corner;
        if (in.status() != QDataStream::Ok || !isOnPaper(corner) || detour.size() == mostCorners)
            return {};
        detour.append(corner);
    }
    return detour;
}

QByteArray encoded(const LineCourse &course)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << course.start << course.end << course.bend;
    return bytes;
}

std::optional<LineCourse> decoded(const QByteArray &bytes)
{
    LineCourse course;
    QDataStream in(bytes);
    in >> course.start >> course.end >> course.bend;
    const bool isWhole = in.status() == QDataStream::Ok && isOnPaper(course.start) && isOnPaper(course.end) &&
                         limited(course.bend) == course.bend;
    return isWhole ? std::optional(course) : std::nullopt;
}

QPointF inSteps(QPointF start, QPointF point)
{
    const QPointF way = point - start;
    const double step = qDegreesToRadians(stepDegrees);
    const double angle = std::round(std::atan2(way.y(), way.x()) / step) * step;
    const QPointF direction(std::cos(angle), std::sin(angle));
    return start + direction * QPointF::dotProduct(way, direction);
}

} // namespace line
