#include "support/heap.h"

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

qint64 support::heapBytesInUse()
{
    return qint64(__sanitizer_get_current_allocated_bytes());
}

#else

#include <malloc.h>

qint64 support::heapBytesInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return qint64(heap.uordblks) + qint64(heap.hblkhd);
}

#endif
