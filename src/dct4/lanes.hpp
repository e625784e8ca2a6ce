// Vectors of the DCT-IV's stages: Packed<S, W> holds W lanes of S and is
// what the arithmetic of math.hpp runs on.  This header is compiled once per
// instruction set, in a translation unit of its own built with that set's
// flags: the 128-bit forms everywhere, the 256-bit ones under -mavx2, the
// 512-bit ones under -mavx512f -mavx512dq -mavx512vl.  Everything in it lives
// in the namespace VTX_DCT4_ISA names (sse2, avx2, avx512), so that no
// function compiled for a wider set can stand in for one of a narrower set at
// link time.
//
// Every lane rounds as the scalar operation would, one rounding per
// operation and no fused ones, so a stage gives the same bits at any width.
//
// The members:
//   load, store             the plan's scratch and tables, and stack buffers;
//   loadAny, storeAny       the caller's arrays, at any element address;
//   loadDown, storeDown     elements p, p-1, ..., p-W+1 in lanes 0 to W-1;
//   stream, streamDown      stores past the caches (aligned places only);
//   broadcast               one element in every lane;
//   loadGroups              W lanes of a table stored in 16-byte groups,
//                           `stride` elements from one group to the next;
//   transpose               W vectors of W lanes: lane j of vector k becomes
//                           lane k of vector j.
#pragma once

#include <immintrin.h>

// The set is the one the build names for this unit (VTX_DCT4_SET_AVX2 or
// VTX_DCT4_SET_AVX512, src/CMakeLists.txt; SSE2 otherwise), not the one the
// compiler's flags reach: a build for the machine at hand (-march=native)
// compiles all three units with AVX-512 on, and each must still be its own
// set, by its name and by its width.
#if defined(VTX_DCT4_SET_AVX512)
#define VTX_DCT4_ISA avx512
#define VTX_DCT4_BYTES 64
#elif defined(VTX_DCT4_SET_AVX2)
#define VTX_DCT4_ISA avx2
#define VTX_DCT4_BYTES 32
#else
#define VTX_DCT4_ISA sse2
#define VTX_DCT4_BYTES 16
#endif

#define VTX_LANE __attribute__((always_inline)) inline

// The compiler's own 512-bit permutes start from an undefined register, which
// it reports as uninitialised.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

