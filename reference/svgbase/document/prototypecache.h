#pragma once

#include "document/prototype.h"

namespace Svg {

/// What a text amounts to, parsed when it is seen for the first time and kept for later, least recently used ones
/// going first. May be called from any thread. Null when the text can't be loaded; `messages` then says why.
PrototypePointer knownPrototype(const QByteArray &text, Messages *messages);

} // namespace Svg
