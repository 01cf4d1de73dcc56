#include "ink/tools/tipcursor.h"

#include <QtCore/QPair>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

namespace ink {

namespace {

constexpr double smallestTip = 4;
/// Some systems show no larger cursor.
constexpr double largestTip = 96;
/// Of the light edge that shows a tip on dark paper.
constexpr int edge = 1;

QCursor painted(const QColor &color, int diameter)
{
    const int side = diameter + 2 * edge + 2;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF disc(edge + 1, edge + 1, diameter, diameter);
    painter.setPen(QPen(Qt::white, 1 + 2 * edge));
    painter.drawEllipse(disc);
    painter.setPen(color.isValid() ? QPen(Qt::NoPen) : QPen(Qt::black, 1));
    painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawEllipse(disc);
    painter.end();
    return QCursor(picture);
}

} // namespace

QCursor tipCursor(const QColor &color, double diameter)
{
    static QPair<QRgb, int> lastKind;
    static QCursor last;
    const QPair<QRgb, int> kind(color.isValid() ? color.rgba() : 0,
                                qRound(qBound(smallestTip, diameter, largestTip)));
    if (kind != lastKind)
        last = painted(color, kind.second);
    lastKind = kind;
    return last;
}

} // namespace ink
