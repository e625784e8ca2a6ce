// Speed of every kernel, each next to the same transform through an FFTW plan.
//
// One benchmark per kernel, named family/precision/size/implementation:
//   cfwd/32fc/8/vtxgen   the kernel, through its C entry point
//   cfwd/32fc/8/fftw     the same transform, out of place, through fftw_execute
//   rccs/32f/8/vtxgen    a forward real kernel into CCS, against FFTW's r2c
//                        plan (FFTW_PATIENT) as rccs/32f/8/fftw; the Pack
//                        kernel as rpack/32f/8/vtxgen, without a peer
//   iccs/32f/8/vtxgen    an inverse real kernel from CCS, against FFTW's c2r
//                        plan (FFTW_PATIENT) as iccs/32f/8/fftw; the timed
//                        FFTW call includes the copy of its N/2 + 1 bins
//                        that it needs, since c2r destroys its input
//   dht/32f/8/vtxgen     a Hartley kernel, against FFTW's r2r plan of kind
//                        FFTW_DHT (FFTW_PATIENT) as dht/32f/8/fftw
//   dct4/32f/8/vtxgen    a DCT-IV plan of length 8 (every power of two from 2
//                        to 2^22), against FFTW's REDFT11 as
//                        dct4/32f/8/fftw, the naive O(N^2) sum as
//                        dct4/32f/8/naive (up to 1024) and a copy of the same
//                        bytes as dct4/32f/4096/memcpy (from 4096)
// The two of a pair are registered next to each other.  tools/bench_report.py
// pairs them by name and prints ns per call and the ratio fftw/vtxgen.
//
// The kernels are those the generator knows, found in the library by name;
// a new family needs one line in kPeers (which FFTW transform it is compared
// with, if any).
#include "support.hpp"
#include "vtxgen.h"

#include <benchmark/benchmark.h>

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
#include <fftw3.h>
#endif

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

// ---- Element types ---------------------------------------------------------

template <class T> struct Element;
template <> struct Element<vtx32f> { using Real = float; static constexpr int reals = 1; static constexpr const char* name = "32f"; };
template <> struct Element<vtx64f> { using Real = double; static constexpr int reals = 1; static constexpr const char* name = "64f"; };
template <> struct Element<vtx32fc> { using Real = float; static constexpr int reals = 2; static constexpr const char* name = "32fc"; };
template <> struct Element<vtx64fc> { using Real = double; static constexpr int reals = 2; static constexpr const char* name = "64fc"; };

// ---- The kernel table --------------------------------------------------------

struct Kernel;
using Runner = void (*)(benchmark::State&, const Kernel&);

struct Kernel {
    const char* family;     // cfwd, ...
    const char* precision;  // 32fc, 64fc, ...
    int size;
    void (*fn)();           // the kernel, its type erased; run casts it back
    Runner run;             // the timing loop for the kernel's signature
    char real_kind;         // 'f' or 'd': the working precision
};

// Reads and writes this many elements: room for the packed outputs of the real
// transforms (N + 2 reals) as well as the N of the complex ones.
inline int buffer_elements(int n) { return n + 2; }

// Fills n reals with fixed values in [-1, 1).
template <class Real>
void fill(Real* x, int count, unsigned seed)
{
    unsigned s = seed * 2654435761u + 1u;
    for (int i = 0; i < count; ++i) {
        s = s * 1664525u + 1013904223u;
        x[i] = static_cast<Real>(static_cast<double>(s >> 8) / 8388608.0 - 1.0);
    }
}

struct AlignedFree {
    void operator()(void* p) const { std::free(p); }
};
using Buffer = std::unique_ptr<void, AlignedFree>;

Buffer aligned_buffer(std::size_t bytes)
{
    bytes = (bytes + 63) / 64 * 64;
    return Buffer(std::aligned_alloc(64, bytes));
}

