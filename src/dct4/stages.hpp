// The computations of a DCT-IV plan of length 64 and up.
//
//   stage one   env5 (and env7 / env9 below it for columns longer than 64):
//               the m folded columns of the input, each transformed with odd
//               frequencies, into the root's scratch;
//   stage two   env4: the scratch rows twiddled and combined into the output.
//
// Each exists once per instruction set (sse2, avx2, avx512: the same
// arithmetic on vectors of 16, 32 or 64 bytes, the same bits).  The entries
// in vtx::dct4 take the widest set a call may use and run each stage in the
// widest set whose vectors the stage's columns and rows fill.  Each returns
// 0, or vtxStatusBadRule for a rule it has no body for (which a built plan
// never holds).
#pragma once

#include "dct4/nodes.hpp"
#include "frame/isa.hpp"

#include <cstdint>

#define VTX_DCT4_STAGES_OF(set)                                                            \
    namespace vtx::dct4::set {                                                             \
    template <class T> std::int32_t env5_compute(const Env5* self, T* dst, const T* src); \
    template <class T> std::int32_t env4_compute(const Env4* self, T* dst, const T* src); \
    }
VTX_DCT4_STAGES_OF(sse2)
VTX_DCT4_STAGES_OF(avx2)
VTX_DCT4_STAGES_OF(avx512)
#undef VTX_DCT4_STAGES_OF

namespace vtx::dct4 {

// The sets this build has stages for: the 64-bit build has all three.
#if defined(__x86_64__)
constexpr Isa kWidestStages = Isa::avx512;
#else
constexpr Isa kWidestStages = Isa::sse2;
#endif

// From this many bytes of data on, a plan's last writes do not stay in the
// caches until they are read, and go past them; the root's scratch is then
// taken from its first 64-byte boundary (a plan ends at least 224 bytes short
// of its block, so there is room behind the scratch).
template <class T>
constexpr bool streamsLarge(std::int32_t n)
{
    return static_cast<std::int64_t>(n) * static_cast<std::int64_t>(sizeof(T)) >= 1024 * 1024;
}

// Stage one: all groups of lanes columns of the input into the scratch (row
// pitch m).
template <class T> std::int32_t env5_compute(const Env5* self, T* dst, const T* src, Isa isa);

// Stage two: the scratch into the transform's output.
template <class T> std::int32_t env4_compute(const Env4* self, T* dst, const T* src, Isa isa);

// The whole transform of a root of rule 6, `src` to `dst` through the scratch.
template <class T> std::int32_t env1_compute(const Env1* self, T* dst, const T* src, Isa isa);

}  // namespace vtx::dct4
