// Speed of the forward real kernels, each next to FFTW's real-to-complex plan
// of the same size:
//   rccs/32f/8/vtxgen    vtxgDFTFwd_RToCCS_8_32f(src, dst, vtxScaleNone)
//   rccs/32f/8/fftw      fftwf_execute of fftwf_plan_dft_r2c_1d(8, in, out,
//                        FFTW_PATIENT): the same N/2 + 1 bins, unscaled, out
//                        of place
//   rpack/32f/8/vtxgen   vtxgDFTFwd_RToPack_8_32f: the same bins in the Pack
//                        order, no peer (FFTW has no such layout)
// Both sides read the same fixed input from 64-byte (ours) or fftw_malloc
// aligned arrays.  tools/bench_report.py pairs vtxgen and fftw rows by name.
//
// The kernels are those the generator knows (vtxtest::real_kernels()), found
// in the library by name.  They register themselves before main runs, like
// Google Benchmark's BENCHMARK macro; FFTW plans are made on first use, after
// main has read any --fftw_wisdom.
#include "support.hpp"
#include "vtxgen.h"

#include <benchmark/benchmark.h>

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
#include <fftw3.h>
#endif

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

// Fixed values in [-1, 1), the same as the complex benchmarks use.
template <class Real>
void fill(Real* x, int count, unsigned seed)
{
    unsigned s = seed * 2654435761u + 1u;
    for (int i = 0; i < count; ++i) {
        s = s * 1664525u + 1013904223u;
        x[i] = static_cast<Real>(static_cast<double>(s >> 8) / 8388608.0 - 1.0);
    }
}

struct Free {
    void operator()(void* p) const { std::free(p); }
};

template <class Real>
std::unique_ptr<Real, Free> aligned(int elements)
{
    const std::size_t bytes = (sizeof(Real) * static_cast<std::size_t>(elements) + 63) / 64 * 64;
    auto* p = static_cast<Real*>(std::aligned_alloc(64, bytes));
    std::memset(p, 0, bytes);
    return std::unique_ptr<Real, Free>(p);
}

template <class Real>
void run_vtxgen(benchmark::State& state, const vtxtest::RealKernel& k)
{
    using Fn = vtxStatus (*)(const Real*, Real*, int);
    const Fn fn = reinterpret_cast<Fn>(k.fn);
    auto src = aligned<Real>(k.source_elements());
    auto dst = aligned<Real>(k.destination_elements());
    fill(src.get(), k.size(), k.size());
    if (fn(src.get(), dst.get(), vtxScaleNone) != vtxStatusOk) {
        state.SkipWithError("the kernel did not return vtxStatusOk");
        return;
    }
    for (auto _ : state) {
        vtxStatus status = fn(src.get(), dst.get(), vtxScaleNone);
        benchmark::DoNotOptimize(status);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * k.size());
}

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)

template <class Real> struct Fftw;
#ifdef VTX_BENCH_HAVE_FFTW3
template <> struct Fftw<double> {
    using Plan = fftw_plan;
    static void* malloc(std::size_t bytes) { return fftw_malloc(bytes); }
    static void free(void* p) { fftw_free(p); }
    static Plan plan(int n, double* in, double* out, unsigned flags)
    {
        return fftw_plan_dft_r2c_1d(n, in, reinterpret_cast<fftw_complex*>(out), flags);
    }
    static void execute(Plan p) { fftw_execute(p); }
    static void destroy(Plan p) { fftw_destroy_plan(p); }
};
#endif
#ifdef VTX_BENCH_HAVE_FFTW3F
template <> struct Fftw<float> {
    using Plan = fftwf_plan;
    static void* malloc(std::size_t bytes) { return fftwf_malloc(bytes); }
    static void free(void* p) { fftwf_free(p); }
    static Plan plan(int n, float* in, float* out, unsigned flags)
    {
        return fftwf_plan_dft_r2c_1d(n, in, reinterpret_cast<fftwf_complex*>(out), flags);
    }
    static void execute(Plan p) { fftwf_execute(p); }
    static void destroy(Plan p) { fftwf_destroy_plan(p); }
};
#endif

// FFTW's r2c plan of n points and its arrays, made on first use and kept.
// FFTW_PATIENT tries more algorithms than FFTW_MEASURE; at these sizes that
// costs milliseconds.  Planning overwrites the arrays: they are filled after.
template <class Real>
class R2c {
public:
    explicit R2c(int n) : n_(n) {}
    R2c(const R2c&) = delete;
    R2c& operator=(const R2c&) = delete;
    ~R2c()
    {
        if (plan_)
            Fftw<Real>::destroy(plan_);
        Fftw<Real>::free(in_);
        Fftw<Real>::free(out_);
    }

    void run(benchmark::State& state)
    {
        if (!plan_) {
            in_ = static_cast<Real*>(Fftw<Real>::malloc(sizeof(Real) * n_));
            out_ = static_cast<Real*>(Fftw<Real>::malloc(sizeof(Real) * (n_ + 2)));
            plan_ = Fftw<Real>::plan(n_, in_, out_, FFTW_PATIENT);
            fill(in_, n_, n_);
            std::memset(out_, 0, sizeof(Real) * (n_ + 2));
        }
        if (!plan_) {
            state.SkipWithError("FFTW made no plan");
            return;
        }
        const typename Fftw<Real>::Plan plan = plan_;
        Fftw<Real>::execute(plan);
        for (auto _ : state) {
            Fftw<Real>::execute(plan);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * n_);
    }

private:
    int n_;
    typename Fftw<Real>::Plan plan_ = nullptr;
    Real* in_ = nullptr;
    Real* out_ = nullptr;
};

#endif  // FFTW

// CCS and Pack kernels of both precisions, each CCS one followed by its peer.
void register_real_benchmarks()
{
    for (const vtxtest::RealKernel& k : vtxtest::real_kernels()) {
        const char* family = k.layout() == vtxgen::Layout::CCS ? "rccs"
                             : k.layout() == vtxgen::Layout::Pack ? "rpack"
                                                                  : nullptr;
        if (!family)
            continue;  // Perm: the Pack bins with Re(N/2) moved, nothing new to time
        const bool single = k.single();
        const std::string stem =
            std::string(family) + (single ? "/32f/" : "/64f/") + std::to_string(k.size()) + "/";
        benchmark::RegisterBenchmark((stem + "vtxgen").c_str(),
                                     [&k, single](benchmark::State& state) {
                                         single ? run_vtxgen<float>(state, k) : run_vtxgen<double>(state, k);
                                     })
            ->Unit(benchmark::kNanosecond);
        if (k.layout() != vtxgen::Layout::CCS)
            continue;
#ifdef VTX_BENCH_HAVE_FFTW3F
        if (single) {
            auto peer = std::make_shared<R2c<float>>(k.size());
            benchmark::RegisterBenchmark((stem + "fftw").c_str(), [peer](benchmark::State& s) { peer->run(s); })
                ->Unit(benchmark::kNanosecond);
        }
#endif
#ifdef VTX_BENCH_HAVE_FFTW3
        if (!single) {
            auto peer = std::make_shared<R2c<double>>(k.size());
            benchmark::RegisterBenchmark((stem + "fftw").c_str(), [peer](benchmark::State& s) { peer->run(s); })
                ->Unit(benchmark::kNanosecond);
        }
#endif
    }
}

[[maybe_unused]] const int registered = (register_real_benchmarks(), 0);

}  // namespace
