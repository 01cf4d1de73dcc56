#pragma once

#include "grammar/lengths.h"
#include "style/computedstyle.h"
#include "tree/tree.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// Characters of one style, set at their place.
struct TextRun
{
    ComputedStyle style;
    /// Outlines of the glyphs, user units of the text element.
    QPainterPath path;
};

/// Sets the characters of a text element and of its tspans in one line, broken where a tspan gives a new "x" or
/// "y". Nothing without a QGuiApplication, which fonts need.
QVector<TextRun> layOutText(const Tree &tree, NodeIndex text, const ComputedStyle &style, const QSizeF &viewport);

} // namespace Svg
