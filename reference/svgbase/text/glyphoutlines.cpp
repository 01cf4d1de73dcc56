#include "text/glyphoutlines.h"

#include "geometry/pathslack.h"

namespace Svg {

const QPainterPath &GlyphOutlines::outline(const QRawFont &font, quint32 glyph)
{
    QHash<quint32, QPainterPath> &ofFont = m_outlines[font];
    auto known = ofFont.find(glyph);
    if (known == ofFont.end())
        known = ofFont.insert(glyph, withoutSlack(font.pathForGlyph(glyph)));
    return *known;
}

FontPictures &GlyphOutlines::pictures(const QRawFont &font)
{
    std::shared_ptr<FontPictures> &known = m_pictures[font];
    if (!known)
        known = std::make_shared<FontPictures>(font);
    return *known;
}

} // namespace Svg
