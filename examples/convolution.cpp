// Fast circular convolution of two 40-point complex sequences: forward DFT of
// each, product of the spectra, inverse DFT with the 1/N scale.  Checked
// against the convolution sum computed directly in double; exits nonzero if
// an output differs by more than 1e-5 of the largest.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <vector>

#include "vtxgen.hpp"

int main()
{
    constexpr int n = 40;
    using C = std::complex<float>;
    std::vector<C> signal(n), filter(n), a(n), b(n), out(n);
    for (int i = 0; i < n; ++i) {
        signal[i] = {std::sin(0.3f * i), std::cos(0.11f * i * i)};
        filter[i] = i < 5 ? C(1.0f / (i + 1), 0.25f * i) : C(0);  // a short filter, zero-padded
    }
    try {
        vtx::check(vtx::dft<n>(signal.data(), a.data()), "forward DFT of the signal");
        vtx::check(vtx::dft(filter, b), "forward DFT of the filter");  // size from the range
        for (int k = 0; k < n; ++k)
            a[k] *= b[k];
        vtx::check(vtx::inverse_dft<n>(a.data(), out.data(), vtx::scale::inverse), "inverse DFT");
    } catch (const vtx::error& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }

    double worst = 0, largest = 0;
    for (int m = 0; m < n; ++m) {
        std::complex<double> direct = 0;
        for (int j = 0; j < n; ++j)
            direct += std::complex<double>(signal[j]) * std::complex<double>(filter[(m - j + n) % n]);
        worst = std::max(worst, std::abs(std::complex<double>(out[m]) - direct));
        largest = std::max(largest, std::abs(direct));
        std::printf("%2d  % .6f %+.6fi\n", m, out[m].real(), out[m].imag());
    }
    std::printf("largest difference from the direct sum: %.3e of %.3f\n", worst, largest);
    return worst <= 1e-5 * largest ? 0 : 1;
}
