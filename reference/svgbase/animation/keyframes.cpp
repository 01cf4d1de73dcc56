#include "animation/keyframes.h"

#include "grammar/inputlimits.h"
#include "grammar/numbers.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QStringList>

namespace Svg {

namespace {

/// Bisections of the curve's parameter; enough for the visible precision of a double.
constexpr int easingSteps = 50;

QStringList listItems(const QString &text)
{
    QStringList items = text.split(QLatin1Char(';'));
    if (!items.isEmpty() && items.constLast().trimmed().isEmpty())
        items.removeLast();
    return items;
}

double bezier(double p1, double p2, double t)
{
    const double rest = 1 - t;
    return 3 * rest * rest * t * p1 + 3 * rest * t * t * p2 + t * t * t;
}

bool isShare(double value)
{
    return value >= 0 && value <= 1;
}

std::optional<EasingCurve> parseCurve(const QString &text)
{
    const std::optional<QVector<double>> numbers = parseNumberList(text);
    if (!numbers || numbers->size() != 4 || !std::all_of(numbers->begin(), numbers->end(), isShare))
        return std::nullopt;
    return EasingCurve{numbers->at(0), numbers->at(1), numbers->at(2), numbers->at(3)};
}

std::optional<QVector<EasingCurve>> parseCurves(const QString &text)
{
    QVector<EasingCurve> curves;
    const QStringList items = listItems(text);
    for (const QString &item : items) {
        const std::optional<EasingCurve> curve = parseCurve(item);
        if (!curve || curves.size() == Limits::animationValues)
            return std::nullopt;
        curves.append(*curve);
    }
    return curves;
}

// Times start at 0 and never decrease; in interpolating modes the last value is at 1.
bool areKeyTimes(const QVector<double> &times, CalcMode mode)
{
    if (times.isEmpty() || times.constFirst() != 0 || !std::is_sorted(times.begin(), times.end()))
        return false;
    return mode == CalcMode::Discrete ? times.constLast() <= 1 : times.constLast() == 1;
}

} // namespace

CalcMode calcModeOf(const Attributes &attributes, CalcMode fallback)
{
    const QString text = attributes.value(QStringLiteral("calcMode")).trimmed();
    if (text == QLatin1String("discrete"))
        return CalcMode::Discrete;
    if (text == QLatin1String("linear"))
        return CalcMode::Linear;
    if (text == QLatin1String("paced"))
        return CalcMode::Paced;
    return text == QLatin1String("spline") ? CalcMode::Spline : fallback;
}

std::optional<QVector<double>> parseSemicolonNumbers(const QString &text)
{
    QVector<double> numbers;
    const QStringList items = listItems(text);
    for (const QString &item : items) {
        const std::optional<double> number = parseNumber(item);
        if (!number || numbers.size() == Limits::animationValues)
            return std::nullopt;
        numbers.append(*number);
    }
    return numbers;
}

// x(t) increases with t, so bisection finds the parameter of a time.
double EasingCurve::at(double time) const
{
    double low = 0;
    double high = 1;
    for (int i = 0; i < easingSteps; ++i) {
        const double middle = (low + high) / 2;
        if (bezier(x1, x2, middle) < time)
            low = middle;
        else
            high = middle;
    }
    return bezier(y1, y2, (low + high) / 2);
}

std::optional<Keyframes> Keyframes::read(const Attributes &attributes, CalcMode mode, int count)
{
    Keyframes frames;
    frames.m_mode = mode;
    frames.m_count = count;
    const QString times = attributes.value(QStringLiteral("keyTimes")).trimmed();
    if (!times.isEmpty() && mode != CalcMode::Paced) {
        const std::optional<QVector<double>> numbers = parseSemicolonNumbers(times);
        if (!numbers || numbers->size() != count || !areKeyTimes(*numbers, count == 1 ? CalcMode::Discrete : mode))
            return std::nullopt;
        frames.m_times = *numbers;
    }
    if (mode != CalcMode::Spline)
        return frames;
    const std::optional<QVector<EasingCurve>> curves =
        parseCurves(attributes.value(QStringLiteral("keySplines")).trimmed());
    if (!curves || curves->size() != count - 1)
        return std::nullopt;
    frames.m_curves = *curves;
    return frames;
}

void Keyframes::pace(const QVector<double> &distances)
{
    double whole = 0;
    for (const double distance : distances)
        whole += distance;
    m_times.clear();
    if (!(whole > 0) || !qIsFinite(whole))
        return;
    double way = 0;
    m_times.append(0);
    for (const double distance : distances) {
        way += distance;
        m_times.append(way / whole);
    }
    m_times.last() = 1;
}

KeyframePosition Keyframes::at(double progress) const
{
    if (m_count < 2)
        return KeyframePosition();
    const bool discrete = m_mode == CalcMode::Discrete;
    if (m_times.isEmpty()) {
        const double place = progress * (discrete ? m_count : m_count - 1);
        const int index = qBound(0, int(place), discrete ? m_count - 1 : m_count - 2);
        const double share = discrete ? 0 : qBound(0.0, place - index, 1.0);
        return {index, m_curves.isEmpty() ? share : m_curves.at(index).at(share)};
    }
    const auto after = std::upper_bound(m_times.begin(), m_times.end(), progress);
    const int index = qMax(0, int(after - m_times.begin()) - 1);
    if (discrete)
        return {index, 0};
    if (index >= m_count - 1)
        return {m_count - 2, 1};
    const double share = (progress - m_times.at(index)) / (m_times.at(index + 1) - m_times.at(index));
    return {index, m_curves.isEmpty() ? share : m_curves.at(index).at(share)};
}

} // namespace Svg
