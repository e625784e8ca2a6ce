// The vector layer of the batch kernels, one transform per lane.
//
// Compiled once per instruction set, with VTX_BATCH_ISA 0 (SSE2), 1 (AVX2)
// or 2 (AVX-512) and that set's compiler flags; everything lies in the
// namespace of its set, so the three builds of a name never meet.
//
// Types: Vf holds the floats, Vd the doubles of one vector.  A kernel runs
// as many transforms as a vector of its own precision has lanes, W =
// kLanes<float> or kLanes<double>; a float kernel holds its double values
// in two vectors, the low and the high half of its lanes.  Arithmetic is
// lane-wise with one rounding per lane and no fused operation; widening is
// exact and narrowing rounds once, as the scalar conversions do.  How the
// runtime moves components in and out is moves.hpp.
#pragma once

#include <immintrin.h>

#if VTX_BATCH_ISA == 0
#define VTX_BATCH_SET sse2
#elif VTX_BATCH_ISA == 1
#define VTX_BATCH_SET avx2
#elif VTX_BATCH_ISA == 2
#define VTX_BATCH_SET avx512
#else
#error "VTX_BATCH_ISA must be 0 (SSE2), 1 (AVX2) or 2 (AVX-512)"
#endif

#define VTX_LANE __attribute__((always_inline)) inline

namespace vtx::batch::VTX_BATCH_SET {

#if VTX_BATCH_ISA == 0

using Vf = __m128;
using Vd = __m128d;
VTX_LANE Vf add(Vf a, Vf b) { return _mm_add_ps(a, b); }
VTX_LANE Vf sub(Vf a, Vf b) { return _mm_sub_ps(a, b); }
VTX_LANE Vf mul(Vf a, Vf b) { return _mm_mul_ps(a, b); }
VTX_LANE Vd add(Vd a, Vd b) { return _mm_add_pd(a, b); }
VTX_LANE Vd sub(Vd a, Vd b) { return _mm_sub_pd(a, b); }
VTX_LANE Vd mul(Vd a, Vd b) { return _mm_mul_pd(a, b); }
VTX_LANE Vf splat_f(float a) { return _mm_set1_ps(a); }
VTX_LANE Vd splat_d(double a) { return _mm_set1_pd(a); }
VTX_LANE Vf zero_f() { return _mm_setzero_ps(); }
VTX_LANE Vd zero_d() { return _mm_setzero_pd(); }
VTX_LANE Vf bits_xor(Vf a, Vf b) { return _mm_xor_ps(a, b); }
VTX_LANE Vd bits_xor(Vd a, Vd b) { return _mm_xor_pd(a, b); }
// The low and the high half of the lanes, and the lanes of two halves.
VTX_LANE Vd widen_low(Vf a) { return _mm_cvtps_pd(a); }
VTX_LANE Vd widen_high(Vf a) { return _mm_cvtps_pd(_mm_movehl_ps(a, a)); }
VTX_LANE Vf narrow(Vd low, Vd high) { return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high)); }

#elif VTX_BATCH_ISA == 1

using Vf = __m256;
using Vd = __m256d;
VTX_LANE Vf add(Vf a, Vf b) { return _mm256_add_ps(a, b); }
VTX_LANE Vf sub(Vf a, Vf b) { return _mm256_sub_ps(a, b); }
VTX_LANE Vf mul(Vf a, Vf b) { return _mm256_mul_ps(a, b); }
VTX_LANE Vd add(Vd a, Vd b) { return _mm256_add_pd(a, b); }
VTX_LANE Vd sub(Vd a, Vd b) { return _mm256_sub_pd(a, b); }
VTX_LANE Vd mul(Vd a, Vd b) { return _mm256_mul_pd(a, b); }
VTX_LANE Vf splat_f(float a) { return _mm256_set1_ps(a); }
VTX_LANE Vd splat_d(double a) { return _mm256_set1_pd(a); }
VTX_LANE Vf zero_f() { return _mm256_setzero_ps(); }
VTX_LANE Vd zero_d() { return _mm256_setzero_pd(); }
VTX_LANE Vf bits_xor(Vf a, Vf b) { return _mm256_xor_ps(a, b); }
VTX_LANE Vd bits_xor(Vd a, Vd b) { return _mm256_xor_pd(a, b); }
VTX_LANE Vd widen_low(Vf a) { return _mm256_cvtps_pd(_mm256_castps256_ps128(a)); }
VTX_LANE Vd widen_high(Vf a) { return _mm256_cvtps_pd(_mm256_extractf128_ps(a, 1)); }
VTX_LANE Vf narrow(Vd low, Vd high)
{
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(low)), _mm256_cvtpd_ps(high), 1);
}

#else

// GCC 12's AVX-512 intrinsics start from a deliberately undefined vector
// that its own flow analysis then reports as uninitialized.
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

using Vf = __m512;
using Vd = __m512d;
VTX_LANE Vf add(Vf a, Vf b) { return _mm512_add_ps(a, b); }
VTX_LANE Vf sub(Vf a, Vf b) { return _mm512_sub_ps(a, b); }
VTX_LANE Vf mul(Vf a, Vf b) { return _mm512_mul_ps(a, b); }
VTX_LANE Vd add(Vd a, Vd b) { return _mm512_add_pd(a, b); }
VTX_LANE Vd sub(Vd a, Vd b) { return _mm512_sub_pd(a, b); }
VTX_LANE Vd mul(Vd a, Vd b) { return _mm512_mul_pd(a, b); }
VTX_LANE Vf splat_f(float a) { return _mm512_set1_ps(a); }
VTX_LANE Vd splat_d(double a) { return _mm512_set1_pd(a); }
VTX_LANE Vf zero_f() { return _mm512_setzero_ps(); }
VTX_LANE Vd zero_d() { return _mm512_setzero_pd(); }
VTX_LANE Vf bits_xor(Vf a, Vf b) { return _mm512_xor_ps(a, b); }
VTX_LANE Vd bits_xor(Vd a, Vd b) { return _mm512_xor_pd(a, b); }
VTX_LANE Vd widen_low(Vf a) { return _mm512_cvtps_pd(_mm512_castps512_ps256(a)); }
VTX_LANE Vd widen_high(Vf a) { return _mm512_cvtps_pd(_mm512_extractf32x8_ps(a, 1)); }
VTX_LANE Vf narrow(Vd low, Vd high)
{
    return _mm512_insertf32x8(_mm512_castps256_ps512(_mm512_cvtpd_ps(low)), _mm512_cvtpd_ps(high), 1);
}

#endif

// ---- what the generated kernels speak, the same in every set

template <class T> struct LanesOf;
template <> struct LanesOf<float> { using V = Vf; };
template <> struct LanesOf<double> { using V = Vd; };
template <class T>
constexpr int kLanes = static_cast<int>(sizeof(typename LanesOf<T>::V) / sizeof(T));

// 0 - a, positive zero the minuend.
VTX_LANE Vf neg0(Vf a) { return sub(zero_f(), a); }
VTX_LANE Vd neg0(Vd a) { return sub(zero_d(), a); }

// The sign bits flipped (no arithmetic).
VTX_LANE Vf flip(Vf a) { return bits_xor(a, splat_f(-0.0f)); }
VTX_LANE Vd flip(Vd a) { return bits_xor(a, splat_d(-0.0)); }

}  // namespace vtx::batch::VTX_BATCH_SET