template <class S, class D>
void run_kernel(benchmark::State& state, const Kernel& k)
{
    using Fn = vtxStatus (*)(const S*, D*, int);
    const Fn fn = reinterpret_cast<Fn>(k.fn);
    const int elements = buffer_elements(k.size);
    Buffer src_buf = aligned_buffer(sizeof(S) * elements);
    Buffer dst_buf = aligned_buffer(sizeof(D) * elements);
    auto* src = static_cast<S*>(src_buf.get());
    auto* dst = static_cast<D*>(dst_buf.get());
    std::memset(dst, 0, sizeof(D) * elements);
    fill(reinterpret_cast<typename Element<S>::Real*>(src), Element<S>::reals * elements, k.size);

    if (fn(src, dst, vtxScaleNone) != vtxStatusOk) {
        state.SkipWithError("the kernel did not return vtxStatusOk");
        return;
    }
    for (auto _ : state) {
        vtxStatus status = fn(src, dst, vtxScaleNone);
        benchmark::DoNotOptimize(status);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * k.size);
}

// Every complex kernel the generator knows, and the CCS and Pack forward real
// kernels (Perm holds the Pack bins with Re(N/2) moved: nothing new to time),
// as their C entry points.
std::vector<Kernel> kernels()
{
    std::vector<Kernel> out;
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels()) {
        const bool fwd = k.model.direction == vtxgen::Direction::Forward;
        const bool single = k.single();
        out.push_back(Kernel{fwd ? "cfwd" : "cinv", single ? "32fc" : "64fc", k.size(),
                             reinterpret_cast<void (*)()>(k.fn),
                             single ? &run_kernel<vtx32fc, vtx32fc> : &run_kernel<vtx64fc, vtx64fc>,
                             single ? 'f' : 'd'});
    }
    for (const vtxtest::RealKernel& k : vtxtest::real_kernels()) {
        if (k.layout() == vtxgen::Layout::Perm)
            continue;
        const bool single = k.single();
        out.push_back(Kernel{k.layout() == vtxgen::Layout::CCS ? "rccs" : "rpack", single ? "32f" : "64f", k.size(),
                             reinterpret_cast<void (*)()>(k.fn),
                             single ? &run_kernel<vtx32f, vtx32f> : &run_kernel<vtx64f, vtx64f>, single ? 'f' : 'd'});
    }
    for (const vtxtest::RealKernel& k : vtxtest::real_kernels(vtxgen::Direction::Inverse)) {
        if (k.layout() != vtxgen::Layout::CCS)
            continue;
        const bool single = k.single();
        out.push_back(Kernel{"iccs", single ? "32f" : "64f", k.size(), reinterpret_cast<void (*)()>(k.fn),
                             single ? &run_kernel<vtx32f, vtx32f> : &run_kernel<vtx64f, vtx64f>, single ? 'f' : 'd'});
    }
    for (const vtxtest::RealKernel& k : vtxtest::hartley_kernels()) {
        const bool single = k.single();
        out.push_back(Kernel{"dht", single ? "32f" : "64f", k.size(), reinterpret_cast<void (*)()>(k.fn),
                             single ? &run_kernel<vtx32f, vtx32f> : &run_kernel<vtx64f, vtx64f>, single ? 'f' : 'd'});
    }
    return out;
}

// ---- The FFTW peers ----------------------------------------------------------

// The FFTW transform a family is compared with.
enum class Peer {
    None,
    ComplexForward,   // fftw_plan_dft_1d, FFTW_FORWARD
    ComplexBackward,  // fftw_plan_dft_1d, FFTW_BACKWARD
    Dct4,             // fftw_plan_r2r_1d, FFTW_REDFT11
    Hartley,          // fftw_plan_r2r_1d, FFTW_DHT
    RealForward,      // fftw_plan_dft_r2c_1d: the N/2 + 1 bins in the order of CCS
    RealInverse,      // fftw_plan_dft_c2r_1d from the N/2 + 1 bins, each call on a fresh copy
};

struct PeerRow {
    const char* family;
    Peer peer;
};

// One line per family; a family missing here has no FFTW benchmark.
const PeerRow kPeers[] = {
    {"cfwd", Peer::ComplexForward},
    {"cinv", Peer::ComplexBackward},
    {"dct4", Peer::Dct4},
    {"rccs", Peer::RealForward},
    {"iccs", Peer::RealInverse},
    {"dht", Peer::Hartley},
};

Peer peer_of(const char* family)
{
    for (const PeerRow& row : kPeers)
        if (std::string_view(row.family) == family)
            return row.peer;
    return Peer::None;
}


