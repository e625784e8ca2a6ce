// Speed of the Walsh-Hadamard kernels, each next to three others of the same
// length in the same run:
//   wht/32f/256/vtxgen   vtxgWHT_8_32f with a caller's work buffer, flag 8
//   wht/32f/256/scalar   a plain stage-by-stage butterfly loop, out of place
//   wht/32f/256/fftw     FFTW's rank-8 2x...x2 real-to-real transform with
//                        FFTW_R2HC in every dimension: the same transform
//   wht/32f/256/memcpy   (orders 12 and up) a copy of the same bytes, for the
//                        share of the copy bandwidth a transform reaches
//   wht/32f/256/sse2     (orders 5 to 13, 64-bit builds) the kernel's 128-bit
//   wht/32f/256/avx2     form and its 256-bit form, called directly, side by
//                        side in the same process whatever it runs otherwise
//                        (the AVX2 one where the processor has AVX2)
// Orders 16 and 20 run as 2^(N-13) calls of the order-13 kernel followed by
// the remaining stages across those blocks (a plain loop): what a caller of
// the fixed orders would write for a longer transform.
#include "vtxgen.h"

#include <benchmark/benchmark.h>

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
#include <fftw3.h>
#endif

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

// The two forms of the kernels that have them, from the library's objects
// (vtxwht_forms): internal functions, the same code the exported kernels run.
#if defined(__x86_64__)
#define VTX_WHT_FORMS(T, N)                                                                   \
    extern "C" vtxStatus owngWHT_##N##_##T##_sse2(const vtx##T*, vtx##T*, int, void*);   \
    extern "C" vtxStatus owngWHT_##N##_##T##_avx2(const vtx##T*, vtx##T*, int, void*);
#define VTX_WHT_FORMS_OF(T) \
    VTX_WHT_FORMS(T, 5)     \
    VTX_WHT_FORMS(T, 6)     \
    VTX_WHT_FORMS(T, 7)     \
    VTX_WHT_FORMS(T, 8)     \
    VTX_WHT_FORMS(T, 9)     \
    VTX_WHT_FORMS(T, 10)    \
    VTX_WHT_FORMS(T, 11)    \
    VTX_WHT_FORMS(T, 12)    \
    VTX_WHT_FORMS(T, 13)
VTX_WHT_FORMS_OF(32f)
VTX_WHT_FORMS_OF(64f)
#define VTX_HAVE_WHT_FORMS 1
#endif

