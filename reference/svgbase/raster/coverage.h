#pragma once

#include "raster/flatoutline.h"

#include <QtCore/QRect>

#include <vector>

namespace Svg {

/// Computes how much of each pixel an outline covers: the exact area, in 256 steps. The result for a pixel does not
/// depend on the window.
class Coverage
{
public:
    /// Pixels from `x` on, `length` of them in row `y`, have the same coverage; 255 is all of a pixel, 0 is not
    /// reported.
    struct Span
    {
        int x;
        int y;
        int length;
        int coverage;
    };

    /// Calls `sink(span)` for everything covered within `window` (pixels), from top to bottom.
    template<typename Sink> void sweep(const FlatOutline &outline, const QRect &window, Sink &&sink);

private:
    /// Rows processed together, the window's left edge being 0.
    struct Band
    {
        int left;
        int top;
        int width;
        int height;
    };
    /// The cells of a row, and the bits that tell which of them were written.
    struct Row
    {
        uint *cells;
        quint64 *written;
    };

    void begin(const Band &band);
    void addLines(const FlatOutline &outline);
    void addPolygon(const QPoint *begin, const QPoint *end);
    void addLine(QPoint upper, QPoint lower, int direction);
    void addUpright(int x, int from, int to, int direction);
    void addInRow(const Row &row, int left, int right, int height);
    void addAcross(const Row &row, int left, int right, int height);
    static void addWhole(const Row &row, int column, int height);
    static void addCell(const Row &row, int column, int height, int twiceInset);
    Row rowAt(int row);
    void advance(Row *row) const;
    template<Qt::FillRule rule, typename Sink> void sweepBand(Sink &sink);
    template<Qt::FillRule rule, typename Sink> void sweepRow(int row, Sink &sink);
    template<Qt::FillRule rule> static int coverageOf(int sum);

    /// Twice the area of a pixel, in subpixels, as a power of two.
    static constexpr int areaBits = 17;
    static constexpr int coverageBits = 8;
    static constexpr int wordBits = 64;
    /// Pixels of a band.
    static constexpr int bandPixels = 1 << 16;

    Band m_band{};
    int m_columns = 0;
    int m_words = 0;
    /// Area that each pixel adds to itself and to all following pixels, by rows. Single values may wrap around
    /// where lines crowd; their sums do not.
    std::vector<uint> m_cells;
    /// A bit for each pixel that was written.
    std::vector<quint64> m_written;
};

template<Qt::FillRule rule> inline int Coverage::coverageOf(int sum)
{
    constexpr int whole = 1 << coverageBits;
    int coverage = qAbs(sum) >> (areaBits - coverageBits);
    if constexpr (rule == Qt::OddEvenFill) {
        coverage &= 2 * whole - 1;
        coverage = coverage > whole ? 2 * whole - coverage : coverage;
    }
    return qMin(coverage, whole - 1);
}

template<Qt::FillRule rule, typename Sink> void Coverage::sweepRow(int row, Sink &sink)
{
    uint *cells = m_cells.data() + size_t(row) * size_t(m_columns);
    quint64 *words = m_written.data() + size_t(row) * size_t(m_words);
    const int y = m_band.top + row;
    const int left = m_band.left;
    const int width = m_band.width;
    const int wordCount = m_words;
    uint sum = 0;
    int start = 0;
    int coverage = 0;
    for (int word = 0; word < wordCount; ++word) {
        quint64 bits = words[word];
        words[word] = 0;
        for (; bits; bits &= bits - 1) {
            const int column = word * wordBits + int(qCountTrailingZeroBits(bits));
            if (coverage > 0 && start < width)
                sink(Span{left + start, y, qMin(column, width) - start, coverage});
            sum += cells[column];
            cells[column] = 0;
            start = column;
            coverage = coverageOf<rule>(int(sum));
        }
    }
    if (coverage > 0 && start < width)
        sink(Span{left + start, y, width - start, coverage});
}

template<Qt::FillRule rule, typename Sink> void Coverage::sweepBand(Sink &sink)
{
    for (int row = 0; row < m_band.height; ++row)
        sweepRow<rule>(row, sink);
}

template<typename Sink> void Coverage::sweep(const FlatOutline &outline, const QRect &window, Sink &&sink)
{
    if (window.isEmpty())
        return;
    const int rows = qMax(1, bandPixels / window.width());
    for (int top = window.top(); top <= window.bottom(); top += rows) {
        begin({window.left(), top, window.width(), qMin(rows, window.bottom() + 1 - top)});
        addLines(outline);
        if (outline.fillRule == Qt::OddEvenFill)
            sweepBand<Qt::OddEvenFill>(sink);
        else
            sweepBand<Qt::WindingFill>(sink);
    }
}

} // namespace Svg