#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)

// How hard FFTW plans: its real-to-complex and Hartley plans of these sizes
// take a few milliseconds even at FFTW_PATIENT, which tries more algorithms.
unsigned planning_of(Peer peer)
{
    return peer == Peer::RealForward || peer == Peer::RealInverse || peer == Peer::Hartley ? FFTW_PATIENT
                                                                                           : FFTW_MEASURE;
}

template <class Real> struct Fftw;

#ifdef VTX_BENCH_HAVE_FFTW3
template <> struct Fftw<double> {
    using Real = double;
    using Plan = fftw_plan;
    using Complex = fftw_complex;
    static void* malloc(std::size_t bytes) { return fftw_malloc(bytes); }
    static void free(void* p) { fftw_free(p); }
    static Plan plan_dft_1d(int n, Complex* in, Complex* out, int sign, unsigned flags)
    {
        return fftw_plan_dft_1d(n, in, out, sign, flags);
    }
    static Plan plan_r2r_1d(int n, Real* in, Real* out, fftw_r2r_kind kind, unsigned flags)
    {
        return fftw_plan_r2r_1d(n, in, out, kind, flags);
    }
    static Plan plan_r2c_1d(int n, Real* in, Real* out, unsigned flags)
    {
        return fftw_plan_dft_r2c_1d(n, in, reinterpret_cast<Complex*>(out), flags);
    }
    static Plan plan_c2r_1d(int n, Real* in, Real* out, unsigned flags)
    {
        return fftw_plan_dft_c2r_1d(n, reinterpret_cast<Complex*>(in), out, flags);
    }
    static void execute(const Plan p) { fftw_execute(p); }
    static void destroy(Plan p) { fftw_destroy_plan(p); }
};
#endif

#ifdef VTX_BENCH_HAVE_FFTW3F
template <> struct Fftw<float> {
    using Real = float;
    using Plan = fftwf_plan;
    using Complex = fftwf_complex;
    static void* malloc(std::size_t bytes) { return fftwf_malloc(bytes); }
    static void free(void* p) { fftwf_free(p); }
    static Plan plan_dft_1d(int n, Complex* in, Complex* out, int sign, unsigned flags)
    {
        return fftwf_plan_dft_1d(n, in, out, sign, flags);
    }
    static Plan plan_r2r_1d(int n, Real* in, Real* out, fftw_r2r_kind kind, unsigned flags)
    {
        return fftwf_plan_r2r_1d(n, in, out, kind, flags);
    }
    static Plan plan_r2c_1d(int n, Real* in, Real* out, unsigned flags)
    {
        return fftwf_plan_dft_r2c_1d(n, in, reinterpret_cast<Complex*>(out), flags);
    }
    static Plan plan_c2r_1d(int n, Real* in, Real* out, unsigned flags)
    {
        return fftwf_plan_dft_c2r_1d(n, reinterpret_cast<Complex*>(in), out, flags);
    }
    static void execute(const Plan p) { fftwf_execute(p); }
    static void destroy(Plan p) { fftwf_destroy_plan(p); }
};
#endif

// A plan and its arrays, made on first use (after main has read any
// --fftw_wisdom) and kept for every repetition.
template <class Real>
class PeerPlan {
public:
    PeerPlan(Peer peer, int n) : peer_(peer), n_(n) {}
    PeerPlan(const PeerPlan&) = delete;
    PeerPlan& operator=(const PeerPlan&) = delete;
    ~PeerPlan()
    {
        if (plan_)
            Fftw<Real>::destroy(plan_);
        Fftw<Real>::free(in_);
        Fftw<Real>::free(out_);
    }

