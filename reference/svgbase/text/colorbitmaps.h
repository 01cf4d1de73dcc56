#pragma once

#include "grammar/inputlimits.h"

#include <QtCore/QByteArray>
#include <QtCore/QPoint>

#include <optional>

namespace Svg {

/// A bitmap of a glyph.
struct GlyphBitmap
{
    QByteArray png;
    /// Its upper left corner, pixels from the origin of the glyph, y pointing down.
    QPoint corner;
    /// Pixels per font size.
    int pixelsPerEmX = 0;
    int pixelsPerEmY = 0;
};

/// The colour bitmaps of a font's glyphs (OpenType, "CBLC" and "CBDT").
class ColorBitmaps
{
public:
    /// The two tables, empty for most fonts.
    ColorBitmaps(const QByteArray &places, const QByteArray &pictures)
        : m_places(places)
        , m_pictures(pictures)
    {
    }

    bool isEmpty() const { return m_places.isEmpty() || m_pictures.isEmpty(); }
    /// The largest bitmap of a glyph; empty for a glyph without one, for damaged tables, and once the budget of the
    /// search is used up.
    std::optional<GlyphBitmap> find(quint32 glyph);
    bool tookTooLong() const { return m_stepsLeft < 0; }

private:
    /// The list of a range of glyphs' bitmaps, and their size in pixels.
    struct Strike
    {
        qint64 record = 0;
        int pixelsPerEm = 0;
    };
    /// A part of the list, and the index of the glyph in it.
    struct Range
    {
        qint64 begin = 0;
        int place = 0;
    };
    /// Bytes of a bitmap with its metrics.
    struct Piece
    {
        qint64 begin = 0;
        qint64 length = 0;
    };

    std::optional<Strike> largestStrike(quint32 glyph);
    std::optional<Range> rangeOf(const Strike &strike, quint32 glyph);
    std::optional<Piece> pieceOf(const Range &range, quint32 glyph);
    std::optional<Piece> pieceOfSparse(const Range &range, quint32 glyph);
    std::optional<GlyphBitmap> bitmapOf(const Range &range, const Piece &piece) const;

    QByteArray m_places;
    QByteArray m_pictures;
    /// Records of the tables that may still be examined.
    int m_stepsLeft = Limits::fontPictureSteps;
};

} // namespace Svg
