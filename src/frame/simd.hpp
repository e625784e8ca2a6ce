// The thin vector layer of the generated kernels.
//
// Kernels speak only these operations on two 128-bit types: V4f (four
// floats) and V2d (two doubles).  Memory is reached through an access policy,
// Aligned or Unaligned, chosen by the kernel's frame; the arithmetic between
// loads and stores is the same for both, so a kernel and its unaligned twin
// give the same bits.  Swapping this header is how a build would target
// another instruction set.
#pragma once

#include <emmintrin.h>

// Every operation is expanded in place, in every build.
#define VTX_OP __attribute__((always_inline)) inline

namespace vtx {

using V4f = __m128;
using V2d = __m128d;

// ---- constants

VTX_OP V4f vec4(float a, float b, float c, float d) { return _mm_setr_ps(a, b, c, d); }
VTX_OP V4f splat4(float a) { return _mm_set1_ps(a); }
VTX_OP V2d vec2(double a, double b) { return _mm_setr_pd(a, b); }
VTX_OP V2d splat2(double a) { return _mm_set1_pd(a); }

// ---- arithmetic: one rounding per lane, no fused operations

VTX_OP V4f add(V4f a, V4f b) { return _mm_add_ps(a, b); }
VTX_OP V4f sub(V4f a, V4f b) { return _mm_sub_ps(a, b); }
VTX_OP V4f mul(V4f a, V4f b) { return _mm_mul_ps(a, b); }
VTX_OP V2d add(V2d a, V2d b) { return _mm_add_pd(a, b); }
VTX_OP V2d sub(V2d a, V2d b) { return _mm_sub_pd(a, b); }
VTX_OP V2d mul(V2d a, V2d b) { return _mm_mul_pd(a, b); }

// ---- the one scalar operation that needs a word

// A float that was just rounded from a double, widened again.  GCC 12 drops
// such a pair of conversions, and with it the rounding, once its vectorizer
// has put two of them side by side in lanes (value numbering takes
// (v2df)(v2sf)x for x); the empty asm hides where the float came from.
// tools/compiler_faults/narrow_widen.c shows the fault on its own.
VTX_OP double widen(float f)
{
    __asm__("" : "+x"(f));
    return f;
}

// ---- lane moves

// The two lanes of a double pair exchanged.
VTX_OP V2d swap(V2d a) { return _mm_shuffle_pd(a, a, 1); }

// Sign bits of the lanes set in Mask flipped by an exclusive or.
template <int Mask>
VTX_OP V2d flip(V2d a)
{
    return _mm_xor_pd(a, _mm_set_pd((Mask & 2) ? -0.0 : 0.0, (Mask & 1) ? -0.0 : 0.0));  // -0.0: the sign bit alone
}
template <int Mask>
VTX_OP V4f flip(V4f a)
{
    return _mm_xor_ps(a, _mm_setr_ps((Mask & 1) ? -0.0f : 0.0f, (Mask & 2) ? -0.0f : 0.0f, (Mask & 4) ? -0.0f : 0.0f,
                                     (Mask & 8) ? -0.0f : 0.0f));
}

// (a0, b0, a1, b1) and (a2, b2, a3, b3)
VTX_OP V4f unpacklo(V4f a, V4f b) { return _mm_unpacklo_ps(a, b); }
VTX_OP V4f unpackhi(V4f a, V4f b) { return _mm_unpackhi_ps(a, b); }
// (a0, b0) and (a1, b1)
VTX_OP V2d unpacklo(V2d a, V2d b) { return _mm_unpacklo_pd(a, b); }
VTX_OP V2d unpackhi(V2d a, V2d b) { return _mm_unpackhi_pd(a, b); }
// (a0, a1, b0, b1) and (a2, a3, b2, b3)
VTX_OP V4f movelh(V4f a, V4f b) { return _mm_movelh_ps(a, b); }
VTX_OP V4f movehl(V4f a, V4f b) { return _mm_movehl_ps(b, a); }
// (a[I0], a[I1], b[I2], b[I3])
template <int I0, int I1, int I2, int I3>
VTX_OP V4f shuffle(V4f a, V4f b)
{
    return _mm_shuffle_ps(a, b, _MM_SHUFFLE(I3, I2, I1, I0));
}

// (a[I0], b[I1])
template <int I0, int I1>
VTX_OP V2d shuffle2(V2d a, V2d b)
{
    return _mm_shuffle_pd(a, b, I0 | I1 << 1);
}

// Lane I alone.
template <int I>
VTX_OP float lane(V4f a)
{
    if constexpr (I == 0)
        return _mm_cvtss_f32(a);
    else
        return _mm_cvtss_f32(_mm_shuffle_ps(a, a, I));
}
template <int I>
VTX_OP double lane(V2d a)
{
    if constexpr (I == 0)
        return _mm_cvtsd_f64(a);
    else
        return _mm_cvtsd_f64(_mm_unpackhi_pd(a, a));
}

// ---- conversions, lane by lane: floats 0-1 widened (exact), doubles
// narrowed into floats 0-1 (one rounding each; floats 2-3 cleared)

VTX_OP V2d widen_low(V4f a) { return _mm_cvtps_pd(a); }
VTX_OP V4f narrow(V2d a) { return _mm_cvtpd_ps(a); }

// ---- memory

// Eight-byte accesses of one complex float, the same under both policies:
// lanes 0-1 loaded (2-3 cleared), lanes 0-1 or 2-3 stored.
// (__m64 may alias floats.)
VTX_OP V4f load_low(const float* p) { return _mm_loadl_pi(_mm_setzero_ps(), reinterpret_cast<const __m64*>(p)); }
VTX_OP void store_low(float* p, V4f v) { _mm_storel_pi(reinterpret_cast<__m64*>(p), v); }
VTX_OP void store_high(float* p, V4f v) { _mm_storeh_pi(reinterpret_cast<__m64*>(p), v); }

// Neighbouring elements at any address, whatever the policy: the real
// kernels' arrays need only their elements' alignment.
VTX_OP V4f load_any(const float* p) { return _mm_loadu_ps(p); }
VTX_OP V2d load_any(const double* p) { return _mm_loadu_pd(p); }
VTX_OP void store_any(float* p, V4f v) { _mm_storeu_ps(p, v); }
VTX_OP void store_any(double* p, V2d v) { _mm_storeu_pd(p, v); }

// Pointers the kernel's frame found 16-byte aligned: full-width accesses.
// An access at an odd pair of floats (8 bytes past a boundary) is made of
// the two aligned vectors around it, merged by byte shifts.
struct Aligned {
    VTX_OP static V4f load(const float* p) { return _mm_load_ps(p); }
    VTX_OP static V2d load(const double* p) { return _mm_load_pd(p); }
    VTX_OP static V4f load_straddle(const float* p)
    {
        const __m128i lo = _mm_castps_si128(_mm_load_ps(p - 2));
        const __m128i hi = _mm_castps_si128(_mm_load_ps(p + 2));
        return _mm_castsi128_ps(_mm_or_si128(_mm_srli_si128(lo, 8), _mm_slli_si128(hi, 8)));
    }
    VTX_OP static void store(float* p, V4f v) { _mm_store_ps(p, v); }
    VTX_OP static void store(double* p, V2d v) { _mm_store_pd(p, v); }
};

// Any pointer: float vectors by unaligned 16-byte accesses, double elements
// as two eight-byte halves.
struct Unaligned {
    VTX_OP static V4f load(const float* p) { return _mm_loadu_ps(p); }
    VTX_OP static V2d load(const double* p) { return _mm_loadh_pd(_mm_loadl_pd(_mm_setzero_pd(), p), p + 1); }
    VTX_OP static V4f load_straddle(const float* p) { return _mm_loadu_ps(p); }
    VTX_OP static void store(float* p, V4f v) { _mm_storeu_ps(p, v); }
    // (Through __m128i, which may sit at any address; a plain double store
    // would claim eight-byte alignment.)
    VTX_OP static void store(double* p, V2d v)
    {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castpd_si128(v));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p + 1), _mm_castpd_si128(_mm_unpackhi_pd(v, v)));
    }
};

// One double at any address (kernels without an alignment test may meet a
// double that is only 4-byte aligned): an eight-byte move through __m128i,
// which may sit anywhere.
VTX_OP double load_element(const double* p)
{
    return _mm_cvtsd_f64(_mm_castsi128_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))));
}
VTX_OP void store_element(double* p, double v)
{
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castpd_si128(_mm_set_sd(v)));
}

// Loads by one policy and stores by another: blocked kernels reach the
// caller's arrays through their own policy and their work buffer, which is
// always 16-byte aligned, through Aligned.
template <class In, class Out>
struct Split {
    VTX_OP static V4f load(const float* p) { return In::load(p); }
    VTX_OP static V2d load(const double* p) { return In::load(p); }
    VTX_OP static V4f load_straddle(const float* p) { return In::load_straddle(p); }
    VTX_OP static void store(float* p, V4f v) { Out::store(p, v); }
    VTX_OP static void store(double* p, V2d v) { Out::store(p, v); }
};

}  // namespace vtx