    // False if FFTW could not make the plan.
    bool ready()
    {
        if (plan_)
            return true;
        const std::size_t bytes = sizeof(Real) * 2 * buffer_elements(n_);
        in_ = static_cast<Real*>(Fftw<Real>::malloc(bytes));
        out_ = static_cast<Real*>(Fftw<Real>::malloc(bytes));
        using Complex = typename Fftw<Real>::Complex;
        switch (peer_) {
        case Peer::ComplexForward:
        case Peer::ComplexBackward:
            plan_ = Fftw<Real>::plan_dft_1d(n_, reinterpret_cast<Complex*>(in_), reinterpret_cast<Complex*>(out_),
                                            peer_ == Peer::ComplexForward ? FFTW_FORWARD : FFTW_BACKWARD,
                                            planning_of(peer_));
            break;
        case Peer::Dct4:
        case Peer::Hartley:
            plan_ = Fftw<Real>::plan_r2r_1d(n_, in_, out_, peer_ == Peer::Dct4 ? FFTW_REDFT11 : FFTW_DHT,
                                            planning_of(peer_));
            break;
        case Peer::RealForward:
            plan_ = Fftw<Real>::plan_r2c_1d(n_, in_, out_, planning_of(peer_));
            break;
        case Peer::RealInverse:
            plan_ = Fftw<Real>::plan_c2r_1d(n_, in_, out_, planning_of(peer_));
            break;
        case Peer::None:
            break;
        }
        // Planning overwrites the arrays: fill them afterwards.
        std::memset(out_, 0, bytes);
        fill(in_, static_cast<int>(bytes / sizeof(Real)), n_);
        keep_.assign(in_, in_ + 2 * (n_ / 2 + 1));
        return plan_ != nullptr;
    }

    void run(benchmark::State& state)
    {
        if (!ready()) {
            state.SkipWithError("FFTW made no plan");
            return;
        }
        const typename Fftw<Real>::Plan plan = plan_;
        Fftw<Real>::execute(plan);
        const bool fresh_input = peer_ == Peer::RealInverse;
        for (auto _ : state) {
            if (fresh_input)
                std::memcpy(in_, keep_.data(), keep_.size() * sizeof(Real));
            Fftw<Real>::execute(plan);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * n_);
    }

private:
    Peer peer_;
    int n_;
    typename Fftw<Real>::Plan plan_ = nullptr;
    Real* in_ = nullptr;
    Real* out_ = nullptr;
    std::vector<Real> keep_;  // the bins each c2r call starts from
};

template <class Real>
void register_peer(const std::string& name, Peer peer, int n)
{
    auto plan = std::make_shared<PeerPlan<Real>>(peer, n);
    benchmark::RegisterBenchmark(name.c_str(), [plan](benchmark::State& state) { plan->run(state); })
        ->Unit(benchmark::kNanosecond);
}

#endif  // FFTW

// Registers a kernel's benchmark and, right after it, its FFTW peer's.
void register_kernel(const Kernel& k)
{
    const std::string stem = std::string(k.family) + "/" + k.precision + "/" + std::to_string(k.size) + "/";
    benchmark::RegisterBenchmark((stem + "vtxgen").c_str(), [&k](benchmark::State& state) { k.run(state, k); })
        ->Unit(benchmark::kNanosecond);

    const Peer peer = peer_of(k.family);
    if (peer == Peer::None)
        return;
#ifdef VTX_BENCH_HAVE_FFTW3F
    if (k.real_kind == 'f')
        register_peer<float>(stem + "fftw", peer, k.size);
#endif
#ifdef VTX_BENCH_HAVE_FFTW3
    if (k.real_kind == 'd')
        register_peer<double>(stem + "fftw", peer, k.size);
#endif
}

// --fftw_wisdom=PREFIX: FFTW_MEASURE picks its plans by timing them, so on a
// busy machine it picks differently from run to run.  With this option the
// plans come from PREFIX.fftw3 and PREFIX.fftw3f when those exist, and are
// saved there after the run: every later run times the same plans.
// Removes the option from argv; returns the prefix, empty without it.
std::string take_wisdom_option(int& argc, char** argv)
{
    constexpr std::string_view option = "--fftw_wisdom=";
    std::string prefix;
    int out = 1;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg.substr(0, option.size()) == option)
            prefix = std::string(arg.substr(option.size()));
        else
            argv[out++] = argv[i];
    }
    argc = out;
    return prefix;
}

