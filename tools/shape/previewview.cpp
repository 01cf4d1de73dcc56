#include "shape/previewview.h"

#include <checklist/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QPainter>

namespace shapetool {

namespace {

/// Scene units around a shape.
constexpr double room = 60;
const QColor rangeColour(0xe8, 0x71, 0x0a);

/// The places of a point's centre that its limits allow, within the view box; document units.
QRectF rangeOf(const checklist::ShapeDriver &shape, int number)
{
    QZeSvgNode *node = shape.document().namedNode(QStringLiteral("control_%1").arg(number));
    if (!node)
        return {};
    const QSizeF half = node->boundingRect().size() / 2;
    const QPointF low(shape.core().getXMin(node) + half.width(), shape.core().getYMin(node) + half.height());
    const QPointF high(shape.core().getXMax(node) + half.width(), shape.core().getYMax(node) + half.height());
    const QRectF box = shape.document().viewBox();
    return {QPointF(qBound(box.left(), low.x(), box.right()), qBound(box.top(), low.y(), box.bottom())),
            QPointF(qBound(box.left(), high.x(), box.right()), qBound(box.top(), high.y(), box.bottom()))};
}

} // namespace

PreviewView::PreviewView(QWidget *parent)
    : QGraphicsView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    setBackgroundBrush(Qt::white);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
}

void PreviewView::setShape(checklist::ShapeDriver *shape)
{
    m_shape = shape;
    setScene(shape ? &shape->scene() : nullptr);
    if (shape)
        setSceneRect(shape->object().getClientRect().adjusted(-room, -room, room, room));
}

void PreviewView::drawForeground(QPainter *painter, const QRectF &area)
{
    QGraphicsView::drawForeground(painter, area);
    if (!m_shape)
        return;
    const QRectF box = m_shape->document().viewBox();
    const QSizeF size = m_shape->object().getClientRect().size();
    QPen pen(rangeColour, 0, Qt::DashLine);
    pen.setCosmetic(true);
    painter->save();
    painter->setPen(pen);
    painter->setTransform(m_shape->object().sceneTransform(), true);
    painter->scale(size.width() / box.width(), size.height() / box.height());
    painter->translate(-box.topLeft());
    for (int number = 1; number <= m_shape->controlPointCount(); ++number)
        painter->drawRect(rangeOf(*m_shape, number));
    painter->restore();
}

} // namespace shapetool
