#include "text/textlength.h"

#include "grammar/lengths.h"

#include <algorithm>

namespace Svg {

namespace {

std::optional<Length> lengthOf(const Tree &tree, const TextLevel &level)
{
    const QString text = tree.node(level.node).attributes.value(QStringLiteral("textLength"));
    const std::optional<Length> length = parseLength(text);
    return length && length->value >= 0 ? length : std::nullopt;
}

class LengthAdjustment
{
public:
    LengthAdjustment(const Tree &tree, const TextContent &content, QVector<PlacedCluster> *clusters)
        : m_tree(tree)
        , m_content(content)
        , m_clusters(*clusters)
    {
    }

    void apply(const TextLevel &level, double length);

private:
    void findExtent(const TextLevel &level);
    void spread(double extra);
    void widen(double factor);
    bool isJoined(int cluster, int next) const;

    const Tree &m_tree;
    const TextContent &m_content;
    QVector<PlacedCluster> &m_clusters;
    /// Clusters of the level, and those that were adjusted as a whole before.
    int m_begin = 0;
    int m_end = 0;
    const TextLevel *m_level = nullptr;
    double m_left = 0;
    double m_right = 0;
};

void LengthAdjustment::findExtent(const TextLevel &level)
{
    m_level = &level;
    const auto isBefore = [](const PlacedCluster &cluster, int character) {
        return cluster.glyphs.firstCharacter < character;
    };
    const auto at = [&](int character) {
        return int(std::lower_bound(m_clusters.begin(), m_clusters.end(), character, isBefore) -
                   m_clusters.begin());
    };
    m_begin = at(level.firstCharacter);
    m_end = at(level.endCharacter);
    for (int i = m_begin; i < m_end; ++i) {
        const PlacedCluster &cluster = m_clusters.at(i);
        const double right = cluster.along + cluster.glyphs.advance * cluster.widening;
        m_left = i == m_begin ? cluster.along : qMin(m_left, cluster.along);
        m_right = i == m_begin ? right : qMax(m_right, right);
    }
}

// A part that has a length of its own is moved as a whole.
bool LengthAdjustment::isJoined(int cluster, int next) const
{
    const auto adjustedLevel = [&](int index) {
        int level = m_content.characters.at(m_clusters.at(index).glyphs.firstCharacter).level;
        int found = -1;
        for (; level >= 0 && &m_content.levels.at(level) != m_level; level = m_content.levels.at(level).above) {
            if (givenLength(m_tree, m_content.levels.at(level)))
                found = level;
        }
        return found;
    };
    const int level = adjustedLevel(cluster);
    return level >= 0 && level == adjustedLevel(next);
}

// Order along the line: text that runs to the left is spread like any other.
void LengthAdjustment::spread(double extra)
{
    QVector<int> order;
    for (int i = m_begin; i < m_end; ++i)
        order.append(i);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return m_clusters.at(a).along < m_clusters.at(b).along; });
    QVector<int> gaps{0};
    for (int i = 1; i < order.size(); ++i)
        gaps.append(gaps.constLast() + (isJoined(order.at(i - 1), order.at(i)) ? 0 : 1));
    if (gaps.constLast() == 0)
        return;
    for (int i = 0; i < order.size(); ++i)
        m_clusters[order.at(i)].along += extra * gaps.at(i) / gaps.constLast();
    for (int i = m_end; i < m_clusters.size(); ++i)
        m_clusters[i].along += extra;
}

void LengthAdjustment::widen(double factor)
{
    for (int i = m_begin; i < m_end; ++i) {
        m_clusters[i].along = m_left + (m_clusters.at(i).along - m_left) * factor;
        m_clusters[i].widening *= factor;
    }
    for (int i = m_end; i < m_clusters.size(); ++i)
        m_clusters[i].along += (m_right - m_left) * (factor - 1);
}

void LengthAdjustment::apply(const TextLevel &level, double length)
{
    findExtent(level);
    if (m_begin == m_end || !(m_right > m_left))
        return;
    const QString adjust = m_tree.node(level.node).attributes.value(QStringLiteral("lengthAdjust")).trimmed();
    if (adjust == QLatin1String("spacingAndGlyphs"))
        widen(length / (m_right - m_left));
    else
        spread(length - (m_right - m_left));
}

} // namespace

bool givenLength(const Tree &tree, const TextLevel &level)
{
    return lengthOf(tree, level).has_value();
}

void adjustLengths(const Tree &tree, const TextContent &content, const QSizeF &viewport,
                   QVector<PlacedCluster> *clusters)
{
    for (int i = content.levels.size() - 1; i >= 0; --i) {
        const TextLevel &level = content.levels.at(i);
        const std::optional<Length> length = lengthOf(tree, level);
        if (length)
            LengthAdjustment(tree, content, clusters)
                .apply(level, toUserUnits(*length, Axis::Horizontal, {viewport, level.style.font.size}));
    }
}

} // namespace Svg
