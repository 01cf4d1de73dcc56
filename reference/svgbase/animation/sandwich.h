#pragma once

#include "animation/effect.h"
#include "animation/motion.h"
#include "animation/timeline.h"
#include "resolve/facts.h"
#include "tree/tree.h"

namespace Svg {

/// One animation with an effect.
struct Animation
{
    /// Its place in the timeline.
    int timing = 0;
    std::optional<Effect> effect;
    std::optional<Motion> motion;
    /// The element that says it.
    NodeIndex node = noNode;
};

/// Everything that is animated of one attribute of one node: the later an animation began, the higher it lies
/// (SMIL 3.0 §12.4.2).
struct AnimatedAttribute
{
    NodeIndex target = noNode;
    /// The attribute as the template names it.
    QString name;
    AttributeId id = AttributeId::Unknown;
    /// Whether it is a property, whose animated value lies over every other declaration.
    bool isProperty = false;
    /// Whether a value, or the attribute without animation, is "currentColor", which may be animated, too.
    bool followsColor = false;
    bool baseFollowsColor = false;
    ValueContext context;
    QVector<Animation> animations;
    /// Value of the attribute without animation.
    AnimatedValue base;
    /// The same of a list of transforms.
    TransformList baseTransforms;
    /// The value that is shown; nothing while no animation applies.
    std::optional<AttributeValue> shown;
    /// State of each animation at the displayed time.
    std::vector<Timeline::State> states;
};

/// The value that the states make; nothing when no animation applies.
std::optional<AttributeValue> shownValue(const AnimatedAttribute &attribute);
/// Looks up what the animations of an attribute do now; false when nothing of it changed since.
bool refreshStates(AnimatedAttribute *attribute, const Timeline &timeline);

} // namespace Svg
