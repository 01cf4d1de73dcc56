#pragma once

#include "animation/sandwich.h"

namespace Svg {

/// All animation of a document, read from its elements.
struct AnimationModel
{
    Timeline timeline;
    /// Ordered by target.
    QVector<AnimatedAttribute> attributes;
    /// Whether motions were left out because their paths are too long together.
    bool lacksMotions = false;
    /// Whether attributes of an element were left out because too many of them are animated.
    bool lacksAttributes = false;
};

/// Reads an attribute's animations again when "currentColor" has changed. Returns whether it has.
bool followColor(AnimatedAttribute *attribute, const QColor &current, const Tree &tree);

/// Reads the animation elements in their present state. Those without a target or without usable values take part
/// in the timeline but have no effect.
AnimationModel readAnimations(const Tree &tree, const FactsOfNode &facts);

} // namespace Svg
