#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// The cascade layers of all style sheets of a document, in the order in which they are first named (CSS Cascade 5
/// §6.4).
class CascadeLayers
{
public:
    /// What stands in no layer.
    static constexpr int none = 0;
    /// Where there are too many layers, or too deep inside each other.
    static constexpr int leftOut = -1;

    CascadeLayers() { m_layers.append(Layer()); }

    /// The layer of a name, with dots between its parts, inside another; without a name a new one. `leftOut` when
    /// there can be no more.
    int enter(int parent, const QString &name);
    /// The rank of every layer: what has the higher one wins, and what is in no layer has the highest.
    QVector<int> ranks() const;

private:
    struct Layer
    {
        int depth = 0;
        QVector<int> inside;
        QHash<QString, int> names;
    };

    int add(int parent, const QString &name);
    void rank(int layer, int *next, QVector<int> *ranks) const;

    QVector<Layer> m_layers;
};

} // namespace Svg
