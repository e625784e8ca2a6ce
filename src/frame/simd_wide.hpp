// The 256-bit vector layer of the kernels' AVX2 forms: V8f (eight floats)
// and V4d (four doubles), for translation units built with -mavx2 (never
// -mfma).  Every operation rounds once per lane, as the 128-bit layer does.
//
// The caller's arrays and the work buffers are only 16-byte aligned, so
// every access is an unaligned one, as fast as an aligned one where it is
// aligned.  Lane moves work within each 128-bit half, as their 128-bit
// namesakes do on each half, except the half moves at the end.
#pragma once

#include "frame/simd.hpp"

#include <immintrin.h>

namespace vtx::wide {

using V8f = __m256;
using V4d = __m256d;

VTX_OP V8f splat8(float a) { return _mm256_set1_ps(a); }
VTX_OP V4d splat4(double a) { return _mm256_set1_pd(a); }

VTX_OP V8f add(V8f a, V8f b) { return _mm256_add_ps(a, b); }
VTX_OP V8f sub(V8f a, V8f b) { return _mm256_sub_ps(a, b); }
VTX_OP V8f mul(V8f a, V8f b) { return _mm256_mul_ps(a, b); }
VTX_OP V4d add(V4d a, V4d b) { return _mm256_add_pd(a, b); }
VTX_OP V4d sub(V4d a, V4d b) { return _mm256_sub_pd(a, b); }
VTX_OP V4d mul(V4d a, V4d b) { return _mm256_mul_pd(a, b); }

// ---- memory

VTX_OP V8f load(const float* p) { return _mm256_loadu_ps(p); }
VTX_OP V4d load(const double* p) { return _mm256_loadu_pd(p); }
// Four floats (two doubles) from `lo` in the low half, as many from `hi` in the high half.
VTX_OP V8f load_halves(const float* lo, const float* hi)
{
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(lo)), _mm_loadu_ps(hi), 1);
}
VTX_OP V4d load_halves(const double* lo, const double* hi)
{
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_loadu_pd(lo)), _mm_loadu_pd(hi), 1);
}
// (p[0], p[0], p[2], p[2]): with p one further, the odd elements in pairs.
VTX_OP V4d load_evens(const double* p) { return _mm256_movedup_pd(_mm256_loadu_pd(p)); }
VTX_OP void store(float* p, V8f v) { _mm256_storeu_ps(p, v); }
VTX_OP void store(double* p, V4d v) { _mm256_storeu_pd(p, v); }

// ---- lane moves within each half

// (a0, b0, a1, b1) and (a2, b2, a3, b3)
VTX_OP V8f unpacklo(V8f a, V8f b) { return _mm256_unpacklo_ps(a, b); }
VTX_OP V8f unpackhi(V8f a, V8f b) { return _mm256_unpackhi_ps(a, b); }
// (a0, b0) and (a1, b1)
VTX_OP V4d unpacklo(V4d a, V4d b) { return _mm256_unpacklo_pd(a, b); }
VTX_OP V4d unpackhi(V4d a, V4d b) { return _mm256_unpackhi_pd(a, b); }
// (a0, a1, b0, b1) and (a2, a3, b2, b3)
VTX_OP V8f movelh(V8f a, V8f b) { return _mm256_shuffle_ps(a, b, 0x44); }
VTX_OP V8f movehl(V8f a, V8f b) { return _mm256_shuffle_ps(a, b, 0xEE); }

// Lanes 0 and 2 of a, 1 and 3 of b.
VTX_OP V4d even_odd(V4d a, V4d b) { return _mm256_blend_pd(a, b, 0xA); }

// ---- half moves

// (a's low half, b's low half) and (a's high half, b's high half)
VTX_OP V8f low_halves(V8f a, V8f b) { return _mm256_permute2f128_ps(a, b, 0x20); }
VTX_OP V8f high_halves(V8f a, V8f b) { return _mm256_permute2f128_ps(a, b, 0x31); }
VTX_OP V4d low_halves(V4d a, V4d b) { return _mm256_permute2f128_pd(a, b, 0x20); }
VTX_OP V4d high_halves(V4d a, V4d b) { return _mm256_permute2f128_pd(a, b, 0x31); }

}  // namespace vtx::wide
