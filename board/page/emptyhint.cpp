#include "page/emptyhint.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace board {

namespace {

// The page is paper in every theme, so the hint has its own greys.
constexpr QRgb figureColor = 0xffb9c2cc;
constexpr QRgb titleColor = 0xff1f2630;
constexpr QRgb adviceColor = 0xff566070;
constexpr int smallestHeight = 170;
constexpr int smallestWidth = 280;
constexpr double figureWidth = 146;
constexpr double figureHeight = 52;
constexpr double figurePen = 3;
constexpr int titlePointSize = 15;
constexpr int lineGap = 10;
/// The middle of the hint lies above that of the page.
constexpr int lift = 30;

/// A line as a pen draws it.
void paintFigure(QPainter *painter, const QPointF &topLeft)
{
    QPainterPath line(QPointF(0, 30));
    line.cubicTo(12, 8, 30, -8, 33, 10);
    line.cubicTo(36, 32, 26, 51, 42, 51);
    line.cubicTo(66, 51, 74, 0, 96, 1);
    line.cubicTo(118, 2, 100, 46, 112, 46);
    line.cubicTo(122, 46, 134, 34, 146, 26);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QColor(figureColor), figurePen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(line.translated(topLeft));
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
    const QPoint centre = page.center() - QPoint(0, lift);
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
