#include "filters/pixelfilters.h"
#include "filters/pixellines.h"

#include <QtCore/QVarLengthArray>

namespace Svg {

namespace {

/// The largest or smallest value within a distance of each position, in time independent of the distance:
/// `m_places` has the candidates in reach, each beating all later ones.
class SlidingExtreme
{
public:
    SlidingExtreme(int length, int reach, bool greatest)
        : m_places(length)
        , m_values(length)
        , m_reach(reach)
        , m_greatest(greatest)
    {
    }

    void apply(uchar *line, int length)
    {
        std::copy(line, line + length, m_values.begin());
        m_first = m_last = 0;
        for (int i = 0; i < length + m_reach; ++i) {
            if (i < length)
                push(i);
            const int place = i - m_reach;
            if (place < 0)
                continue;
            while (m_places[m_first] < place - m_reach)
                ++m_first;
            line[place] = m_values[m_places[m_first]];
        }
        if (!m_greatest)
            clearEnds(line, length);
    }

private:
    void push(int place)
    {
        while (m_last > m_first && !isBeaten(m_values[place], m_values[m_places[m_last - 1]]))
            --m_last;
        m_places[m_last++] = place;
    }
    bool isBeaten(uchar value, uchar known) const { return m_greatest ? value < known : value > known; }
    // Beyond the picture everything is transparent, which is the smallest value.
    void clearEnds(uchar *line, int length) const
    {
        std::fill(line, line + qMin(m_reach, length), uchar(0));
        std::fill(line + qMax(0, length - m_reach), line + length, uchar(0));
    }

    QVector<int> m_places;
    PixelLine m_values;
    int m_reach;
    bool m_greatest;
    int m_first = 0;
    int m_last = 0;
};

void morphLines(QImage *picture, int reach, bool dilates, bool columns)
{
    const int length = columns ? picture->height() : picture->width();
    if (reach <= 0)
        return;
    SlidingExtreme extreme(length, qMin(reach, length), dilates);
    changeLines(picture, columns, [&extreme](uchar *line, int count) { extreme.apply(line, count); });
}

} // namespace

void morphPicture(QImage *picture, int across, int down, bool dilates)
{
    morphLines(picture, across, dilates, false);
    morphLines(picture, down, dilates, true);
}

} // namespace Svg
