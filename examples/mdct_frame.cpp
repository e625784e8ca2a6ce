// One frame of an MDCT audio codec on the DCT-IV: 2N = 512 windowed samples
// (a sine window) give N = 256 coefficients
//   X[k] = sum_n w[n] x[n] cos(pi/N (n + 1/2 + N/2)(k + 1/2)),
// computed as the DCT-IV of the folded frame: with the windowed frame cut in
// quarters a, b, c, d, the DCT-IV of (-c reversed - d, a - b reversed).
// Checked against the sum computed directly in double; exits nonzero if a
// coefficient differs by more than 1e-5 of the largest.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "vtxgen.hpp"

int main()
{
    constexpr int n = 256, h = n / 2;
    const double pi = 3.14159265358979323846;
    std::vector<float> frame(2 * n), folded(n), coeffs(n);
    for (int i = 0; i < 2 * n; ++i) {
        const double window = std::sin(pi / (2 * n) * (i + 0.5));
        const double sample = std::sin(2 * pi * 440 * i / 8000.0) + 0.3 * std::sin(2 * pi * 3000 * i / 8000.0);
        frame[i] = static_cast<float>(window * sample);
    }
    const float* a = frame.data();
    const float* b = a + h;
    const float* c = b + h;
    const float* d = c + h;
    for (int i = 0; i < h; ++i) {
        folded[i] = -c[h - 1 - i] - d[i];
        folded[h + i] = a[i] - b[h - 1 - i];
    }

    std::error_code ec;
    const vtx::dct4_plan<float> plan(n, ec);  // built once, run for every frame
    if (ec) {
        std::fprintf(stderr, "DCT-IV plan of %d: %s\n", n, ec.message().c_str());
        return 1;
    }
    if (const vtx::status st = plan(folded, coeffs); st != vtx::status::ok) {
        std::fprintf(stderr, "DCT-IV: %s\n", std::error_code(st).message().c_str());
        return 1;
    }

    double worst = 0, largest = 0;
    for (int k = 0; k < n; ++k) {
        double direct = 0;
        for (int i = 0; i < 2 * n; ++i)
            direct += frame[i] * std::cos(pi / n * (i + 0.5 + h) * (k + 0.5));
        worst = std::max(worst, std::fabs(coeffs[k] - direct));
        largest = std::max(largest, std::fabs(direct));
    }
    for (int k = 0; k < 16; ++k)
        std::printf("X[%d] = % .6f\n", k, coeffs[k]);
    std::printf("largest difference from the direct MDCT: %.3e of %.3f\n", worst, largest);
    return worst <= 1e-5 * largest ? 0 : 1;
}
