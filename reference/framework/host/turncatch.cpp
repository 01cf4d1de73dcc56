#include <host/turncatch.h>

#include <pagehost/pagescene.h>

#include <host/objectpage.h>

#include <cmath>

namespace {

constexpr double turnStep = 15;
/// Turning catches at steps this near, degrees.
constexpr double turnCatch = 2.5;

} // namespace

double caughtTurn(double degrees, Qt::KeyboardModifiers modifiers, const CPSRootObject &object)
{
    const double step = std::round(degrees / turnStep) * turnStep;
    if (modifiers.testFlag(Qt::ShiftModifier))
        return step;
    const pagehost::PageScene *scene = pageSceneOf(object);
    const bool catches = scene && scene->isSnapping() && !modifiers.testFlag(Qt::AltModifier);
    return catches && std::abs(step - degrees) <= turnCatch ? step : degrees;
}
