// A short-time Fourier transform in two batch calls: a signal cut into
// frames of 64 samples every 16, each frame windowed (periodic Hann), all
// frames transformed by one call into CCS spectra; the spectrogram's peak
// follows the signal's rising tone.  Then back: one inverse call and the
// frames overlapped and added give the signal again (four Hann windows at a
// quarter's hop sum to 2).  Checked: every frame's spectrum is the single
// call's bits, and the signal comes back to within 1e-5.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "vtxgen.hpp"

int main()
{
    constexpr int n = 64, hop = 16, length = 4096, bins = n / 2 + 1;
    constexpr int frames = (length - n) / hop + 1;
    const double pi = 3.14159265358979323846;

    // A tone rising from 1/32 to 3/8 of the sampling rate, and a steady one.
    std::vector<float> signal(length);
    for (int i = 0; i < length; ++i) {
        const double t = double(i) / length;
        signal[i] = float(std::sin(2 * pi * length * (t / 32 + (3.0 / 8 - 1.0 / 32) * t * t / 2)) +
                          0.25 * std::sin(2 * pi * 0.25 * i));
    }
    std::vector<float> window(n);
    for (int i = 0; i < n; ++i)
        window[i] = float(0.5 - 0.5 * std::cos(2 * pi * i / n));

    // The frames side by side, then one call for all of them.
    std::vector<float> cut(std::size_t(frames) * n), spectra(std::size_t(frames) * vtx::ccs::length(n));
    for (int f = 0; f < frames; ++f)
        for (int i = 0; i < n; ++i)
            cut[std::size_t(f) * n + i] = window[i] * signal[std::size_t(f) * hop + i];
    vtx::check(vtx::real_forward_batch<vtx::ccs>(cut, spectra, n));

    // The batch gives each frame the bits of the single call.
    int differ = 0;
    std::vector<float> one(vtx::ccs::length(n));
    for (int f = 0; f < frames; ++f) {
        vtx::check(vtx::real_forward<n, vtx::ccs>(&cut[std::size_t(f) * n], one.data()));
        differ += std::memcmp(one.data(), &spectra[std::size_t(f) * one.size()], one.size() * sizeof(float)) != 0;
    }

    // The strongest bin of every 25th frame, the steady tone at bin 16 aside.
    std::printf("frame  time   peak bin (rising tone)\n");
    for (int f = 0; f < frames; f += 25) {
        int peak = 1;
        double best = 0;
        for (int k = 1; k < bins; ++k) {
            const float re = spectra[std::size_t(f) * 2 * bins + 2 * k], im = spectra[std::size_t(f) * 2 * bins + 2 * k + 1];
            const double power = double(re) * re + double(im) * im;
            if (std::abs(k - 16) > 1 && power > best) {
                best = power;
                peak = k;
            }
        }
        std::printf("%5d  %5.3f  %2d %s\n", f, double(f) * hop / length, peak, std::string(std::size_t(peak), '*').c_str());
    }

    // Back: one inverse call (scaled by 1/n), then overlap and add.
    std::vector<float> back(cut.size());
    vtx::check(vtx::real_inverse_batch<vtx::ccs>(spectra, back, n, vtx::scale::inverse));
    std::vector<double> sum(length, 0.0);
    for (int f = 0; f < frames; ++f)
        for (int i = 0; i < n; ++i)
            sum[std::size_t(f) * hop + i] += back[std::size_t(f) * n + i];
    double worst = 0;
    for (int i = n - hop; i < length - n + hop; ++i)  // covered by four frames
        worst = std::max(worst, std::fabs(sum[i] / 2 - signal[i]));

    std::printf("%d frames of %d in one call; %d differ from the single calls; "
                "overlap-add error %.2e\n", frames, n, differ, worst);
    return differ == 0 && worst <= 1e-5 ? 0 : 1;
}
