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
    /// Its index in the timeline.
    int timing = 0;
    std::optional<Effect> effect;
    std::optional<Motion> motion;
    /// The animation element.
    NodeIndex node = noNode;
};

/// All animations of one attribute of one node: the later an animation began, the higher its priority (SMIL 3.0
/// §12.4.2).
struct AnimatedAttribute
{
    NodeIndex target = noNode;
    /// The attribute's name in the template.
    QString name;
    AttributeId id = AttributeId::Unknown;
    /// Whether it is a property, whose animated value overrides every other declaration.
    bool isProperty = false;
    /// Whether a value, or the attribute without animation, is "currentColor", which may be animated, too.
    bool followsColor = false;
    bool baseFollowsColor = false;
    ValueContext context;
    QVector<Animation> animations;
    /// Value of the attribute without animation.
    AnimatedValue base;
    /// The same for a list of transforms.
    TransformList baseTransforms;
    /// The displayed value; empty while no animation is active.
    std::optional<AttributeValue> shown;
    /// State of each animation at the displayed time.
    std::vector<Timeline::State> states;
};

/// The value that results from the states; empty when no animation is active.
std::optional<AttributeValue> shownValue(const AnimatedAttribute &attribute);
/// Updates the states of an attribute's animations; false when none has changed.
bool refreshStates(AnimatedAttribute *attribute, const Timeline &timeline);

} // namespace Svg
