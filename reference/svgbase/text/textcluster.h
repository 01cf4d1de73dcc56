#pragma once

#include "images/images.h"

#include <QtCore/QVector>
#include <QtGui/QPainterPath>

namespace Svg {

/// Glyphs that belong together: a letter with its marks, a ligature, or a whole row that is never split.
struct TextCluster
{
    int firstCharacter = 0;
    int characterCount = 0;
    int level = 0;
    /// User units; the baseline begins at the origin.
    QPainterPath outline;
    double advance = 0;
    /// Distance of its left end from that of the chunk.
    double offset = 0;
    /// Pictures shown beside the outline, in its units.
    QVector<PlacedPicture> pictures = {};
};

} // namespace Svg
