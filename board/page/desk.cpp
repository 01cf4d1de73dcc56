#include "page/desk.h"

#include "look/theme.h"

#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <framework/cbaseobject.h>

#include <QtCore/QVector>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QGraphicsItem>

namespace board {

namespace {

/// Parts of the shadow's darkness that each pixel farther away from the page loses: a soft edge of 8 pixels, of
/// which half would lie below the page.
constexpr double shadowSteps[] = {0.099, 0.092, 0.082, 0.068, 0.053, 0.039, 0.027, 0.017};
/// Below the page, pixels.
constexpr double shadowShift = 1;
/// In every theme.
constexpr Qt::GlobalColor paperColor = Qt::white;
/// How far beyond the area to repaint the canvas is filled, pixels: that area's edges lie beside the pixels' own,
/// and a smooth edge would leave a line.
constexpr int repaintMargin = 2;
/// Of the desk's colour over what hangs off the page.
constexpr double veilOpacity = 0.6;

/// Paper covers all but the edge itself.
QRectF edgeAround(const QRectF &page, double zoom)
{
    const double width = edgeWidth() / zoom;
    return page.adjusted(-width, -width, width, width);
}

/// The parts of `exposed` that lie left, right, above and below of the page, without overlaps.
QVector<QRectF> sidesOf(const QRectF &page, const QRectF &exposed)
{
    const QRectF middle(exposed.left(), page.top(), exposed.width(), page.height());
    const QRectF parts[] = {{exposed.topLeft(), QPointF(exposed.right(), page.top())},
                            {QPointF(exposed.left(), page.bottom()), exposed.bottomRight()},
                            QRectF(exposed.topLeft(), QPointF(page.left(), exposed.bottom())) & middle,
                            QRectF(QPointF(page.right(), exposed.top()), exposed.bottomRight()) & middle};
    QVector<QRectF> sides;
    for (const QRectF &part : parts)
        if (part.isValid() && part.intersects(exposed))
            sides.append(part & exposed);
    return sides;
}

/// Around the whole object, scene coordinates.
QRectF placeOf(const CBaseObject &object)
{
    return object.mapToScene(object.getClientRect()).boundingRect();
}

} // namespace

void paintDesk(QPainter *painter, const QRectF &exposed, double zoom, const QColor &color)
{
    const double margin = repaintMargin / zoom;
    painter->fillRect(exposed.adjusted(-margin, -margin, margin, margin), color);
}

void paintShadow(QPainter *painter, const QRectF &page, double zoom)
{
    painter->save();
    if (currentTheme() == Theme::HighContrast)
        painter->fillRect(edgeAround(page, zoom), themeColors().border);
    painter->setPen(Qt::NoPen);
    QColor shadow = themeColors().pageShadow;
    const double darkness = shadow.alphaF();
    double grow = 0;
    for (const double step : shadowSteps) {
        grow += 1 / zoom;
        shadow.setAlphaF(darkness * step);
        painter->setBrush(shadow);
        const QRectF place = page.translated(0, shadowShift / zoom);
        painter->drawRoundedRect(place.adjusted(-grow, -grow, grow, grow), grow, grow);
    }
    painter->restore();
}

void paintPaper(QPainter *painter, const QRectF &page)
{
    painter->fillRect(page, paperColor);
}

void paintVeil(QPainter *painter, const QRectF &exposed, const pagehost::Page &page)
{
    const QRectF paper = page.rect();
    if (paper.contains(exposed) || currentTheme() == Theme::HighContrast)
        return;
    QPainterPath outside;
    outside.setFillRule(Qt::WindingFill);
    const auto sides = sidesOf(paper, exposed);
    for (const QRectF &side : sides) {
        const QList<QGraphicsItem *> items = page.scene()->items(side, Qt::IntersectsItemBoundingRect);
        for (QGraphicsItem *item : items) {
            auto *object = dynamic_cast<CBaseObject *>(item);
            // The bounds of one that is on the page may reach beyond, and nothing is drawn there but the shadow.
            if (object && !paper.contains(placeOf(*object)))
                outside.addRect(item->sceneBoundingRect() & side);
        }
    }
    QColor veil = themeColors().desk;
    veil.setAlphaF(veilOpacity);
    painter->fillPath(outside, veil);
}

} // namespace board