namespace vtx::dct4::VTX_DCT4_ISA {

template <class S, int W>
struct Packed;

// The register type of W lanes of S.
template <class S, int W>
struct VectorOf;
template <> struct VectorOf<float, 4> { using type = __m128; };
template <> struct VectorOf<double, 2> { using type = __m128d; };
#if VTX_DCT4_BYTES >= 32
template <> struct VectorOf<float, 8> { using type = __m256; };
template <> struct VectorOf<double, 4> { using type = __m256d; };
#endif
#if VTX_DCT4_BYTES >= 64
template <> struct VectorOf<float, 16> { using type = __m512; };
template <> struct VectorOf<double, 8> { using type = __m512d; };
#endif

// The common part: the vector member, construction and lane-wise arithmetic
// in the compiler's vector operators, so that a sign flip folds into the sum
// or product it feeds (exact, like every rounding here).
template <class S, int W, class Self>
struct PackedBase {
    using Scalar = S;
    static constexpr int lanes = W;
    typename VectorOf<S, W>::type v;
    friend VTX_LANE Self operator+(Self a, Self b) { return Self{a.v + b.v}; }
    friend VTX_LANE Self operator-(Self a, Self b) { return Self{a.v - b.v}; }
    friend VTX_LANE Self operator*(Self a, Self b) { return Self{a.v * b.v}; }
    VTX_LANE Self operator-() const { return Self{-v}; }
};

// ---- 128 bits ---------------------------------------------------------------

template <>
struct Packed<float, 4> : PackedBase<float, 4, Packed<float, 4>> {
    Packed() = default;
    VTX_LANE Packed(__m128 x) { v = x; }
    VTX_LANE explicit Packed(long double c) { v = _mm_set1_ps(static_cast<float>(c)); }
    VTX_LANE static Packed load(const float* p) { return _mm_load_ps(p); }
    VTX_LANE static Packed loadAny(const float* p) { return _mm_loadu_ps(p); }
    VTX_LANE static Packed loadDown(const float* p) { return _mm_shuffle_ps(loadAny(p - 3).v, loadAny(p - 3).v, 0x1B); }
    VTX_LANE static Packed broadcast(const float* p) { return _mm_set1_ps(*p); }
    VTX_LANE static Packed loadGroups(const float* p, int) { return load(p); }
    VTX_LANE void store(float* p) const { _mm_store_ps(p, v); }
    VTX_LANE void storeAny(float* p) const { _mm_storeu_ps(p, v); }
    VTX_LANE void storeDown(float* p) const { _mm_storeu_ps(p - 3, _mm_shuffle_ps(v, v, 0x1B)); }
    VTX_LANE void stream(float* p) const { _mm_stream_ps(p, v); }
    VTX_LANE void streamDown(float* p) const { _mm_stream_ps(p - 3, _mm_shuffle_ps(v, v, 0x1B)); }
    VTX_LANE static void transpose(Packed* r) { _MM_TRANSPOSE4_PS(r[0].v, r[1].v, r[2].v, r[3].v); }
};

template <>
struct Packed<double, 2> : PackedBase<double, 2, Packed<double, 2>> {
    Packed() = default;
    VTX_LANE Packed(__m128d x) { v = x; }
    VTX_LANE explicit Packed(long double c) { v = _mm_set1_pd(static_cast<double>(c)); }
    VTX_LANE static Packed load(const double* p) { return _mm_load_pd(p); }
    VTX_LANE static Packed loadAny(const double* p) { return _mm_loadu_pd(p); }
    VTX_LANE static Packed loadDown(const double* p) { return _mm_shuffle_pd(loadAny(p - 1).v, loadAny(p - 1).v, 1); }
    VTX_LANE static Packed broadcast(const double* p) { return _mm_set1_pd(*p); }
    VTX_LANE static Packed loadGroups(const double* p, int) { return load(p); }
    VTX_LANE void store(double* p) const { _mm_store_pd(p, v); }
    VTX_LANE void storeAny(double* p) const { _mm_storeu_pd(p, v); }
    VTX_LANE void storeDown(double* p) const { _mm_storeu_pd(p - 1, _mm_shuffle_pd(v, v, 1)); }
    VTX_LANE void stream(double* p) const { _mm_stream_pd(p, v); }
    VTX_LANE void streamDown(double* p) const { _mm_stream_pd(p - 1, _mm_shuffle_pd(v, v, 1)); }
    VTX_LANE static void transpose(Packed* r)
    {
        const __m128d lo = _mm_unpacklo_pd(r[0].v, r[1].v), hi = _mm_unpackhi_pd(r[0].v, r[1].v);
        r[0].v = lo;
        r[1].v = hi;
    }
};

// ---- 256 bits ---------------------------------------------------------------
// The plan's storage is 32-byte aligned, the caller's arrays are not: every
// access is an unaligned one, as fast as an aligned one where it is aligned.

#if VTX_DCT4_BYTES >= 32

template <>
struct Packed<float, 8> : PackedBase<float, 8, Packed<float, 8>> {
    Packed() = default;
    VTX_LANE Packed(__m256 x) { v = x; }
    VTX_LANE explicit Packed(long double c) { v = _mm256_set1_ps(static_cast<float>(c)); }
    VTX_LANE static Packed load(const float* p) { return _mm256_loadu_ps(p); }
    VTX_LANE static Packed loadAny(const float* p) { return _mm256_loadu_ps(p); }
    VTX_LANE static __m256 reversed(__m256 x) { return _mm256_permutevar8x32_ps(x, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0)); }
    VTX_LANE static Packed loadDown(const float* p) { return reversed(_mm256_loadu_ps(p - 7)); }
    VTX_LANE static Packed broadcast(const float* p) { return _mm256_broadcast_ss(p); }
    VTX_LANE static Packed loadGroups(const float* p, int stride)
    {
        return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_load_ps(p)), _mm_load_ps(p + stride), 1);
    }
    VTX_LANE void store(float* p) const { _mm256_storeu_ps(p, v); }
    VTX_LANE void storeAny(float* p) const { _mm256_storeu_ps(p, v); }
    VTX_LANE void storeDown(float* p) const { _mm256_storeu_ps(p - 7, reversed(v)); }
    VTX_LANE void stream(float* p) const { _mm256_stream_ps(p, v); }
    VTX_LANE void streamDown(float* p) const { _mm256_stream_ps(p - 7, reversed(v)); }
    VTX_LANE static void transpose(Packed* r)
    {
        __m256 t[8], u[8];
        for (int i = 0; i < 8; i += 2) {
            t[i] = _mm256_unpacklo_ps(r[i].v, r[i + 1].v);
            t[i + 1] = _mm256_unpackhi_ps(r[i].v, r[i + 1].v);
        }
        for (int i = 0; i < 8; i += 4) {
            u[i] = _mm256_shuffle_ps(t[i], t[i + 2], 0x44);
            u[i + 1] = _mm256_shuffle_ps(t[i], t[i + 2], 0xEE);
            u[i + 2] = _mm256_shuffle_ps(t[i + 1], t[i + 3], 0x44);
            u[i + 3] = _mm256_shuffle_ps(t[i + 1], t[i + 3], 0xEE);
        }
        for (int j = 0; j < 4; ++j) {
            r[j].v = _mm256_permute2f128_ps(u[j], u[j + 4], 0x20);
            r[j + 4].v = _mm256_permute2f128_ps(u[j], u[j + 4], 0x31);
        }
    }
};

