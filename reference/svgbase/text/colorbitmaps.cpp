#include "text/colorbitmaps.h"

#include "text/fonttables.h"

namespace Svg {

namespace {

// Offsets of values in the location table, and the length of its records (OpenType, "CBLC").
constexpr int strikeCountOffset = 4;
constexpr int firstStrikeOffset = 8;
constexpr int strikeBytes = 48;
constexpr int rangesOffset = 0;
constexpr int rangeCountOffset = 8;
constexpr int firstGlyphOffset = 40;
constexpr int lastGlyphOffset = 42;
constexpr int pixelsPerEmXOffset = 44;
constexpr int pixelsPerEmYOffset = 45;
constexpr int rangeBytes = 8;
constexpr int rangeHeaderBytes = 8;
/// After the size shared by all bitmaps of a range.
constexpr int sharedMetricsOffset = 12;
constexpr int sharedCountOffset = 20;
constexpr int sharedGlyphsOffset = 24;

// Formats of the lists of offsets.
constexpr int longOffsets = 1;
constexpr int sameSize = 2;
constexpr int shortOffsets = 3;
constexpr int sparseOffsets = 4;
constexpr int sparseSameSize = 5;

// Bytes before a PNG, by its format (OpenType, "CBDT").
constexpr int smallMetrics = 17;
constexpr int bigMetrics = 18;
constexpr int sharedMetrics = 19;
constexpr int smallMetricsBytes = 5;
constexpr int bigMetricsBytes = 8;
constexpr int bearingXOffset = 2;
constexpr int bearingYOffset = 3;
constexpr int lengthBytes = 4;

template<typename Number> qint64 numberAt(const QByteArray &table, qint64 offset)
{
    return tableNumber<Number>(table, offset).value_or(0);
}

} // namespace

std::optional<ColorBitmaps::Strike> ColorBitmaps::largestStrike(quint32 glyph)
{
    std::optional<Strike> largest;
    const qint64 count = numberAt<quint32>(m_places, strikeCountOffset);
    for (qint64 i = 0; i < count; ++i) {
        const qint64 record = firstStrikeOffset + i * strikeBytes;
        if (record + strikeBytes > m_places.size() || --m_stepsLeft < 0)
            break;
        const auto pixels = int(numberAt<quint8>(m_places, record + pixelsPerEmYOffset));
        const bool holds = glyph >= numberAt<quint16>(m_places, record + firstGlyphOffset) &&
                           glyph <= numberAt<quint16>(m_places, record + lastGlyphOffset);
        if (holds && pixels > (largest ? largest->pixelsPerEm : 0))
            largest = Strike{record, pixels};
    }
    return largest;
}

std::optional<ColorBitmaps::Range> ColorBitmaps::rangeOf(const Strike &strike, quint32 glyph)
{
    const qint64 ranges = numberAt<quint32>(m_places, strike.record + rangesOffset);
    const qint64 count = numberAt<quint32>(m_places, strike.record + rangeCountOffset);
    for (qint64 i = 0; i < count; ++i) {
        const qint64 range = ranges + i * rangeBytes;
        if (range + rangeBytes > m_places.size() || --m_stepsLeft < 0)
            break;
        const qint64 first = numberAt<quint16>(m_places, range);
        const qint64 last = numberAt<quint16>(m_places, range + 2);
        if (glyph >= first && glyph <= last)
            return Range{ranges + numberAt<quint32>(m_places, range + 4), int(glyph - first)};
    }
    return std::nullopt;
}

// Ranges that list only some of their glyphs.
std::optional<ColorBitmaps::Piece> ColorBitmaps::pieceOfSparse(const Range &range, quint32 glyph)
{
    const bool same = numberAt<quint16>(m_places, range.begin) == sparseSameSize;
    const qint64 list = range.begin + (same ? sharedGlyphsOffset : rangeHeaderBytes + 4);
    const qint64 count = numberAt<quint32>(m_places, range.begin + (same ? sharedCountOffset : rangeHeaderBytes));
    const qint64 size = numberAt<quint32>(m_places, range.begin + rangeHeaderBytes);
    const qint64 step = same ? sizeof(quint16) : 2 * sizeof(quint16);
    for (qint64 i = 0; i < count && list + i * step < m_places.size() && --m_stepsLeft >= 0; ++i) {
        const qint64 entry = list + i * step;
        if (numberAt<quint16>(m_places, entry) != glyph)
            continue;
        if (same)
            return Piece{i * size, size};
        const qint64 begin = numberAt<quint16>(m_places, entry + 2);
        return Piece{begin, numberAt<quint16>(m_places, entry + step + 2) - begin};
    }
    return std::nullopt;
}

std::optional<ColorBitmaps::Piece> ColorBitmaps::pieceOf(const Range &range, quint32 glyph)
{
    const qint64 list = range.begin + rangeHeaderBytes;
    qint64 begin = 0;
    qint64 end = 0;
    switch (numberAt<quint16>(m_places, range.begin)) {
    case longOffsets:
        begin = numberAt<quint32>(m_places, list + range.place * qint64(sizeof(quint32)));
        end = numberAt<quint32>(m_places, list + (range.place + 1) * qint64(sizeof(quint32)));
        break;
    case shortOffsets:
        begin = numberAt<quint16>(m_places, list + range.place * qint64(sizeof(quint16)));
        end = numberAt<quint16>(m_places, list + (range.place + 1) * qint64(sizeof(quint16)));
        break;
    case sameSize:
        begin = range.place * numberAt<quint32>(m_places, list);
        end = begin + numberAt<quint32>(m_places, list);
        break;
    case sparseOffsets:
    case sparseSameSize:
        return pieceOfSparse(range, glyph);
    default:
        return std::nullopt;
    }
    return Piece{begin, end - begin};
}

std::optional<GlyphBitmap> ColorBitmaps::bitmapOf(const Range &range, const Piece &piece) const
{
    const qint64 begin = numberAt<quint32>(m_places, range.begin + 4) + piece.begin;
    const qint64 format = numberAt<quint16>(m_places, range.begin + 2);
    const int metrics = format == smallMetrics ? smallMetricsBytes : format == bigMetrics ? bigMetricsBytes : 0;
    if (metrics == 0 && format != sharedMetrics)
        return std::nullopt;
    const bool isShared = metrics == 0;
    const QByteArray &table = isShared ? m_places : m_pictures;
    const qint64 bearings = isShared ? range.begin + sharedMetricsOffset : begin;
    const qint64 length = numberAt<quint32>(m_pictures, begin + metrics);
    const qint64 picture = begin + metrics + lengthBytes;
    if (length == 0 || metrics + lengthBytes + length > piece.length || picture + length > m_pictures.size())
        return std::nullopt;
    GlyphBitmap bitmap;
    bitmap.png = m_pictures.mid(int(picture), int(length));
    bitmap.corner = QPoint(int(numberAt<qint8>(table, bearings + bearingXOffset)),
                           -int(numberAt<qint8>(table, bearings + bearingYOffset)));
    return bitmap;
}

std::optional<GlyphBitmap> ColorBitmaps::find(quint32 glyph)
{
    if (isEmpty() || tookTooLong())
        return std::nullopt;
    const std::optional<Strike> strike = largestStrike(glyph);
    const std::optional<Range> range = strike ? rangeOf(*strike, glyph) : std::nullopt;
    const std::optional<Piece> piece = range ? pieceOf(*range, glyph) : std::nullopt;
    std::optional<GlyphBitmap> bitmap = piece ? bitmapOf(*range, *piece) : std::nullopt;
    if (!bitmap)
        return std::nullopt;
    bitmap->pixelsPerEmX = int(numberAt<quint8>(m_places, strike->record + pixelsPerEmXOffset));
    bitmap->pixelsPerEmY = strike->pixelsPerEm;
    if (bitmap->pixelsPerEmX == 0)
        return std::nullopt;
    return bitmap;
}

} // namespace Svg
