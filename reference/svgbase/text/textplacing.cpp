#include "text/textplacing.h"

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/textlength.h"

#include <algorithm>

namespace Svg {

namespace {

/// Clusters that are anchored together; a chunk ends at the next character with a position of its own.
struct Chunk
{
    int firstCharacter = 0;
    int firstCluster = 0;
    int endCluster = 0;
    /// The `textPath` around it, as a level; -1 without one.
    int path = -1;
};

class TextPlacer
{
public:
    TextPlacer(const Tree &tree, const TextContent &content, const QSizeF &viewport, const TextServices &services)
        : m_tree(tree)
        , m_content(content)
        , m_viewport(viewport)
        , m_services(services)
        , m_vertical(textStyleOf(content.levels.first().style).writingMode != WritingMode::Horizontal)
        , m_upwards(textStyleOf(content.levels.first().style).writingMode == WritingMode::SidewaysLeft)
    {
    }

    QVector<PlacedCluster> place();

private:
    ShapingMode mode() const;
    bool startsChunk(int character) const;
    void shape();
    void shift();
    void setChunks();
    void setChunk(const Chunk &chunk);
    void putOnLine(const Chunk &chunk);
    void putOnWay(const Chunk &chunk);
    const TextWay &way(int level);
    const TextCharacter &firstOf(const Chunk &chunk) const { return m_content.characters.at(chunk.firstCharacter); }
    std::optional<double> alongOf(const TextCharacter &c) const;
    QPointF shiftOf(const TextCharacter &c) const;
    std::optional<double> asideOf(const TextCharacter &c) const { return m_vertical ? c.x : c.y; }

