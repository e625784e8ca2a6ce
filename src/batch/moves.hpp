// How the batch runtime moves components between memory and vectors, for
// one instruction set (compiled with VTX_BATCH_ISA and that set's flags, as
// lanes.hpp).
//
// transpose() turns W vectors of W components of one transform each into W
// vectors of one component of W transforms each, and back (it is its own
// inverse); load_row and store_row move the first k < W components of a
// row without touching memory behind them; where the set has gathers,
// gather() reads one component of W transforms at once.
#pragma once

#include "batch/lanes.hpp"

#include <cstddef>
#include <cstring>

namespace vtx::batch::VTX_BATCH_SET {

#if VTX_BATCH_ISA == 0

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

// SSE2 has no gathers or scatters: transposes only.
constexpr bool kGathers = false;
constexpr bool kScatters = false;
using Offsets = int;
VTX_LANE Offsets offsets_of(std::ptrdiff_t) { return 0; }

VTX_LANE void transpose(Vf (&v)[4]) { _MM_TRANSPOSE4_PS(v[0], v[1], v[2], v[3]); }
VTX_LANE void transpose(Vd (&v)[2])
{
    const Vd a = _mm_unpacklo_pd(v[0], v[1]);
    v[1] = _mm_unpackhi_pd(v[0], v[1]);
    v[0] = a;
}

#elif VTX_BATCH_ISA == 1

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

constexpr bool kGathers = true;
constexpr bool kScatters = false;  // AVX2 has none
using Offsets = __m256i;
VTX_LANE Offsets offsets_of(std::ptrdiff_t stride)
{
    return _mm256_mullo_epi32(_mm256_set1_epi32(static_cast<int>(stride)), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7));
}
VTX_LANE Vf gather(const float* p, Offsets o, int rows)
{
    return _mm256_mask_i32gather_ps(_mm256_setzero_ps(), p, o, _mm256_castsi256_ps(first_of_8(rows)), 4);
}
VTX_LANE Vd gather(const double* p, Offsets o, int rows)
{
    return _mm256_mask_i32gather_pd(_mm256_setzero_pd(), p, _mm256_castsi256_si128(o),
                                    _mm256_castsi256_pd(first_of_4(rows)), 8);
}

// Four by four within each 128-bit lane, then the lanes.
VTX_LANE void transpose(Vf (&v)[8])
{
    Vf b[8];
    #pragma GCC unroll 16
    for (int g = 0; g < 8; g += 4) {
        const Vf a0 = _mm256_unpacklo_ps(v[g], v[g + 1]), a1 = _mm256_unpackhi_ps(v[g], v[g + 1]);
        const Vf a2 = _mm256_unpacklo_ps(v[g + 2], v[g + 3]), a3 = _mm256_unpackhi_ps(v[g + 2], v[g + 3]);
        b[g] = _mm256_shuffle_ps(a0, a2, 0x44);
        b[g + 1] = _mm256_shuffle_ps(a0, a2, 0xEE);
        b[g + 2] = _mm256_shuffle_ps(a1, a3, 0x44);
        b[g + 3] = _mm256_shuffle_ps(a1, a3, 0xEE);
    }
    #pragma GCC unroll 16
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

// One component of up to W transforms by a gather: row r at element
// offsets[r] from p, the lanes of rows past `rows` zeros and not read.
// Offsets are 32-bit: the runtime gathers only while (W - 1) strides fit.
constexpr bool kGathers = true;
using Offsets = __m512i;
VTX_LANE Offsets offsets_of(std::ptrdiff_t stride)
{
    return _mm512_mullo_epi32(_mm512_set1_epi32(static_cast<int>(stride)),
                              _mm512_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15));
}
VTX_LANE Vf gather(const float* p, Offsets o, int rows)
{
    return _mm512_mask_i32gather_ps(_mm512_setzero_ps(), static_cast<__mmask16>((1u << rows) - 1), o, p, 4);
}
VTX_LANE Vd gather(const double* p, Offsets o, int rows)
{
    return _mm512_mask_i32gather_pd(_mm512_setzero_pd(), static_cast<__mmask8>((1u << rows) - 1),
                                    _mm512_castsi512_si256(o), p, 8);
}
// And back: one component of up to W transforms stored by a scatter.
constexpr bool kScatters = true;
VTX_LANE void scatter(float* p, Offsets o, int rows, Vf v)
{
    _mm512_mask_i32scatter_ps(p, static_cast<__mmask16>((1u << rows) - 1), o, v, 4);
}
VTX_LANE void scatter(double* p, Offsets o, int rows, Vd v)
{
    _mm512_mask_i32scatter_pd(p, static_cast<__mmask8>((1u << rows) - 1), _mm512_castsi512_si256(o), v, 8);
}

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
    #pragma GCC unroll 16
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
    #pragma GCC unroll 16
    for (int c = 0; c < 4; ++c) {
        Vf* x = b + 4 * c;
        transpose_lanes(x[0], x[1], x[2], x[3], shuffle);
        #pragma GCC unroll 16
        for (int l = 0; l < 4; ++l)
            v[4 * l + c] = x[l];
    }
}
VTX_LANE void transpose(Vd (&v)[8])
{
    Vd b[8];  // b[4 c + g]: column c of each lane's two rows of pair g
    #pragma GCC unroll 16
    for (int g = 0; g < 4; ++g) {
        b[g] = _mm512_unpacklo_pd(v[2 * g], v[2 * g + 1]);
        b[4 + g] = _mm512_unpackhi_pd(v[2 * g], v[2 * g + 1]);
    }
    const auto shuffle = []<int Imm>(Vd x, Vd y) { return _mm512_shuffle_f64x2(x, y, Imm); };
    #pragma GCC unroll 16
    for (int c = 0; c < 2; ++c) {
        Vd* x = b + 4 * c;
        transpose_lanes(x[0], x[1], x[2], x[3], shuffle);
        #pragma GCC unroll 16
        for (int l = 0; l < 4; ++l)
            v[2 * l + c] = x[l];
    }
}

#endif

}  // namespace vtx::batch::VTX_BATCH_SET
