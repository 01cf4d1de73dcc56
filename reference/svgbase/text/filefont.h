#pragma once

#include "text/fontmeasures.h"
#include "text/fontpictures.h"

#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>

#include <memory>

namespace Svg {

/// A font file inside a document: TrueType outlines or bitmaps in colour, plain or packed as WOFF. It is never
/// installed: the process knows it by this object alone. All lengths are in pixels of `outlineFontSize`, y pointing
/// down.
class FileFont
{
public:
    /// Null for what is no such file. Outlines that are programs of their own ("CFF") are not taken: they may run
    /// for long.
    static std::shared_ptr<FileFont> load(const QByteArray &file);

    FontMeasures measures() const;
    /// The glyph of a character; 0 when the font lacks it.
    quint32 glyph(uint character) const;
    double advance(quint32 glyph) const;
    /// Empty once outlines of more elements were asked for than texts may show.
    QPainterPath outline(quint32 glyph);
    /// Picture in the place of the outline; null for most glyphs.
    const GlyphPicture *picture(quint32 glyph);
    /// Tells which of its pictures a limit left out.
    Problem problem() const { return m_pictures->problem(); }
    /// How much closer than their advance two neighbours stand.
    double kerning(quint32 first, quint32 second) const;

private:
    QRawFont m_font;
    std::unique_ptr<FontPictures> m_pictures;
    int m_elements = 0;
};

} // namespace Svg
