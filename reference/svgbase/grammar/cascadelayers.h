#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// The cascade layers of all style sheets of a document, in the order of their first mention (CSS Cascade 5 §6.4).
class CascadeLayers
{
public:
    /// Layer of rules outside all layers.
    static constexpr int none = 0;
    /// Result for too many or too deeply nested layers.
    static constexpr int leftOut = -1;

    CascadeLayers() { m_layers.append(Layer()); }

    /// The layer of a name, with dots between its parts, inside another; a new one without a name. `leftOut` at the
    /// limit.
    int enter(int parent, const QString &name);
    /// The rank of every layer: the higher rank wins, and rules outside all layers have the highest.
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