template <>
struct Packed<double, 4> : PackedBase<double, 4, Packed<double, 4>> {
    Packed() = default;
    VTX_LANE Packed(__m256d x) { v = x; }
    VTX_LANE explicit Packed(long double c) { v = _mm256_set1_pd(static_cast<double>(c)); }
    VTX_LANE static Packed load(const double* p) { return _mm256_loadu_pd(p); }
    VTX_LANE static Packed loadAny(const double* p) { return _mm256_loadu_pd(p); }
    VTX_LANE static Packed loadDown(const double* p) { return _mm256_permute4x64_pd(_mm256_loadu_pd(p - 3), 0x1B); }
    VTX_LANE static Packed broadcast(const double* p) { return _mm256_broadcast_sd(p); }
    VTX_LANE static Packed loadGroups(const double* p, int stride)
    {
        return _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_load_pd(p)), _mm_load_pd(p + stride), 1);
    }
    VTX_LANE void store(double* p) const { _mm256_storeu_pd(p, v); }
    VTX_LANE void storeAny(double* p) const { _mm256_storeu_pd(p, v); }
    VTX_LANE void storeDown(double* p) const { _mm256_storeu_pd(p - 3, _mm256_permute4x64_pd(v, 0x1B)); }
    VTX_LANE void stream(double* p) const { _mm256_stream_pd(p, v); }
    VTX_LANE void streamDown(double* p) const { _mm256_stream_pd(p - 3, _mm256_permute4x64_pd(v, 0x1B)); }
    VTX_LANE static void transpose(Packed* r)
    {
        const __m256d t0 = _mm256_unpacklo_pd(r[0].v, r[1].v), t1 = _mm256_unpackhi_pd(r[0].v, r[1].v);
        const __m256d t2 = _mm256_unpacklo_pd(r[2].v, r[3].v), t3 = _mm256_unpackhi_pd(r[2].v, r[3].v);
        r[0].v = _mm256_permute2f128_pd(t0, t2, 0x20);
        r[1].v = _mm256_permute2f128_pd(t1, t3, 0x20);
        r[2].v = _mm256_permute2f128_pd(t0, t2, 0x31);
        r[3].v = _mm256_permute2f128_pd(t1, t3, 0x31);
    }
};

