#pragma once

#include "text/fontpictures.h"

#include <QtCore/QHash>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>

namespace Svg {

/// Outlines of glyphs, and pictures that replace them, read from their fonts once for each text.
class GlyphOutlines
{
public:
    /// The outline at the size of the font; its baseline begins at the origin.
    const QPainterPath &outline(const QRawFont &font, quint32 glyph);

    FontPictures &pictures(const QRawFont &font);

private:
    QHash<QRawFont, QHash<quint32, QPainterPath>> m_outlines;
    QHash<QRawFont, std::shared_ptr<FontPictures>> m_pictures;
};

} // namespace Svg
