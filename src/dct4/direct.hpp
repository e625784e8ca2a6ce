// The direct DCT-IV bodies of lengths 2 to 32, for any arithmetic type T
// (float, double, or a counting type in the tests).
//
//   y[k] = sum_n x[n] cos(pi/N (n + 1/2)(k + 1/2)),  unscaled.
//
// Lengths 8, 16 and 32 are one description: N = 2 m v with m = 2.  Each of the
// two columns b, u[n] = x[4n + b] for n >= 0 and x[4|n| - 1 - b] for n < 0,
// n from -N/4 to N/4 - 1, gets its odd-frequency transform
//   Z[a] = sum_n u[n] exp(i n (2a+1) pi / L),  L = N/2, a = 0 .. L/2 - 1;
// the values are rotated by pi (2a+1)(2b+1) / (4N) and the two columns
// combined with products by sqrt(1/2).  A column transform splits in m2
// interleaved inner ones (2 at L = 4 and 8, 4 at L = 16), each inner result
// twiddled by exp(i c (2a'+1) pi / L) and combined by a DFT of size m2 with a
// plus sign.  All inputs are read before the first output is written.
#pragma once

#include <cstdint>

namespace vtx::dct4::direct {

// ---- Constants, evaluated at compile time in long double -------------------

constexpr long double kPiL = 3.14159265358979323846264338327950288L;

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

constexpr long double kSqrtHalf = 0.707106781186547524400844362104849039L;

template <class T>
struct Cx {
    T re, im;
};

template <class T>
Cx<T> conj(Cx<T> z)
{
    return {z.re, -z.im};
}

// z times exp(i pi p / q) with 0 < p/q < 1: four products and two sums, or
// two and two at pi/4.
template <class T, long P, long Q>
Cx<T> rotate(Cx<T> z)
{
    if constexpr (4 * P == Q) {
        const T h = T(kSqrtHalf);
        return {h * (z.re - z.im), h * (z.re + z.im)};
    } else {
        const T c = T(cosPiRatio(P, Q)), s = T(sinPiRatio(P, Q));
        return {z.re * c - z.im * s, z.re * s + z.im * c};
    }
}

template <class T>
Cx<T> add(Cx<T> a, Cx<T> b) { return {a.re + b.re, a.im + b.im}; }
template <class T>
Cx<T> sub(Cx<T> a, Cx<T> b) { return {a.re - b.re, a.im - b.im}; }

// DFT of size M with a plus sign in the exponent: M = 2 or 4.
template <int M, class T>
void dftPlus(const Cx<T>* w, Cx<T>* f)
{
    if constexpr (M == 2) {
        f[0] = add(w[0], w[1]);
        f[1] = sub(w[0], w[1]);
    } else {
        const Cx<T> t0 = add(w[0], w[2]), t1 = sub(w[0], w[2]);
        const Cx<T> t2 = add(w[1], w[3]), t3 = sub(w[1], w[3]);
        const Cx<T> it3 = {-t3.im, t3.re};
        f[0] = add(t0, t2);
        f[1] = add(t1, it3);
        f[2] = sub(t0, t2);
        f[3] = sub(t1, it3);
    }
}

template <int L> constexpr int kColumnSplit = L == 16 ? 4 : 2;

template <int M, int A, int C, int L, class T>
void twiddleAll(const Cx<T> (*y)[L / M / 2], Cx<T>* w)
{
    if constexpr (C < M) {
        w[C] = rotate<T, C * (2 * A + 1), L>(y[C][A]);
        twiddleAll<M, A, C + 1, L>(y, w);
    }
}

// Combines the inner results for a' = A and upwards.
template <int L, int A, class T>
void combineRows(const Cx<T> (*y)[L / kColumnSplit<L> / 2], Cx<T>* z)
{
    constexpr int M = kColumnSplit<L>, L2 = L / M;
    if constexpr (A < L2 / 2) {
        Cx<T> w[M], f[M];
        w[0] = y[0][A];
        twiddleAll<M, A, 1, L>(y, w);
        dftPlus<M>(w, f);
        for (int q = 0; q < M / 2; ++q)
            z[L2 * q + A] = f[q];
        for (int p = 1; p <= M / 2; ++p)
            z[L2 * p - A - 1] = conj(f[M - p]);
        combineRows<L, A + 1>(y, z);
    }
}

// Z[a] = sum over n from -L/2 to L/2-1 of u(n) exp(i n (2a+1) pi / L).
template <int L, class T, class U>
void column(const U& u, Cx<T>* z)
{
    if constexpr (L == 2) {
        z[0] = {u(0), -u(-1)};
    } else {
        constexpr int M = kColumnSplit<L>, L2 = L / M;
        Cx<T> y[M][L2 / 2];
        for (int c = 0; c < M; ++c)
            column<L2, T>([&u, c](int n) { return u(M * n + c); }, y[c]);
        combineRows<L, 0>(y, z);
    }
}

// Rotations of row a = A upwards by pi (2a+1)(2b+1) / (4N), then the
// closing products by sqrt(1/2): m = 2 columns, L = N/2.
template <int N, int A, class T>
void closeRows(const Cx<T>* z0, const Cx<T>* z1, T* y)
{
    constexpr int L = N / 2;
    if constexpr (A < L / 2) {
        const T h = T(kSqrtHalf);
        const Cx<T> v0 = rotate<T, (2 * A + 1), 4 * N>(z0[A]);
        const Cx<T> v1 = rotate<T, 3 * (2 * A + 1), 4 * N>(z1[A]);
        y[A] = v0.re + v1.re;
        y[2 * L - 1 - A] = v0.im - v1.im;
        const T m1 = h * (v0.re - v1.re), m2 = h * (v0.im + v1.im);
        y[L - 1 - A] = m1 + m2;
        y[L + A] = m1 - m2;
        closeRows<N, A + 1>(z0, z1, y);
    }
}

// Length 2: c = cos(pi/8), s = cos(3 pi/8).
template <class T>
void dct4Length2(const T* x, T* y)
{
    const T c = T(cosPiRatio(1, 8)), s = T(cosPiRatio(3, 8));
    const T x0 = x[0], x1 = x[1];
    y[0] = c * x0 + s * x1;
    y[1] = s * x0 - c * x1;
}

// Length 4: two rotations by three lifting steps each, then sums and the
// products by sqrt(1/2).
template <class T>
void dct4Length4(const T* x, T* y)
{
    const T p7 = T(0.8206787908286604), q7 = T(0.9807852804032304);  // tan(7 pi/32), sin(7 pi/16)
    const T p5 = T(0.5345111359507917), q5 = T(0.8314696123025452);  // tan(5 pi/32), sin(5 pi/16)
    const T h = T(kSqrtHalf);
    const T x0 = x[0], x1 = x[1], x2 = x[2], x3 = x[3];
    const T t1 = x0 - p7 * x3;
    const T u1 = x3 + q7 * t1;
    const T v1 = t1 - p7 * u1;
    const T t2 = x1 - p5 * x2;
    const T u2 = x2 + q5 * t2;
    const T v2 = t2 - p5 * u2;
    const T m1 = h * (u1 - u2), m2 = h * (v1 + v2);
    y[0] = u1 + u2;
    y[3] = v1 - v2;
    y[1] = m1 + m2;
    y[2] = m1 - m2;
}

// Lengths 8, 16, 32.
template <int N, class T>
void dct4Split(const T* x, T* y)
{
    constexpr int L = N / 2;
    Cx<T> z0[L / 2], z1[L / 2];
    column<L, T>([x](int n) { return n >= 0 ? x[4 * n] : x[-4 * n - 1]; }, z0);
    column<L, T>([x](int n) { return n >= 0 ? x[4 * n + 1] : x[-4 * n - 2]; }, z1);
    closeRows<N, 0>(z0, z1, y);
}

// The body of a root rule 1 to 5; false for any other rule.
template <class T>
bool dct4Direct(std::int32_t rule, const T* x, T* y)
{
    switch (rule) {
    case 1: dct4Length2(x, y); return true;
    case 2: dct4Length4(x, y); return true;
    case 3: dct4Split<8>(x, y); return true;
    case 4: dct4Split<16>(x, y); return true;
    case 5: dct4Split<32>(x, y); return true;
    default: return false;
    }
}

}  // namespace vtx::dct4::direct