    const Tree &m_tree;
    const TextContent &m_content;
    QSizeF m_viewport;
    TextServices m_services;
    bool m_vertical;
    /// Whether a vertical line goes up: distances along it count upwards then.
    bool m_upwards;
    QVector<Chunk> m_chunks;
    QVector<PlacedCluster> m_clusters;
    QHash<int, std::shared_ptr<TextWay>> m_ways;
    /// Offset by absolute positions of everything that follows.
    QPointF m_offset;
    /// The `textPath` of the previous chunk, as a level.
    int m_pathBefore = -1;
};

std::optional<double> TextPlacer::alongOf(const TextCharacter &c) const
{
    if (m_upwards && c.y)
        return -*c.y;
    return m_vertical ? c.y : c.x;
}

// Shift of a character along the line and across it.
QPointF TextPlacer::shiftOf(const TextCharacter &c) const
{
    if (m_upwards)
        return {-c.dy, c.dx};
    return m_vertical ? QPointF(c.dy, c.dx) : QPointF(c.dx, c.dy);
}

// Split text into single glyphs only where that has an effect.
ShapingMode TextPlacer::mode() const
{
    ShapingMode mode;
    mode.vertical = m_vertical;
    mode.separate = m_vertical;
    for (const TextLevel &level : m_content.levels) {
        const TextStyle &text = textStyleOf(level.style);
        const bool spaced = text.spacing() != 0 || text.wordSpacing != 0;
        mode.separate = mode.separate || spaced || level.path >= 0 || givenLength(m_tree, level);
    }
    for (int i = 0; i < m_content.characters.size() && !mode.separate; ++i) {
        const TextCharacter &character = m_content.characters.at(i);
        mode.separate = character.rotate != 0 || (isMoved(character) && !startsChunk(i));
    }
    return mode;
}

bool TextPlacer::startsChunk(int index) const
{
    if (index == 0)
        return true;
    const TextCharacter &character = m_content.characters.at(index);
    const TextCharacter &before = m_content.characters.at(index - 1);
    if (m_content.levels.at(character.level).path != m_content.levels.at(before.level).path)
        return true;
    // On a path, only positions along it count (SVG 1.1 §10.13.3).
    const bool onWay = m_content.levels.at(character.level).path >= 0;
    const bool placed = alongOf(character) || (asideOf(character) && !onWay);
    return placed && canBePlaced(m_content.text, character);
}

void TextPlacer::shape()
{
    const ShapingMode how = mode();
    double flow = 0;
    const int count = m_content.characters.size();
    for (int begin = 0; begin < count;) {
        int end = begin + 1;
        while (end < count && !startsChunk(end))
            ++end;
        const int first = m_clusters.size();
        const QVector<TextCluster> clusters = shapeChunk(m_content, begin, end, how, m_services);
        double width = 0;
        for (const TextCluster &cluster : clusters) {
            PlacedCluster placed;
            placed.glyphs = cluster;
            placed.along = flow + cluster.offset;
            m_clusters.append(placed);
            width += cluster.advance;
        }
        flow += width;
        const int path = m_content.levels.at(m_content.characters.at(begin).level).path;
        m_chunks.append({begin, first, m_clusters.size(), path});
        begin = end;
    }
}

// "dx" and "dy" move everything that follows.
void TextPlacer::shift()
{
    QPointF sum;
    for (PlacedCluster &cluster : m_clusters) {
        const int first = cluster.glyphs.firstCharacter;
        for (int i = first; i < first + cluster.glyphs.characterCount; ++i) {
            const TextCharacter &character = m_content.characters.at(i);
            sum += shiftOf(character);
        }
        cluster.along += sum.x();
        cluster.aside += sum.y();
    }
}

const TextWay &TextPlacer::way(int level)
{
    std::shared_ptr<TextWay> &known = m_ways[level];
    if (!known) {
        const TextLevel &path = m_content.levels.at(level);
        known = std::make_shared<TextWay>(m_tree, path.node, path.style, m_viewport, m_services.transformOf);
        if (known->isTooLong())
            *m_services.problem = {Message::TextPathTooLong,
                                   QStringLiteral("Text along a path of more than %1 elements is left out.")
                                       .arg(Limits::textPathElements)};
    }
    return *known;
}

// The first character of the chunk is anchored at its position; "start" and "end" change sides for right-to-left
// text (SVG 2 §11.5.4).
void TextPlacer::setChunk(const Chunk &chunk)
{
    const TextCharacter &first = firstOf(chunk);
    const ComputedStyle &style = m_content.levels.at(first.level).style;
    const bool rightToLeft = textStyleOf(m_content.levels.first().style).rightToLeft;
    PlacedCluster &leader = m_clusters[chunk.firstCluster];
    double left = leader.along;
    // When right-to-left text comes first, the line does not begin with its first character.
    const auto isFarther = [](const PlacedCluster &a, const PlacedCluster &b) {
        return a.glyphs.offset < b.glyphs.offset;
    };
    const double outermost =
        std::min_element(m_clusters.begin() + chunk.firstCluster, m_clusters.begin() + chunk.endCluster, isFarther)
            ->along;
    double right = leader.along + leader.glyphs.advance * leader.widening;
    for (int i = chunk.firstCluster; i < chunk.endCluster; ++i) {
        const PlacedCluster &cluster = m_clusters.at(i);
        left = qMin(left, cluster.along);
        right = qMax(right, cluster.along + cluster.glyphs.advance * cluster.widening);
    }
    const QPointF own = shiftOf(first);
    const double begin = rightToLeft ? left : outermost;
    std::optional<double> along = alongOf(first);
    std::optional<double> aside = asideOf(first);
    if (chunk.path >= 0) {
        along = along.value_or(0);
        aside = 0;
    } else if (m_pathBefore >= 0) {
        const QPointF end = way(m_pathBefore).end();
        along = along.value_or(end.x());
        aside = aside.value_or(end.y());
    }
    if (along)
        m_offset.setX(*along + own.x() - begin);
    if (aside)
        m_offset.setY(*aside + own.y() - leader.aside);
    const bool atRight = (style.textAnchor == TextAnchor::End) != textStyleOf(style).rightToLeft;
    const double anchor = style.textAnchor == TextAnchor::Middle ? (begin + right) / 2 : atRight ? right : begin;
    const QPointF offset = m_offset + QPointF(begin - anchor, 0);
    for (int i = chunk.firstCluster; i < chunk.endCluster; ++i) {
        m_clusters[i].along += offset.x();
        m_clusters[i].aside += offset.y();
    }
    m_pathBefore = chunk.path;
}

void TextPlacer::putOnLine(const Chunk &chunk)
{
    for (int i = chunk.firstCluster; i < chunk.endCluster; ++i) {
        PlacedCluster &cluster = m_clusters[i];
        if (m_upwards) {
            cluster.line.translate(cluster.aside, -cluster.along);
            cluster.line.rotate(-90);
        } else if (m_vertical) {
            cluster.line.translate(cluster.aside, cluster.along);
            cluster.line.rotate(90);
        } else {
            cluster.line.translate(cluster.along, cluster.aside);
        }
    }
}

// A character is perpendicular to the path at its middle.
void TextPlacer::putOnWay(const Chunk &chunk)
{
    const TextWay &path = way(chunk.path);
    const TextAnchor anchor = m_content.levels.at(firstOf(chunk).level).style.textAnchor;
    for (int i = chunk.firstCluster; i < chunk.endCluster; ++i) {
        PlacedCluster &cluster = m_clusters[i];
        const double half = cluster.glyphs.advance * cluster.widening / 2;
        const std::optional<PathMeasure::Place> place =
            path.length() > 0 ? path.at(cluster.along + path.startOffset() + half, anchor) : std::nullopt;
        cluster.shown = place.has_value();
        if (!place)
            continue;
        cluster.line.translate(place->point.x(), place->point.y());
        cluster.line.rotate(place->angle);
        cluster.line.translate(-half, cluster.aside);
    }
}

void TextPlacer::setChunks()
{
    for (const Chunk &chunk : qAsConst(m_chunks)) {
        if (chunk.firstCluster == chunk.endCluster)
            continue;
        setChunk(chunk);
        if (chunk.path >= 0)
            putOnWay(chunk);
        else
            putOnLine(chunk);
    }
}

QVector<PlacedCluster> TextPlacer::place()
{
    shape();
    shift();
    if (!adjustLengths(m_tree, m_content, m_viewport, &m_clusters))
        *m_services.problem = {
            Message::TooManyTextLengths,
            QStringLiteral("Of a text, only %1 parts take a given length.").arg(Limits::textLengths)};
    setChunks();
    return m_clusters;
}

} // namespace

QVector<PlacedCluster> placeText(const Tree &tree, const TextContent &content, const QSizeF &viewport,
                                 const TextServices &services)
{
    return TextPlacer(tree, content, viewport, services).place();
}

} // namespace Svg
