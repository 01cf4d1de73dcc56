#pragma once

#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// Reads XML of any form and encoding with Qt's reader, which says what is wrong with it: the last message, when
/// this is false.
bool readStreamedXml(const QByteArray &text, Tree *tree, Messages *messages);

/// Whether a text has more bytes than the limit; then a message says so.
bool isTextTooLong(const QByteArray &text, Messages *messages);

} // namespace Svg