#endif

// ---- 512 bits ---------------------------------------------------------------

#if VTX_DCT4_BYTES >= 64

template <>
struct Packed<float, 16> : PackedBase<float, 16, Packed<float, 16>> {
    Packed() = default;
    VTX_LANE Packed(__m512 x) { v = x; }
    VTX_LANE explicit Packed(long double c) { v = _mm512_set1_ps(static_cast<float>(c)); }
    VTX_LANE static Packed load(const float* p) { return _mm512_loadu_ps(p); }
    VTX_LANE static Packed loadAny(const float* p) { return _mm512_loadu_ps(p); }
    VTX_LANE static __m512 reversed(__m512 x)
    {
        return _mm512_permutexvar_ps(_mm512_setr_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0), x);
    }
    VTX_LANE static Packed loadDown(const float* p) { return reversed(_mm512_loadu_ps(p - 15)); }
    VTX_LANE static Packed broadcast(const float* p) { return _mm512_set1_ps(*p); }
    VTX_LANE static Packed loadGroups(const float* p, int stride)
    {
        const __m256 lo = _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_load_ps(p)), _mm_load_ps(p + stride), 1);
        const __m256 hi =
            _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_load_ps(p + 2 * stride)), _mm_load_ps(p + 3 * stride), 1);
        return _mm512_insertf32x8(_mm512_castps256_ps512(lo), hi, 1);
    }
    VTX_LANE void store(float* p) const { _mm512_storeu_ps(p, v); }
    VTX_LANE void storeAny(float* p) const { _mm512_storeu_ps(p, v); }
    VTX_LANE void storeDown(float* p) const { _mm512_storeu_ps(p - 15, reversed(v)); }
    VTX_LANE void stream(float* p) const { _mm512_stream_ps(p, v); }
    VTX_LANE void streamDown(float* p) const { _mm512_stream_ps(p - 15, reversed(v)); }
    // Within 128-bit blocks first (as four 4 x 4 transposes side by side),
    // then the 4 x 4 blocks of 128 bits.
    VTX_LANE static void transpose(Packed* r)
    {
        __m512 t[16], u[16];
        for (int i = 0; i < 16; i += 2) {
            t[i] = _mm512_unpacklo_ps(r[i].v, r[i + 1].v);
            t[i + 1] = _mm512_unpackhi_ps(r[i].v, r[i + 1].v);
        }
        for (int i = 0; i < 16; i += 4) {
            u[i] = _mm512_shuffle_ps(t[i], t[i + 2], 0x44);
            u[i + 1] = _mm512_shuffle_ps(t[i], t[i + 2], 0xEE);
            u[i + 2] = _mm512_shuffle_ps(t[i + 1], t[i + 3], 0x44);
            u[i + 3] = _mm512_shuffle_ps(t[i + 1], t[i + 3], 0xEE);
        }
        // u[4i + j], block k: rows 4i .. 4i+3 of column 4k + j.
        for (int j = 0; j < 4; ++j) {
            const __m512 v0 = _mm512_shuffle_f32x4(u[j], u[4 + j], 0x44);
            const __m512 v1 = _mm512_shuffle_f32x4(u[j], u[4 + j], 0xEE);
            const __m512 v2 = _mm512_shuffle_f32x4(u[8 + j], u[12 + j], 0x44);
            const __m512 v3 = _mm512_shuffle_f32x4(u[8 + j], u[12 + j], 0xEE);
            r[j].v = _mm512_shuffle_f32x4(v0, v2, 0x88);
            r[4 + j].v = _mm512_shuffle_f32x4(v0, v2, 0xDD);
            r[8 + j].v = _mm512_shuffle_f32x4(v1, v3, 0x88);
            r[12 + j].v = _mm512_shuffle_f32x4(v1, v3, 0xDD);
        }
    }
};

