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

    /// Progress of the value at a share of its time, both 0 to 1.
    double at(double time) const;
};

/// Selects the values of an animation by time (SMIL 3.0 §12.4.1).
class Keyframes
{
public:
    /// Reads "keyTimes" and "keySplines" for a list of `count` values. Empty when they don't fit the list: such an
    /// animation has no effect.
    static std::optional<Keyframes> read(const Attributes &attributes, CalcMode mode, int count);

    CalcMode mode() const { return m_mode; }
    /// Spaces the key times by the distances between consecutive values, for the paced mode.
    void pace(const QVector<double> &distances);
    /// The position at a share of the iteration, 0 to 1.
    KeyframePosition at(double progress) const;

private:
    CalcMode m_mode = CalcMode::Linear;
    int m_count = 0;
    /// Key times of the values; empty for even spacing.
    QVector<double> m_times;
    QVector<EasingCurve> m_curves;
};

/// The numbers of a list separated by semicolons; empty when an item is not a number, or when there are too many.
std::optional<QVector<double>> parseSemicolonNumbers(const QString &text);

} // namespace Svg
