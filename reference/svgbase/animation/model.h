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

/// Reads what an attribute's animations say anew, where "currentColor" is another colour than before. Whether it
/// is.
bool followColor(AnimatedAttribute *attribute, const QColor &current, const Tree &tree);

/// Reads the animation elements as they are now. Those without a target or without usable values play their part in
/// the timeline but show nothing.
AnimationModel readAnimations(const Tree &tree, const FactsOfNode &facts);

} // namespace Svg
