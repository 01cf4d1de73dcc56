#include "geometry/pathmeasure.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace Svg {

namespace {

/// Number of parts that each curve is measured in.
constexpr qint16 piecesPerCurve = 16;
/// Distance from a cusp at which its direction is taken, as a share of the curve.
constexpr double besideCusp = 1e-3;

/// Positions and weights of Gauss's rule with three points, on an interval of length 1.
struct GaussPoint
{
    double place;
    double weight;
};
const GaussPoint gaussPoints[] = {
    {0.5 - std::sqrt(0.15), 5.0 / 18}, {0.5, 8.0 / 18}, {0.5 + std::sqrt(0.15), 5.0 / 18}};

double norm(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace

PathMeasure::PathMeasure(const QPainterPath &path)
    : m_path(path)
{
    for (int i = 0; i < path.elementCount(); ++i) {
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            m_vertices.append(length());
            break;
        case QPainterPath::LineToElement:
            addLine(i);
            break;
        case QPainterPath::CurveToElement:
            addCurve(i);
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
}

void PathMeasure::addLine(int element)
{
    const QPointF from = m_path.elementAt(element - 1);
    const QPointF to = m_path.elementAt(element);
    m_pieces.append({element, 0, 1, length() + norm(to - from)});
    m_vertices.append(length());
}

void PathMeasure::addCurve(int element)
{
    for (qint16 i = 0; i < piecesPerCurve; ++i) {
        const double step = 1.0 / piecesPerCurve;
        Piece piece{element, i, piecesPerCurve, length()};
        double sum = 0;
        for (const GaussPoint &gauss : gaussPoints)
            sum += gauss.weight * norm(derivative(piece, piece.from() + gauss.place * step));
        piece.end += sum * step;
        m_pieces.append(piece);
    }
    m_vertices.append(length());
}

QPointF PathMeasure::point(const Piece &piece, double t) const
{
    const QPointF p0 = m_path.elementAt(piece.element - 1);
    const QPointF p1 = m_path.elementAt(piece.element);
    const double s = 1 - t;
    if (m_path.elementAt(piece.element).type == QPainterPath::LineToElement)
        return p0 * s + p1 * t;
    const QPointF p2 = m_path.elementAt(piece.element + 1);
    const QPointF p3 = m_path.elementAt(piece.element + 2);
    return p0 * (s * s * s) + p1 * (3 * s * s * t) + p2 * (3 * s * t * t) + p3 * (t * t * t);
}

QPointF PathMeasure::derivative(const Piece &piece, double t) const
{
    const QPointF p0 = m_path.elementAt(piece.element - 1);
    const QPointF p1 = m_path.elementAt(piece.element);
    if (m_path.elementAt(piece.element).type == QPainterPath::LineToElement)
        return p1 - p0;
    const QPointF p2 = m_path.elementAt(piece.element + 1);
    const QPointF p3 = m_path.elementAt(piece.element + 2);
    const double s = 1 - t;
    return (p1 - p0) * (3 * s * s) + (p2 - p1) * (6 * s * t) + (p3 - p2) * (3 * t * t);
}

// A curve's velocity is zero where control points coincide; its direction there is that of nearby points.
double PathMeasure::angleAt(const Piece &piece, double t) const
{
    QPointF direction = derivative(piece, t);
    if (direction.isNull())
        direction = derivative(piece, t < 0.5 ? t + besideCusp : t - besideCusp);
    return qRadiansToDegrees(std::atan2(direction.y(), direction.x()));
}

double PathMeasure::beginOf(QVector<Piece>::const_iterator piece) const
{
    return piece == m_pieces.begin() ? 0 : (piece - 1)->end;
}

PathMeasure::Place PathMeasure::at(double distance) const
{
    if (m_pieces.isEmpty())
        return {isEmpty() ? QPointF() : QPointF(m_path.elementAt(0)), 0};
    const double held = qBound(0.0, distance, length());
    auto found = std::lower_bound(m_pieces.begin(), m_pieces.end(), held,
                                  [](const Piece &piece, double value) { return piece.end < value; });
    // Pieces without length have no direction.
    while (found != m_pieces.end() - 1 && found->end <= beginOf(found))
        ++found;
    const double begin = beginOf(found);
    const double extent = found->end - begin;
    const double share = extent > 0 ? qBound(0.0, (held - begin) / extent, 1.0) : 0;
    const double t = found->from() + (found->to() - found->from()) * share;
    return {point(*found, t), angleAt(*found, t)};
}

} // namespace Svg
