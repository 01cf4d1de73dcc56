#pragma once

#include "images/images.h"
#include "properties/computedstyle.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// Letters may overlap.
constexpr Qt::FillRule textFillRule = Qt::WindingFill;

/// Outlines of one style.
struct TextRun
{
    ComputedStyle style;
    /// User units of the text element.
    QPainterPath path;
    /// Shown instead of the path, which is its box then.
    std::shared_ptr<const PlacedPicture> picture = nullptr;
};

/// Outlines of a text element.
struct TextOutlines
{
    /// Letters and their decoration lines, in painting order.
    QVector<TextRun> runs;
    /// Bounds of all character cells, user units: the bounding box for relative units.
    QRectF cells;
    /// Whether it depends on elements outside of the text.
    bool hasReferences = false;
    /// Parts left out because of a limit.
    Problem problem;
};

} // namespace Svg
