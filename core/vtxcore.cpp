// The core library stand-in: aligned allocation and the feature query.
#include "vtxcore.h"

#include <cstdlib>

namespace {
constexpr std::size_t kAlignment = 64;
}

extern "C" void *vtxMalloc(int size)
{
    if (size <= 0)
        return nullptr;
    // aligned_alloc wants a multiple of the alignment.
    std::size_t bytes = (static_cast<std::size_t>(size) + kAlignment - 1) / kAlignment * kAlignment;
    return std::aligned_alloc(kAlignment, bytes);
}

extern "C" void vtxFree(void *ptr)
{
    std::free(ptr);
}

extern "C" int ownGetFeature(int /*feature*/, int /*arg*/)
{
    return 0;
}
