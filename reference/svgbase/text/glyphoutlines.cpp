#include "text/glyphoutlines.h"

namespace Svg {

const QPainterPath &GlyphOutlines::outline(const QRawFont &font, quint32 glyph)
{
    QHash<quint32, QPainterPath> &ofFont = m_outlines[font];
    auto known = ofFont.find(glyph);
    if (known == ofFont.end())
        known = ofFont.insert(glyph, font.pathForGlyph(glyph));
    return *known;
}

} // namespace Svg
