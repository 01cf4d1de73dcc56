#pragma once

#include "text/textcluster.h"
#include "text/textcontent.h"
#include "text/textservices.h"

namespace Svg {

/// Glyphs of a font of the document for characters of one level, in user units.
class LevelGlyphs
{
public:
    /// The level must have such a font.
    LevelGlyphs(const TextContent &content, const TextLevel &level, const TextServices &services, bool vertical);

    /// The glyph for the characters from `at` on, none of them after `end`; null where fonts of the system are
    /// used.
    const FontGlyph *find(int at, int end) const;
    /// The cluster of a glyph for the characters that it represents.
    TextCluster cluster(const FontGlyph &glyph, int at, int end) const;
    /// Kerning of the pair, subtracted from the advance.
    double kerning(const FontGlyph &first, const FontGlyph &second) const;
    /// Origin of a glyph on a vertical line, relative to its own, and its vertical advance.
    QPointF verticalOrigin(const FontGlyph &glyph) const;
    double verticalAdvance(const FontGlyph &glyph) const;

private:
    void addGlyph(const FontGlyph &glyph, TextCluster *cluster) const;
    int characterCount(const FontGlyph &glyph, int at, int end) const;

    const TextContent &m_content;
    const TextLevel &m_level;
    TextServices m_services;
    bool m_vertical;
    double m_scale;
};

} // namespace Svg
