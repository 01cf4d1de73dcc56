#include "grammar/cascadelayers.h"

#include "grammar/inputlimits.h"

#include <QtCore/QStringList>

namespace Svg {

namespace {

constexpr int deepestLayer = 16;

} // namespace

int CascadeLayers::add(int parent, const QString &name)
{
    const int depth = m_layers.at(parent).depth + 1;
    if (m_layers.size() > Limits::styleLayers || depth > deepestLayer)
        return leftOut;
    const int layer = m_layers.size();
    m_layers.append(Layer());
    m_layers[layer].depth = depth;
    m_layers[parent].inside.append(layer);
    if (!name.isEmpty())
        m_layers[parent].names.insert(name, layer);
    return layer;
}

int CascadeLayers::enter(int parent, const QString &name)
{
    int layer = parent;
    const QStringList parts = name.split(QLatin1Char('.'));
    for (const QString &part : parts) {
        const int known = m_layers.at(layer).names.value(part, leftOut);
        layer = part.isEmpty() || known == leftOut ? add(layer, part) : known;
        if (layer == leftOut)
            return leftOut;
    }
    return layer;
}

// Direct contents of a layer win over its inner layers.
void CascadeLayers::rank(int layer, int *next, QVector<int> *ranks) const
{
    for (const int inner : m_layers.at(layer).inside)
        rank(inner, next, ranks);
    (*ranks)[layer] = (*next)++;
}

QVector<int> CascadeLayers::ranks() const
{
    QVector<int> result(m_layers.size());
    int next = 0;
    rank(none, &next, &result);
    return result;
}

} // namespace Svg
