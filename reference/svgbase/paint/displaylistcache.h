#pragma once

#include "paint/displaylist.h"

#include <memory>

namespace Svg {

/// Display lists that documents drew from last, bounded in memory for the whole process: a page of ten thousand
/// shapes keeps those of the shapes that were drawn lately. Whoever draws takes its list out, so that no other
/// thread can free it meanwhile.
namespace DisplayListCache {

/// The list of a document; an empty one when none is kept.
std::unique_ptr<DisplayList> take(const void *owner);
void keep(const void *owner, std::unique_ptr<DisplayList> list);
/// To be called when a document dies.
void forget(const void *owner);

} // namespace DisplayListCache

} // namespace Svg
