#include "look/sizes.h"

#include <QtCore/QObject>
#include <QtCore/QVector>

#include <algorithm>

namespace board {

namespace {

constexpr Sizes usualSizes{40, 32, 20, 56, 40, 22, 4, 40, 40, 32, 296, 320, 92, 28, 104, 120, 64, 32, 28, 28, 0};
constexpr Sizes largeSizes{56, 44, 28, 96, 64, 32, 8, 56, 64, 56, 360, 440, 124, 44, 144, 144, 88, 48, 48, 44, 18};

struct Follower
{
    const QObject *context;
    std::function<void()> apply;
};

bool theyAreLarge = false;

QVector<Follower> &followers()
{
    static QVector<Follower> all;
    return all;
}

void forget(const QObject *context)
{
    QVector<Follower> &all = followers();
    const auto isTheirs = [context](const Follower &one) { return one.context == context; };
    all.erase(std::remove_if(all.begin(), all.end(), isTheirs), all.end());
}

} // namespace

const Sizes &sizes()
{
    return theyAreLarge ? largeSizes : usualSizes;
}

bool areSizesLarge()
{
    return theyAreLarge;
}

void setLargeSizes(bool large)
{
    theyAreLarge = large;
}

void applySizes()
{
    // Whoever is called may add others.
    const QVector<Follower> present = followers();
    for (const Follower &one : present)
        one.apply();
}

void followSizes(QObject *context, const std::function<void()> &apply)
{
    followers().append({context, apply});
    QObject::connect(context, &QObject::destroyed, context, [](const QObject *gone) { forget(gone); });
    apply();
}

} // namespace board
