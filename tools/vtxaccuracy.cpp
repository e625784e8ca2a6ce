// vtxaccuracy: each kernel taken as a matrix against the transform matrix,
// column by column (one impulse per input element), in long double with
// every exponent reduced modulo N.  Prints the largest error of a real or
// imaginary part, of a complex entry, and the norm of the error matrix
// relative to the transform's (sqrt N), the largest singular value found by
// power iteration.  Built with FFTW, the same three figures of FFTW's
// transform of the same size, direction and precision (an FFTW_ESTIMATE
// plan, out of place), measured the same way in the same run, follow on the
// line, then the ratio of the two norms (vtxgen / FFTW).
#include "support.hpp"

#if defined(VTX_ACCURACY_HAVE_FFTW3) || defined(VTX_ACCURACY_HAVE_FFTW3F)
#include <fftw3.h>
#endif

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <functional>
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

struct Errors {
    long double part = 0, entry = 0, norm = 0;
};

// The errors of a transform of n points whose column m (the response to an
// impulse at m, as 2n interleaved components) `column` gives.
Errors measure(int n, long double sign, const std::function<std::vector<double>(int m)>& column)
{
    const long double pi = 3.141592653589793238462643383279502884L;
    Errors r;
    std::vector<Cl> e(static_cast<std::size_t>(n * n));
    for (int m = 0; m < n; ++m) {
        const std::vector<double> y = column(m);
        for (int j = 0; j < n; ++j) {
            const long double angle = 2 * pi * static_cast<long double>(j * m % n) / n;
            const long double re = y[2 * j] - cosl(angle), im = y[2 * j + 1] - sign * sinl(angle);
            r.part = std::max({r.part, fabsl(re), fabsl(im)});
            r.entry = std::max(r.entry, sqrtl(re * re + im * im));
            e[static_cast<std::size_t>(m * n + j)] = Cl(re, im);
        }
    }
    r.norm = norm2(e, n) / sqrtl(n);
    return r;
}

#if defined(VTX_ACCURACY_HAVE_FFTW3) || defined(VTX_ACCURACY_HAVE_FFTW3F)
// FFTW's column m of the transform of n points in the given direction.
template <class Complex, class Plan, class MakePlan, class Execute, class Destroy>
std::vector<double> fftw_column(int n, int m, int fftw_sign, MakePlan make, Execute execute, Destroy destroy)
{
    std::vector<Complex> in(static_cast<std::size_t>(n)), out(static_cast<std::size_t>(n));
    Plan plan = make(n, in.data(), out.data(), fftw_sign, FFTW_ESTIMATE);
    for (auto& z : in)
        z[0] = z[1] = 0;
    in[static_cast<std::size_t>(m)][0] = 1;
    execute(plan);
    destroy(plan);
    std::vector<double> y;
    for (const auto& z : out) {
        y.push_back(z[0]);
        y.push_back(z[1]);
    }
    return y;
}
#endif

bool fftw_has(bool single)
{
#if defined(VTX_ACCURACY_HAVE_FFTW3F)
    if (single)
        return true;
#endif
#if defined(VTX_ACCURACY_HAVE_FFTW3)
    if (!single)
        return true;
#endif
    (void)single;
    return false;
}

// FFTW's column m in the given precision, or nothing when this build has no
// FFTW of that precision.
std::vector<double> fftw(int n, int m, bool single, bool forward)
{
    const int sign = forward ? -1 : 1;
#if defined(VTX_ACCURACY_HAVE_FFTW3F)
    if (single)
        return fftw_column<fftwf_complex, fftwf_plan>(n, m, sign, fftwf_plan_dft_1d, fftwf_execute, fftwf_destroy_plan);
#endif
#if defined(VTX_ACCURACY_HAVE_FFTW3)
    if (!single)
        return fftw_column<fftw_complex, fftw_plan>(n, m, sign, fftw_plan_dft_1d, fftw_execute, fftw_destroy_plan);
#endif
    (void)n, (void)m, (void)single, (void)sign;
    return {};
}

}  // namespace

int main()
{
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels()) {
        const int n = k.size();
        const bool forward = k.model.direction == vtxgen::Direction::Forward;
        const std::size_t bytes = static_cast<std::size_t>(k.components() * k.component_bytes());
        const Errors own = measure(n, forward ? -1 : 1, [&](int m) {
            std::vector<double> x(static_cast<std::size_t>(k.components()));
            x[2 * m] = 1;
            vtxtest::Buffer src(bytes), dst(bytes);
            src.put(0, x, k.single());
            k(src.at(0), dst.at(0), vtxScaleNone);
            return dst.get(0, k.components(), k.single());
        });
        std::printf("%-28s part %.3Le  entry %.3Le  norm %.3Le", k.name().c_str(), own.part, own.entry, own.norm);
        if (fftw_has(k.single())) {
            const Errors peer = measure(n, forward ? -1 : 1, [&](int m) { return fftw(n, m, k.single(), forward); });
            std::printf("  fftw part %.3Le  entry %.3Le  norm %.3Le  ratio %.2Lf", peer.part, peer.entry, peer.norm,
                        peer.norm > 0 ? own.norm / peer.norm : 0.0L);
        }
        std::printf("\n");
    }
}
