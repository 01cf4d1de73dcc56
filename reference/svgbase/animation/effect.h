#pragma once

#include "animation/animatedvalue.h"
#include "animation/keyframes.h"
#include "animation/timing.h"

namespace Svg {

/// Effect of one animation element on a value, independent of its timing (SMIL 3.0 §12.5).
class Effect
{
public:
    /// Reads "from", "to", "by", "values" and the attributes around them; only "to" for a `set`. Empty when the
    /// element gives no usable values.
    static std::optional<Effect> read(const Attributes &attributes, const ValueContext &context, bool isSet);

    /// The value of an attribute that is `underlying` without the effect.
    AnimatedValue applied(const AnimatedValue &underlying, const RoundPosition &position) const;
    /// The value as a transform function to append to a list.
    TransformFunction function(const RoundPosition &position) const;
    /// Whether the value is added to the underlying one.
    bool isAdditive() const { return m_additive; }

private:
    static std::optional<Effect> readSet(const Attributes &attributes, const ValueContext &context);
    static std::optional<Effect> readList(const Attributes &attributes, const ValueContext &context, CalcMode mode);
    static std::optional<Effect> readTo(const Attributes &attributes, const ValueContext &context, CalcMode mode);
    static std::optional<Effect> readBy(const Attributes &attributes, const ValueContext &context, CalcMode mode);
    static std::optional<Effect> fromValues(const Attributes &attributes, const QVector<AnimatedValue> &values,
                                            const ValueContext &context, CalcMode mode);
    bool makeAllAlike();
    void pace();
    AnimatedValue valueAt(const RoundPosition &position) const;

    ValueContext m_context;
    QVector<AnimatedValue> m_values;
    Keyframes m_frames;
    bool m_additive = false;
    bool m_accumulates = false;
    /// "to" alone: from the underlying value to this one.
    bool m_blends = false;
    /// Whether two values can be interpolated.
    bool m_interpolates = true;
};

} // namespace Svg
