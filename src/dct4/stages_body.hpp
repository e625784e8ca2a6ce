// The computations of a DCT-IV plan of length 64 and up, on the vectors of
// one instruction set (lanes.hpp).  stages_sse2.cpp, stages_avx2.cpp and
// stages_avx512.cpp each include this once, built with their set's flags, and
// instantiate both precisions in that set's namespace.
//
// A vector holds lanes adjacent columns in stage one (so the column
// transforms and the joins of env8 run lane for lane, with no shuffle but the
// reversal of backward reads), and lanes adjacent rows in stage two (blocks of
// lanes rows by lanes columns of the scratch are turned through shuffles).
// The arithmetic is that of math.hpp, one straight line per rule, the same in
// every lane at every width: each set gives the bits of the others.
//
// Layout of the env7 levels.  The m = 32 columns of stage one (all groups
// side by side) run through every level at once.  A level's scratch holds
// the results of its inner columns one after another, inner column c as a
// block of rows of 32 elements (real part of row a' at row 2a', imaginary
// part at 2a' + 1), and the level writes its own result as such a block into
// the scratch of the level above, or into the root's scratch, whose rows are
// m = 32 elements too.  Every write of a level thus stays in the block of the
// column in hand, and the scratch of a deeper level is one block per call,
// reused for every inner column of the level above.
//
// Memory.  Vectors of 64 bytes are whole cache lines: every piece of a row
// is read and written by whole lines straight from where it lies.  Narrower
// vectors would touch each line of the input once per group, with the lines
// of the other pieces, which lie at large power-of-two distances, evicting
// it in between; there the input pieces pass through a stack buffer, and the
// join's result rows through another, whole rows at a time.  In plans too
// large for the caches, the next inner column's input is fetched ahead while
// a column is transformed, and the last level of stage one and stage two
// write the root's scratch and the destination past the caches, whole lines
// at a time, where these are 64-byte aligned: those lines are read again
// only once everything else has been written.
#pragma once

#include "dct4/lanes.hpp"
#include "dct4/math.hpp"
#include "dct4/stages.hpp"
#include "vtxgen.h"

