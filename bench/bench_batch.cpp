// Speed of the batch entries: 256 contiguous transforms per call, next to
// the same 256 through FFTW's plan_many and through a loop of single calls.
//   bcfwd/32fc/8/vtxgen   vtxgDFTFwd_CToC_Batch_32fc, n 8, count 256
//   bcfwd/32fc/8/fftw     fftwf_plan_many_dft, howmany 256, FFTW_PATIENT
//   bcfwd/32fc/8/scalar   256 calls of vtxgDFTFwd_CToC_8_32fc
// and the same for brccs (forward real into CCS, FFTW's r2c), biccs (inverse
// real from CCS, FFTW's c2r with FFTW_PRESERVE_INPUT: ours keep the input
// too) and bdht (Hartley, FFTW's r2r of kind FFTW_DHT).  Times are per call
// of 256 transforms: tools/bench_report.py prints fftw/vtxgen and
// scalar/vtxgen, the per-transform ratios.
#include "vtxgen.h"

#include <benchmark/benchmark.h>

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
#include <fftw3.h>
#endif

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

constexpr int kCount = 256;

#ifdef VTX_BENCH_HAVE_FFTW3F
constexpr bool kFftwFloat = true;
#else
constexpr bool kFftwFloat = false;
#endif
#ifdef VTX_BENCH_HAVE_FFTW3
constexpr bool kFftwDouble = true;
#else
constexpr bool kFftwDouble = false;
#endif

enum class Kind { ComplexForward, RealForward, RealInverse, Hartley };

struct Row {
    const char* family;  // the benchmark's first word
    Kind kind;
    const char* batch;   // the entry's name without the precision
    const char* single;  // the single kernels' name before the size
};
const Row kRows[] = {
    {"bcfwd", Kind::ComplexForward, "vtxgDFTFwd_CToC_Batch", "vtxgDFTFwd_CToC"},
    {"brccs", Kind::RealForward, "vtxgDFTFwd_RToCCS_Batch", "vtxgDFTFwd_RToCCS"},
    {"biccs", Kind::RealInverse, "vtxgDFTInv_CCSToR_Batch", "vtxgDFTInv_CCSToR"},
    {"bdht", Kind::Hartley, "vtxgHartley_Batch", "vtxgHartley"},
};

// Reals of one transform's input and output.
int reals_in(Kind k, int n) { return k == Kind::ComplexForward ? 2 * n : k == Kind::RealInverse ? 2 * (n / 2 + 1) : n; }
int reals_out(Kind k, int n) { return k == Kind::ComplexForward ? 2 * n : k == Kind::RealForward ? 2 * (n / 2 + 1) : n; }

struct Free {
    void operator()(void* p) const { std::free(p); }
};

// The 256 inputs (fixed values in [-1, 1)) and outputs of one benchmark,
// 64-byte aligned.
template <class Real>
struct BatchArrays {
    BatchArrays(Kind k, int n) : in(reals_in(k, n)), out(reals_out(k, n))
    {
        src.reset(alloc(in));
        dst.reset(alloc(out));
        unsigned s = static_cast<unsigned>(n) * 2654435761u + 1u;
        for (std::size_t i = 0; i < std::size_t(in) * kCount; ++i) {
            s = s * 1664525u + 1013904223u;
            src.get()[i] = static_cast<Real>(static_cast<double>(s >> 8) / 8388608.0 - 1.0);
        }
        std::memset(dst.get(), 0, sizeof(Real) * std::size_t(out) * kCount);
    }
    static Real* alloc(int reals) { return static_cast<Real*>(std::aligned_alloc(64, (sizeof(Real) * reals * kCount + 63) / 64 * 64)); }
    int in, out;
    std::unique_ptr<Real, Free> src, dst;
};

void* symbol(const std::string& name)
{
    void* f = dlsym(RTLD_DEFAULT, name.c_str());
    if (!f)
        throw std::runtime_error("the library lacks " + name);
    return f;
}

