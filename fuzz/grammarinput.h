#pragma once

#include <QtCore/QString>

#include <cstdio>
#include <cstdlib>

/// The bytes of an input as text.
inline QString fuzzedText(const unsigned char *data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
}

/// Aborts the run when a grammar breaks a promise.
inline void require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}
