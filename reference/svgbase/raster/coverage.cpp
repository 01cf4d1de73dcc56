// Each line adds to the pixels that it crosses the signed area that it covers to the right; summed along a row that
// gives the area inside the outline.

#include "raster/coverage.h"

namespace Svg {

namespace {

constexpr int subpixelBits = 8;
static_assert(subpixels == 1 << subpixelBits);
/// Fractional bits of slopes. Points are so near to the origin that products with a slope stay within 64 bits.
constexpr int fixedBits = 32;
constexpr qint64 fixedUnit = qint64(1) << fixedBits;
constexpr qint64 fixedHalf = fixedUnit / 2;

inline qint64 fixedQuotient(int dividend, int divisor)
{
    return qint64(dividend * double(fixedUnit) / divisor);
}

inline int wholeOf(qint64 fixed)
{
    return int((fixed + fixedHalf) >> fixedBits);
}

} // namespace

// Sweeping has cleared all earlier contents.
void Coverage::begin(const Band &band)
{
    m_band = band;
    // An edge that ends in the last pixel also writes to the next.
    m_columns = band.width + 2;
    m_words = (m_columns + wordBits - 1) / wordBits;
    const size_t cells = size_t(m_columns) * size_t(band.height);
    const size_t words = size_t(m_words) * size_t(band.height);
    if (m_cells.size() < cells)
        m_cells.resize(cells);
    if (m_written.size() < words)
        m_written.resize(words);
}

inline Coverage::Row Coverage::rowAt(int row)
{
    return {m_cells.data() + size_t(row) * size_t(m_columns), m_written.data() + size_t(row) * size_t(m_words)};
}

inline void Coverage::advance(Row *row) const
{
    row->cells += m_columns;
    row->written += m_words;
}

// Covers all of the pixels from a column on.
inline void Coverage::addWhole(const Row &row, int column, int height)
{
    row.cells[column] += uint(height * 2 * subpixels);
    row.written[uint(column) / wordBits] |= quint64(1) << (uint(column) % wordBits);
}

// `twiceInset` is the sum of the distances of both ends from the pixel's left edge.
inline void Coverage::addCell(const Row &row, int column, int height, int twiceInset)
{
    uint *cell = row.cells + column;
    cell[0] += uint(height * (2 * subpixels - twiceInset));
    cell[1] += uint(height * twiceInset);
    const uint bit = uint(column) % wordBits;
    quint64 *word = row.written + uint(column) / wordBits;
    word[0] |= quint64(3) << bit;
    if (bit == wordBits - 1)
        word[1] |= 1;
}

void Coverage::addLines(const FlatOutline &outline)
{
    int begin = 0;
    for (const int end : outline.ends) {
        addPolygon(outline.points.constData() + begin, outline.points.constData() + end);
        begin = end;
    }
}

void Coverage::addPolygon(const QPoint *begin, const QPoint *end)
{
    const QPoint origin(m_band.left * subpixels, m_band.top * subpixels);
    QPoint from = end[-1] - origin;
    for (const QPoint *at = begin; at != end; ++at) {
        const QPoint to = *at - origin;
        if (from.y() < to.y())
            addLine(from, to, 1);
        else if (from.y() > to.y())
            addLine(to, from, -1);
        from = to;
    }
}

// Where a line passes from row to row depends on its ends alone, not on the band.
void Coverage::addLine(QPoint upper, QPoint lower, int direction)
{
    const int end = qMin(lower.y(), m_band.height * subpixels);
    int y = qMax(upper.y(), 0);
    if (y >= end)
        return;
    if (upper.x() == lower.x()) {
        addUpright(upper.x(), y, end, direction);
        return;
    }
    const qint64 slope = fixedQuotient(lower.x() - upper.x(), lower.y() - upper.y());
    qint64 fixedX = upper.x() * fixedUnit + fixedHalf + (y - upper.y()) * slope;
    int x = int(fixedX >> fixedBits);
    Row row = rowAt(y >> subpixelBits);
    for (int nextRow = (y | (subpixels - 1)) + 1; y < end; nextRow += subpixels) {
        const int height = qMin(nextRow, end) - y;
        fixedX += height * slope;
        const int nextX = int(fixedX >> fixedBits);
        addInRow(row, qMin(x, nextX), qMax(x, nextX), height * direction);
        advance(&row);
        y += height;
        x = nextX;
    }
}

// Does the work of addLine() for the same `x` in all rows.
void Coverage::addUpright(int x, int from, int to, int direction)
{
    if (x >= m_band.width * subpixels)
        return;
    const int column = qMax(x, 0) >> subpixelBits;
    const int twiceInset = x > 0 ? 2 * (x - column * subpixels) : 0;
    Row row = rowAt(from >> subpixelBits);
    for (int y = from; y < to;) {
        const int nextY = qMin((y | (subpixels - 1)) + 1, to);
        const int height = (nextY - y) * direction;
        if (twiceInset == 0)
            addWhole(row, column, height);
        else
            addCell(row, column, height, twiceInset);
        advance(&row);
        y = nextY;
    }
}

// A part of a line from `left` to `right` that is `height` high, with the remaining pixels of the band fully
// covered.
inline void Coverage::addInRow(const Row &row, int left, int right, int height)
{
    const int column = left >> subpixelBits;
    if (left >= 0 && right <= (column + 1) * subpixels && right < m_band.width * subpixels)
        addCell(row, column, height, left + right - 2 * column * subpixels);
    else
        addAcross(row, left, right, height);
}

// The same for a part that goes across several columns, or leaves the band.
void Coverage::addAcross(const Row &row, int left, int right, int height)
{
    const int width = m_band.width * subpixels;
    if (left >= width)
        return;
    if (right <= 0) {
        addWhole(row, 0, height);
        return;
    }
    int column = qMax(left, 0) >> subpixelBits;
    if (left >= 0 && right <= (column + 1) * subpixels) {
        addCell(row, column, height, left + right - 2 * column * subpixels);
        return;
    }
    const qint64 steepness = fixedQuotient(height, right - left);
    int passed = 0;
    int at = left;
    if (left < 0) {
        passed = wholeOf(-left * steepness);
        addWhole(row, 0, passed);
        at = 0;
    }
    const int end = qMin(right, width);
    for (; at < end; ++column) {
        const int next = qMin((column + 1) * subpixels, right);
        const int passedThen = next == right ? height : wholeOf((next - left) * steepness);
        addCell(row, column, passedThen - passed, at + next - 2 * column * subpixels);
        passed = passedThen;
        at = next;
    }
}

} // namespace Svg
