#pragma once

#include "tree/attributes.h"

#include <optional>

namespace Svg {

enum class CalcMode { Discrete, Linear, Paced, Spline };

/// "calcMode"; the fallback where it is absent or unknown.
CalcMode calcModeOf(const Attributes &attributes, CalcMode fallback);

/// A position between two values of a list: the interpolation share from one to the next.
struct KeyframePosition
{
    int index = 0;
    double share = 0;
};

/// The control points of an easing curve from (0, 0) to (1, 1).
struct EasingCurve
{
    double x1 = 0;
    double y1 = 0;
    double x2 = 1;
    double y2 = 1;

    /// How far the value has come when `time` of its time is over, both 0 to 1.
    double at(double time) const;
};

/// Which of its values an animation has at which time (SMIL 3.0 §12.4.1).
class Keyframes
{
public:
    /// Reads "keyTimes" and "keySplines" for a list of `count` values. Nothing when they don't fit the list: such
    /// an animation has no effect.
    static std::optional<Keyframes> read(const Attributes &attributes, CalcMode mode, int count);

    CalcMode mode() const { return m_mode; }
    /// Spreads the values over time by the distance from each to the next, for the paced mode.
    void pace(const QVector<double> &distances);
    /// The place at a share of the round, 0 to 1.
    KeyframePosition at(double progress) const;

private:
    CalcMode m_mode = CalcMode::Linear;
    int m_count = 0;
    /// When each value is reached; empty for an even spread.
    QVector<double> m_times;
    QVector<EasingCurve> m_curves;
};

/// The numbers of a list separated by semicolons; nothing when one of them is none, or when there are too many.
std::optional<QVector<double>> parseSemicolonNumbers(const QString &text);

} // namespace Svg
