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

#include "dct4/math.hpp"

#include <cstdint>

namespace vtx::dct4::direct {

using namespace math;

// Rotations of row a = A upwards by pi (2a+1)(2b+1) / (4N), then the
// closing products by sqrt(1/2): m = 2 columns, L = N/2.
template <int N, int A, class T>
void closeRows(const Cx<T>* z0, const Cx<T>* z1, T* y)
{
    constexpr int L = N / 2;
    if constexpr (A < L / 2) {
        const T h = T(kSqrtHalf);
        const Cx<T> v0 = rotate<2 * A + 1, 4 * N>(z0[A]);
        const Cx<T> v1 = rotate<3 * (2 * A + 1), 4 * N>(z1[A]);
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
    auto fold = [x](int b) VTX_DCT_LAMBDA {
        return [x, b](auto n) VTX_DCT_LAMBDA {
            constexpr int k = decltype(n)::value;
            return k >= 0 ? x[4 * k + b] : x[-4 * k - 1 - b];
        };
    };
    column<L, T>(fold(0), z0);
    column<L, T>(fold(1), z1);
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
