// How the batch runtime moves components between memory and vectors, for
// one instruction set (compiled with VTX_BATCH_ISA and that set's flags, as
// lanes.hpp).
//
// Blocks: W components of W transforms, read as W rows of one vector each
// and transposed in registers (block_in, block_out).  Pieces, for the
// components past the last whole block: a piece is the 16 bytes of P
// consecutive components of one transform (P = 4 floats or 2 doubles), a
// vector of W lanes holds W / P of them.  columns_in() reads P components of
// W transforms as P vectors of pieces, vector q holding the pieces of
// transforms q, q + P, q + 2P, ..., and transposes each 16-byte lane (P by
// P): vector c then holds component c of transforms 0..W-1 in order;
// columns_out() is the inverse.  A piece shorter than P components (the end
// of a transform) and the transforms of a short last group touch no memory
// behind them.
#pragma once

#include "batch/lanes.hpp"

#include <cstddef>
#include <cstring>
#include <utility>

namespace vtx::batch::VTX_BATCH_SET {

using Pf = __m128;   // a piece of floats
using Pd = __m128d;  // a piece of doubles

#if VTX_BATCH_ISA == 0

VTX_LANE Vf load(const float* p) { return _mm_loadu_ps(p); }
VTX_LANE Vd load(const double* p) { return _mm_loadu_pd(p); }
VTX_LANE void store(float* p, Vf v) { _mm_storeu_ps(p, v); }
VTX_LANE void store(double* p, Vd v) { _mm_storeu_pd(p, v); }

// Short pieces go through a small block.
template <class T, class P>
VTX_LANE P load_short(const T* p, int k)
{
    alignas(16) T block[16 / sizeof(T)] = {};
    std::memcpy(block, p, sizeof(T) * static_cast<std::size_t>(k));
    return load(block);
}
template <class T, class P>
VTX_LANE void store_short(T* p, P v, int k)
{
    alignas(16) T block[16 / sizeof(T)];
    store(block, v);
    std::memcpy(p, block, sizeof(T) * static_cast<std::size_t>(k));
}
VTX_LANE Pf load_piece(const float* p, int k) { return k == 4 ? load(p) : load_short<float, Pf>(p, k); }
VTX_LANE Pd load_piece(const double* p, int k) { return k == 2 ? load(p) : load_short<double, Pd>(p, k); }
VTX_LANE void store_piece(float* p, Pf v, int k)
{
    if (k == 4)
        store(p, v);
    else
        store_short(p, v, k);
}
VTX_LANE void store_piece(double* p, Pd v, int k)
{
    if (k == 2)
        store(p, v);
    else
        store_short(p, v, k);
}

// Within each 16-byte lane: (a0, b0, a1, b1), (a2, b2, a3, b3), (a0, a1, b0,
// b1), (a2, a3, b2, b3); (a0, b0), (a1, b1).
VTX_LANE Vf unpacklo(Vf a, Vf b) { return _mm_unpacklo_ps(a, b); }
VTX_LANE Vf unpackhi(Vf a, Vf b) { return _mm_unpackhi_ps(a, b); }
VTX_LANE Vf movelh(Vf a, Vf b) { return _mm_movelh_ps(a, b); }
VTX_LANE Vf movehl(Vf a, Vf b) { return _mm_movehl_ps(b, a); }
VTX_LANE Vd unpacklo(Vd a, Vd b) { return _mm_unpacklo_pd(a, b); }
VTX_LANE Vd unpackhi(Vd a, Vd b) { return _mm_unpackhi_pd(a, b); }

// One lane: the vector is the piece, and a block of W components one piece.
template <int L> VTX_LANE Vf with_lane(Vf, Pf x) { return x; }
template <int L> VTX_LANE Vd with_lane(Vd, Pd x) { return x; }
template <int L> VTX_LANE Pf lane(Vf v) { return v; }
template <int L> VTX_LANE Pd lane(Vd v) { return v; }

#elif VTX_BATCH_ISA == 1

VTX_LANE Vf load(const float* p) { return _mm256_loadu_ps(p); }
VTX_LANE Vd load(const double* p) { return _mm256_loadu_pd(p); }
VTX_LANE void store(float* p, Vf v) { _mm256_storeu_ps(p, v); }
VTX_LANE void store(double* p, Vd v) { _mm256_storeu_pd(p, v); }

// Masked accesses: the masked-off elements are neither read nor written.
VTX_LANE __m128i first_of_4(int k) { return _mm_cmpgt_epi32(_mm_set1_epi32(k), _mm_setr_epi32(0, 1, 2, 3)); }
VTX_LANE __m128i first_of_2(int k) { return _mm_cmpgt_epi64(_mm_set1_epi64x(k), _mm_set_epi64x(1, 0)); }
VTX_LANE Pf load_piece(const float* p, int k) { return k == 4 ? _mm_loadu_ps(p) : _mm_maskload_ps(p, first_of_4(k)); }
VTX_LANE Pd load_piece(const double* p, int k) { return k == 2 ? _mm_loadu_pd(p) : _mm_maskload_pd(p, first_of_2(k)); }
VTX_LANE void store_piece(float* p, Pf v, int k)
{
    if (k == 4)
        _mm_storeu_ps(p, v);
    else
        _mm_maskstore_ps(p, first_of_4(k), v);
}
VTX_LANE void store_piece(double* p, Pd v, int k)
{
    if (k == 2)
        _mm_storeu_pd(p, v);
    else
        _mm_maskstore_pd(p, first_of_2(k), v);
}

VTX_LANE Vf unpacklo(Vf a, Vf b) { return _mm256_unpacklo_ps(a, b); }
VTX_LANE Vf unpackhi(Vf a, Vf b) { return _mm256_unpackhi_ps(a, b); }
VTX_LANE Vf movelh(Vf a, Vf b) { return _mm256_shuffle_ps(a, b, 0x44); }
VTX_LANE Vf movehl(Vf a, Vf b) { return _mm256_shuffle_ps(a, b, 0xEE); }
VTX_LANE Vd unpacklo(Vd a, Vd b) { return _mm256_unpacklo_pd(a, b); }
VTX_LANE Vd unpackhi(Vd a, Vd b) { return _mm256_unpackhi_pd(a, b); }

template <int L> VTX_LANE Vf with_lane(Vf v, Pf x) { return _mm256_insertf128_ps(v, x, L); }
template <int L> VTX_LANE Vd with_lane(Vd v, Pd x) { return _mm256_insertf128_pd(v, x, L); }
template <int L> VTX_LANE Pf lane(Vf v) { return _mm256_extractf128_ps(v, L); }
template <int L> VTX_LANE Pd lane(Vd v) { return _mm256_extractf128_pd(v, L); }


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

VTX_LANE Pf load_piece(const float* p, int k)
{
    return k == 4 ? _mm_loadu_ps(p) : _mm_maskz_loadu_ps(static_cast<__mmask8>((1u << k) - 1), p);
}
VTX_LANE Pd load_piece(const double* p, int k)
{
    return k == 2 ? _mm_loadu_pd(p) : _mm_maskz_loadu_pd(static_cast<__mmask8>((1u << k) - 1), p);
}
VTX_LANE void store_piece(float* p, Pf v, int k)
{
    if (k == 4)
        _mm_storeu_ps(p, v);
    else
        _mm_mask_storeu_ps(p, static_cast<__mmask8>((1u << k) - 1), v);
}
VTX_LANE void store_piece(double* p, Pd v, int k)
{
    if (k == 2)
        _mm_storeu_pd(p, v);
    else
        _mm_mask_storeu_pd(p, static_cast<__mmask8>((1u << k) - 1), v);
}

VTX_LANE Vf unpacklo(Vf a, Vf b) { return _mm512_unpacklo_ps(a, b); }
VTX_LANE Vf unpackhi(Vf a, Vf b) { return _mm512_unpackhi_ps(a, b); }
VTX_LANE Vf movelh(Vf a, Vf b) { return _mm512_shuffle_ps(a, b, 0x44); }
VTX_LANE Vf movehl(Vf a, Vf b) { return _mm512_shuffle_ps(a, b, 0xEE); }
VTX_LANE Vd unpacklo(Vd a, Vd b) { return _mm512_unpacklo_pd(a, b); }
VTX_LANE Vd unpackhi(Vd a, Vd b) { return _mm512_unpackhi_pd(a, b); }

template <int L> VTX_LANE Vf with_lane(Vf v, Pf x) { return _mm512_insertf32x4(v, x, L); }
template <int L> VTX_LANE Vd with_lane(Vd v, Pd x) { return _mm512_insertf64x2(v, x, L); }
template <int L> VTX_LANE Pf lane(Vf v) { return _mm512_extractf32x4_ps(v, L); }
template <int L> VTX_LANE Pd lane(Vd v) { return _mm512_extractf64x2_pd(v, L); }


// Two of the 128-bit lanes of x and two of y, as Imm picks them.
template <int Imm> VTX_LANE Vf quarters(Vf x, Vf y) { return _mm512_shuffle_f32x4(x, y, Imm); }
template <int Imm> VTX_LANE Vd quarters(Vd x, Vd y) { return _mm512_shuffle_f64x2(x, y, Imm); }

// The 128-bit lanes of four vectors as a four by four matrix, transposed.
template <class V>
VTX_LANE void transpose_quarters(V& x0, V& x1, V& x2, V& x3)
{
    const V a0 = quarters<0x44>(x0, x1), a1 = quarters<0xEE>(x0, x1);
    const V a2 = quarters<0x44>(x2, x3), a3 = quarters<0xEE>(x2, x3);
    x0 = quarters<0x88>(a0, a2);
    x1 = quarters<0xDD>(a0, a2);
    x2 = quarters<0x88>(a1, a3);
    x3 = quarters<0xDD>(a1, a3);
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
    #pragma GCC unroll 16
    for (int c = 0; c < 4; ++c) {
        Vf* x = b + 4 * c;
        transpose_quarters(x[0], x[1], x[2], x[3]);
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
    #pragma GCC unroll 16
    for (int c = 0; c < 2; ++c) {
        Vd* x = b + 4 * c;
        transpose_quarters(x[0], x[1], x[2], x[3]);
        #pragma GCC unroll 16
        for (int l = 0; l < 4; ++l)
            v[2 * l + c] = x[l];
    }
}

#endif

// ---- the same in every set

// Each 16-byte lane of P vectors as a P by P matrix, transposed.
VTX_LANE void transpose_lanes(Vf (&v)[4])
{
    const Vf a0 = unpacklo(v[0], v[1]), a1 = unpackhi(v[0], v[1]);
    const Vf a2 = unpacklo(v[2], v[3]), a3 = unpackhi(v[2], v[3]);
    v[0] = movelh(a0, a2);
    v[1] = movehl(a0, a2);
    v[2] = movelh(a1, a3);
    v[3] = movehl(a1, a3);
}
VTX_LANE void transpose_lanes(Vd (&v)[2])
{
    const Vd a = unpacklo(v[0], v[1]);
    v[1] = unpackhi(v[0], v[1]);
    v[0] = a;
}

#if VTX_BATCH_ISA == 0
VTX_LANE void transpose(Vf (&v)[4]) { transpose_lanes(v); }
VTX_LANE void transpose(Vd (&v)[2]) { transpose_lanes(v); }
#endif

// Components p..p+W-1 of `rows` transforms (row r at x + r * stride) as W
// vectors of one component each, the lanes of missing rows zeros; and the
// inverse, writing the rows there are.
template <class T>
VTX_LANE void block_in(typename LanesOf<T>::V (&v)[kLanes<T>], const T* x, std::ptrdiff_t stride, int rows)
{
    constexpr int W = kLanes<T>;
    if (rows == W) {
#pragma GCC unroll 16
        for (int r = 0; r < W; ++r)
            v[r] = load(x + r * stride);
    } else {
#pragma GCC unroll 16
        for (int r = 0; r < W; ++r)
            v[r] = r < rows ? load(x + r * stride) : typename LanesOf<T>::V{};
    }
    transpose(v);
}
template <class T>
VTX_LANE void block_out(typename LanesOf<T>::V (&v)[kLanes<T>], T* y, std::ptrdiff_t stride, int rows)
{
    constexpr int W = kLanes<T>;
    transpose(v);
    if (rows == W) {
#pragma GCC unroll 16
        for (int r = 0; r < W; ++r)
            store(y + r * stride, v[r]);
    } else {
        for (int r = 0; r < rows; ++r)
            store(y + r * stride, v[r]);
    }
}

template <class T> struct PieceOf;
template <> struct PieceOf<float> { using type = Pf; };
template <> struct PieceOf<double> { using type = Pd; };

// Components of a piece.
template <class T>
constexpr int kPiece = 16 / static_cast<int>(sizeof(T));

// Components p..p+P-1 (`width` of them there) of `rows` transforms, row r
// at x + r * stride, as P vectors: vector c holds component c of each
// transform, zeros in the lanes of missing rows and components.
template <class T>
VTX_LANE void columns_in(typename LanesOf<T>::V (&v)[kPiece<T>], const T* x, std::ptrdiff_t stride, int rows, int width)
{
    using V = typename LanesOf<T>::V;
    using P = typename PieceOf<T>::type;
    constexpr int N = kPiece<T>, lanes = kLanes<T> / N;
    [&]<int... L>(std::integer_sequence<int, L...>) {
        if (rows == kLanes<T> && width == N) {
#pragma GCC unroll 4
            for (int q = 0; q < N; ++q) {
                V w{};
                ((w = with_lane<L>(w, load_piece(x + (q + N * L) * stride, N))), ...);
                v[q] = w;
            }
        } else {
#pragma GCC unroll 4
            for (int q = 0; q < N; ++q) {
                V w{};
                ((w = with_lane<L>(w, q + N * L < rows ? load_piece(x + (q + N * L) * stride, width) : P{})), ...);
                v[q] = w;
            }
        }
    }(std::make_integer_sequence<int, lanes>{});
    transpose_lanes(v);
}

// The inverse: P vectors of one component each written as `width`
// components of `rows` transforms, nothing else.
template <class T>
VTX_LANE void columns_out(typename LanesOf<T>::V (&v)[kPiece<T>], T* y, std::ptrdiff_t stride, int rows, int width)
{
    constexpr int N = kPiece<T>, lanes = kLanes<T> / N;
    transpose_lanes(v);
    [&]<int... L>(std::integer_sequence<int, L...>) {
        if (rows == kLanes<T> && width == N) {
#pragma GCC unroll 4
            for (int q = 0; q < N; ++q)
                (store_piece(y + (q + N * L) * stride, lane<L>(v[q]), N), ...);
        } else {
#pragma GCC unroll 4
            for (int q = 0; q < N; ++q)
                ((q + N * L < rows ? store_piece(y + (q + N * L) * stride, lane<L>(v[q]), width) : void()), ...);
        }
    }(std::make_integer_sequence<int, lanes>{});
}

}  // namespace vtx::batch::VTX_BATCH_SET
