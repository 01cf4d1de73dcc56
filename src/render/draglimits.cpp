#include "render/draglimits.h"

#include <svgbase/qzesvgnode.h>

#include <cmath>

bool isControlPointHit(const QZeSvgNode &node, QPointF pos)
{
    if (!node.isVisible())
        return false;
    const QRectF rect = node.boundingRect();
    const QRectF area(rect.x() - hitMargin, rect.y() - hitMargin, rect.width() + 2 * hitMargin,
                      rect.height() + 2 * hitMargin);
    const double sum = area.x() + area.y() + area.width() + area.height() + pos.x() + pos.y();
    return !std::isnan(sum) && area.contains(pos);
}

double limited(double value, double minimum, double maximum)
{
    if (value < minimum || std::isnan(value))
        return minimum;
    return value >= minimum && value <= maximum ? value : maximum;
}
