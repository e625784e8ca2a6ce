// Which instruction set runs each stage of a DCT-IV plan: the widest the
// call allows whose vectors the stage fills, a vector of stage one holding
// adjacent columns (m of them), one of stage two adjacent rows (v of them)
// and, turned, adjacent columns.
#include "dct4/stages.hpp"

#include "vtxgen.h"

#include <emmintrin.h>

namespace vtx::dct4 {

namespace {

// Whether vectors of `bytes` fit `count` elements of T.
template <class T>
constexpr bool fills(std::int32_t count, std::int32_t bytes)
{
    return count >= bytes / static_cast<std::int32_t>(sizeof(T));
}

}  // namespace

template <class T>
std::int32_t env5_compute(const Env5* self, T* dst, const T* src, Isa isa)
{
    if constexpr (kWidestStages >= Isa::avx512) {
        if (isa >= Isa::avx512 && fills<T>(self->m, 64))
            return avx512::env5_compute<T>(self, dst, src);
        if (isa >= Isa::avx2 && fills<T>(self->m, 32))
            return avx2::env5_compute<T>(self, dst, src);
    }
    return sse2::env5_compute<T>(self, dst, src);
}

template <class T>
std::int32_t env4_compute(const Env4* self, T* dst, const T* src, Isa isa)
{
    const std::int32_t rows = Precision<T>::lanes * self->groups;
    if constexpr (kWidestStages >= Isa::avx512) {
        if (isa >= Isa::avx512 && fills<T>(self->m, 64) && fills<T>(rows, 64))
            return avx512::env4_compute<T>(self, dst, src);
        if (isa >= Isa::avx2 && fills<T>(self->m, 32) && fills<T>(rows, 32))
            return avx2::env4_compute<T>(self, dst, src);
    }
    return sse2::env4_compute<T>(self, dst, src);
}

template <class T>
std::int32_t env1_compute(const Env1* self, T* dst, const T* src, Isa isa)
{
    const Arena* arena = arenaOf(self, self->arena);
    T* scratch = deref<T>(arena, self->scratch);
    const bool large = streamsLarge<T>(self->length);
    if (large)
        scratch = reinterpret_cast<T*>((reinterpret_cast<std::uintptr_t>(scratch) + 63) & ~std::uintptr_t{63});
    const auto* stage1 = firstOf<const Env3>(arena, self->stage1List);
    if (stage1->rule == 1) {
        const std::int32_t status = env5_compute<T>(firstOf<const Env5>(arena, stage1->kernelList), scratch, src, isa);
        if (status != vtxStatusOk)
            return status;
    }
    const auto* stage2 = firstOf<const Env2>(arena, self->stage2List);
    const std::int32_t status =
        stage2->rule == 1 ? env4_compute<T>(firstOf<const Env4>(arena, stage2->kernelList), dst, scratch, isa)
                          : vtxStatusOk;
    // Writes past the caches are ordered before whatever the caller does next.
    if (large)
        _mm_sfence();
    return status;
}

template std::int32_t env5_compute<float>(const Env5*, float*, const float*, Isa);
template std::int32_t env5_compute<double>(const Env5*, double*, const double*, Isa);
template std::int32_t env4_compute<float>(const Env4*, float*, const float*, Isa);
template std::int32_t env4_compute<double>(const Env4*, double*, const double*, Isa);
template std::int32_t env1_compute<float>(const Env1*, float*, const float*, Isa);
template std::int32_t env1_compute<double>(const Env1*, double*, const double*, Isa);

}  // namespace vtx::dct4
