// A randomized Hadamard rotation of a 1024-vector, as used to spread a
// vector's energy before quantization: random signs, then the Walsh-Hadamard
// transform scaled by 1/sqrt(N), an orthogonal map.  Checked against the
// Hadamard matrix applied directly in double, then undone (transform again,
// same signs); exits nonzero if the rotation or the round trip is off by
// more than 1e-5 of the vector's norm.
#include <algorithm>
#include <bitset>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "vtxgen.hpp"

int main()
{
    constexpr int order = 10, n = 1 << order;
    std::mt19937 rng(20261123);
    std::normal_distribution<float> normal;
    std::vector<float> x(n), signs(n), y(n), back(n);
    for (int i = 0; i < n; ++i) {
        x[i] = i < 8 ? 10.0f * normal(rng) : 0.01f * normal(rng);  // energy in a few elements
        signs[i] = (rng() & 1) ? 1.0f : -1.0f;
        y[i] = signs[i] * x[i];
    }
    const vtx::wht<float> rotate(order);  // owns the work buffer order 10 needs
    vtx::check(rotate(y, y, vtx::scale::symmetric), "rotation");

    double norm = 0, worst = 0, peak_before = 0, peak_after = 0;
    for (int k = 0; k < n; ++k) {
        double direct = 0;
        for (int j = 0; j < n; ++j)
            direct += (std::bitset<order>(j & k).count() % 2 ? -1.0 : 1.0) * signs[j] * x[j];
        direct /= std::sqrt(double(n));
        worst = std::max(worst, std::fabs(y[k] - direct));
        norm += double(x[k]) * x[k];
        peak_before = std::max(peak_before, std::fabs(double(x[k])));
        peak_after = std::max(peak_after, std::fabs(double(y[k])));
    }
    norm = std::sqrt(norm);

    vtx::check(rotate(y, back, vtx::scale::symmetric), "inverse rotation");
    double round_trip = 0;
    for (int i = 0; i < n; ++i)
        round_trip = std::max(round_trip, std::fabs(double(signs[i]) * back[i] - x[i]));

    std::printf("norm %.4f, largest element %.4f before and %.4f after the rotation\n", norm, peak_before,
                peak_after);
    std::printf("largest difference from the direct product %.3e, after the round trip %.3e\n", worst,
                round_trip);
    return worst <= 1e-5 * norm && round_trip <= 1e-5 * norm ? 0 : 1;
}
