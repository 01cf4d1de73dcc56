#pragma once

#include <QtCore/QHash>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>

namespace Svg {

/// Outlines of glyphs, read from their fonts once for each text.
class GlyphOutlines
{
public:
    /// The outline at the size of the font; its baseline begins at the origin.
    const QPainterPath &outline(const QRawFont &font, quint32 glyph);

private:
    QHash<QRawFont, QHash<quint32, QPainterPath>> m_outlines;
};

} // namespace Svg
