#include "shape/viewbox.h"

#include <svgbase/qzesvgtinydocument.h>

QRectF settledViewBox(QZeSvgTinyDocument *document)
{
    const QRectF box = document->viewBox();
    if (box.width() != 0 || box.height() != 0)
        return box;
    document->setViewBox(document->transformedBounds());
    return document->viewBox();
}
