#include <polygon/polygon.h>

#include <kit/templatetext.h>

#include <svgbase/qzesvgnode.h>

#include <algorithm>

namespace {

/// Between a corner and the frame, document units: half of the widest pen, so that it is never cut off.
constexpr double cornerMargin = 4;
/// A damaged file may hold a smaller polygon than can be drawn.
constexpr QSizeF smallestRoom(1, 1);
constexpr int numberDigits = 10;

double within(double value, double low, double high)
{
    return std::max(low, std::min(value, high));
}

} // namespace

QString Polygon::getSVG()
{
    return shapekit::templateText(QStringLiteral(":/gliololok/polygon/template.svg"));
}

QPointF Polygon::controlPointCentre(int index)
{
    const QPointF corner = m_corners.value(index);
    const QRectF range = controlPointRange(index);
    return {within(range.left() + corner.x() * range.width(), range.left(), range.right()),
            within(range.top() + corner.y() * range.height(), range.top(), range.bottom())};
}

void Polygon::takeControlPoint(int index, QPointF centre)
{
    if (m_corners.size() <= index)
        m_corners.resize(index + 1);
    const QRectF range = controlPointRange(index);
    m_corners[index] =
        QPointF((centre.x() - range.left()) / range.width(), (centre.y() - range.top()) / range.height());
}

QRectF Polygon::controlPointRange(int)
{
    const QSizeF room = size() - QSizeF(2 * cornerMargin, 2 * cornerMargin);
    return QRectF(QPointF(cornerMargin, cornerMargin), room.expandedTo(smallestRoom));
}

void Polygon::writeFigure()
{
    QString points;
    for (int i = 0; i < pointCount(); ++i) {
        const QPointF corner = controlPointCentre(i);
        points +=
            QStringLiteral("%1,%2 ").arg(corner.x(), 0, 'g', numberDigits).arg(corner.y(), 0, 'g', numberDigits);
    }
    figure()->setAttribute(QStringLiteral("points"), points.trimmed());
}
