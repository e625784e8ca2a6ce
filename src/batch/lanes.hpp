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
// exact and narrowing rounds once, as the scalar conversions do.
//
// Memory: transpose() turns W vectors of W components of one transform each
// into W vectors of one component of W transforms each, and back (it is its
// own inverse); load_row and store_row move the first k < W components of a
// row without touching memory behind them.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstring>

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

VTX_LANE Vf load(const float* p) { return _mm_loadu_ps(p); }
VTX_LANE Vd load(const double* p) { return _mm_loadu_pd(p); }
VTX_LANE void store(float* p, Vf v) { _mm_storeu_ps(p, v); }
VTX_LANE void store(double* p, Vd v) { _mm_storeu_pd(p, v); }

// Rows of fewer than W components go through a small block.
template <class V, class T>
VTX_LANE V load_row(const T* p, int k)
{
    alignas(16) T block[16 / sizeof(T)] = {};
    std::memcpy(block, p, sizeof(T) * static_cast<std::size_t>(k));
    return load(block);
}
template <class V, class T>
VTX_LANE void store_row(T* p, V v, int k)
{
    alignas(16) T block[16 / sizeof(T)];
    store(block, v);
    std::memcpy(p, block, sizeof(T) * static_cast<std::size_t>(k));
}

VTX_LANE void transpose(Vf (&v)[4]) { _MM_TRANSPOSE4_PS(v[0], v[1], v[2], v[3]); }
VTX_LANE void transpose(Vd (&v)[2])
{
    const Vd a = _mm_unpacklo_pd(v[0], v[1]);
    v[1] = _mm_unpackhi_pd(v[0], v[1]);
    v[0] = a;
}

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

VTX_LANE Vf load(const float* p) { return _mm256_loadu_ps(p); }
VTX_LANE Vd load(const double* p) { return _mm256_loadu_pd(p); }
VTX_LANE void store(float* p, Vf v) { _mm256_storeu_ps(p, v); }
VTX_LANE void store(double* p, Vd v) { _mm256_storeu_pd(p, v); }

// Masked accesses: the masked-off elements are neither read nor written.
VTX_LANE __m256i first_of_8(int k) { return _mm256_cmpgt_epi32(_mm256_set1_epi32(k), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7)); }
VTX_LANE __m256i first_of_4(int k) { return _mm256_cmpgt_epi64(_mm256_set1_epi64x(k), _mm256_setr_epi64x(0, 1, 2, 3)); }
template <class V>
VTX_LANE V load_row(const float* p, int k) { return _mm256_maskload_ps(p, first_of_8(k)); }
template <class V>
VTX_LANE V load_row(const double* p, int k) { return _mm256_maskload_pd(p, first_of_4(k)); }
template <class V>
VTX_LANE void store_row(float* p, V v, int k) { _mm256_maskstore_ps(p, first_of_8(k), v); }
template <class V>
VTX_LANE void store_row(double* p, V v, int k) { _mm256_maskstore_pd(p, first_of_4(k), v); }

