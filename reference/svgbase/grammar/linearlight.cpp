#include "grammar/linearlight.h"

#include <QtCore/QtGlobal>

#include <array>
#include <cmath>

namespace Svg {

namespace {

constexpr int componentCount = 256;
constexpr double greatestComponent = 255;
/// Below these the curve is a straight line.
constexpr double encodedKnee = 0.04045;
constexpr double linearKnee = 0.0031308;
constexpr double slope = 12.92;
constexpr double offset = 0.055;
constexpr double gamma = 2.4;

std::array<double, componentCount> makeTable()
{
    std::array<double, componentCount> table{};
    for (int i = 0; i < componentCount; ++i) {
        const double encoded = i / greatestComponent;
        table[size_t(i)] =
            encoded <= encodedKnee ? encoded / slope : std::pow((encoded + offset) / (1 + offset), gamma);
    }
    return table;
}

} // namespace

double linearFromEncoded(int component)
{
    static const std::array<double, componentCount> table = makeTable();
    return table[size_t(qBound(0, component, componentCount - 1))];
}

int encodedFromLinear(double light)
{
    const double held = qBound(0.0, light, 1.0);
    const double encoded = held <= linearKnee ? held * slope : (1 + offset) * std::pow(held, 1 / gamma) - offset;
    return qRound(encoded * greatestComponent);
}

} // namespace Svg
