#include "svgbase/document/allocationcount.h"

#include <cstddef>

namespace {

thread_local long count = 0;

} // namespace

long allocationCount()
{
    return count;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void *, std::size_t),
                                                         void (*freed)(const volatile void *));

namespace {

const int installed = __sanitizer_install_malloc_and_free_hooks([](const volatile void *, std::size_t) { ++count; },
                                                                [](const volatile void *) {});

} // namespace

#else

// The allocator of the C library has these names for replacements to fall back on.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t number, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

void *malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void *calloc(std::size_t number, std::size_t size)
{
    ++count;
    return __libc_calloc(number, size);
}

void *realloc(void *block, std::size_t size)
{
    ++count;
    return __libc_realloc(block, size);
}

} // extern "C"

#endif
