// The arithmetic of the DCT-IV, written once for any number type T: float,
// double, a vector of lanes, or a counting type in the tests.  Every loop
// here runs over compile-time indices, so an instance is one straight line.
//
// Three pieces serve the whole transform:
//
//   column<L>     Z[a] = sum over n from -L/2 to L/2-1 of u(n) exp(i n (2a+1) pi / L),
//                 a = 0 .. L/2-1: the transform of one folded column;
//   twiddleDft    W[c] = Y[c] exp(i c (2a'+1) pi / L), then the DFT of size m2
//                 with a plus sign: the step that joins m2 interleaved columns;
//   combine<M>    Y(p) = Re sum over b < M of V[b] exp(i pi p (2b+1) / (2M)),
//                 p = 0 .. 2M-1: the closing sums of stage two.
#pragma once

#include "frame/rounding.hpp"

#include <cstdint>
#include <utility>

namespace vtx::dct4::math {

#define VTX_DCT_OP __attribute__((always_inline)) inline
#define VTX_DCT_LAMBDA __attribute__((always_inline))

// ---- Compile-time loops ----------------------------------------------------

template <int I>
using Index = std::integral_constant<int, I>;

// f(Index<0>{}), ..., f(Index<N-1>{}), in order.
template <int N, class F>
VTX_DCT_OP void staticFor(F&& f)
{
    [&]<int... I>(std::integer_sequence<int, I...>) VTX_DCT_LAMBDA { (f(Index<I>{}), ...); }(std::make_integer_sequence<int, N>{});
}

// ---- Constants, evaluated at compile time in long double -------------------

constexpr long double kPiL = 3.14159265358979323846264338327950288L;
constexpr long double kSqrtHalf = 0.707106781186547524400844362104849039L;

constexpr long double sinSeries(long double x)
{
    long double term = x, s = x;
    for (int k = 1; k < 20; ++k) {
        term *= -x * x / ((2 * k) * (2 * k + 1));
        s += term;
    }
    return s;
}

constexpr long double cosSeries(long double x)
{
    long double term = 1, s = 1;
    for (int k = 1; k < 20; ++k) {
        term *= -x * x / ((2 * k - 1) * (2 * k));
        s += term;
    }
    return s;
}

// cos(pi p / q) for 0 <= p/q <= 1, reduced to an argument of at most pi/4.
constexpr long double cosPiRatio(long p, long q)
{
    if (2 * p > q)
        return -cosPiRatio(q - p, q);
    return 4 * p <= q ? cosSeries(kPiL * p / q) : sinSeries(kPiL * (q - 2 * p) / (2 * q));
}
constexpr long double sinPiRatio(long p, long q)
{
    return cosPiRatio(q > 2 * p ? q - 2 * p : 2 * p - q, 2 * q);
}

// ---- Complex values of T ---------------------------------------------------

template <class T>
struct Cx {
    T re, im;
};

template <class T> VTX_DCT_OP Cx<T> conj(Cx<T> z) { return {z.re, -z.im}; }
template <class T> VTX_DCT_OP Cx<T> timesI(Cx<T> z) { return {-z.im, z.re}; }
template <class T> VTX_DCT_OP Cx<T> add(Cx<T> a, Cx<T> b) { return {a.re + b.re, a.im + b.im}; }
template <class T> VTX_DCT_OP Cx<T> sub(Cx<T> a, Cx<T> b) { return {a.re - b.re, a.im - b.im}; }

// z times w, w = (cosine, sine): four products and two sums.
template <class T>
VTX_DCT_OP Cx<T> mul(Cx<T> z, Cx<T> w)
{
    return {z.re * w.re - z.im * w.im, z.re * w.im + z.im * w.re};
}

// z times exp(i pi P / Q) with 0 < P/Q < 1: a quarter turn is free, an eighth
// (or three) costs two products and two sums, anything else four and two.
template <long P, long Q, class T>
VTX_DCT_OP Cx<T> rotate(Cx<T> z)
{
    if constexpr (2 * P == Q) {
        return timesI(z);
    } else if constexpr (4 * P == 3 * Q) {
        return timesI(rotate<1, 4>(z));
    } else if constexpr (4 * P == Q) {
        const T h = T(kSqrtHalf);
        return {h * (z.re - z.im), h * (z.re + z.im)};
    } else {
        return mul(z, Cx<T>{T(cosPiRatio(P, Q)), T(sinPiRatio(P, Q))});
    }
}

// ---- DFT of size M = 2, 4 or 8 with a plus sign in the exponent -------------
//
// f[q] = sum over c of w[c] exp(2 pi i c q / M), in place; radix 2 in time,
// so that 8 costs 52 sums and 4 products, 4 costs 16 sums.

template <int M, class T>
VTX_DCT_OP void dftPlus(Cx<T>* w)
{
    if constexpr (M == 2) {
        const Cx<T> a = w[0], b = w[1];
        w[0] = add(a, b);
        w[1] = sub(a, b);
    } else {
        Cx<T> even[M / 2], odd[M / 2];
        staticFor<M / 2>([&](auto c) VTX_DCT_LAMBDA {
            even[c] = w[2 * c];
            odd[c] = w[2 * c + 1];
        });
        dftPlus<M / 2>(even);
        dftPlus<M / 2>(odd);
        staticFor<M / 2>([&](auto q) VTX_DCT_LAMBDA {
            Cx<T> t = odd[q];
            if constexpr (q > 0)
                t = rotate<2 * q, M>(t);
            w[q] = add(even[q], t);
            w[q + M / 2] = sub(even[q], t);
        });
    }
}

// ---- The column transform --------------------------------------------------

// The number of interleaved inner columns a column of length L splits into:
// 64 = 4 x 16, 32 = 2 x 16, 16 = 4 x 4, 8 = 2 x 4, 4 = 2 x 2.
template <int L> constexpr int kColumnSplit = L == 16 || L == 64 ? 4 : 2;

// The join of m2 = M inner results of row a' = A into the column's rows:
// Z[L2 q + A] = F[q] for q < M/2 and Z[L2 p - A - 1] = conj F[M - p] for
// p = 1 .. M/2, with constant twiddles.
template <int L, int M, int A, class T>
VTX_DCT_OP void joinRow(const Cx<T> (*y)[L / M / 2], Cx<T>* z)
{
    constexpr int L2 = L / M;
    Cx<T> w[M];
    w[0] = y[0][A];
    staticFor<M - 1>([&](auto c) VTX_DCT_LAMBDA { w[c + 1] = rotate<(c + 1) * (2 * A + 1), L>(y[c + 1][A]); });
    dftPlus<M>(w);
    staticFor<M / 2>([&](auto q) VTX_DCT_LAMBDA { z[L2 * q + A] = w[q]; });
    staticFor<M / 2>([&](auto p) VTX_DCT_LAMBDA { z[L2 * (p + 1) - A - 1] = conj(w[M - 1 - p]); });
}

// Z[a] of a column whose element n is u(Index<n>{}).
template <int L, class T, class U>
VTX_DCT_OP void column(const U& u, Cx<T>* z)
{
    if constexpr (L == 2) {
        z[0] = {u(Index<0>{}), -u(Index<-1>{})};
    } else {
        constexpr int M = kColumnSplit<L>, L2 = L / M;
        Cx<T> y[M][L2 / 2];
        staticFor<M>([&](auto c) VTX_DCT_LAMBDA {
            column<L2, T>([&u](auto n) VTX_DCT_LAMBDA { return u(Index<M * decltype(n)::value + decltype(c)::value>{}); }, y[c]);
        });
        staticFor<L2 / 2>([&](auto a) VTX_DCT_LAMBDA { joinRow<L, M, a>(y, z); });
    }
}

// ---- The join of an env7 level with twiddles from its table -----------------
//
// w[c] = Y[c] of one row a', replaced by F[q].  tw(e) is table entry e of the
// row as (cosine, sine).  For m2 = 8, entry c - 1 turns Y[c] by c (2a'+1) pi / L.
// For m2 = 16 and 32, c = s + 4 c1 and q = j + (m2/4) q2: the first level
// turns Y[s + 4 c1] by 4 c1 (2a'+1) pi / L and takes DFTs of size m2/4 over c1
// (index j); the second turns result j of s by s ((2a'+1) pi / L + 2 pi j / m2)
// and takes DFTs of size 4 over s.  The table holds for m2 = 16 first the sets
// j = 0..3 of s = 1, 2, 3, then the multiples 4, 8, 12; for m2 = 32 first the
// multiples 4 to 28, then the sets j = 0..7 of s = 1, 2, 3.
template <int M2, class T, class Tw>
VTX_DCT_OP void twiddleDft(Cx<T>* w, const Tw& tw)
{
    if constexpr (M2 <= 8) {
        staticFor<M2 - 1>([&](auto c) VTX_DCT_LAMBDA { w[c + 1] = mul(w[c + 1], tw(c)); });
        dftPlus<M2>(w);
    } else {
        constexpr int K = M2 / 4;                         // first-level size, over c1
        constexpr int firstAt = M2 == 16 ? 12 : 0;        // multiples of 4 (2a'+1)
        constexpr int setsAt = M2 == 16 ? 0 : K - 1;      // sets of s = 1, 2, 3
        Cx<T> g[4][K];
        staticFor<4>([&](auto s) VTX_DCT_LAMBDA {
            g[s][0] = w[s];
            staticFor<K - 1>([&](auto c1) VTX_DCT_LAMBDA { g[s][c1 + 1] = mul(w[s + 4 * (c1 + 1)], tw(firstAt + c1)); });
            dftPlus<K>(g[s]);
        });
        staticFor<K>([&](auto j) VTX_DCT_LAMBDA {
            Cx<T> h[4];
            h[0] = g[0][j];
            staticFor<3>([&](auto s) VTX_DCT_LAMBDA { h[s + 1] = mul(g[s + 1][j], tw(setsAt + 3 * j + s)); });
            dftPlus<4>(h);
            staticFor<4>([&](auto q2) VTX_DCT_LAMBDA { w[j + K * q2] = h[q2]; });
        });
    }
}

// ---- The closing sums of stage two -----------------------------------------

// The order in which a row's table holds the columns b: 0, m-1, 1, m-2, ...
// up to m/2 for m up to 16, and for m = 32 the quadruples b, 31-b, b+16, 15-b.
constexpr std::int32_t env4ColumnOrder(std::int32_t m, std::int32_t index)
{
    constexpr std::int8_t kOrder32[32] = {0, 31, 16, 15, 4,  27, 20, 11, 8, 23, 24, 7,  12, 19, 28, 3,
                                          1, 30, 17, 14, 5, 26, 21, 10, 9, 22, 25, 6, 13, 18, 29, 2};
    if (m == 32)
        return kOrder32[index];
    return index % 2 ? m - 1 - index / 2 : index / 2;
}
//
// y[p] = Re sum over b < M of v[b] exp(i pi p (2b+1) / (2M)), p = 0 .. 2M-1,
// each handed to out(Index<p>{}, y[p]) as soon as it is formed.
// Column b pairs with M-1-b, whose angle is 2M - (2b+1): for even p the pair
// adds as v[b] + conj v[M-1-b] into the same sums of half the size; for odd p
// the difference, turned by (2b+1) pi / (2M), does.  Both are formed from a
// pair at once, so that v is done with before either half is summed.
template <int M, class T, class Out>
VTX_DCT_OP void combine(const Cx<T>* v, const Out& out)
{
    if constexpr (M == 1) {
        out(Index<0>{}, v[0].re);
        out(Index<1>{}, -v[0].im);
    } else {
        Cx<T> sums[M / 2], differences[M / 2];
        staticFor<M / 2>([&](auto b) VTX_DCT_LAMBDA {
            sums[b] = add(v[b], conj(v[M - 1 - b]));
            differences[b] = rotate<2 * b + 1, 2 * M>(sub(v[b], conj(v[M - 1 - b])));
        });
        combine<M / 2>(sums, [&](auto q, T y) VTX_DCT_LAMBDA { out(Index<2 * decltype(q)::value>{}, y); });
        combine<M / 2>(differences, [&](auto q, T y) VTX_DCT_LAMBDA { out(Index<2 * decltype(q)::value + 1>{}, y); });
    }
}

// One row of stage two: V[b] = Z[b] turned by the row's twiddle of column b
// (tw(i), entry i of the row's table, belongs to column env4ColumnOrder(M, i)),
// then the closing sums, handed to out(Index<p>, y[p]), p = 0 .. 2M-1.
template <int M, class T, class Tw, class Out>
VTX_DCT_OP void closeRow(const Cx<T>* z, const Tw& tw, const Out& out)
{
    Cx<T> v[M];
    staticFor<M>([&](auto i) VTX_DCT_LAMBDA {
        constexpr int b = env4ColumnOrder(M, decltype(i)::value);
        v[b] = mul(z[b], tw(i));
    });
    combine<M>(v, out);
}

}  // namespace vtx::dct4::math
