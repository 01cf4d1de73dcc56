#include "object/sizerules.h"

#include <cmath>

namespace {

constexpr double minimumCreatedSide = 30;

double raisedSide(double side, double minimum)
{
    const double whole = std::trunc(minimum);
    return std::isfinite(whole) && whole > side ? whole : side;
}

} // namespace

QSizeF SizeRules::raised(QSizeF size, QSizeF minimum)
{
    return QSizeF(raisedSide(size.width(), minimum.width()), raisedSide(size.height(), minimum.height()));
}

QSizeF SizeRules::withAspect(QSizeF size, QSizeF ratio)
{
    const bool tooWide = ratio.height() * size.width() > ratio.width() * size.height();
    const QSizeF limited = tooWide ? QSizeF(ratio.width() * size.height() / ratio.height(), size.height())
                                   : QSizeF(size.width(), ratio.height() * size.width() / ratio.width());
    return std::isfinite(limited.width()) && std::isfinite(limited.height()) ? limited : size;
}

QPointF SizeRules::releasedEnd(QPointF start, QPointF pos)
{
    QPointF end(pos.x() >= 0 ? pos.x() : start.x(), pos.y());
    // Deliberate: above the object's position the start's y crosses into x; the minimum bounds the effect.
    if (pos.y() < 0)
        end.setX(start.y());
    if (end.x() - start.x() < minimumCreatedSide)
        end.setX(start.x() + minimumCreatedSide);
    if (end.y() - start.y() < minimumCreatedSide)
        end.setY(start.y() + minimumCreatedSide);
    return end;
}
