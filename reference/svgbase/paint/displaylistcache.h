#pragma once

#include "paint/displaylist.h"

#include <memory>

namespace Svg {

/// Recently used display lists of documents, within a memory limit for the whole process: a page of ten thousand
/// shapes keeps those of the shapes drawn last. A document takes its list out while it draws, so that no other
/// thread can free it.
namespace DisplayListCache {

/// The list of a document; an empty one when none is kept.
std::unique_ptr<DisplayList> take(const void *owner);
void keep(const void *owner, std::unique_ptr<DisplayList> list);
/// Call this when a document is deleted.
void forget(const void *owner);

} // namespace DisplayListCache

} // namespace Svg
