#include "paint/displaylistcache.h"

#include "grammar/inputlimits.h"

#include <QtCore/QCache>

#include <mutex>

namespace Svg::DisplayListCache {

namespace {

std::mutex mutex;

QCache<const void *, DisplayList> &lists()
{
    static QCache<const void *, DisplayList> cache(Limits::displayListBytes);
    return cache;
}

} // namespace

std::unique_ptr<DisplayList> take(const void *owner)
{
    const std::lock_guard lock(mutex);
    std::unique_ptr<DisplayList> known(lists().take(owner));
    return known ? std::move(known) : std::make_unique<DisplayList>();
}

void keep(const void *owner, std::unique_ptr<DisplayList> list)
{
    const int weight = list->weight();
    const std::lock_guard lock(mutex);
    lists().insert(owner, list.release(), weight);
}

void forget(const void *owner)
{
    const std::lock_guard lock(mutex);
    lists().remove(owner);
}

} // namespace Svg::DisplayListCache
