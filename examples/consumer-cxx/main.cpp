// A C++ program using vtxgen through vtxgen.hpp: an 8-point forward DFT and
// the version record.  Exits nonzero if the call fails or the DC bin is not
// the sum of the input.
#include <array>
#include <complex>
#include <cstdio>

#include "vtxgen.hpp"

int main()
{
    std::array<std::complex<float>, 8> x{}, y{};
    std::complex<float> sum;
    // Small integers: every sum below is exact in float.
    for (int n = 0; n < 8; ++n) {
        x[n] = {static_cast<float>(n + 1), static_cast<float>(n % 3) - 1.0f};
        sum += x[n];
    }

    const vtx::status status = vtx::dft<8>(x.data(), y.data());

    const VersionRecord* ver = vtxgenGetLibVersion();
    std::printf("%s %s (%s)\n", ver->libraryName, ver->versionText, ver->buildDate);
    if (status != vtx::status::ok) {
        std::fprintf(stderr, "vtx::dft<8>: %s\n", std::error_code(status).message().c_str());
        return 1;
    }
    for (int n = 0; n < 8; ++n)
        std::printf("y[%d] = %g %+gi\n", n, y[n].real(), y[n].imag());
    if (y[0] != sum) {
        std::fprintf(stderr, "DC bin is %g %+gi, expected %g %+gi\n",
                     y[0].real(), y[0].imag(), sum.real(), sum.imag());
        return 1;
    }
    return 0;
}
