#pragma once

#include "document/prototype.h"

namespace Svg {

/// The parsed form of a text, from a cache that drops the least recently used ones. May be called from any thread.
/// Null if the text can't be loaded; `messages` then gives the reason.
PrototypePointer knownPrototype(const QByteArray &text, Messages *messages);

} // namespace Svg