// Four by four within each 128-bit lane, then the lanes.
VTX_LANE void transpose(Vf (&v)[8])
{
    Vf b[8];
    for (int g = 0; g < 8; g += 4) {
        const Vf a0 = _mm256_unpacklo_ps(v[g], v[g + 1]), a1 = _mm256_unpackhi_ps(v[g], v[g + 1]);
        const Vf a2 = _mm256_unpacklo_ps(v[g + 2], v[g + 3]), a3 = _mm256_unpackhi_ps(v[g + 2], v[g + 3]);
        b[g] = _mm256_shuffle_ps(a0, a2, 0x44);
        b[g + 1] = _mm256_shuffle_ps(a0, a2, 0xEE);
        b[g + 2] = _mm256_shuffle_ps(a1, a3, 0x44);
        b[g + 3] = _mm256_shuffle_ps(a1, a3, 0xEE);
    }
    for (int c = 0; c < 4; ++c) {
        v[c] = _mm256_permute2f128_ps(b[c], b[c + 4], 0x20);
        v[c + 4] = _mm256_permute2f128_ps(b[c], b[c + 4], 0x31);
    }
}
VTX_LANE void transpose(Vd (&v)[4])
{
    const Vd a0 = _mm256_unpacklo_pd(v[0], v[1]), a1 = _mm256_unpackhi_pd(v[0], v[1]);
    const Vd a2 = _mm256_unpacklo_pd(v[2], v[3]), a3 = _mm256_unpackhi_pd(v[2], v[3]);
    v[0] = _mm256_permute2f128_pd(a0, a2, 0x20);
    v[1] = _mm256_permute2f128_pd(a1, a3, 0x20);
    v[2] = _mm256_permute2f128_pd(a0, a2, 0x31);
    v[3] = _mm256_permute2f128_pd(a1, a3, 0x31);
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

VTX_LANE Vf load(const float* p) { return _mm512_loadu_ps(p); }
VTX_LANE Vd load(const double* p) { return _mm512_loadu_pd(p); }
VTX_LANE void store(float* p, Vf v) { _mm512_storeu_ps(p, v); }
VTX_LANE void store(double* p, Vd v) { _mm512_storeu_pd(p, v); }

template <class V>
VTX_LANE V load_row(const float* p, int k) { return _mm512_maskz_loadu_ps(static_cast<__mmask16>((1u << k) - 1), p); }
template <class V>
VTX_LANE V load_row(const double* p, int k) { return _mm512_maskz_loadu_pd(static_cast<__mmask8>((1u << k) - 1), p); }
template <class V>
VTX_LANE void store_row(float* p, V v, int k) { _mm512_mask_storeu_ps(p, static_cast<__mmask16>((1u << k) - 1), v); }
template <class V>
VTX_LANE void store_row(double* p, V v, int k) { _mm512_mask_storeu_pd(p, static_cast<__mmask8>((1u << k) - 1), v); }

// The 128-bit lanes of four vectors as a four by four matrix, transposed.
template <class V, class Shuffle>
VTX_LANE void transpose_lanes(V& x0, V& x1, V& x2, V& x3, Shuffle shuffle)
{
    const V a0 = shuffle.template operator()<0x44>(x0, x1), a1 = shuffle.template operator()<0xEE>(x0, x1);
    const V a2 = shuffle.template operator()<0x44>(x2, x3), a3 = shuffle.template operator()<0xEE>(x2, x3);
    x0 = shuffle.template operator()<0x88>(a0, a2);
    x1 = shuffle.template operator()<0xDD>(a0, a2);
    x2 = shuffle.template operator()<0x88>(a1, a3);
    x3 = shuffle.template operator()<0xDD>(a1, a3);
}

// Four by four within each 128-bit lane, then the lanes.
VTX_LANE void transpose(Vf (&v)[16])
{
    Vf b[16];  // b[4 c + g]: column c of each lane's four rows of group g
    for (int g = 0; g < 4; ++g) {
        const Vf* r = v + 4 * g;
        const Vf a0 = _mm512_unpacklo_ps(r[0], r[1]), a1 = _mm512_unpackhi_ps(r[0], r[1]);
        const Vf a2 = _mm512_unpacklo_ps(r[2], r[3]), a3 = _mm512_unpackhi_ps(r[2], r[3]);
        b[g] = _mm512_shuffle_ps(a0, a2, 0x44);
        b[4 + g] = _mm512_shuffle_ps(a0, a2, 0xEE);
        b[8 + g] = _mm512_shuffle_ps(a1, a3, 0x44);
        b[12 + g] = _mm512_shuffle_ps(a1, a3, 0xEE);
    }
    const auto shuffle = []<int Imm>(Vf x, Vf y) { return _mm512_shuffle_f32x4(x, y, Imm); };
    for (int c = 0; c < 4; ++c) {
        Vf* x = b + 4 * c;
        transpose_lanes(x[0], x[1], x[2], x[3], shuffle);
        for (int l = 0; l < 4; ++l)
            v[4 * l + c] = x[l];
    }
}
VTX_LANE void transpose(Vd (&v)[8])
{
    Vd b[8];  // b[4 c + g]: column c of each lane's two rows of pair g
    for (int g = 0; g < 4; ++g) {
        b[g] = _mm512_unpacklo_pd(v[2 * g], v[2 * g + 1]);
        b[4 + g] = _mm512_unpackhi_pd(v[2 * g], v[2 * g + 1]);
    }
    const auto shuffle = []<int Imm>(Vd x, Vd y) { return _mm512_shuffle_f64x2(x, y, Imm); };
    for (int c = 0; c < 2; ++c) {
        Vd* x = b + 4 * c;
        transpose_lanes(x[0], x[1], x[2], x[3], shuffle);
        for (int l = 0; l < 4; ++l)
            v[2 * l + c] = x[l];
    }
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