template <class Real>
void run_batch(benchmark::State& state, const Row& row, int n)
{
    using Batch = vtxStatus (*)(const Real*, Real*, int, int, int, int, int);
    const std::string suffix = sizeof(Real) == 4 ? "32f" : "64f";
    const bool complex = row.kind == Kind::ComplexForward;
    const auto fn = reinterpret_cast<Batch>(symbol(std::string(row.batch) + "_" + suffix + (complex ? "c" : "")));
    BatchArrays<Real> a(row.kind, n);
    const int per = complex ? 2 : 1;  // strides are in complex elements for the complex DFT
    if (fn(a.src.get(), a.dst.get(), n, kCount, a.in / per, a.out / per, vtxScaleNone) != vtxStatusOk) {
        state.SkipWithError("the batch did not return vtxStatusOk");
        return;
    }
    for (auto _ : state) {
        vtxStatus status = fn(a.src.get(), a.dst.get(), n, kCount, a.in / per, a.out / per, vtxScaleNone);
        benchmark::DoNotOptimize(status);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}

template <class Real>
void run_loop(benchmark::State& state, const Row& row, int n)
{
    using Kernel = vtxStatus (*)(const Real*, Real*, int);
    const std::string suffix = sizeof(Real) == 4 ? "32f" : "64f";
    const bool complex = row.kind == Kind::ComplexForward;
    const auto fn = reinterpret_cast<Kernel>(
        symbol(std::string(row.single) + "_" + std::to_string(n) + "_" + suffix + (complex ? "c" : "")));
    BatchArrays<Real> a(row.kind, n);
    for (auto _ : state) {
        const Real* x = a.src.get();
        Real* y = a.dst.get();
        for (int t = 0; t < kCount; ++t, x += a.in, y += a.out)
            benchmark::DoNotOptimize(fn(x, y, vtxScaleNone));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kCount);
}

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)

template <class Real> struct Many;
#ifdef VTX_BENCH_HAVE_FFTW3
template <> struct Many<double> {
    using Plan = fftw_plan;
    using Complex = fftw_complex;
    static Plan plan(Kind k, int n, double* in, double* out)
    {
        const int m = n / 2 + 1;
        switch (k) {
        case Kind::ComplexForward:
            return fftw_plan_many_dft(1, &n, kCount, reinterpret_cast<Complex*>(in), nullptr, 1, n,
                                      reinterpret_cast<Complex*>(out), nullptr, 1, n, FFTW_FORWARD, FFTW_PATIENT);
        case Kind::RealForward:
            return fftw_plan_many_dft_r2c(1, &n, kCount, in, nullptr, 1, n, reinterpret_cast<Complex*>(out), nullptr,
                                          1, m, FFTW_PATIENT);
        case Kind::RealInverse:
            return fftw_plan_many_dft_c2r(1, &n, kCount, reinterpret_cast<Complex*>(in), nullptr, 1, m, out, nullptr,
                                          1, n, FFTW_PATIENT | FFTW_PRESERVE_INPUT);
        case Kind::Hartley: {
            const fftw_r2r_kind dht = FFTW_DHT;
            return fftw_plan_many_r2r(1, &n, kCount, in, nullptr, 1, n, out, nullptr, 1, n, &dht, FFTW_PATIENT);
        }
        }
        return nullptr;
    }
    static void execute(Plan p) { fftw_execute(p); }
    static void destroy(Plan p) { fftw_destroy_plan(p); }
};
#endif
#ifdef VTX_BENCH_HAVE_FFTW3F
template <> struct Many<float> {
    using Plan = fftwf_plan;
    using Complex = fftwf_complex;
    static Plan plan(Kind k, int n, float* in, float* out)
    {
        const int m = n / 2 + 1;
        switch (k) {
        case Kind::ComplexForward:
            return fftwf_plan_many_dft(1, &n, kCount, reinterpret_cast<Complex*>(in), nullptr, 1, n,
                                       reinterpret_cast<Complex*>(out), nullptr, 1, n, FFTW_FORWARD, FFTW_PATIENT);
        case Kind::RealForward:
            return fftwf_plan_many_dft_r2c(1, &n, kCount, in, nullptr, 1, n, reinterpret_cast<Complex*>(out), nullptr,
                                           1, m, FFTW_PATIENT);
        case Kind::RealInverse:
            return fftwf_plan_many_dft_c2r(1, &n, kCount, reinterpret_cast<Complex*>(in), nullptr, 1, m, out, nullptr,
                                           1, n, FFTW_PATIENT | FFTW_PRESERVE_INPUT);
        case Kind::Hartley: {
            const fftwf_r2r_kind dht = FFTW_DHT;
            return fftwf_plan_many_r2r(1, &n, kCount, in, nullptr, 1, n, out, nullptr, 1, n, &dht, FFTW_PATIENT);
        }
        }
        return nullptr;
    }
    static void execute(Plan p) { fftwf_execute(p); }
    static void destroy(Plan p) { fftwf_destroy_plan(p); }
};
#endif

