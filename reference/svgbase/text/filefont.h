#pragma once

#include "text/fontmeasures.h"
#include "text/fontpictures.h"

#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>

#include <memory>

namespace Svg {

/// A font file inside a document: TrueType outlines or colour bitmaps, plain or packed as WOFF. It is never
/// installed: the process knows it by this object alone. All lengths are in pixels of `outlineFontSize`, y pointing
/// down.
class FileFont
{
public:
    /// Null for any other data. Outlines that are programs ("CFF") are rejected: they may run for long.
    static std::shared_ptr<FileFont> load(const QByteArray &file);

    FontMeasures measures() const;
    /// The glyph of a character; 0 when the font lacks it.
    quint32 glyph(uint character) const;
    double advance(quint32 glyph) const;
    /// Empty once outlines of more elements were requested than texts may show.
    QPainterPath outline(quint32 glyph);
    /// Picture that replaces the outline; null for most glyphs.
    const GlyphPicture *picture(quint32 glyph);
    /// Reports pictures that a limit left out.
    Problem problem() const { return m_pictures->problem(); }
    /// Kerning of two neighbours, subtracted from the advance.
    double kerning(quint32 first, quint32 second) const;

private:
    QRawFont m_font;
    std::unique_ptr<FontPictures> m_pictures;
    int m_elements = 0;
};

} // namespace Svg
