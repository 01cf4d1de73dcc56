#pragma once

#include <QtCore/QString>

#include <cstddef>

namespace pathtextinput {

/// The bytes as text: Latin-1, so that a corpus is readable, except that 0xff and two more bytes form any UTF-16
/// unit.
QString text(const unsigned char *data, size_t size);

/// Aborts with the difference as message unless it is empty.
void expectNone(const QString &difference);

} // namespace pathtextinput