// The plan is made on the first run (planning overwrites the arrays, so
// they are filled afterwards) and kept for every repetition.
template <class Real>
class ManyPlan {
public:
    ManyPlan(Kind k, int n) : kind_(k), n_(n) {}
    ManyPlan(const ManyPlan&) = delete;
    ManyPlan& operator=(const ManyPlan&) = delete;
    ~ManyPlan()
    {
        if (plan_)
            Many<Real>::destroy(plan_);
    }
    void run(benchmark::State& state)
    {
        if (!plan_) {
            BatchArrays<Real> planning(kind_, n_);
            plan_ = Many<Real>::plan(kind_, n_, planning.src.get(), planning.dst.get());
            arrays_ = std::make_unique<BatchArrays<Real>>(kind_, n_);
        }
        if (!plan_) {
            state.SkipWithError("FFTW made no plan");
            return;
        }
        // A plan made on other arrays runs on these through the new-array
        // interface: the same alignment (64 bytes), the same layout.
        Real* in = arrays_->src.get();
        Real* out = arrays_->dst.get();
        for (auto _ : state) {
            execute(in, out);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * kCount);
    }

private:
    void execute(Real* in, Real* out);
    Kind kind_;
    int n_;
    typename Many<Real>::Plan plan_ = nullptr;
    std::unique_ptr<BatchArrays<Real>> arrays_;
};

#ifdef VTX_BENCH_HAVE_FFTW3
template <>
void ManyPlan<double>::execute(double* in, double* out)
{
    using C = fftw_complex;
    switch (kind_) {
    case Kind::ComplexForward: fftw_execute_dft(plan_, reinterpret_cast<C*>(in), reinterpret_cast<C*>(out)); break;
    case Kind::RealForward: fftw_execute_dft_r2c(plan_, in, reinterpret_cast<C*>(out)); break;
    case Kind::RealInverse: fftw_execute_dft_c2r(plan_, reinterpret_cast<C*>(in), out); break;
    case Kind::Hartley: fftw_execute_r2r(plan_, in, out); break;
    }
}
#endif
#ifdef VTX_BENCH_HAVE_FFTW3F
template <>
void ManyPlan<float>::execute(float* in, float* out)
{
    using C = fftwf_complex;
    switch (kind_) {
    case Kind::ComplexForward: fftwf_execute_dft(plan_, reinterpret_cast<C*>(in), reinterpret_cast<C*>(out)); break;
    case Kind::RealForward: fftwf_execute_dft_r2c(plan_, in, reinterpret_cast<C*>(out)); break;
    case Kind::RealInverse: fftwf_execute_dft_c2r(plan_, reinterpret_cast<C*>(in), out); break;
    case Kind::Hartley: fftwf_execute_r2r(plan_, in, out); break;
    }
}
#endif

#endif  // FFTW

template <class Real>
void register_rows(const char* precision, const char* complex_precision)
{
    for (const Row& row : kRows)
        for (int n = 2; n <= 64; ++n) {
            const std::string stem = std::string(row.family) + "/" +
                                     (row.kind == Kind::ComplexForward ? complex_precision : precision) + "/" +
                                     std::to_string(n) + "/";
            benchmark::RegisterBenchmark((stem + "vtxgen").c_str(),
                                         [&row, n](benchmark::State& s) { run_batch<Real>(s, row, n); })
                ->Unit(benchmark::kNanosecond);
#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
            if constexpr (sizeof(Real) == 4 ? kFftwFloat : kFftwDouble) {
                auto plan = std::make_shared<ManyPlan<Real>>(row.kind, n);
                benchmark::RegisterBenchmark((stem + "fftw").c_str(), [plan](benchmark::State& s) { plan->run(s); })
                    ->Unit(benchmark::kNanosecond);
            }
#endif
            benchmark::RegisterBenchmark((stem + "scalar").c_str(),
                                         [&row, n](benchmark::State& s) { run_loop<Real>(s, row, n); })
                ->Unit(benchmark::kNanosecond);
        }
}

}  // namespace

void register_batch_benchmarks()
{
    register_rows<float>("32f", "32fc");
    register_rows<double>("64f", "64fc");
}
