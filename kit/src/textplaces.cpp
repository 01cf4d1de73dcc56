#include <shapekit/textplaces.h>

#include <algorithm>

namespace shapekit {

TextPlaces::TextPlaces(const QString &text)
    : m_lineStarts{0}
{
    for (int end = text.indexOf(QLatin1Char('\n')); end >= 0; end = text.indexOf(QLatin1Char('\n'), end + 1))
        m_lineStarts.append(end + 1);
}

TextPlace TextPlaces::of(int offset) const
{
    const auto next = std::upper_bound(m_lineStarts.cbegin(), m_lineStarts.cend(), offset);
    return {next - m_lineStarts.cbegin(), offset - *(next - 1) + 1};
}

int TextPlaces::offsetOf(const TextPlace &place) const
{
    if (place.line < 1)
        return 0;
    const qint64 line = std::min<qint64>(place.line, m_lineStarts.size());
    return int(m_lineStarts.at(int(line) - 1) + place.column - 1);
}

} // namespace shapekit
