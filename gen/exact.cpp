#include "exact.hpp"

#include <cstdlib>
#include <utility>

namespace vtxgen::exact {

Quad pi()
{
    // pi to about 160 bits as a sum of three doubles, each addition exact
    // enough in binary128.
    return Quad(3.141592653589793116) + Quad(1.2246467991473532e-16) + Quad(-2.9947698097183397e-33);
}

Quad sqrt(Quad v)
{
    if (v <= 0)
        return 0;
    Quad r = Quad(__builtin_sqrt(static_cast<double>(v)));
    for (int i = 0; i < 4; ++i)
        r = (r + v / r) / 2;
    return r;
}

namespace {

// Taylor series of sin and cos for |x| <= pi/4.
Quad series_sin(Quad x)
{
    Quad term = x, sum = x;
    for (int k = 1; k < 30; ++k) {
        term *= -x * x / Quad((2 * k) * (2 * k + 1));
        sum += term;
    }
    return sum;
}

Quad series_cos(Quad x)
{
    Quad term = 1, sum = 1;
    for (int k = 1; k < 30; ++k) {
        term *= -x * x / Quad((2 * k - 1) * (2 * k));
        sum += term;
    }
    return sum;
}

// cos and sin of 2 pi n / d for 0 <= n < d, by octants: the angle is reduced
// to t = 2 pi m / (8 d) with 0 <= m <= d, that is t in [0, pi/4].
std::pair<Quad, Quad> cos_sin(long num, long den)
{
    long n = num % den;
    if (n < 0)
        n += den;
    const long m8 = 8 * n;  // angle = 2 pi m8 / (8 den), m8 in [0, 8 den)
    const long octant = m8 / den;
    const long rest = m8 % den;  // angle within the octant, in units of 2 pi / (8 den)
    // Within an octant o the angle is o * pi/4 + rest; odd octants are taken
    // from their far end so the series argument stays in [0, pi/4].
    const bool from_end = octant % 2 == 1;
    const long m = from_end ? den - rest : rest;
    const Quad t = 2 * pi() * Quad(m) / Quad(8 * den);
    Quad c = m == 0 ? Quad(1) : series_cos(t);
    Quad s = m == 0 ? Quad(0) : series_sin(t);
    if (m == den)  // exactly pi/4: one value for both
        s = c;
    // The quarter turns: (c, s) is the point at angle q * pi/2 + phi, phi in
    // [0, pi/2), with phi = t in even octants and pi/2 - t in odd ones.
    const long quarter = octant / 2;
    const Quad cphi = from_end ? s : c;
    const Quad sphi = from_end ? c : s;
    auto point = [](Quad x, Quad y) {  // no negative zeros among the constants
        return std::pair<Quad, Quad>{x == 0 ? Quad(0) : x, y == 0 ? Quad(0) : y};
    };
    switch (quarter) {
    case 0: return point(cphi, sphi);
    case 1: return point(-sphi, cphi);
    case 2: return point(-cphi, -sphi);
    default: return point(sphi, -cphi);
    }
}

}  // namespace

Quad cos_2pi(long num, long den) { return cos_sin(num, den).first; }
Quad sin_2pi(long num, long den) { return cos_sin(num, den).second; }

}  // namespace vtxgen::exact