#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
// Imports (save == false) or exports the wisdom; returns a word for the context.
const char* wisdom(const std::string& prefix, bool save)
{
    if (prefix.empty())
        return "off";
    bool imported = false;
#ifdef VTX_BENCH_HAVE_FFTW3
    const std::string d = prefix + ".fftw3";
    if (save)
        fftw_export_wisdom_to_filename(d.c_str());
    else
        imported |= fftw_import_wisdom_from_filename(d.c_str()) != 0;
#endif
#ifdef VTX_BENCH_HAVE_FFTW3F
    const std::string f = prefix + ".fftw3f";
    if (save)
        fftwf_export_wisdom_to_filename(f.c_str());
    else
        imported |= fftwf_import_wisdom_from_filename(f.c_str()) != 0;
#endif
    return imported ? "plans from earlier runs" : "new plans, saved for later runs";
}
#endif

}  // namespace

// bench_wht.cpp, bench_batch.cpp
void register_wht_benchmarks();
void register_batch_benchmarks();

namespace {

// ---- The DCT-IV ---------------------------------------------------------------

// Every power of two of a plan, from the direct lengths up to 2^22, in both
// precisions.
constexpr int kDct4Largest32f = 22, kDct4Largest64f = 22;
// The naive sum runs up to this length, the copy from this one.
constexpr int kDct4NaiveLargest = 1024, kDct4CopySmallest = 4096;

// A plan of one length built once in a block of its own, with 64-byte aligned
// source and destination arrays, kept for every repetition.
template <class Real, class Spec>
class Dct4Plan {
public:
    using GetSize = vtxStatus (*)(int, int*);
    using Init = vtxStatus (*)(Spec**, int, void*);
    using Run = vtxStatus (*)(const Real*, Real*, const Spec*);

    Dct4Plan(int n, GetSize getSize, Init init, Run run) : n_(n), getSize_(getSize), init_(init), run_(run) {}

    void run(benchmark::State& state)
    {
        if (!spec_ && !make()) {
            state.SkipWithError("no plan");
            return;
        }
        const Real* x = static_cast<const Real*>(src_.get());
        Real* y = static_cast<Real*>(dst_.get());
        const Run run = run_;
        const Spec* spec = spec_;
        for (auto _ : state) {
            run(x, y, spec);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * n_);
    }

private:
    bool make()
    {
        int size = 0;
        if (getSize_(n_, &size) != vtxStatusOk)
            return false;
        block_ = aligned_buffer(static_cast<std::size_t>(size));
        src_ = aligned_buffer(sizeof(Real) * n_);
        dst_ = aligned_buffer(sizeof(Real) * n_);
        fill(static_cast<Real*>(src_.get()), n_, n_);
        std::memset(dst_.get(), 0, sizeof(Real) * n_);
        if (init_(&spec_, n_, block_.get()) != vtxStatusOk || run_(static_cast<Real*>(src_.get()),
                                                                   static_cast<Real*>(dst_.get()), spec_) != vtxStatusOk) {
            spec_ = nullptr;
            return false;
        }
        return true;
    }

    int n_;
    GetSize getSize_;
    Init init_;
    Run run_;
    Buffer block_, src_, dst_;
    Spec* spec_ = nullptr;
};

// The definition as plain loops: y[k] = sum_n c[k][n] x[n], the matrix of
// cos(pi/N (n + 1/2)(k + 1/2)) in double made once before timing, the sums
// in double.
template <class Real>
class Dct4Naive {
public:
    explicit Dct4Naive(int n) : n_(n) {}

    void run(benchmark::State& state)
    {
        if (c_.empty()) {
            c_.resize(static_cast<std::size_t>(n_) * n_);
            const double pi = 3.14159265358979323846;
            for (int k = 0; k < n_; ++k)
                for (int i = 0; i < n_; ++i)
                    c_[static_cast<std::size_t>(k) * n_ + i] = std::cos(pi / n_ * (i + 0.5) * (k + 0.5));
            x_.resize(n_);
            y_.assign(n_, 0);
            fill(x_.data(), n_, n_);
        }
        const int n = n_;
        const double* c = c_.data();
        const Real* x = x_.data();
        Real* y = y_.data();
        for (auto _ : state) {
            for (int k = 0; k < n; ++k) {
                const double* row = c + static_cast<std::size_t>(k) * n;
                double sum = 0;
                for (int i = 0; i < n; ++i)
                    sum += row[i] * x[i];
                y[k] = static_cast<Real>(sum);
            }
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * n_);
    }

private:
    int n_;
    std::vector<double> c_;
    std::vector<Real> x_, y_;
};

// A copy of the bytes a transform of length n reads and writes: n elements
// from one aligned array to another.
template <class Real>
void run_dct4_memcpy(benchmark::State& state, int n)
{
    Buffer src_buf = aligned_buffer(sizeof(Real) * n), dst_buf = aligned_buffer(sizeof(Real) * n);
    auto* src = static_cast<Real*>(src_buf.get());
    auto* dst = static_cast<Real*>(dst_buf.get());
    fill(src, n, n);
    std::memset(dst, 0, sizeof(Real) * n);
    for (auto _ : state) {
        std::memcpy(dst, src, sizeof(Real) * n);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * n);
}

}  // namespace

