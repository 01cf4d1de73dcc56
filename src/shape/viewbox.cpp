#include "shape/viewbox.h"

#include <svgbase/qzesvgtinydocument.h>

QRectF viewBoxOf(const QZeSvgTinyDocument *document)
{
    return document ? document->viewBox() : QRectF();
}

void setViewBoxOf(QZeSvgTinyDocument *document, const QRectF &box)
{
    if (document)
        document->setViewBox(box);
}

QRectF settledViewBox(QZeSvgTinyDocument *document)
{
    const QRectF box = viewBoxOf(document);
    if (!document || box.width() != 0 || box.height() != 0)
        return box;
    document->setViewBox(document->transformedBounds());
    return document->viewBox();
}
