#include <polygon/polygon.h>

#include <kit/templatetext.h>

#include <svgbase/qzesvgnode.h>

#include <algorithm>

namespace {

/// Between a corner and the frame, document units: half of the widest pen, so that it is never cut off.
constexpr double cornerMargin = 4;
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
    return {within(corner.x() * size().width(), range.left(), range.right()),
            within(corner.y() * size().height(), range.top(), range.bottom())};
}

void Polygon::takeControlPoint(int index, QPointF centre)
{
    if (m_corners.size() <= index)
        m_corners.resize(index + 1);
    m_corners[index] = QPointF(centre.x() / size().width(), centre.y() / size().height());
}

QRectF Polygon::controlPointRange(int)
{
    const QSizeF room = size() - QSizeF(cornerMargin, cornerMargin);
    return QRectF(QPointF(cornerMargin, cornerMargin), QPointF(room.width(), room.height()));
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
