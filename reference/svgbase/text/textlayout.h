#pragma once

#include "properties/computedstyle.h"
#include "text/textservices.h"
#include "tree/tree.h"

#include <QtCore/QSizeF>
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
    /// Shown in the place of the path, which is its box then.
    std::shared_ptr<const PlacedPicture> picture = nullptr;
};

/// Outlines of a text element.
struct TextOutlines
{
    /// Letters and the lines that decorate them, in painting order.
    QVector<TextRun> runs;
    /// Bounds of all character cells, user units, which units of the bounding box relate to.
    QRectF cells;
    /// Whether it depends on elements outside of the text.
    bool hasReferences = false;
    /// Parts left out because of a limit.
    Problem problem;
};

/// Sets the characters of a text element and of its parts. Nothing without a QGuiApplication, which fonts need.
/// Problems are told in the result, not to `services`.
TextOutlines layOutText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport,
                        TextServices services);

} // namespace Svg
