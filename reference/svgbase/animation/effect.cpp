#include "animation/effect.h"

#include "grammar/inputlimits.h"

namespace Svg {

namespace {

QString valueOf(const Attributes &attributes, const char *name)
{
    return attributes.value(QLatin1String(name)).trimmed();
}

QStringList listedValues(const QString &text)
{
    QStringList values = text.split(QLatin1Char(';'));
    for (QString &value : values)
        value = value.trimmed();
    if (values.constLast().isEmpty())
        values.removeLast();
    return values;
}

} // namespace

bool Effect::makeAllAlike()
{
    for (int i = 1; i < m_values.size(); ++i)
        if (!makeAlike(&m_values[0], &m_values[i], m_context))
            return false;
    // The first value may have been converted on the way.
    for (int i = 1; i < m_values.size(); ++i)
        if (!makeAlike(&m_values[0], &m_values[i], m_context))
            return false;
    return m_values.constFirst().kind != AnimatedValue::Text;
}

void Effect::pace()
{
    QVector<double> distances;
    for (int i = 1; i < m_values.size(); ++i)
        distances.append(distanceBetween(m_values.at(i - 1), m_values.at(i), m_context));
    m_frames.pace(distances);
}

std::optional<Effect> Effect::fromValues(const Attributes &attributes, const QVector<AnimatedValue> &values,
                                         const ValueContext &context, CalcMode mode)
{
    const bool function = context.grammar == ValueContext::Transforms;
    const bool usable = std::all_of(values.begin(), values.end(),
                                    [](const AnimatedValue &value) { return value.kind != AnimatedValue::Text; });
    if (function && !usable)
        return std::nullopt;
    Effect effect;
    effect.m_context = context;
    effect.m_values = values;
    effect.m_interpolates = effect.makeAllAlike();
    const CalcMode possible = effect.m_interpolates ? mode : CalcMode::Discrete;
    const std::optional<Keyframes> frames = Keyframes::read(attributes, possible, values.size());
    if (!frames)
        return std::nullopt;
    effect.m_frames = *frames;
    if (effect.m_frames.mode() == CalcMode::Paced)
        effect.pace();
    effect.m_additive = valueOf(attributes, "additive") == QLatin1String("sum");
    effect.m_accumulates = valueOf(attributes, "accumulate") == QLatin1String("sum");
    return effect;
}

std::optional<Effect> Effect::readSet(const Attributes &attributes, const ValueContext &context)
{
    if (!attributes.contains(QStringLiteral("to")))
        return std::nullopt;
    Effect effect;
    effect.m_context = context;
    effect.m_values = {parseAnimatedValue(valueOf(attributes, "to"), context)};
    return effect;
}

std::optional<Effect> Effect::readList(const Attributes &attributes, const ValueContext &context, CalcMode mode)
{
    const QStringList texts = listedValues(valueOf(attributes, "values"));
    const bool blank = std::all_of(texts.begin(), texts.end(), [](const QString &text) { return text.isEmpty(); });
    if (blank || texts.size() > Limits::animationValues)
        return std::nullopt;
    QVector<AnimatedValue> values;
    for (const QString &text : texts)
        values.append(parseAnimatedValue(text, context));
    return fromValues(attributes, values, context, mode);
}

std::optional<Effect> Effect::readTo(const Attributes &attributes, const ValueContext &context, CalcMode mode)
{
    const bool hasFrom = attributes.contains(QStringLiteral("from"));
    const AnimatedValue to = parseAnimatedValue(valueOf(attributes, "to"), context);
    const AnimatedValue from = hasFrom ? parseAnimatedValue(valueOf(attributes, "from"), context) : to;
    std::optional<Effect> effect = fromValues(attributes, {from, to}, context, mode);
    if (effect && !hasFrom) {
        effect->m_blends = true;
        effect->m_additive = effect->m_accumulates = false;
    }
    return effect;
}

std::optional<Effect> Effect::readBy(const Attributes &attributes, const ValueContext &context, CalcMode mode)
{
    const bool hasFrom = attributes.contains(QStringLiteral("from"));
    AnimatedValue by = parseAnimatedValue(valueOf(attributes, "by"), context);
    AnimatedValue from = hasFrom ? parseAnimatedValue(valueOf(attributes, "from"), context) : zeroOf(by);
    if (!makeAlike(&from, &by, context))
        return std::nullopt;
    std::optional<Effect> effect = fromValues(attributes, {from, sumOf(from, by, 1)}, context, mode);
    if (effect && !hasFrom)
        effect->m_additive = true;
    return effect;
}

// In this order of precedence (SMIL 3.0 §12.5.2).
std::optional<Effect> Effect::read(const Attributes &attributes, const ValueContext &context, bool isSet)
{
    const CalcMode mode = calcModeOf(attributes, CalcMode::Linear);
    if (isSet)
        return readSet(attributes, context);
    if (!valueOf(attributes, "values").isEmpty())
        return readList(attributes, context, mode);
    if (attributes.contains(QStringLiteral("to")))
        return readTo(attributes, context, mode);
    return attributes.contains(QStringLiteral("by")) ? readBy(attributes, context, mode) : std::nullopt;
}

AnimatedValue Effect::valueAt(const RoundPosition &position) const
{
    const KeyframePosition place = m_frames.at(position.progress);
    const AnimatedValue &value = m_values.at(place.index);
    return place.share > 0 ? between(value, m_values.at(place.index + 1), place.share) : value;
}

// A list appends the function. An animation "to" a value starts from the identity.
TransformFunction Effect::function(const RoundPosition &position) const
{
    AnimatedValue below = zeroOf(m_values.constFirst());
    if (m_blends && m_context.function == TransformFunction::Scale)
        below.numbers.fill(1);
    return transformFunction(applied(below, position), m_context);
}

AnimatedValue Effect::applied(const AnimatedValue &underlying, const RoundPosition &position) const
{
    AnimatedValue below = underlying;
    // An absent attribute counts as 0.
    if (below.kind == AnimatedValue::Text && below.text.isEmpty())
        below = zeroOf(m_values.constFirst());
    if (m_blends) {
        AnimatedValue to = m_values.constLast();
        if (m_frames.mode() == CalcMode::Discrete)
            return to;
        const KeyframePosition place = m_frames.at(position.progress);
        if (!makeAlike(&below, &to, m_context))
            return place.share < 0.5 ? underlying : to;
        return between(below, to, place.share);
    }
    AnimatedValue value = valueAt(position);
    if (!m_interpolates)
        return value;
    if (m_accumulates && position.round > 0)
        value = sumOf(value, m_values.constLast(), double(position.round));
    if (m_additive && makeAlike(&below, &value, m_context))
        value = sumOf(below, value, 1);
    return value;
}

} // namespace Svg
