#pragma once

#include <QtCore/QStringView>
#include <QtGui/QPainterPath>

namespace Svg {

/// What path data amounts to.
struct PathData
{
    /// Everything before the first error, user units.
    QPainterPath path;
    /// Offset of the first letter, coordinate or pair that could not be used; -1 when all of the text was.
    qsizetype errorAt = -1;
    /// Whether reading stopped at the limit of segments.
    bool tooLong = false;
};

/// Reads path data (SVG 1.1 §8.3). A path is drawn up to its first error.
PathData parsePathData(QStringView text);

} // namespace Svg
