#include <framework/cutil.h>

#include <QtGui/QPainter>

namespace {

constexpr int largestIconSide = 4096;

bool isDrawnStyle(int penStyle)
{
    return penStyle >= Qt::SolidLine && penStyle <= Qt::DashDotDotLine;
}

} // namespace

QPixmap CUtil::genIconForLineStyle(int width, int height, int lineWidth, int penStyle, const QColor &color)
{
    if (width <= 0 || height <= 0)
        return {};
    QPixmap icon(qMin(width, largestIconSide), qMin(height, largestIconSide));
    icon.fill(Qt::transparent);
    if (!isDrawnStyle(penStyle))
        return icon;
    QPainter painter(&icon);
    painter.setPen(QPen(color, lineWidth, Qt::PenStyle(penStyle), Qt::FlatCap));
    const double middle = icon.height() / 2.0;
    painter.drawLine(QPointF(0, middle), QPointF(icon.width(), middle));
    return icon;
}
