#pragma once

#include "text/textcluster.h"
#include "text/textcontent.h"
#include "text/textservices.h"

namespace Svg {

/// Glyphs that a font of the document has for characters of one level, in user units.
class LevelGlyphs
{
public:
    /// The level must have such a font.
    LevelGlyphs(const TextContent &content, const TextLevel &level, const TextServices &services, bool vertical);

    /// The glyph for the characters from `at` on, none of them behind `end`; null where fonts of the system are to
    /// be asked.
    const FontGlyph *find(int at, int end) const;
    /// The cluster that a glyph makes of the characters that it stands for.
    TextCluster cluster(const FontGlyph &glyph, int at, int end) const;
    /// How much closer together the pair stands than its advances say.
    double kerning(const FontGlyph &first, const FontGlyph &second) const;
    /// Where a glyph is held on a vertical line, from its origin, and how far it goes down.
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
