// vtxaccuracy: each kernel taken as a matrix against the transform matrix,
// column by column (one impulse per input element), in long double with
// every exponent reduced modulo N.  Prints the largest error of a real or
// imaginary part and of a complex entry, in units of the precision's epsilon.
#include "support.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

int main()
{
    const long double pi = 3.141592653589793238462643383279502884L;
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels()) {
        const int n = k.size();
        const long double sign = k.model.direction == vtxgen::Direction::Forward ? -1 : 1;
        const std::size_t bytes = static_cast<std::size_t>(k.components() * k.component_bytes());
        long double part = 0, entry = 0;
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
            }
        }
        std::printf("%-28s part %.3Le  entry %.3Le\n", k.name().c_str(), part, entry);
    }
}
