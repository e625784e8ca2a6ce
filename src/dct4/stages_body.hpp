// The computations of a DCT-IV plan of length 64 and up, on 128-bit vectors,
// as templates: stages_32f.cpp and stages_64f.cpp instantiate one precision
// each, so that the two build side by side.
//
// A vector holds lanes adjacent columns in stage one (so the column
// transforms and the joins of env8 run lane for lane, with no shuffle but the
// reversal of backward reads), and lanes adjacent rows in stage two (blocks of
// lanes rows by lanes columns of the scratch are turned through shuffles).
// The arithmetic is that of math.hpp, one straight line per rule.
#pragma once

#include "dct4/stages.hpp"

#include "dct4/math.hpp"
#include "frame/simd.hpp"
#include "vtxgen.h"

namespace vtx::dct4 {
namespace {

using namespace vtx::plan;
using namespace math;

#define VTX_BODY __attribute__((flatten))

// A vector of lanes elements as a number of the kernels.  Loads and stores of
// the scratch and the tables are aligned; the caller's arrays may sit anywhere.
template <class S> struct Packed;

template <>
struct Packed<float> {
    static constexpr int lanes = 4;
    V4f v;
    Packed() = default;
    VTX_OP Packed(V4f x) : v(x) {}
    VTX_OP explicit Packed(long double c) : v(splat4(static_cast<float>(c))) {}
    VTX_OP static Packed load(const float* p) { return _mm_load_ps(p); }
    VTX_OP static Packed loadAny(const float* p) { return _mm_loadu_ps(p); }
    // Elements p, p-1, p-2, p-3 in lanes 0 to 3.
    VTX_OP static Packed loadDown(const float* p)
    {
        const V4f x = _mm_loadu_ps(p - 3);
        return shuffle<3, 2, 1, 0>(x, x);
    }
    VTX_OP void store(float* p) const { _mm_store_ps(p, v); }
    VTX_OP void storeAny(float* p) const { _mm_storeu_ps(p, v); }
    VTX_OP void storeDown(float* p) const { _mm_storeu_ps(p - 3, shuffle<3, 2, 1, 0>(v, v)); }
    VTX_OP Packed operator-() const { return -v; }
    // Four rows of four become four columns of four.
    VTX_OP static void transpose(Packed* r) { _MM_TRANSPOSE4_PS(r[0].v, r[1].v, r[2].v, r[3].v); }
};

template <>
struct Packed<double> {
    static constexpr int lanes = 2;
    V2d v;
    Packed() = default;
    VTX_OP Packed(V2d x) : v(x) {}
    VTX_OP explicit Packed(long double c) : v(splat2(static_cast<double>(c))) {}
    VTX_OP static Packed load(const double* p) { return _mm_load_pd(p); }
    VTX_OP static Packed loadAny(const double* p) { return _mm_loadu_pd(p); }
    VTX_OP static Packed loadDown(const double* p) { return swap(_mm_loadu_pd(p - 1)); }
    VTX_OP void store(double* p) const { _mm_store_pd(p, v); }
    VTX_OP void storeAny(double* p) const { _mm_storeu_pd(p, v); }
    VTX_OP void storeDown(double* p) const { _mm_storeu_pd(p - 1, swap(v)); }
    VTX_OP Packed operator-() const { return -v; }
    VTX_OP static void transpose(Packed* r)
    {
        const V2d lo = unpacklo(r[0].v, r[1].v), hi = unpackhi(r[0].v, r[1].v);
        r[0].v = lo;
        r[1].v = hi;
    }
};

// Lane-wise arithmetic in the compiler's vector operators, so that a sign
// flip folds into the sum or product it feeds (exact, like every rounding
// here: one per lane, no fused operations).
template <class S> VTX_OP Packed<S> operator+(Packed<S> a, Packed<S> b) { return a.v + b.v; }
template <class S> VTX_OP Packed<S> operator-(Packed<S> a, Packed<S> b) { return a.v - b.v; }
template <class S> VTX_OP Packed<S> operator*(Packed<S> a, Packed<S> b) { return a.v * b.v; }

template <class S>
VTX_OP Cx<Packed<S>> loadPair(const S* re, const S* im)
{
    return {Packed<S>::load(re), Packed<S>::load(im)};
}

template <class S>
VTX_OP void storePair(Cx<Packed<S>> z, S* re, S* im)
{
    z.re.store(re);
    z.im.store(im);
}

// ---- Pieces of rows ---------------------------------------------------------

// The widest run of columns a pass handles side by side: all m <= 32 of them.
constexpr std::int32_t kWidth = 32;

// A piece of `width` elements (a multiple of the lanes) between 16-byte
// aligned places; the caller's input may sit anywhere (loadAny).
template <class S, bool FromAny = false>
VTX_OP void copyPiece(S* to, const S* from, std::int32_t width)
{
    for (std::int32_t i = 0; i < width; i += Packed<S>::lanes)
        (FromAny ? Packed<S>::loadAny(from + i) : Packed<S>::load(from + i)).store(to + i);
}

// ---- Stage one: the column transforms ---------------------------------------

// The transform of length L of lanes adjacent folded columns, the first being
// column b of the fold of x at stride S: u[n] = x[S n + b] for n >= 0 and
// x[S |n| - 1 - b] for n < 0, so the lanes of a backward read go down in
// memory.  Row r of the result goes to y + r pitch.
template <int L, class S>
VTX_BODY void columnBody(const S* x, std::int32_t stride, std::int32_t b, S* y, std::int32_t pitch)
{
    using P = Packed<S>;
    Cx<P> z[L / 2];
    column<L, P>(
        [&](auto n) VTX_DCT_LAMBDA {
            constexpr int k = decltype(n)::value;
            if constexpr (k >= 0)
                return P::loadAny(x + (k * stride + b));
            else
                return P::loadDown(x + (-k * stride - 1 - b));
        },
        z);
    staticFor<L / 2>([&](auto a) VTX_DCT_LAMBDA { storePair(z[a], y + 2 * a * pitch, y + (2 * a + 1) * pitch); });
}

template <class S>
using ColumnBody = void (*)(const S*, std::int32_t, std::int32_t, S*, std::int32_t);

// Rules 1 to 6 of env5 and env9 are the lengths 2 to 64: pick(Index<L>{}) of
// the rule's length, or null.
template <class Pick>
auto ofColumnRule(std::int32_t rule, Pick pick) -> decltype(pick(Index<2>{}))
{
    switch (rule) {
    case 1: return pick(Index<2>{});
    case 2: return pick(Index<4>{});
    case 3: return pick(Index<8>{});
    case 4: return pick(Index<16>{});
    case 5: return pick(Index<32>{});
    case 6: return pick(Index<64>{});
    default: return nullptr;
    }
}

template <class S>
ColumnBody<S> columnBodyOf(std::int32_t rule)
{
    return ofColumnRule(rule, [](auto l) VTX_DCT_LAMBDA -> ColumnBody<S> { return columnBody<decltype(l)::value, S>; });
}

// All groups of one inner column of an env7 level at once: its L folded
// pieces (`width` columns each, at stride S of the input) copied into a stack
// buffer as a fold of stride 2 kWidth, the columns transformed there, and the
// L result rows copied out whole.  In the deeper levels the pieces lie at
// large power-of-two distances, where transforms group by group would evict
// each cache line between neighbouring groups.
template <int L, class S>
VTX_BODY void columnPass(const S* x, std::int32_t stride, std::int32_t column, std::int32_t width, S* y,
                         std::int32_t pitch)
{
    constexpr std::int32_t localStride = 2 * kWidth;
    alignas(16) S in[L * kWidth];
    alignas(16) S out[L][kWidth];
    for (std::int32_t n = 0; n < L / 2; ++n)
        copyPiece<S, true>(in + localStride * n, x + (stride * n + column), width);
    for (std::int32_t k = 1; k <= L / 2; ++k)  // elements S k - 1 - column - b, b < width
        copyPiece<S, true>(in + (localStride * k - width), x + (stride * k - column - width), width);
    for (std::int32_t b = 0; b < width; b += Packed<S>::lanes)
        columnBody<L, S>(in, localStride, b, out[0] + b, kWidth);
    for (std::int32_t r = 0; r < L; ++r)
        copyPiece(y + r * pitch, out[r], width);
}

template <class S>
using ColumnPassOf = void (*)(const S*, std::int32_t, std::int32_t, std::int32_t, S*, std::int32_t);

constexpr std::int64_t kStagedBytes = 64 * 1024;

template <class S>
ColumnPassOf<S> columnPassOf(std::int32_t rule)
{
    return ofColumnRule(rule, [](auto l) VTX_DCT_LAMBDA -> ColumnPassOf<S> { return columnPass<decltype(l)::value, S>; });
}

// ---- The join of an env7 level ----------------------------------------------

// Rows a' of the inner results Y[c] (scratch rows 2a' and 2a'+1 at pitch
// m2 G, column c at c G) joined into the rows of Z (pitch G), the conjugated
// half from the highest row down, for `groups` adjacent groups of columns.
// Twiddles stream from the table, m2 - 1 broadcast pairs per row.
//
// The 2 m2 pieces of a row a' (all groups of a column c side by side, at most
// kWidth elements) lie at large power-of-two distances in the deeper levels,
// where vector accesses group by group would evict each cache line between
// its neighbouring groups.  So each row is first copied whole into a stack
// buffer, joined there at fixed offsets, and its 2 m2 result pieces copied
// out whole.
template <int M2, class S>
VTX_BODY void joinBody(const Env8* self, S* dst, const S* src, std::int32_t groups, const S* table)
{
    using P = Packed<S>;
    constexpr int lanes = P::lanes;
    const std::int32_t g = self->cols, pitch = self->rowStride / 2, l2 = self->inner, width = lanes * groups;
    alignas(16) S in[2 * M2][kWidth];
    alignas(16) S out[2 * M2][kWidth];
    for (std::int32_t a = 0; a < self->v; ++a, table += 2 * lanes * (M2 - 1)) {
        for (std::int32_t c = 0; c < M2; ++c) {
            copyPiece(in[2 * c], src + 2 * a * pitch + c * g, width);
            copyPiece(in[2 * c + 1], src + (2 * a + 1) * pitch + c * g, width);
        }
        for (std::int32_t b = 0; b < width; b += lanes) {
            Cx<P> w[M2];
            staticFor<M2>([&](auto c) VTX_DCT_LAMBDA { w[c] = loadPair(&in[2 * c][b], &in[2 * c + 1][b]); });
            twiddleDft<M2, P>(w, [&](int e) VTX_DCT_LAMBDA { return loadPair(table + 2 * lanes * e, table + 2 * lanes * e + lanes); });
            staticFor<M2 / 2>([&](auto q) VTX_DCT_LAMBDA { storePair(w[q], &out[2 * q][b], &out[2 * q + 1][b]); });
            staticFor<M2 / 2>([&](auto p) VTX_DCT_LAMBDA {
                storePair(conj(w[M2 - 1 - p]), &out[M2 + 2 * p][b], &out[M2 + 2 * p + 1][b]);
            });
        }
        for (std::int32_t q = 0; q < M2 / 2; ++q) {
            S* row = dst + 2 * (l2 * q + a) * g;
            copyPiece(row, out[2 * q], width);
            copyPiece(row + g, out[2 * q + 1], width);
        }
        for (std::int32_t p = 0; p < M2 / 2; ++p) {
            S* row = dst + 2 * (l2 * (p + 1) - a - 1) * g;
            copyPiece(row, out[M2 + 2 * p], width);
            copyPiece(row + g, out[M2 + 2 * p + 1], width);
        }
    }
}

// ---- Stage two: the combining kernels ---------------------------------------

// Groups of lanes rows a: Z[a][b] from scratch rows 2a and 2a+1 (pitch M),
// turned so that a lane is a row, twiddled and combined; output p of row a
// goes to y[L p + a] for p < M (adjacent rows adjacent) and minus output
// 2M - p to y[L p - 1 - a] for p = 1 .. M (adjacent rows going down).
template <int M, class S>
VTX_BODY void closeBody(const Env4* self, S* dst, const S* src, const S* table)
{
    using P = Packed<S>;
    constexpr int lanes = P::lanes;
    const std::int32_t l = self->l;
    for (std::int32_t a = 0; a < lanes * self->groups; a += lanes, table += 2 * lanes * M) {
        Cx<P> z[M];
        staticFor<M / lanes>([&](auto block) VTX_DCT_LAMBDA {
            P re[lanes], im[lanes];
            staticFor<lanes>([&](auto k) VTX_DCT_LAMBDA {
                re[k] = P::load(src + (2 * (a + k)) * M + lanes * block);
                im[k] = P::load(src + (2 * (a + k) + 1) * M + lanes * block);
            });
            P::transpose(re);
            P::transpose(im);
            staticFor<lanes>([&](auto k) VTX_DCT_LAMBDA { z[lanes * block + k] = {re[k], im[k]}; });
        });
        closeRow<M, P>(
            z, [&](int i) VTX_DCT_LAMBDA { return loadPair(table + 2 * lanes * i, table + (2 * i + 1) * lanes); },
            [&](auto p, P y) VTX_DCT_LAMBDA {
                if constexpr (p < M)
                    y.storeAny(dst + (l * p + a));
                else
                    (-y).storeDown(dst + (l * (2 * M - p) - 1 - a));
            });
    }
}

}  // namespace

// ---- The nodes' compute -----------------------------------------------------

template <class T>
std::int32_t env5_compute(const Env5* self, T* dst, const T* src)
{
    constexpr std::int32_t lanes = Precision<T>::lanes;
    if (self->rule == 7)
        return env7_compute<T>(firstOf<const Env7>(arenaOf(self, self->arena), self->kernelList), dst, src, 0, 0,
                               self->groups);
    const ColumnBody<T> body = columnBodyOf<T>(self->rule);
    if (!body)
        return vtxStatusBadRule;
    for (std::int32_t b = 0; b < lanes * self->groups; b += lanes)
        body(src, self->twoM, b, dst + b, self->m);
    return vtxStatusOk;
}

template <class T>
std::int32_t env9_compute(const Env9* self, T* dst, const T* src, std::int32_t column, std::int32_t output,
                          std::int32_t groups)
{
    constexpr std::int32_t lanes = Precision<T>::lanes;
    if (self->rule == 7) {
        const auto* inner = firstOf<const Env7>(arenaOf(self, self->arena), self->kernelList);
        for (std::int32_t c = 0; c < self->m2; ++c)
            env7_compute<T>(inner, dst, src, column + c * self->parentStride, output + c * self->cols, groups);
        return vtxStatusOk;
    }
    const ColumnBody<T> body = columnBodyOf<T>(self->rule);
    if (!body)
        return vtxStatusBadRule;
    // Through a buffer once the arrays outgrow the first-level cache; in it,
    // the copies cost more than they save.
    if (static_cast<std::int64_t>(self->n) * sizeof(T) >= kStagedBytes) {
        const ColumnPassOf<T> pass = columnPassOf<T>(self->rule);
        for (std::int32_t c = 0; c < self->m2; ++c)
            pass(src, self->stride, column + c * self->parentStride, lanes * groups, dst + output + c * self->cols,
                 self->colStride);
        return vtxStatusOk;
    }
    for (std::int32_t c = 0; c < self->m2; ++c)
        for (std::int32_t b = 0; b < lanes * groups; b += lanes)
            body(src, self->stride, column + c * self->parentStride + b, dst + output + c * self->cols + b,
                 self->colStride);
    return vtxStatusOk;
}

template <class T>
std::int32_t env7_compute(const Env7* self, T* dst, const T* src, std::int32_t column, std::int32_t output,
                          std::int32_t groups)
{
    if (self->rule != 1)
        return vtxStatusBadRule;
    const Arena* arena = arenaOf(self, self->arena);
    T* scratch = deref<T>(arena, self->scratch);
    const std::int32_t inner = env9_compute<T>(firstOf<const Env9>(arena, self->stage1List), scratch, src, column,
                                               output, groups);
    if (inner != vtxStatusOk)
        return inner;
    return env8_compute<T>(firstOf<const Env8>(arena, self->stage2List), dst, scratch, output, groups);
}

template <class T>
std::int32_t env8_compute(const Env8* self, T* dst, const T* src, std::int32_t output, std::int32_t groups)
{
    const T* table = deref<const T>(arenaOf(self, self->arena), self->table);
    dst += output;
    src += output;
    switch (self->rule) {
    case 1: joinBody<2>(self, dst, src, groups, table); return vtxStatusOk;
    case 2: joinBody<4>(self, dst, src, groups, table); return vtxStatusOk;
    case 3: joinBody<8>(self, dst, src, groups, table); return vtxStatusOk;
    case 4: joinBody<16>(self, dst, src, groups, table); return vtxStatusOk;
    case 5: joinBody<32>(self, dst, src, groups, table); return vtxStatusOk;
    default: return vtxStatusBadRule;
    }
}

template <class T>
std::int32_t env4_compute(const Env4* self, T* dst, const T* src)
{
    const T* table = deref<const T>(arenaOf(self, self->arena), self->table);
    switch (self->rule) {
    // m = 1 and m = 2 (single) never pass the lanes test of their stage one.
    case 2:
        if constexpr (Precision<T>::lanes == 2) {
            closeBody<2>(self, dst, src, table);
            return vtxStatusOk;
        }
        return vtxStatusBadRule;
    case 3: closeBody<4>(self, dst, src, table); return vtxStatusOk;
    case 4: closeBody<8>(self, dst, src, table); return vtxStatusOk;
    case 5: closeBody<16>(self, dst, src, table); return vtxStatusOk;
    case 6: closeBody<32>(self, dst, src, table); return vtxStatusOk;
    default: return vtxStatusBadRule;
    }
}

template <class T>
std::int32_t env1_compute(const Env1* self, T* dst, const T* src)
{
    const Arena* arena = arenaOf(self, self->arena);
    T* scratch = deref<T>(arena, self->scratch);
    const auto* stage1 = firstOf<const Env3>(arena, self->stage1List);
    if (stage1->rule == 1) {
        const std::int32_t status = env5_compute<T>(firstOf<const Env5>(arena, stage1->kernelList), scratch, src);
        if (status != vtxStatusOk)
            return status;
    }
    const auto* stage2 = firstOf<const Env2>(arena, self->stage2List);
    if (stage2->rule == 1)
        return env4_compute<T>(firstOf<const Env4>(arena, stage2->kernelList), dst, scratch);
    return vtxStatusOk;
}

}  // namespace vtx::dct4
