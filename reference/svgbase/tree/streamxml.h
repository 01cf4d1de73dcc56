#pragma once

#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// Reads XML of any form and encoding with Qt's reader. When false, the last message is its error.
bool readStreamedXml(const QByteArray &text, Tree *tree, Messages *messages);

/// Whether a text has more bytes than the limit; adds a message if so.
bool isTextTooLong(const QByteArray &text, Messages *messages);

} // namespace Svg