namespace {

constexpr int kLargest = 13;

template <class Real>
using Kernel = vtxStatus (*)(const Real*, Real*, int, void*);

constexpr Kernel<float> kernels_32f[] = {
    vtxgWHT_1_32f, vtxgWHT_2_32f, vtxgWHT_3_32f, vtxgWHT_4_32f,  vtxgWHT_5_32f,  vtxgWHT_6_32f,  vtxgWHT_7_32f,
    vtxgWHT_8_32f, vtxgWHT_9_32f, vtxgWHT_10_32f, vtxgWHT_11_32f, vtxgWHT_12_32f, vtxgWHT_13_32f};
constexpr Kernel<double> kernels_64f[] = {
    vtxgWHT_1_64f, vtxgWHT_2_64f, vtxgWHT_3_64f, vtxgWHT_4_64f,  vtxgWHT_5_64f,  vtxgWHT_6_64f,  vtxgWHT_7_64f,
    vtxgWHT_8_64f, vtxgWHT_9_64f, vtxgWHT_10_64f, vtxgWHT_11_64f, vtxgWHT_12_64f, vtxgWHT_13_64f};

template <class Real>
Kernel<Real> kernel(int order)
{
    if constexpr (sizeof(Real) == 4)
        return kernels_32f[order - 1];
    else
        return kernels_64f[order - 1];
}

#ifdef VTX_HAVE_WHT_FORMS
// Orders 5 to 13 in their 128-bit (sse2) and 256-bit (avx2) forms.
constexpr int kSmallestForm = 5;
#define VTX_WHT_FORM_ROW(T, set)                                                                          \
    {owngWHT_5_##T##_##set, owngWHT_6_##T##_##set,  owngWHT_7_##T##_##set,  owngWHT_8_##T##_##set,         \
     owngWHT_9_##T##_##set, owngWHT_10_##T##_##set, owngWHT_11_##T##_##set, owngWHT_12_##T##_##set,        \
     owngWHT_13_##T##_##set}
constexpr Kernel<float> forms_32f[2][kLargest - kSmallestForm + 1] = {VTX_WHT_FORM_ROW(32f, sse2),
                                                                      VTX_WHT_FORM_ROW(32f, avx2)};
constexpr Kernel<double> forms_64f[2][kLargest - kSmallestForm + 1] = {VTX_WHT_FORM_ROW(64f, sse2),
                                                                       VTX_WHT_FORM_ROW(64f, avx2)};

// The 128-bit (wide false) or 256-bit form of an order.
template <class Real>
Kernel<Real> form(int order, bool wide)
{
    if constexpr (sizeof(Real) == 4)
        return forms_32f[wide][order - kSmallestForm];
    else
        return forms_64f[wide][order - kSmallestForm];
}
#endif

struct Free {
    void operator()(void* p) const { std::free(p); }
};

// Source, destination and work buffer of one benchmark, 64-byte aligned.
template <class Real>
struct Arrays {
    explicit Arrays(int order) : n(std::size_t(1) << order)
    {
        const std::size_t bytes = (n * sizeof(Real) + 63) / 64 * 64;
        src.reset(static_cast<Real*>(std::aligned_alloc(64, bytes)));
        dst.reset(static_cast<Real*>(std::aligned_alloc(64, bytes)));
        int work_bytes = 0;
        if constexpr (sizeof(Real) == 4)
            vtxgWHTGetBufferSize_32f(order < kLargest ? order : kLargest, &work_bytes);
        else
            vtxgWHTGetBufferSize_64f(order < kLargest ? order : kLargest, &work_bytes);
        work.reset(std::aligned_alloc(64, static_cast<std::size_t>(work_bytes + 64) / 64 * 64));
        fill();
    }
    // Fixed values in [-1, 1) in the source, zeros in the destination.
    void fill()
    {
        unsigned s = static_cast<unsigned>(n) * 2654435761u + 1u;
        for (std::size_t i = 0; i < n; ++i) {
            s = s * 1664525u + 1013904223u;
            src.get()[i] = static_cast<Real>(static_cast<double>(s >> 8) / 8388608.0 - 1.0);
        }
        std::memset(dst.get(), 0, n * sizeof(Real));
    }
    std::size_t n;
    std::unique_ptr<Real, Free> src, dst;
    std::unique_ptr<void, Free> work;
};

// Stages from bit `from` upward on v, in place.
template <class Real>
void stages(Real* v, std::size_t n, std::size_t from)
{
    for (std::size_t d = from; d < n; d <<= 1)
        for (std::size_t j = 0; j < n; j += 2 * d)
            for (std::size_t i = j; i < j + d; ++i) {
                const Real a = v[i], b = v[i + d];
                v[i] = a + b;
                v[i + d] = a - b;
            }
}

template <class Real>
void run_vtxgen(benchmark::State& state, int order, Kernel<Real> fn)
{
    Arrays<Real> a(order);
    const int fixed = order < kLargest ? order : kLargest;
    const std::size_t block = std::size_t(1) << fixed;
    for (auto _ : state) {
        for (std::size_t b = 0; b < a.n; b += block)
            fn(a.src.get() + b, a.dst.get() + b, vtxScaleNone, a.work.get());
        if (order > kLargest)
            stages(a.dst.get(), a.n, block);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(2 * a.n * sizeof(Real)));
}

template <class Real>
void run_scalar(benchmark::State& state, int order)
{
    Arrays<Real> a(order);
    for (auto _ : state) {
        std::memcpy(a.dst.get(), a.src.get(), a.n * sizeof(Real));
        stages(a.dst.get(), a.n, 1);
        benchmark::ClobberMemory();
    }
}

template <class Real>
void run_memcpy(benchmark::State& state, int order)
{
    Arrays<Real> a(order);
    for (auto _ : state) {
        std::memcpy(a.dst.get(), a.src.get(), a.n * sizeof(Real));
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(2 * a.n * sizeof(Real)));
}

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
template <class Real> struct Fftw;
#ifdef VTX_BENCH_HAVE_FFTW3
template <> struct Fftw<double> {
    using Plan = fftw_plan;
    static Plan plan(int rank, const int* n, double* in, double* out, const fftw_r2r_kind* kind)
    {
        return fftw_plan_r2r(rank, n, in, out, kind, FFTW_MEASURE);
    }
    static void execute(Plan p) { fftw_execute(p); }
    static void destroy(Plan p) { fftw_destroy_plan(p); }
};
#endif
#ifdef VTX_BENCH_HAVE_FFTW3F
template <> struct Fftw<float> {
    using Plan = fftwf_plan;
    static Plan plan(int rank, const int* n, float* in, float* out, const fftw_r2r_kind* kind)
    {
        return fftwf_plan_r2r(rank, n, in, out, kind, FFTW_MEASURE);
    }
    static void execute(Plan p) { fftwf_execute(p); }
    static void destroy(Plan p) { fftwf_destroy_plan(p); }
};
#endif

// A plan made on first use (FFTW_MEASURE overwrites the arrays: they are
// filled afterwards), kept for every repetition.
template <class Real>
class Peer {
public:
    explicit Peer(int order) : order_(order) {}
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    ~Peer()
    {
        if (plan_)
            Fftw<Real>::destroy(plan_);
    }

    void run(benchmark::State& state)
    {
        if (!plan_) {
            a_ = std::make_unique<Arrays<Real>>(order_);
            const std::vector<int> dims(static_cast<std::size_t>(order_), 2);
            const std::vector<fftw_r2r_kind> kinds(static_cast<std::size_t>(order_), FFTW_R2HC);
            plan_ = Fftw<Real>::plan(order_, dims.data(), a_->src.get(), a_->dst.get(), kinds.data());
            a_->fill();
        }
        if (!plan_) {
            state.SkipWithError("FFTW made no plan");
            return;
        }
        for (auto _ : state) {
            Fftw<Real>::execute(plan_);
            benchmark::ClobberMemory();
        }
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(2 * a_->n * sizeof(Real)));
    }

private:
    int order_;
    std::unique_ptr<Arrays<Real>> a_;
    typename Fftw<Real>::Plan plan_ = nullptr;
};
#endif

template <class Real>
void register_order(const char* precision, int order)
{
    const std::string stem = std::string("wht/") + precision + "/" + std::to_string(1 << order) + "/";
    auto add = [&](const std::string& impl, auto fn) {
        benchmark::RegisterBenchmark((stem + impl).c_str(), fn)->Unit(benchmark::kNanosecond);
    };
    const int fixed = order < kLargest ? order : kLargest;
    add("vtxgen", [order, fixed](benchmark::State& state) { run_vtxgen<Real>(state, order, kernel<Real>(fixed)); });
#ifdef VTX_HAVE_WHT_FORMS
    if (order >= kSmallestForm && order <= kLargest)
        for (bool wide : {false, true})
            add(wide ? "avx2" : "sse2",
                [order, wide](benchmark::State& state) { run_vtxgen<Real>(state, order, form<Real>(order, wide)); });
#endif
    add("scalar", [order](benchmark::State& state) { run_scalar<Real>(state, order); });
#if defined(VTX_BENCH_HAVE_FFTW3) && defined(VTX_BENCH_HAVE_FFTW3F)
    auto peer = std::make_shared<Peer<Real>>(order);
    add("fftw", [peer](benchmark::State& state) { peer->run(state); });
#endif
    if (order >= 12)
        add("memcpy", [order](benchmark::State& state) { run_memcpy<Real>(state, order); });
}

}  // namespace

// Every order of both precisions, and orders 16 and 20 from order-13 blocks.
void register_wht_benchmarks()
{
    for (int order : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16, 20}) {
        register_order<float>("32f", order);
        register_order<double>("64f", order);
    }
}
