#include "shape/viewmapping.h"

#include "shape/constants.h"

namespace {

double scaledPosition(double position, double boxSide, double objectSide)
{
    return sameLength(boxSide, objectSide) ? position : (position * boxSide) / objectSide;
}

double scaledLength(double length, double fromSide, double toSide)
{
    return sameLength(fromSide, toSide) ? length : (toSide / fromSide) * length;
}

} // namespace

QPointF ViewMapping::toDocument(QPointF pos) const
{
    double x = scaledPosition(pos.x(), viewBox.width(), objectSize.width());
    double y = scaledPosition(pos.y(), viewBox.height(), objectSize.height());
    if (flipHorizontal)
        x = viewBox.width() - x;
    if (flipVertical)
        y = viewBox.height() - y;
    return QPointF(x + viewBox.x(), y + viewBox.y());
}

double ViewMapping::xToDocument(double length) const
{
    const double scaled = scaledLength(length, objectSize.width(), viewBox.width());
    return flipHorizontal ? -scaled : scaled;
}

double ViewMapping::yToDocument(double length) const
{
    const double scaled = scaledLength(length, objectSize.height(), viewBox.height());
    return flipVertical ? -scaled : scaled;
}

double ViewMapping::xToObject(double length) const
{
    return scaledLength(length, viewBox.width(), objectSize.width());
}

double ViewMapping::yToObject(double length) const
{
    return scaledLength(length, viewBox.height(), objectSize.height());
}
