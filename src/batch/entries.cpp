// The eighteen batch entries: the checks, then the transforms in groups by
// the instruction set this process runs.
#include "batch/batch.hpp"

#include <type_traits>

namespace vtx::batch {
namespace {

template <class T>
bool scale_of(Scaling scaling, int flag, const Kernel<T>& k, T& s)
{
    switch (scaling) {
    case Scaling::Forward: return frame::choose_scale<Scaling::Forward>(flag, k.inv_n, k.inv_sqrt_n, s);
    case Scaling::Inverse: return frame::choose_scale<Scaling::Inverse>(flag, k.inv_n, k.inv_sqrt_n, s);
    case Scaling::SelfInverse: return frame::choose_scale<Scaling::SelfInverse>(flag, k.inv_n, k.inv_sqrt_n, s);
    }
    return false;
}

template <class T>
Run<T> runtime(Isa isa)
{
#if VTX_BATCH_WIDE
    switch (isa) {
    case Isa::avx512: return avx512::run;
    case Isa::avx2: return avx2::run;
    case Isa::sse2: break;
    }
#else
    (void)isa;
#endif
    return sse2::run;
}

// Null pointers first, then n, the count and the strides, then the flag;
// nothing is read or written before all of them pass.
template <class T, class E>
vtxStatus call(const Family<T>& f, const E* src, E* dst, int n, int count, int srcStride, int dstStride, int flag)
{
    constexpr int reals = std::is_same_v<E, T> ? 1 : 2;  // components of an element
    if (!src || !dst)
        return vtxStatusNullPointer;
    const unsigned entry = static_cast<unsigned>(n) - 2u;
    if (entry > 62u || count < 0)
        return vtxStatusSizeError;
    const Kernel<T>& k = f.sizes[entry];
    if (srcStride < k.source_length || dstStride < k.destination_length)
        return vtxStatusSizeError;
    T s;
    if (!scale_of(f.scaling, flag, k, s))
        return vtxStatusFlagError;
    if (count > 0)
        runtime<T>(active_isa())(k, reinterpret_cast<const T*>(src), reinterpret_cast<T*>(dst), count,
                                 std::ptrdiff_t{srcStride} * reals, std::ptrdiff_t{dstStride} * reals, s);
    return vtxStatusOk;
}

}  // namespace
}  // namespace vtx::batch

#define VTX_BATCH_ENTRY(transform, suffix, E)                                                                   \
    extern "C" VTXAPI vtxStatus vtxg##transform##_Batch_##suffix(const E* src, E* dst, int n, int count,          \
                                                                 int srcStride, int dstStride, int scaleFlag)      \
    {                                                                                                            \
        return vtx::batch::call(vtx::batch::transform##_##suffix, src, dst, n, count, srcStride, dstStride,      \
                                scaleFlag);                                                                      \
    }
VTX_BATCH_FAMILIES(VTX_BATCH_ENTRY)
#undef VTX_BATCH_ENTRY
