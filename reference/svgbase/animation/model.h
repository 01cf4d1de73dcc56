#pragma once

#include "animation/sandwich.h"

#include <functional>

namespace Svg {

/// Gives the facts of a node without animation.
using FactsOfNode = std::function<FactsPointer(NodeIndex)>;

/// All animation of a document, read from its elements.
struct AnimationModel
{
    Timeline timeline;
    /// Ordered by target.
    QVector<AnimatedAttribute> attributes;
    /// Whether motions were left out because their paths are too long together.
    bool lacksMotions = false;
};

/// Reads what an attribute's animations say anew, where "currentColor" is another colour than before. Whether it
/// is.
bool followColor(AnimatedAttribute *attribute, const QColor &current, const Tree &tree);

/// Reads the animation elements as they are now. Those without a target or without usable values play their part in
/// the timeline but show nothing.
AnimationModel readAnimations(const Tree &tree, const FactsOfNode &facts);

} // namespace Svg
