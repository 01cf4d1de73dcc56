#pragma once

#include "text/textcontent.h"
#include "text/textservices.h"

#include <QtGui/QPainterPath>

namespace Svg {

/// Glyphs that belong together: a letter with its marks, a ligature, or a whole row that needs not be told apart.
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

/// How the characters of a text are to be shaped.
struct ShapingMode
{
    /// Whether the glyphs of each character are needed apart.
    bool separate = false;
    /// Whether ideographs stand upright on a line that goes down.
    bool vertical = false;
};

uint codeOf(const QString &text, const TextCharacter &character);
/// Whether a character may be given a place; marks and joiners stay with what they follow.
bool canBePlaced(const QString &text, const TextCharacter &character);
/// Whether it is moved from where it would stand behind the one before.
bool isMoved(const TextCharacter &character);

/// The glyphs of the characters from `begin` up to `end` on one line, in the order of the characters; the
/// bidirectional algorithm settles where each stands (Unicode UAX 9).
QVector<TextCluster> shapeChunk(const TextContent &content, int begin, int end, const ShapingMode &mode,
                                const TextServices &services);

} // namespace Svg
