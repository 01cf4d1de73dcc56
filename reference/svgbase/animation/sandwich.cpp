#include "animation/sandwich.h"

#include <algorithm>

namespace Svg {

namespace {

using States = std::vector<Timeline::State>;

/// Indexes of the active animations, lowest first. Those that began together keep their document order.
QVector<int> layers(const States &states)
{
    QVector<int> order;
    for (int i = 0; i < int(states.size()); ++i)
        if (states[size_t(i)].applies)
            order.append(i);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return states[size_t(a)].begin < states[size_t(b)].begin; });
    return order;
}

void stack(TransformList *list, const TransformList &functions, bool additive)
{
    if (!additive)
        list->clear();
    *list += functions;
}

// A motion moves the result of the other transforms (SVG 1.1 §19.2.15).
TransformList shownTransforms(const AnimatedAttribute &attribute, const QVector<int> &order)
{
    TransformList own = attribute.baseTransforms;
    TransformList motion;
    for (const int i : order) {
        const Animation &animation = attribute.animations.at(i);
        const RoundPosition &position = attribute.states[size_t(i)].position;
        if (animation.motion)
            stack(&motion, animation.motion->transforms(position), animation.motion->isAdditive());
        else
            stack(&own, {animation.effect->function(position)}, animation.effect->isAdditive());
    }
    return motion + own;
}

AnimatedValue topValue(const AnimatedAttribute &attribute, const QVector<int> &order)
{
    AnimatedValue value = attribute.base;
    for (const int i : order)
        value = attribute.animations.at(i).effect->applied(value, attribute.states[size_t(i)].position);
    return value;
}

bool isSame(const Timeline::State &a, const Timeline::State &b)
{
    return a.applies == b.applies && a.begin == b.begin && a.position.round == b.position.round &&
           a.position.progress == b.position.progress;
}

} // namespace

std::optional<AttributeValue> shownValue(const AnimatedAttribute &attribute)
{
    const QVector<int> order = layers(attribute.states);
    if (order.isEmpty())
        return std::nullopt;
    if (attribute.context.grammar == ValueContext::Transforms)
        return AttributeValue(TypedValue(shownTransforms(attribute, order)));
    return attributeValue(topValue(attribute, order), attribute.context);
}

bool refreshStates(AnimatedAttribute *attribute, const Timeline &timeline)
{
    States &states = attribute->states;
    bool changed = states.size() != size_t(attribute->animations.size());
    states.resize(size_t(attribute->animations.size()));
    for (int i = 0; i < attribute->animations.size(); ++i) {
        const Timeline::State state = timeline.state(attribute->animations.at(i).timing);
        changed = changed || !isSame(state, states[size_t(i)]);
        states[size_t(i)] = state;
    }
    return changed;
}

} // namespace Svg
