#pragma once

#include <QtCore/QtGlobal>

/// CRC-32 as in ISO 3309 and PNG (polynomial 0xedb88320, reflected) of `size` bytes.
quint32 checksum(const char *bytes, qint64 size);
