#pragma once

#include <QtCore/QString>

#include <cstddef>

namespace pathtextinput {

/// The bytes as text: Latin-1, so that a corpus can be read, but 0xff and two more bytes are any UTF-16 unit.
QString text(const unsigned char *data, size_t size);

/// Ends the program with the difference as its message unless it is empty.
void expectNone(const QString &difference);

} // namespace pathtextinput
