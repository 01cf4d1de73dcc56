#pragma once

#include "resolve/servertransform.h"
#include "style/treestyles.h"
#include "tree/tree.h"

#include <QtCore/QHash>
#include <QtCore/QSizeF>
#include <QtGui/QBrush>

#include <memory>
#include <optional>

namespace Svg {

/// The element that a gradient paints.
struct GradientTarget
{
    /// Bounds of the painted geometry without its stroke, user units.
    QRectF bounds;
    QSizeF viewport;
    /// Multiplies the opacity of every stop.
    double opacity = 1;
};

/// Gradients with their stops but without a position, by node and opacity: all brushes of one share its stops.
class GradientCache
{
public:
    struct Known
    {
        QLinearGradient linear;
        QRadialGradient radial;
        QColor last;
        int stops = 0;
        ServerTransform transform;
        /// Of the gradient's own element, user units.
        double fontSize = 16;
    };

    /// Discards everything when references may have changed.
    void setRevision(quint32 revision);
    /// Whether the gradient requested last refers to too many others.
    bool hasCutChain() const { return m_cutChain; }
    void setCutChain(bool cut) { m_cutChain = cut; }
    const Known *find(NodeIndex gradient, double opacity) const;
    const Known *insert(NodeIndex gradient, double opacity, const Known &known);
    TreeStyles *styles() { return &m_styles; }

private:
    QHash<QPair<NodeIndex, double>, std::shared_ptr<const Known>> m_known;
    TreeStyles m_styles;
    quint32 m_revision = 0;
    bool m_cutChain = false;
};

/// The brush of a linear or radial gradient (SVG 1.1 §13.2) in the user units of its target; without stops one that
/// paints nothing. Empty when the node is not a gradient, or is relative to bounds without area and cannot be used
/// (SVG 1.1 §7.11).
std::optional<QBrush> gradientBrush(const Tree &tree, NodeIndex gradient, const GradientTarget &target,
                                    GradientCache *cache);

} // namespace Svg