namespace vtx::dct4::VTX_DCT4_ISA {
namespace {

using namespace vtx::plan;
using namespace math;

#define VTX_BODY __attribute__((flatten))

template <class S>
using Lane = Packed<S, kWidest<S>>;

// The plan's tables hold 16-byte groups: four floats or two doubles.
template <class S>
constexpr std::int32_t kPlanLanes = Precision<S>::lanes;

// Whether a vector is a whole cache line.
template <class S>
constexpr bool kWholeLines = kWidest<S> * sizeof(S) >= 64;

// The columns of stage one at every env7 level: m, which is 32 wherever a
// column is longer than 64.
constexpr std::int32_t kWidth = 32;

template <class S>
VTX_LANE Cx<Lane<S>> loadPair(const S* re, const S* im)
{
    return {Lane<S>::load(re), Lane<S>::load(im)};
}

// Where results go: plain stores, or stores past the caches.
template <bool Stream, class P, class S>
VTX_LANE void put(P x, S* p)
{
    if constexpr (Stream)
        x.stream(p);
    else
        x.store(p);
}

template <bool Stream, class S>
VTX_LANE void putPair(Cx<Lane<S>> z, S* re, S* im)
{
    put<Stream>(z.re, re);
    put<Stream>(z.im, im);
}

// kWidth elements from one place to another, whole vectors (the caller's
// input may sit anywhere: FromAny).
template <class S, bool FromAny = false, bool Stream = false>
VTX_LANE void copyRow(S* to, const S* from)
{
    using P = Lane<S>;
    staticFor<kWidth / P::lanes>([&](auto i) VTX_DCT_LAMBDA {
        constexpr int at = decltype(i)::value * P::lanes;
        put<Stream>(FromAny ? P::loadAny(from + at) : P::load(from + at), to + at);
    });
}

// Whether the last writes of a plan of n elements, to `to`, go past the caches.
template <class T>
bool streams(std::int32_t n, const void* to)
{
    return streamsLarge<T>(n) && reinterpret_cast<std::uintptr_t>(to) % 64 == 0;
}

// ---- Stage one: the column transforms ---------------------------------------

// The transform of length L of lanes adjacent folded columns, the first being
// column b of the fold of x at stride S: u[n] = x[S n + b] for n >= 0 and
// x[S |n| - 1 - b] for n < 0, so the lanes of a backward read go down in
// memory.  Row r of the result goes to y + r pitch.
template <int L, class S>
VTX_BODY void columnBody(const S* x, std::int32_t stride, std::int32_t b, S* y, std::int32_t pitch)
{
    using P = Lane<S>;
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
    staticFor<L / 2>([&](auto a) VTX_DCT_LAMBDA { putPair<false>(z[a], y + 2 * a * pitch, y + (2 * a + 1) * pitch); });
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

// The cache lines of the L folded pieces of kWidth columns that columnPass
// will read, the first column being `column` of the fold of x at stride S.
template <int L, class S>
VTX_LANE void fetchPieces(const S* x, std::int32_t stride, std::int32_t column)
{
    constexpr std::int32_t line = 64 / sizeof(S);
    for (std::int32_t n = 0; n < L / 2; ++n) {
        const char* forward = reinterpret_cast<const char*>(x + (stride * n + column));
        const char* backward = reinterpret_cast<const char*>(x + (stride * (n + 1) - column - kWidth));
        for (std::int32_t at = 0; at < kWidth; at += line) {
            _mm_prefetch(forward + at * sizeof(S), _MM_HINT_T0);
            _mm_prefetch(backward + at * sizeof(S), _MM_HINT_T0);
        }
    }
}

// All kWidth columns of one inner column of an env7 level, the first being
// `column` of the fold of x at stride S, as a block of rows of kWidth in y;
// then the lines of the next inner column (`next` of the fold) are fetched.
// With vectors narrower than a line the L folded pieces are first copied into
// a stack buffer as a fold of stride 2 kWidth and transformed there.
template <int L, class S>
VTX_BODY void columnPass(const S* x, std::int32_t stride, std::int32_t column, S* y, std::int32_t next)
{
    constexpr std::int32_t lanes = Lane<S>::lanes;
    if constexpr (kWholeLines<S>) {
        if (next >= 0)
            fetchPieces<L>(x, stride, next);
        for (std::int32_t b = 0; b < kWidth; b += lanes)
            columnBody<L, S>(x, stride, column + b, y + b, kWidth);
    } else {
        constexpr std::int32_t localStride = 2 * kWidth;
        alignas(64) S in[L * kWidth];
        for (std::int32_t n = 0; n < L / 2; ++n)
            copyRow<S, true>(in + localStride * n, x + (stride * n + column));
        for (std::int32_t k = 1; k <= L / 2; ++k)  // elements S k - 1 - column - b, b < kWidth
            copyRow<S, true>(in + (localStride * k - kWidth), x + (stride * k - column - kWidth));
        if (next >= 0)
            fetchPieces<L>(x, stride, next);
        for (std::int32_t b = 0; b < kWidth; b += lanes)
            columnBody<L, S>(in, localStride, b, y + b, kWidth);
    }
}

template <class S>
using ColumnPassOf = void (*)(const S*, std::int32_t, std::int32_t, S*, std::int32_t);

// From these many bytes of data on, the column pieces pass through a buffer
// (narrow vectors) and the next ones are fetched ahead; below, everything
// stays in the first-level cache.
constexpr std::int64_t kStagedBytes = 64 * 1024;

template <class S>
ColumnPassOf<S> columnPassOf(std::int32_t rule)
{
    return ofColumnRule(rule, [](auto l) VTX_DCT_LAMBDA -> ColumnPassOf<S> { return columnPass<decltype(l)::value, S>; });
}

// ---- The join of an env7 level ----------------------------------------------

// Rows a' of the inner results Y[c] (block c of src, rows of kWidth: real
// part at row 2a', imaginary part at 2a' + 1) joined into the rows of Z in
// dst, the conjugated half from the highest row down.  Twiddles stream from
// the table, m2 - 1 broadcast pairs per row.  With narrow vectors the 2 m2
// result pieces of a row gather in a stack buffer and go out whole.
template <int M2, bool Stream, class S>
VTX_BODY void joinBody(const Env8* self, S* dst, const S* src, const S* table)
{
    using P = Lane<S>;
    constexpr std::int32_t lanes = P::lanes;
    const std::int32_t l2 = self->inner, block = l2 * kWidth;
    alignas(64) S out[kWholeLines<S> ? 1 : 2 * M2][kWidth];
    // Row r of the 2 m2 result rows (F[q] for q < m2/2, then the conjugates
    // of F[m2 - 1 - p]) of row a' is row 2 z + r % 2 of dst.
    auto rowOf = [&](std::int32_t a, std::int32_t r) VTX_DCT_LAMBDA {
        const std::int32_t half = r / 2, z = half < M2 / 2 ? l2 * half + a : l2 * (half - M2 / 2 + 1) - a - 1;
        return dst + (2 * z + r % 2) * kWidth;
    };
    for (std::int32_t a = 0; a < self->v; ++a, table += 2 * kPlanLanes<S> * (M2 - 1)) {
        auto target = [&](std::int32_t r) VTX_DCT_LAMBDA -> S* {
            if constexpr (kWholeLines<S>)
                return rowOf(a, r);
            else
                return out[r];
        };
        for (std::int32_t b = 0; b < kWidth; b += lanes) {
            Cx<P> w[M2];
            staticFor<M2>([&](auto c) VTX_DCT_LAMBDA {
                const S* re = src + c * block + 2 * a * kWidth + b;
                w[c] = loadPair(re, re + kWidth);
            });
            twiddleDft<M2, P>(w, [&](int e) VTX_DCT_LAMBDA -> Cx<P> {
                const S* entry = table + 2 * kPlanLanes<S> * e;
                return {P::broadcast(entry), P::broadcast(entry + kPlanLanes<S>)};
            });
            constexpr bool direct = Stream && kWholeLines<S>;
            staticFor<M2 / 2>([&](auto q) VTX_DCT_LAMBDA {
                putPair<direct>(w[q], target(2 * q) + b, target(2 * q + 1) + b);
            });
            staticFor<M2 / 2>([&](auto p) VTX_DCT_LAMBDA {
                putPair<direct>(conj(w[M2 - 1 - p]), target(M2 + 2 * p) + b, target(M2 + 2 * p + 1) + b);
            });
        }
        if constexpr (!kWholeLines<S>)
            for (std::int32_t r = 0; r < 2 * M2; ++r)
                copyRow<S, false, Stream>(rowOf(a, r), out[r]);
    }
}

// ---- Stage two: the combining kernels ---------------------------------------

// Groups of lanes rows a: Z[a][b] from scratch rows 2a and 2a+1 (pitch M),
// turned so that a lane is a row, twiddled and combined; output p of row a
// goes to y[L p + a] for p < M (adjacent rows adjacent) and minus output
// 2M - p to y[L p - 1 - a] for p = 1 .. M (adjacent rows going down).  The
// table holds groups of the plan's lanes rows, 2 M vectors each; a vector of
// more lanes takes its lanes from as many groups.
template <int M, bool Stream, class S>
VTX_BODY void closeBody(const Env4* self, S* dst, const S* src, const S* table)
{
    using P = Lane<S>;
    constexpr std::int32_t lanes = P::lanes, group = 2 * kPlanLanes<S> * M;
    const std::int32_t l = self->l;
    for (std::int32_t a = 0; a < kPlanLanes<S> * self->groups; a += lanes, table += lanes / kPlanLanes<S> * group) {
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
            z,
            [&](int i) VTX_DCT_LAMBDA -> Cx<P> {
                return {P::loadGroups(table + 2 * kPlanLanes<S> * i, group),
                        P::loadGroups(table + (2 * i + 1) * kPlanLanes<S>, group)};
            },
            [&](auto p, P y) VTX_DCT_LAMBDA {
                if constexpr (p < M) {
                    if constexpr (Stream)
                        y.stream(dst + (l * p + a));
                    else
                        y.storeAny(dst + (l * p + a));
                } else {
                    if constexpr (Stream)
                        (-y).streamDown(dst + (l * (2 * M - p) - 1 - a));
                    else
                        (-y).storeDown(dst + (l * (2 * M - p) - 1 - a));
                }
            });
    }
}

template <int M, class S>
void closeBodyOf(const Env4* self, S* dst, const S* src, const S* table)
{
    // Only whole lines go past the caches: a narrower vector would leave
    // each line to be completed by later groups.
    if (kWholeLines<S> && streams<S>(self->n, dst))
        closeBody<M, kWholeLines<S>>(self, dst, src, table);
    else
        closeBody<M, false>(self, dst, src, table);
}

// ---- The levels -------------------------------------------------------------

template <class T>
std::int32_t env7_compute(const Env7* self, T* dst, const T* src, std::int32_t column, bool stream);

// The inner transforms of an env7 level into dst, inner column c as block c.
template <class T>
std::int32_t env9_compute(const Env9* self, T* dst, const T* src, std::int32_t column)
{
    constexpr std::int32_t lanes = Lane<T>::lanes;
    const std::int32_t block = self->length * kWidth;
    if (self->rule == 7) {
        const auto* inner = firstOf<const Env7>(arenaOf(self, self->arena), self->kernelList);
        for (std::int32_t c = 0; c < self->m2; ++c) {
            const std::int32_t status =
                env7_compute<T>(inner, dst + c * block, src, column + c * self->parentStride, false);
            if (status != vtxStatusOk)
                return status;
        }
        return vtxStatusOk;
    }
    if (!columnBodyOf<T>(self->rule))
        return vtxStatusBadRule;
    if (static_cast<std::int64_t>(self->n) * sizeof(T) >= kStagedBytes) {
        const ColumnPassOf<T> pass = columnPassOf<T>(self->rule);
        for (std::int32_t c = 0; c < self->m2; ++c)
            pass(src, self->stride, column + c * self->parentStride, dst + c * block,
                 c + 1 < self->m2 ? column + (c + 1) * self->parentStride : -1);
        return vtxStatusOk;
    }
    const ColumnBody<T> body = columnBodyOf<T>(self->rule);
    for (std::int32_t c = 0; c < self->m2; ++c)
        for (std::int32_t b = 0; b < kWidth; b += lanes)
            body(src, self->stride, column + c * self->parentStride + b, dst + c * block + b, kWidth);
    return vtxStatusOk;
}

template <class T>
std::int32_t env8_compute(const Env8* self, T* dst, const T* src, bool stream)
{
    const T* table = deref<const T>(arenaOf(self, self->arena), self->table);
    auto join = [&](auto m2) VTX_DCT_LAMBDA {
        if (stream)
            joinBody<decltype(m2)::value, true>(self, dst, src, table);
        else
            joinBody<decltype(m2)::value, false>(self, dst, src, table);
        return vtxStatusOk;
    };
    switch (self->rule) {
    case 1: return join(Index<2>{});
    case 2: return join(Index<4>{});
    case 3: return join(Index<8>{});
    case 4: return join(Index<16>{});
    case 5: return join(Index<32>{});
    default: return vtxStatusBadRule;
    }
}

// The column transform of the level's length for all kWidth columns, the
// first being `column` of the input fold, as a block of rows of kWidth in dst.
template <class T>
std::int32_t env7_compute(const Env7* self, T* dst, const T* src, std::int32_t column, bool stream)
{
    if (self->rule != 1)
        return vtxStatusBadRule;
    const Arena* arena = arenaOf(self, self->arena);
    T* scratch = deref<T>(arena, self->scratch);
    const std::int32_t inner = env9_compute<T>(firstOf<const Env9>(arena, self->stage1List), scratch, src, column);
    if (inner != vtxStatusOk)
        return inner;
    return env8_compute<T>(firstOf<const Env8>(arena, self->stage2List), dst, scratch, stream);
}

}  // namespace

// ---- The nodes' compute -----------------------------------------------------

template <class T>
std::int32_t env5_compute(const Env5* self, T* dst, const T* src)
{
    constexpr std::int32_t lanes = Lane<T>::lanes;
    if (self->rule == 7) {
        if (self->m != kWidth)  // a column longer than 64 comes with 32 of them
            return vtxStatusBadRule;
        return env7_compute<T>(firstOf<const Env7>(arenaOf(self, self->arena), self->kernelList), dst, src, 0,
                               streams<T>(self->n, dst));
    }
    const ColumnBody<T> body = columnBodyOf<T>(self->rule);
    if (!body)
        return vtxStatusBadRule;
    for (std::int32_t b = 0; b < self->m; b += lanes)
        body(src, self->twoM, b, dst + b, self->m);
    return vtxStatusOk;
}

template <class T>
std::int32_t env4_compute(const Env4* self, T* dst, const T* src)
{
    const T* table = deref<const T>(arenaOf(self, self->arena), self->table);
    constexpr std::int32_t lanes = Lane<T>::lanes;
    switch (self->rule) {
    case 2:
        // m = 1 and m = 2 (single) never pass the lanes test of their stage one.
        if constexpr (lanes == 2) {
            closeBodyOf<2>(self, dst, src, table);
            return vtxStatusOk;
        }
        return vtxStatusBadRule;
    case 3:
        if constexpr (lanes <= 4) {
            closeBodyOf<4>(self, dst, src, table);
            return vtxStatusOk;
        }
        return vtxStatusBadRule;
    case 4:
        if constexpr (lanes <= 8) {
            closeBodyOf<8>(self, dst, src, table);
            return vtxStatusOk;
        }
        return vtxStatusBadRule;
    case 5: closeBodyOf<16>(self, dst, src, table); return vtxStatusOk;
    case 6: closeBodyOf<32>(self, dst, src, table); return vtxStatusOk;
    default: return vtxStatusBadRule;
    }
}

}  // namespace vtx::dct4::VTX_DCT4_ISA

// One set's stages in both precisions: the body of stages_<set>.cpp.
#define VTX_DCT4_INSTANTIATE                                                                      \
    namespace vtx::dct4::VTX_DCT4_ISA {                                                           \
    template std::int32_t env5_compute<float>(const Env5*, float*, const float*);                  \
    template std::int32_t env5_compute<double>(const Env5*, double*, const double*);               \
    template std::int32_t env4_compute<float>(const Env4*, float*, const float*);                  \
    template std::int32_t env4_compute<double>(const Env4*, double*, const double*);               \
    }
