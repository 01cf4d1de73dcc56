#include "resolve/outlinebounds.h"

#include <limits>

namespace Svg {

namespace {

QRectF mappedBounds(const QTransform &toDocument, const QPainterPath &path)
{
    if (toDocument.type() <= QTransform::TxScale)
        return toDocument.mapRect(path.boundingRect());
    return toDocument.map(path).boundingRect();
}

} // namespace

QRectF mappedBounds(const Facts &facts, const QPainterPath &path)
{
    if (facts.toDocument.type() <= QTransform::TxScale || path.isEmpty())
        return facts.toDocument.mapRect(facts.localBounds);
    return facts.toDocument.map(path).boundingRect();
}

// Includes outlines without extent in one direction, which uniting rectangles would drop.
QRectF mappedBounds(const QTransform &toDocument, const QVector<Outline> &outlines)
{
    if (outlines.isEmpty())
        return QRectF();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    QPointF least(infinity, infinity);
    QPointF most(-infinity, -infinity);
    for (const Outline &outline : outlines) {
        const QRectF bounds = mappedBounds(toDocument, outline.path);
        least = QPointF(qMin(least.x(), bounds.left()), qMin(least.y(), bounds.top()));
        most = QPointF(qMax(most.x(), bounds.right()), qMax(most.y(), bounds.bottom()));
    }
    return QRectF(least, most);
}

} // namespace Svg
