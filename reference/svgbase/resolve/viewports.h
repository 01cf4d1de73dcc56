#pragma once

#include "grammar/lengths.h"
#include "tree/tree.h"

#include <QtCore/QRectF>
#include <QtGui/QTransform>

namespace Svg {

/// The view box that the root element's attributes give; null when they give none.
QRectF rootViewBox(const Node &root);
/// What percentages refer to directly below the root, user units.
QSizeF rootViewport(const Node &root, const QSizeF &window);
/// What a window of that size shows of a document: its view box, else the area that its "width" and "height" give.
/// Empty when nothing is to be shown.
QRectF shownArea(const Node &root, const QSizeF &window);

/// Where a nested "svg" or a used "symbol" places its content.
struct Fit
{
    QTransform transform;
    QSizeF viewport;
};

Fit nestedFit(const Node &node, const LengthContext &context);

} // namespace Svg
