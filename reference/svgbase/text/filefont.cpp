#include "text/filefont.h"

#include "grammar/inputlimits.h"
#include "text/fonts.h"
#include "text/fonttables.h"

namespace Svg {

namespace {

// Signatures of font files, and the offset of the unpacked size in packed ones (WOFF File Format 1.0 §3).
constexpr quint32 trueTypeVersion = 0x00010000;
constexpr quint32 trueTypeTag = 0x74727565;
constexpr quint32 woffTag = 0x774f4646;
constexpr quint32 woff2Tag = 0x774f4632;
constexpr int flavorOffset = 4;
constexpr int unpackedSizeOffset = 16;
constexpr int woffHeaderBytes = 44;

quint32 numberAt(const QByteArray &file, int offset)
{
    return tableNumber<quint32>(file, offset).value_or(0);
}

bool isTrueType(quint32 tag)
{
    return tag == trueTypeVersion || tag == trueTypeTag;
}

bool isTaken(const QByteArray &file)
{
    const quint32 tag = numberAt(file, 0);
    if (tag != woffTag && tag != woff2Tag)
        return isTrueType(tag);
    return file.size() > woffHeaderBytes && isTrueType(numberAt(file, flavorOffset)) &&
           numberAt(file, unpackedSizeOffset) <= quint32(Limits::textBytes);
}

} // namespace

std::shared_ptr<FileFont> FileFont::load(const QByteArray &file)
{
    if (!isTaken(file))
        return nullptr;
    auto font = std::make_shared<FileFont>();
    font->m_font.loadFromData(file, outlineFontSize, QFont::PreferNoHinting);
    font->m_pictures = std::make_unique<FontPictures>(font->m_font);
    const bool hasGlyphs = !font->m_font.fontTable("glyf").isEmpty() || !font->m_pictures->isEmpty();
    const bool isUsable = font->m_font.isValid() && hasGlyphs && font->m_font.fontTable("CFF ").isEmpty();
    return isUsable ? font : nullptr;
}

FontMeasures FileFont::measures() const
{
    return fontMeasures(m_font, outlineFontSize);
}

quint32 FileFont::glyph(uint character) const
{
    const QVector<quint32> glyphs = m_font.glyphIndexesForString(QString::fromUcs4(&character, 1));
    return glyphs.isEmpty() ? 0 : glyphs.constFirst();
}

double FileFont::advance(quint32 glyph) const
{
    if (const GlyphPicture *picture = m_pictures->find(glyph))
        return picture->advance;
    return m_font.advancesForGlyphIndexes({glyph}, QRawFont::UseDesignMetrics).value(0).x();
}

QPainterPath FileFont::outline(quint32 glyph)
{
    if (m_elements > Limits::fontOutlineElements)
        return QPainterPath();
    const QPainterPath path = m_font.pathForGlyph(glyph);
    m_elements += path.elementCount();
    return path;
}

const GlyphPicture *FileFont::picture(quint32 glyph)
{
    return m_pictures->find(glyph);
}

double FileFont::kerning(quint32 first, quint32 second) const
{
    if (m_pictures->find(first))
        return 0;
    const auto flags = QRawFont::UseDesignMetrics | QRawFont::KernedAdvances;
    return advance(first) - m_font.advancesForGlyphIndexes({first, second}, flags).value(0).x();
}

} // namespace Svg
