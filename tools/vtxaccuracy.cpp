// vtxaccuracy: each kernel taken as a matrix against the transform matrix,
// column by column (one impulse per input element), in long double with
// every exponent reduced modulo N.  Prints the largest error of a real or
// imaginary part, of a complex entry, and the norm of the error matrix
// relative to the transform's (sqrt N), the largest singular value found by
// power iteration, and the root mean square error of an entry (the Frobenius
// norm of the error matrix relative to the transform's, N); then, over 32
// fixed random inputs, the root mean square of the relative error
// ||y - Y|| / ||Y|| against the long-double DFT.  Built with FFTW, the same three figures of FFTW's
// transform of the same size, direction and precision (an FFTW_ESTIMATE
// plan, out of place), measured the same way in the same run, follow on the
// line, then the ratios (vtxgen / FFTW) of the matrix's root mean square
// error and of the random inputs' error.
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
    long double part = 0, entry = 0, norm = 0, rms = 0, random = 0;
};

// The transform of x (2n interleaved components) in long double.
std::vector<long double> exact(const std::vector<double>& x, int n, long double sign)
{
    const long double pi = 3.141592653589793238462643383279502884L;
    std::vector<long double> y(static_cast<std::size_t>(2 * n));
    for (int k = 0; k < n; ++k)
        for (int j = 0; j < n; ++j) {
            const long double a = 2 * pi * static_cast<long double>(j * k % n) / n, c = cosl(a), s = sign * sinl(a);
            y[2 * k] += x[2 * j] * c - x[2 * j + 1] * s;
            y[2 * k + 1] += x[2 * j] * s + x[2 * j + 1] * c;
        }
    return y;
}

// The errors of a transform of n points whose column m (the response to an
// impulse at m, as 2n interleaved components) `column` gives.
Errors measure(int n, long double sign, bool single, const std::function<std::vector<double>(int m)>& column,
               const std::function<std::vector<double>(const std::vector<double>&)>& apply)
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
            r.rms += re * re + im * im;
        }
    }
    r.rms = sqrtl(r.rms) / n;
    for (std::uint32_t seed = 1; seed <= 32; ++seed) {
        const std::vector<double> x = vtxtest::fixed_input(2 * n, seed, single), y = apply(x);
        const std::vector<long double> want = exact(x, n, sign);
        long double err = 0, len = 0;
        for (int i = 0; i < 2 * n; ++i) {
            err += (y[i] - want[i]) * (y[i] - want[i]);
            len += want[i] * want[i];
        }
        r.random += err / len;
    }
    r.random = sqrtl(r.random / 32);
    r.norm = norm2(e, n) / sqrtl(n);
    return r;
}

#if defined(VTX_ACCURACY_HAVE_FFTW3) || defined(VTX_ACCURACY_HAVE_FFTW3F)
// FFTW's transform of x (2n interleaved components) in the given direction.
template <class Complex, class Plan, class MakePlan, class Execute, class Destroy>
std::vector<double> fftw_apply(const std::vector<double>& x, int n, int fftw_sign, MakePlan make, Execute execute,
                               Destroy destroy)
{
    std::vector<Complex> in(static_cast<std::size_t>(n)), out(static_cast<std::size_t>(n));
    Plan plan = make(n, in.data(), out.data(), fftw_sign, FFTW_ESTIMATE);
    for (int j = 0; j < n; ++j) {
        in[static_cast<std::size_t>(j)][0] = static_cast<decltype(in[0][0] + 0)>(x[2 * j]);
        in[static_cast<std::size_t>(j)][1] = static_cast<decltype(in[0][0] + 0)>(x[2 * j + 1]);
    }
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

// The impulse at m as 2n interleaved components.
std::vector<double> impulse(int n, int m)
{
    std::vector<double> x(static_cast<std::size_t>(2 * n));
    x[static_cast<std::size_t>(2 * m)] = 1;
    return x;
}

// FFTW's transform of x in the given precision, or nothing when this build
// has no FFTW of that precision.
std::vector<double> fftw(const std::vector<double>& x, int n, bool single, bool forward)
{
    const int sign = forward ? -1 : 1;
#if defined(VTX_ACCURACY_HAVE_FFTW3F)
    if (single)
        return fftw_apply<fftwf_complex, fftwf_plan>(x, n, sign, fftwf_plan_dft_1d, fftwf_execute, fftwf_destroy_plan);
#endif
#if defined(VTX_ACCURACY_HAVE_FFTW3)
    if (!single)
        return fftw_apply<fftw_complex, fftw_plan>(x, n, sign, fftw_plan_dft_1d, fftw_execute, fftw_destroy_plan);
#endif
    (void)x, (void)n, (void)single, (void)sign;
    return {};
}

}  // namespace

int main()
{
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels()) {
        const int n = k.size();
        const bool forward = k.model.direction == vtxgen::Direction::Forward;
        const std::size_t bytes = static_cast<std::size_t>(k.components() * k.component_bytes());
        const auto apply = [&](const std::vector<double>& x) {
            vtxtest::Buffer src(bytes), dst(bytes);
            src.put(0, x, k.single());
            k(src.at(0), dst.at(0), vtxScaleNone);
            return dst.get(0, k.components(), k.single());
        };
        const Errors own = measure(n, forward ? -1 : 1, k.single(), [&](int m) { return apply(impulse(n, m)); }, apply);
        std::printf("%-28s part %.3Le  entry %.3Le  norm %.3Le  rms %.3Le  random %.3Le", k.name().c_str(), own.part,
                    own.entry, own.norm, own.rms, own.random);
        if (fftw_has(k.single())) {
            const auto peer_apply = [&](const std::vector<double>& x) { return fftw(x, n, k.single(), forward); };
            const Errors peer = measure(n, forward ? -1 : 1, k.single(),
                                        [&](int m) { return peer_apply(impulse(n, m)); }, peer_apply);
            std::printf("  fftw part %.3Le  entry %.3Le  norm %.3Le  rms %.3Le  random %.3Le  ratio %.2Lf %.2Lf",
                        peer.part, peer.entry, peer.norm, peer.rms, peer.random,
                        peer.rms > 0 ? own.rms / peer.rms : 0.0L, peer.random > 0 ? own.random / peer.random : 0.0L);
        }
        std::printf("\n");
    }
}
