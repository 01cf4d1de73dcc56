#include "text/linebreaking.h"

#include "properties/computedstyle.h"

#include <QtCore/QTextBoundaryFinder>

namespace Svg {

namespace {

constexpr ushort zeroWidthSpace = 0x200b;

double lineDistance(const TextLevel &text)
{
    const TextStyle &style = textStyleOf(text.style);
    if (style.lineHeight > 0)
        return style.lineHeight;
    if (style.lineHeightShare > 0)
        return style.lineHeightShare * text.emSize;
    const FontMeasures measures = levelMeasures(text);
    return measures.ascent - measures.descent;
}

class LineBreaker
{
public:
    LineBreaker(TextContent *content, const TextServices &services)
        : m_content(*content)
        , m_services(services)
        , m_size(inlineStyleOf(content->levels.first().style).inlineSize)
        , m_vertical(textStyleOf(content->levels.first().style).writingMode != WritingMode::Horizontal)
    {
    }

    void breakLines();

private:
    bool isSpace(int character) const;
    QVector<int> lineBegins() const;
    void beginLine(int character, const QPointF &place);
    void setLines(const QVector<int> &begins);
    void emptyLineEnd(int character);

    TextContent &m_content;
    TextServices m_services;
    double m_size;
    bool m_vertical;
};

bool LineBreaker::isSpace(int character) const
{
    return m_content.text.at(m_content.characters.at(character).begin) == QLatin1Char(' ');
}

// Fills each line as far as there is room; a word that is too long stays whole.
QVector<int> LineBreaker::lineBegins() const
{
    const QVector<TextCluster> clusters =
        shapeChunk(m_content, 0, m_content.characters.size(), {true, m_vertical}, m_services);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, m_content.text);
    QVector<int> begins;
    int lineBegin = 0;
    int lastBreak = 0;
    double width = 0;
    double widthAtBreak = 0;
    for (const TextCluster &cluster : clusters) {
        const int first = cluster.firstCharacter;
        finder.setPosition(m_content.characters.at(first).begin);
        if (finder.isAtBoundary() && first > lineBegin) {
            lastBreak = first;
            widthAtBreak = width;
        }
        width += cluster.advance;
        if (width > m_size && !isSpace(first) && lastBreak > lineBegin) {
            begins.append(lastBreak);
            lineBegin = lastBreak;
            width -= widthAtBreak;
        }
    }
    return begins;
}

void LineBreaker::emptyLineEnd(int character)
{
    for (int i = character; i >= 0 && isSpace(i); --i)
        m_content.text[m_content.characters.at(i).begin] = QChar(zeroWidthSpace);
}

void LineBreaker::beginLine(int character, const QPointF &place)
{
    TextCharacter placed = m_content.characters.at(character);
    placed.x = place.x();
    placed.y = place.y();
    m_content.characters.replace(character, placed);
}

void LineBreaker::setLines(const QVector<int> &begins)
{
    const double distance = lineDistance(m_content.levels.first());
    const QPointF step = m_vertical ? QPointF(-distance, 0) : QPointF(0, distance);
    QPointF place(m_content.characters.first().x.value_or(0), m_content.characters.first().y.value_or(0));
    for (TextCharacter &character : m_content.characters) {
        character.x.reset();
        character.y.reset();
    }
    beginLine(0, place);
    for (const int begin : begins) {
        place += step;
        emptyLineEnd(begin - 1);
        beginLine(begin, place);
    }
}

void LineBreaker::breakLines()
{
    if (m_size > 0 && !m_content.characters.isEmpty())
        setLines(lineBegins());
}

} // namespace

void breakLines(TextContent *content, const TextServices &services)
{
    LineBreaker(content, services).breakLines();
}

} // namespace Svg
