// A long-double DCT-IV of any power-of-two length, for checking the library's
// transform up to its largest lengths:
//
//   y[k] = sum_n x[n] cos(pi/N (n + 1/2)(k + 1/2)),  k = 0 .. N-1.
//
// With M = N/2 and v[p] = x[2p] + i x[N-1-2p], the sum
//
//   S[k] = sum_p v[p] exp(-i pi (4p+1)(4k+1) / (4N))
//        = exp(-i pi (4k+1) / (4N)) * FFT_M(v[p] exp(-i pi p / N))[k]
//
// gives y[2k] = Re S[k] and y[N-1-2k] = -Im S[k].  The FFT is radix 2,
// iterative, in long double; every root of unity is taken from cosl/sinl of
// an angle reduced exactly, in integers, to at most pi/4 (so the tables are
// symmetric to the last bit and carry one rounding of the angle at most).
//
// Cost: N/2 complex long doubles of work and N/4 of table (16 N bytes and
// 8 N bytes on x86-64), O(N log N) time.  `dct4ReferenceSum` is the O(N^2)
// sum of the definition, for checking the fast one.
#pragma once

#include <cmath>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vtxtest::dct4 {

using CxL = std::complex<long double>;
constexpr long double kPiL = 3.141592653589793238462643383279502884L;

// exp(i pi num / den) for integers num and den > 0.  The angle is reduced
// modulo 2 pi and to a quadrant exactly, then reflected to at most pi/4.
inline CxL cisPi(std::int64_t num, std::int64_t den)
{
    // Units of pi / (2 den): a quadrant is den units, a turn 4 den.
    const std::int64_t turn = 4 * den;
    std::int64_t r = (2 * num) % turn;
    if (r < 0)
        r += turn;
    const std::int64_t quadrant = r / den, f = r - quadrant * den;
    long double c, s;
    if (2 * f <= den) {
        const long double angle = kPiL * static_cast<long double>(f) / static_cast<long double>(2 * den);
        c = std::cos(angle);
        s = std::sin(angle);
    } else {
        const long double angle = kPiL * static_cast<long double>(den - f) / static_cast<long double>(2 * den);
        c = std::sin(angle);
        s = std::cos(angle);
    }
    switch (quadrant) {
    case 0: return {c, s};
    case 1: return {-s, c};
    case 2: return {-c, -s};
    default: return {s, -c};
    }
}

// A product written out: std::complex's checks for infinities would call the
// runtime library for every butterfly.
inline CxL mul(CxL a, CxL b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

// In-place forward FFT, exp(-2 pi i j k / M), of a power-of-two length M.
inline void fftForward(std::vector<CxL>& v)
{
    const std::size_t m = v.size();
    if (m < 2)
        return;
    for (std::size_t i = 1, j = 0; i < m; ++i) {
        std::size_t bit = m >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j |= bit;
        if (i < j)
            std::swap(v[i], v[j]);
    }
    // w[j] = exp(-2 pi i j / M), j < M/2.
    std::vector<CxL> w(m / 2);
    for (std::size_t j = 0; j < m / 2; ++j)
        w[j] = cisPi(-2 * static_cast<std::int64_t>(j), static_cast<std::int64_t>(m));
    for (std::size_t half = 1; half < m; half *= 2) {
        const std::size_t step = m / (2 * half);
        for (std::size_t start = 0; start < m; start += 2 * half)
            for (std::size_t j = 0; j < half; ++j) {
                const CxL t = mul(v[start + half + j], w[j * step]);
                v[start + half + j] = v[start + j] - t;
                v[start + j] += t;
            }
    }
}

// The DCT-IV of `x` (length a power of two, at least 2) in long double.
template <class In>
std::vector<long double> dct4Reference(const In* x, std::size_t n)
{
    const std::size_t m = n / 2;
    const auto nn = static_cast<std::int64_t>(n);
    std::vector<CxL> v(m);
    for (std::size_t p = 0; p < m; ++p)
        v[p] = mul(CxL(static_cast<long double>(x[2 * p]), static_cast<long double>(x[n - 1 - 2 * p])),
                   cisPi(-static_cast<std::int64_t>(p), nn));
    fftForward(v);
    std::vector<long double> y(n);
    for (std::size_t k = 0; k < m; ++k) {
        const CxL s = mul(v[k], cisPi(-(4 * static_cast<std::int64_t>(k) + 1), 4 * nn));
        y[2 * k] = s.real();
        y[n - 1 - 2 * k] = -s.imag();
    }
    return y;
}

// The definition summed term by term, O(N^2); the angle's integer
// (2n+1)(2k+1) is reduced exactly before its cosine.
template <class In>
std::vector<long double> dct4ReferenceSum(const In* x, std::size_t n)
{
    const auto nn = static_cast<std::int64_t>(n);
    std::vector<long double> c(8 * n);  // cos(pi j / (4N)), j modulo 8N
    for (std::int64_t j = 0; j < 8 * nn; ++j)
        c[static_cast<std::size_t>(j)] = cisPi(j, 4 * nn).real();
    std::vector<long double> y(n);
    for (std::int64_t k = 0; k < nn; ++k) {
        long double s = 0;
        for (std::int64_t i = 0; i < nn; ++i)
            s += static_cast<long double>(x[i]) * c[static_cast<std::size_t>((2 * i + 1) * (2 * k + 1) % (8 * nn))];
        y[static_cast<std::size_t>(k)] = s;
    }
    return y;
}

}  // namespace vtxtest::dct4
