#include <host/geometry.h>

#include <QtGui/QTransform>

#include <cmath>

QSizeF possibleSize(const QSizeF &size)
{
    return size.expandedTo({0, 0}).boundedTo({longestSide, longestSide});
}

double normalizedDegrees(double degrees)
{
    const double rest = std::fmod(degrees, 360);
    const double positive = rest < 0 ? rest + 360 : rest;
    return positive < 360 ? positive : 0;
}

QPointF rotated(const QPointF &vector, double degrees)
{
    return QTransform().rotate(degrees).map(vector);
}

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool isFinite(const QSizeF &size)
{
    return std::isfinite(size.width()) && std::isfinite(size.height());
}

bool isFinite(const QRectF &rect)
{
    return isFinite(rect.topLeft()) && isFinite(rect.size());
}