// dct4/<prec>/<n>/vtxgen for every length, FFTW's REDFT11 (the same
// transform times 2) as .../fftw, the naive sum as .../naive up to 1024 and a
// copy of the same bytes as .../memcpy from 4096.
template <class Real, class Spec>
void register_dct4(const char* precision, vtxStatus (*getSize)(int, int*), vtxStatus (*init)(Spec**, int, void*),
                   vtxStatus (*run)(const Real*, Real*, const Spec*))
{
    const int largest = sizeof(Real) == 4 ? kDct4Largest32f : kDct4Largest64f;
    for (int n = 2; n <= (1 << largest); n *= 2) {
        const std::string stem = std::string("dct4/") + precision + "/" + std::to_string(n) + "/";
        auto plan = std::make_shared<Dct4Plan<Real, Spec>>(n, getSize, init, run);
        benchmark::RegisterBenchmark((stem + "vtxgen").c_str(), [plan](benchmark::State& state) { plan->run(state); })
            ->Unit(benchmark::kNanosecond);
#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
        if constexpr (sizeof(Real) == 4) {
#ifdef VTX_BENCH_HAVE_FFTW3F
            register_peer<float>(stem + "fftw", Peer::Dct4, n);
#endif
        } else {
#ifdef VTX_BENCH_HAVE_FFTW3
            register_peer<double>(stem + "fftw", Peer::Dct4, n);
#endif
        }
#endif
        if (n <= kDct4NaiveLargest) {
            auto naive = std::make_shared<Dct4Naive<Real>>(n);
            benchmark::RegisterBenchmark((stem + "naive").c_str(),
                                         [naive](benchmark::State& state) { naive->run(state); })
                ->Unit(benchmark::kNanosecond);
        }
        if (n >= kDct4CopySmallest)
            benchmark::RegisterBenchmark((stem + "memcpy").c_str(),
                                         [n](benchmark::State& state) { run_dct4_memcpy<Real>(state, n); })
                ->Unit(benchmark::kNanosecond);
    }
}

int main(int argc, char** argv)
{
    static const std::vector<Kernel> all = kernels();
    for (const Kernel& k : all)
        register_kernel(k);
    register_wht_benchmarks();
    register_batch_benchmarks();

    register_dct4<float>("32f", vtxgDCT4GetSize_32f, vtxgDCT4Init_32f, vtxgDCT4_32f);
    register_dct4<double>("64f", vtxgDCT4GetSize_64f, vtxgDCT4Init_64f, vtxgDCT4_64f);

    const std::string wisdom_prefix = take_wisdom_option(argc, argv);

    const VersionRecord* v = vtxgenGetLibVersion();
    benchmark::AddCustomContext("vtxgen", std::string(v->libraryName) + " " + v->versionText);
#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
#ifdef VTX_BENCH_HAVE_FFTW3
    benchmark::AddCustomContext("fftw", fftw_version);
#else
    benchmark::AddCustomContext("fftw", fftwf_version);
#endif
    benchmark::AddCustomContext("fftw_wisdom", wisdom(wisdom_prefix, false));
#else
    benchmark::AddCustomContext("fftw", "not built in");
#endif

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
#if defined(VTX_BENCH_HAVE_FFTW3) || defined(VTX_BENCH_HAVE_FFTW3F)
    wisdom(wisdom_prefix, true);
#endif
    return 0;
}
