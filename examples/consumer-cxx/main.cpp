// A C++ program using vtxgen: an 8-point forward DFT and the version record.
// Exits nonzero if the call fails or the DC bin is not the sum of the input.
#include <array>
#include <complex>
#include <cstdio>

#include "vtxgen.h"

int main()
{
    std::array<vtx32fc, 8> x{}, y{};
    std::complex<float> sum;
    // Small integers: every sum below is exact in float.
    for (int n = 0; n < 8; ++n) {
        x[n] = {static_cast<float>(n + 1), static_cast<float>(n % 3) - 1.0f};
        sum += std::complex<float>(x[n].re, x[n].im);
    }

    const vtxStatus status = vtxgDFTFwd_CToC_8_32fc(x.data(), y.data(), vtxScaleNone);

    const VersionRecord* ver = vtxgenGetLibVersion();
    std::printf("%s %s (%s)\n", ver->libraryName, ver->versionText, ver->buildDate);
    if (status != vtxStatusOk) {
        std::fprintf(stderr, "vtxgDFTFwd_CToC_8_32fc returned %d\n", static_cast<int>(status));
        return 1;
    }
    for (int n = 0; n < 8; ++n)
        std::printf("y[%d] = %g %+gi\n", n, y[n].re, y[n].im);
    if (std::complex<float>(y[0].re, y[0].im) != sum) {
        std::fprintf(stderr, "DC bin is %g %+gi, expected %g %+gi\n",
                     y[0].re, y[0].im, sum.real(), sum.imag());
        return 1;
    }
    return 0;
}
