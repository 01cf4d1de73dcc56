#pragma once

#include "images/images.h"
#include "text/colorbitmaps.h"

#include <QtCore/QHash>
#include <QtGui/QRawFont>

namespace Svg {

/// A picture that replaces a glyph's outline, pixels of its font's size.
struct GlyphPicture
{
    /// From the origin of the glyph.
    PlacedPicture shown;
    double advance = 0;
};

/// The pictures of a font, each read once.
class FontPictures
{
public:
    explicit FontPictures(const QRawFont &font);

    bool isEmpty() const { return m_bitmaps.isEmpty(); }
    /// Reports what a limit left out.
    Problem problem() const;
    /// Null for a glyph without a picture that can be shown.
    const GlyphPicture *find(quint32 glyph);

private:
    std::shared_ptr<const GlyphPicture> read(quint32 glyph);
    double advanceOf(quint32 glyph) const;

    QRawFont m_font;
    ColorBitmaps m_bitmaps;
    QHash<quint32, std::shared_ptr<const GlyphPicture>> m_known;
};

} // namespace Svg
