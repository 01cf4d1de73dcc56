#include "page/desk.h"

#include "look/theme.h"

#include <QtGui/QPainter>

namespace board {

namespace {

constexpr int shadowSize = 7;
/// In every theme.
constexpr Qt::GlobalColor paperColor = Qt::white;
/// How far beyond the area to repaint the canvas is filled, pixels: that area's edges lie beside the pixels' own,
/// and a smooth edge would leave a line.
constexpr int repaintMargin = 2;

} // namespace

void paintDesk(QPainter *painter, const QRectF &exposed, double zoom, bool isBare)
{
    const double margin = repaintMargin / zoom;
    painter->fillRect(exposed.adjusted(-margin, -margin, margin, margin),
                      isBare ? QColor(Qt::black) : themeColors().desk);
}

void paintShadow(QPainter *painter, const QRectF &page, double zoom)
{
    painter->save();
    painter->setPen(Qt::NoPen);
    QColor shadow = themeColors().pageShadow;
    shadow.setAlpha(shadow.alpha() / shadowSize);
    painter->setBrush(shadow);
    for (int i = 1; i <= shadowSize; ++i) {
        const double grow = i / zoom;
        painter->drawRoundedRect(page.adjusted(-grow, -grow / 2, grow, grow * 1.5), grow, grow);
    }
    painter->restore();
}

void paintPaper(QPainter *painter, const QRectF &page)
{
    painter->fillRect(page, paperColor);
}

} // namespace board
