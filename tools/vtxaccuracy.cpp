// vtxaccuracy: each kernel taken as a matrix against the transform matrix,
// column by column (one impulse per input element), in long double with
// every exponent reduced modulo N.  Prints the largest error of a real or
// imaginary part, of a complex entry, and the norm of the error matrix
// relative to the transform's (sqrt N), the largest singular value found by
// power iteration.
#include "support.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <vector>

namespace {

using Cl = std::complex<long double>;

// The largest singular value of an n-by-n matrix e (column-major), by power
// iteration on e^H e.
long double norm2(const std::vector<Cl>& e, int n)
{
    std::vector<Cl> v(static_cast<std::size_t>(n), Cl(1, 0.25L)), w(static_cast<std::size_t>(n));
    long double sigma = 0;
    for (int it = 0; it < 200; ++it) {
        std::fill(w.begin(), w.end(), Cl(0));
        for (int c = 0; c < n; ++c)
            for (int r = 0; r < n; ++r)
                w[r] += e[c * n + r] * v[c];
        std::fill(v.begin(), v.end(), Cl(0));
        for (int r = 0; r < n; ++r)
            for (int c = 0; c < n; ++c)
                v[c] += std::conj(e[c * n + r]) * w[r];
        long double len = 0;
        for (const Cl& z : v)
            len += std::norm(z);
        len = sqrtl(len);
        if (len == 0)
            return 0;
        sigma = sqrtl(len);
        for (Cl& z : v)
            z /= len;
    }
    return sigma;
}

}  // namespace

int main()
{
    const long double pi = 3.141592653589793238462643383279502884L;
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels()) {
        const int n = k.size();
        const long double sign = k.model.direction == vtxgen::Direction::Forward ? -1 : 1;
        const std::size_t bytes = static_cast<std::size_t>(k.components() * k.component_bytes());
        long double part = 0, entry = 0;
        std::vector<Cl> e(static_cast<std::size_t>(n * n));
        for (int m = 0; m < n; ++m) {
            std::vector<double> x(static_cast<std::size_t>(k.components()));
            x[2 * m] = 1;
            vtxtest::Buffer src(bytes), dst(bytes);
            src.put(0, x, k.single());
            k(src.at(0), dst.at(0), vtxScaleNone);
            const std::vector<double> y = dst.get(0, k.components(), k.single());
            for (int j = 0; j < n; ++j) {
                const long double angle = 2 * pi * static_cast<long double>(j * m % n) / n;
                const long double re = y[2 * j] - cosl(angle), im = y[2 * j + 1] - sign * sinl(angle);
                part = std::max({part, fabsl(re), fabsl(im)});
                entry = std::max(entry, sqrtl(re * re + im * im));
                e[static_cast<std::size_t>(m * n + j)] = Cl(re, im);
            }
        }
        std::printf("%-28s part %.3Le  entry %.3Le  norm %.3Le\n", k.name().c_str(), part, entry,
                    norm2(e, n) / sqrtl(n));
    }
}
