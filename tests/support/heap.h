#pragma once

#include <QtCore/qglobal.h>

namespace support {

/// The bytes of all blocks that this process holds on the heap at present, also under a sanitizer.
qint64 heapBytesInUse();

} // namespace support
