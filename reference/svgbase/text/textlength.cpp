#include "text/textlength.h"

#include "grammar/inputlimits.h"
#include "grammar/lengths.h"

#include <algorithm>

namespace Svg {

namespace {

std::optional<Length> lengthOf(const Tree &tree, const TextLevel &level)
{
    const AttributeValue &given = tree.node(level.node).attributes.held(QStringLiteral("textLength"));
    const std::optional<Length> length = Svg::lengthOf(given);
    return length && length->value >= 0 ? length : std::nullopt;
}

class LengthAdjustment
{
public:
    LengthAdjustment(const Tree &tree, QVector<PlacedCluster> *clusters)
        : m_tree(tree)
        , m_clusters(*clusters)
        , m_parts(clusters->size(), noPart)
    {
    }

    void apply(const TextLevel &level, double length);

private:
    void findExtent(const TextLevel &level);
    void spread(double extra);
    void widen(double factor);
    bool isJoined(int cluster, int next) const
    {
        return m_parts.at(cluster) != noPart && m_parts.at(cluster) == m_parts.at(next);
    }

    static constexpr int noPart = -1;

    const Tree &m_tree;
    QVector<PlacedCluster> &m_clusters;
    /// For each cluster the outermost part with a "textLength" that contains it so far, by its first cluster. Such
    /// a part is moved as a whole.
    QVector<int> m_parts;
    /// Clusters of the level.
    int m_begin = 0;
    int m_end = 0;
    double m_left = 0;
    double m_right = 0;
};

void LengthAdjustment::findExtent(const TextLevel &level)
{
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

// Order along the line: right-to-left text is spread like any other.
void LengthAdjustment::spread(double extra)
{
    QVector<int> order;
    for (int i = m_begin; i < m_end; ++i)
        order.append(i);
    const auto isLeft = [&](int a, int b) { return m_clusters.at(a).along < m_clusters.at(b).along; };
    if (!std::is_sorted(order.begin(), order.end(), isLeft))
        std::stable_sort(order.begin(), order.end(), isLeft);
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
    std::fill(m_parts.begin() + m_begin, m_parts.begin() + m_end, m_begin);
}

} // namespace

bool givenLength(const Tree &tree, const TextLevel &level)
{
    return lengthOf(tree, level).has_value();
}

bool adjustLengths(const Tree &tree, const TextContent &content, const QSizeF &viewport,
                   QVector<PlacedCluster> *clusters)
{
    LengthAdjustment adjustment(tree, clusters);
    int left = Limits::textLengths;
    for (int i = content.levels.size() - 1; i >= 0; --i) {
        const TextLevel &level = content.levels.at(i);
        const std::optional<Length> length = lengthOf(tree, level);
        if (!length)
            continue;
        if (left == 0)
            return false;
        adjustment.apply(level, toUserUnits(*length, Axis::Horizontal, {viewport, level.emSize}));
        --left;
    }
    return true;
}

} // namespace Svg