template <>
struct Packed<double, 8> : PackedBase<double, 8, Packed<double, 8>> {
    Packed() = default;
    VTX_LANE Packed(__m512d x) { v = x; }
    VTX_LANE explicit Packed(long double c) { v = _mm512_set1_pd(static_cast<double>(c)); }
    VTX_LANE static Packed load(const double* p) { return _mm512_loadu_pd(p); }
    VTX_LANE static Packed loadAny(const double* p) { return _mm512_loadu_pd(p); }
    VTX_LANE static __m512d reversed(__m512d x)
    {
        return _mm512_permutexvar_pd(_mm512_setr_epi64(7, 6, 5, 4, 3, 2, 1, 0), x);
    }
    VTX_LANE static Packed loadDown(const double* p) { return reversed(_mm512_loadu_pd(p - 7)); }
    VTX_LANE static Packed broadcast(const double* p) { return _mm512_set1_pd(*p); }
    VTX_LANE static Packed loadGroups(const double* p, int stride)
    {
        const __m256d lo = _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_load_pd(p)), _mm_load_pd(p + stride), 1);
        const __m256d hi =
            _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_load_pd(p + 2 * stride)), _mm_load_pd(p + 3 * stride), 1);
        return _mm512_insertf64x4(_mm512_castpd256_pd512(lo), hi, 1);
    }
    VTX_LANE void store(double* p) const { _mm512_storeu_pd(p, v); }
    VTX_LANE void storeAny(double* p) const { _mm512_storeu_pd(p, v); }
    VTX_LANE void storeDown(double* p) const { _mm512_storeu_pd(p - 7, reversed(v)); }
    VTX_LANE void stream(double* p) const { _mm512_stream_pd(p, v); }
    VTX_LANE void streamDown(double* p) const { _mm512_stream_pd(p - 7, reversed(v)); }
    // Pairs within 128-bit blocks, then blocks of 128 bits in two steps.
    VTX_LANE static void transpose(Packed* r)
    {
        __m512d t[8], u[8];
        for (int i = 0; i < 8; i += 2) {
            t[i] = _mm512_unpacklo_pd(r[i].v, r[i + 1].v);
            t[i + 1] = _mm512_unpackhi_pd(r[i].v, r[i + 1].v);
        }
        for (int i = 0; i < 8; i += 4) {
            u[i] = _mm512_shuffle_f64x2(t[i], t[i + 2], 0x88);
            u[i + 1] = _mm512_shuffle_f64x2(t[i], t[i + 2], 0xDD);
            u[i + 2] = _mm512_shuffle_f64x2(t[i + 1], t[i + 3], 0x88);
            u[i + 3] = _mm512_shuffle_f64x2(t[i + 1], t[i + 3], 0xDD);
        }
        // u[4h + k]: rows 4h .. 4h+3 of columns (k = 0: 0, 4; 1: 2, 6; 2: 1, 5; 3: 3, 7).
        constexpr int kColumn[4] = {0, 2, 1, 3};
        for (int k = 0; k < 4; ++k) {
            r[kColumn[k]].v = _mm512_shuffle_f64x2(u[k], u[4 + k], 0x88);
            r[kColumn[k] + 4].v = _mm512_shuffle_f64x2(u[k], u[4 + k], 0xDD);
        }
    }
};

#endif

// The widest vector of this translation unit's instruction set.
template <class S> inline constexpr int kWidest = VTX_DCT4_BYTES / sizeof(S);

}  // namespace vtx::dct4::VTX_DCT4_ISA

#pragma GCC diagnostic pop
