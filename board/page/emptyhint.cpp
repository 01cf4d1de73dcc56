#include "page/emptyhint.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace board {

namespace {

// The page is paper in every theme, so the hint has its own greys.
constexpr QRgb figureColor = 0xffb9c2cc;
constexpr QRgb titleColor = 0xff5c6773;
constexpr QRgb adviceColor = 0xff7f8a96;
constexpr int smallestHeight = 170;
constexpr int smallestWidth = 280;
constexpr double figureWidth = 96;
constexpr double figureHeight = 60;
constexpr int titlePointSize = 15;
constexpr int lineGap = 10;

/// A dashed frame being drawn from corner to corner by a pointer.
void paintFigure(QPainter *painter, const QPointF &topLeft)
{
    const QRectF frame(topLeft, QSizeF(figureWidth, figureHeight));
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QColor(figureColor), 2, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawRoundedRect(frame, 10, 10);
    QPainterPath pointer;
    pointer.addPolygon(QPolygonF({{0, 0}, {0, 19}, {5, 14.5}, {8.5, 22}, {11.5, 20.6}, {8.2, 13.4}, {14, 13}}));
    pointer.closeSubpath();
    pointer.translate(frame.bottomRight() - QPointF(3, 3));
    painter->setPen(QPen(Qt::white, 2));
    painter->setBrush(QColor(titleColor));
    painter->drawPath(pointer);
}

QFont titleFont(const QPainter *painter)
{
    QFont font = painter->font();
    font.setPointSize(titlePointSize);
    font.setWeight(QFont::DemiBold);
    return font;
}

} // namespace

void paintEmptyHint(QPainter *painter, const QRect &page, const EmptyHint &hint)
{
    if (page.width() < smallestWidth || page.height() < smallestHeight)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QPoint centre = page.center();
    paintFigure(painter, QPointF(centre.x() - figureWidth / 2, centre.y() - figureHeight - lineGap * 2));

    QRect line(page.left(), centre.y() + lineGap, page.width(), page.bottom() - centre.y() - lineGap);
    const QFont adviceFont = painter->font();
    painter->setFont(titleFont(painter));
    painter->setPen(QColor(titleColor));
    QRect used;
    painter->drawText(line, Qt::AlignHCenter | Qt::AlignTop, hint.title, &used);
    line.setTop(used.bottom() + lineGap);
    painter->setFont(adviceFont);
    painter->setPen(QColor(adviceColor));
    painter->drawText(line, Qt::AlignHCenter | Qt::AlignTop, hint.advice);
    painter->restore();
}

} // namespace board
