// The DCT-IV execution, lengths 2 to 2^26:
//   - accuracy of every power of two against a long-double reference, with
//     the measured figures printed and recorded as test properties;
//   - identities that hold bit for bit: in place, repeated, a plan in a block
//     at any address, arrays at any element address;
//   - no allocation while executing (vtxMalloc and vtxFree are this
//     executable's own, which the dynamic linker prefers to the core's), and
//     plans executing at once on threads;
//   - the stages inside a plan: the root's scratch after stage one, an env7's
//     scratch after its inner transforms, and stage two run alone.
// The largest lengths (2^21 and up) run only with VTX_LONG_TESTS=1.
#include "dct4/stages.hpp"
#include "dct4_reference.hpp"
#include "dct4_support.hpp"
#include "vtxcore.h"
#include "vtxgen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {
// Atomic: plans are also made on several threads at once.
std::atomic<long> g_mallocs = 0, g_frees = 0;
}  // namespace

extern "C" VTXCOREAPI void* vtxMalloc(int size)
{
    ++g_mallocs;
    return size > 0 ? std::aligned_alloc(64, (static_cast<std::size_t>(size) + 63) / 64 * 64) : nullptr;
}

extern "C" VTXCOREAPI void vtxFree(void* ptr)
{
    ++g_frees;
    std::free(ptr);
}

namespace {

using namespace vtxtest::dct4;

// The unit roundoff: 2^-24 in single, 2^-53 in double.
template <class T>
constexpr double kUnit = std::numeric_limits<T>::epsilon() / 2;

// Accuracy bounds for random input in [-1, 1], in units of kUnit times
// (log2 N + 2): the relative RMS error ||y - ref|| / ||ref|| at most 1, and
// the largest error relative to the largest output, max |y - ref| / max |ref|,
// at most 1.5.  (The + 2 covers the shortest lengths, where one cancelling
// output of two weighs in the RMS.)  Measured, over 300 inputs per length up
// to 2^10, 20 up to 2^16 and one above: the RMS error is 2 to 3 kUnit up to
// 2^16 (2.0 at N = 2, 2.7 at 4) and grows slowly to 3.7 kUnit at 2^26 in
// single and 4.0 at 2^25 in double; the largest error stays below 5.4 kUnit.
template <class T>
double rmsBound(int log2n) { return 1.0 * kUnit<T> * (log2n + 2); }
template <class T>
double maxBound(int log2n) { return 1.5 * kUnit<T> * (log2n + 2); }

// An InitAlloc plan, freed on leaving.
template <class T>
class Plan {
public:
    explicit Plan(int n) { status_ = Api<T>::initAlloc(&spec_, n); }
    ~Plan()
    {
        if (spec_)
            Api<T>::release(spec_);
    }
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;

    vtxStatus status() const { return status_; }
    vtxStatus run(const T* x, T* y) const { return Api<T>::run(x, y, spec_); }

    const Env1* root() const { return reinterpret_cast<const Env1*>(spec_); }
    const Arena* arena() const { return arenaOf(root(), root()->arena); }
    T* scratch() const { return deref<T>(arena(), root()->scratch); }
    const Env5* env5() const { return firstOf<Env5>(arena(), firstOf<Env3>(arena(), root()->stage1List)->kernelList); }
    const Env4* env4() const { return firstOf<Env4>(arena(), firstOf<Env2>(arena(), root()->stage2List)->kernelList); }

private:
    typename Api<T>::Spec* spec_ = nullptr;
    vtxStatus status_;
};

template <class T>
std::vector<T> randomInput(std::size_t n, unsigned seed)
{
    std::mt19937_64 rng(seed);
    std::uniform_real_distribution<double> dist(-1, 1);
    std::vector<T> x(n);
    for (T& v : x)
        v = static_cast<T>(dist(rng));
    return x;
}

template <class T>
void poison(T* p, std::size_t n)
{
    std::fill(p, p + n, std::numeric_limits<T>::quiet_NaN());
}

struct Errors {
    double max, rms;  // relative, as for the bounds above
};

template <class T>
Errors errorsOf(const T* y, const std::vector<long double>& ref)
{
    long double err2 = 0, ref2 = 0, errMax = 0, refMax = 0;
    for (std::size_t k = 0; k < ref.size(); ++k) {
        const long double e = static_cast<long double>(y[k]) - ref[k];
        err2 += e * e;
        ref2 += ref[k] * ref[k];
        if (std::isnan(static_cast<double>(y[k])))  // fails every bound
            return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
        errMax = std::max(errMax, std::fabs(e));
        refMax = std::max(refMax, std::fabs(ref[k]));
    }
    return {static_cast<double>(errMax / refMax), static_cast<double>(std::sqrt(err2 / ref2))};
}

const char* precisionName(std::size_t bytes) { return bytes == 4 ? "32f" : "64f"; }

// One line of the accuracy figures, on stdout and as a test property.
template <class T>
void report(int log2n, const Errors& e)
{
    std::printf("dct4 accuracy %s N=2^%-2d  max %.3e = %.2f u  rms %.3e = %.2f u  (u = %.3g)\n",
                precisionName(sizeof(T)), log2n, e.max, e.max / kUnit<T>, e.rms, e.rms / kUnit<T>, kUnit<T>);
    char value[96];
    std::snprintf(value, sizeof value, "max %.3e rms %.3e", e.max, e.rms);
    ::testing::Test::RecordProperty(std::string("accuracy_") + precisionName(sizeof(T)) + "_2^" +
                                        std::to_string(log2n),
                                    value);
}

template <class T>
void expectWithinBounds(int log2n, const Errors& e)
{
    EXPECT_LE(e.rms, rmsBound<T>(log2n)) << "relative RMS error, N 2^" << log2n;
    EXPECT_LE(e.max, maxBound<T>(log2n)) << "largest error, N 2^" << log2n;
}

struct PrecisionNames {
    template <class T>
    static std::string GetName(int) { return sizeof(T) == 4 ? "float" : "double"; }
};
using Precisions = ::testing::Types<float, double>;

template <class T>
class Dct4Exec : public ::testing::Test {};
TYPED_TEST_SUITE(Dct4Exec, Precisions, PrecisionNames);

template <class T>
class Dct4Long : public ::testing::Test {};
TYPED_TEST_SUITE(Dct4Long, Precisions, PrecisionNames);

// ---- The reference --------------------------------------------------------------

TEST(Dct4Reference, FastFormAgreesWithTheSum)
{
    for (std::size_t n = 2; n <= 1024; n *= 2) {
        const std::vector<long double> x = randomInput<long double>(n, static_cast<unsigned>(n));
        const std::vector<long double> fast = dct4Reference(x.data(), n), sum = dct4ReferenceSum(x.data(), n);
        long double l1 = 0;
        for (long double v : x)
            l1 += std::fabs(v);
        const long double tolerance = 8 * std::numeric_limits<long double>::epsilon() * l1 * std::log2(2.0L * n);
        for (std::size_t k = 0; k < n; ++k)  // in long double: ASSERT_NEAR would compare doubles
            ASSERT_LE(std::fabs(fast[k] - sum[k]), tolerance)
                << "N " << n << " k " << k << ": " << static_cast<double>(fast[k] - sum[k]);
    }
}

TEST(Dct4Reference, ImpulsesGiveCosineRows)
{
    // x = e_j gives y[k] = cos(pi (2j+1)(2k+1) / (4N)); the rows are checked
    // against cosl of the unreduced angle, which is accurate enough at N = 64.
    const std::size_t n = 64;
    for (std::size_t j : {std::size_t(0), std::size_t(5), n - 1}) {
        std::vector<long double> x(n, 0);
        x[j] = 1;
        const std::vector<long double> y = dct4Reference(x.data(), n);
        for (std::size_t k = 0; k < n; ++k)
            ASSERT_LE(std::fabs(y[k] - std::cos(kPiL * (2 * j + 1) * (2 * k + 1) / (4 * n))), 1e-17L)
                << j << " " << k;
    }
}

// ---- Accuracy ---------------------------------------------------------------------

// Also in place, with the same bits.
TYPED_TEST(Dct4Exec, EveryLengthTo2Pow20WithinTheBounds)
{
    using T = TypeParam;
    for (int log2n = 1; log2n <= 20; ++log2n) {
        const std::size_t n = std::size_t(1) << log2n;
        Plan<T> plan(static_cast<int>(n));
        ASSERT_EQ(plan.status(), vtxStatusOk) << n;
        const std::vector<T> x = randomInput<T>(n, 1000 + log2n);
        std::vector<T> y(n);
        ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk) << n;
        const Errors e = errorsOf(y.data(), dct4Reference(x.data(), n));
        report<T>(log2n, e);
        expectWithinBounds<T>(log2n, e);
        std::vector<T> inPlace = x;  // beyond the lengths of the identities test below
        ASSERT_EQ(plan.run(inPlace.data(), inPlace.data()), vtxStatusOk) << n;
        EXPECT_EQ(std::memcmp(inPlace.data(), y.data(), n * sizeof(T)), 0) << "in place, N 2^" << log2n;
    }
}

// The largest lengths: 2^21 to 2^26 in single, 2^25 in double, one at a time
// (at 2^26 in single: 1.4 GB of plan, 0.75 GB of arrays, 2 GB of reference).
// The same bounds, and in place gives the same bits.
TYPED_TEST(Dct4Long, LargestLengths)
{
    using T = TypeParam;
    const char* enabled = std::getenv("VTX_LONG_TESTS");
    if (!enabled || std::string(enabled) != "1")
        GTEST_SKIP() << "set VTX_LONG_TESTS=1 to run the lengths 2^21 and up";
    // A 32-bit process has no room for the reference beside the largest plans.
    const int largest = sizeof(void*) == 4 ? 23 : Api<T>::largest;
    for (int log2n = 21; log2n <= largest; ++log2n) {
        const auto start = std::chrono::steady_clock::now();
        const std::size_t n = std::size_t(1) << log2n;
        const std::vector<T> x = randomInput<T>(n, 1000 + log2n);
        std::vector<T> y(n), inPlace;
        {
            Plan<T> plan(static_cast<int>(n));
            ASSERT_EQ(plan.status(), vtxStatusOk) << n;
            ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk) << n;
            inPlace = x;
            ASSERT_EQ(plan.run(inPlace.data(), inPlace.data()), vtxStatusOk) << n;
        }
        EXPECT_EQ(std::memcmp(inPlace.data(), y.data(), n * sizeof(T)), 0) << "in place, N 2^" << log2n;
        inPlace = std::vector<T>();
        const Errors e = errorsOf(y.data(), dct4Reference(x.data(), n));
        report<T>(log2n, e);
        expectWithinBounds<T>(log2n, e);
        std::printf("    (%.1f s)\n",
                    std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        std::fflush(stdout);
    }
}

// ---- Identities bit for bit ----------------------------------------------------

// Out of place into a guarded destination is the baseline; the source stays
// as it was and nothing around the destination is written.  Repeating, in
// place, arrays at other element addresses and plans built by Init in blocks
// at every address modulo 32 give the same bits.
TYPED_TEST(Dct4Exec, SameBitsInPlaceRepeatedAndAtAnyAddress)
{
    using T = TypeParam;
    using A = Api<T>;
    constexpr int lanes = 16 / sizeof(T), guard = 16;
    const T canary = static_cast<T>(-12345.5);
    for (int n = 64; n <= 65536; n *= 2) {
        Plan<T> plan(n);
        ASSERT_EQ(plan.status(), vtxStatusOk) << n;
        std::vector<T> x = randomInput<T>(n, n);  // the library sees it const
        const std::vector<T> kept = x;
        std::vector<T> guarded(n + 2 * guard, canary);
        T* const y = guarded.data() + guard;
        ASSERT_EQ(plan.run(x.data(), y), vtxStatusOk) << n;
        ASSERT_EQ(std::memcmp(x.data(), kept.data(), n * sizeof(T)), 0) << "source written, N " << n;
        for (int i = 0; i < guard; ++i) {
            ASSERT_EQ(guarded[i], canary) << "before the destination, N " << n;
            ASSERT_EQ(guarded[guard + n + i], canary) << "after the destination, N " << n;
        }
        auto same = [&](const T* z) { return std::memcmp(z, y, n * sizeof(T)) == 0; };

        std::vector<T> again(n);
        ASSERT_EQ(plan.run(x.data(), again.data()), vtxStatusOk);
        EXPECT_TRUE(same(again.data())) << "repeated, N " << n;

        std::vector<T> inPlace = x;
        ASSERT_EQ(plan.run(inPlace.data(), inPlace.data()), vtxStatusOk);
        EXPECT_TRUE(same(inPlace.data())) << "in place, N " << n;

        // Source and destination at every element offset modulo a vector.
        std::vector<T> src(n + lanes), dst(n + lanes);
        for (int so = 0; so < lanes; ++so)
            for (int d = 0; d < lanes; ++d) {
                std::copy(x.begin(), x.end(), src.begin() + so);
                ASSERT_EQ(plan.run(src.data() + so, dst.data() + d), vtxStatusOk);
                EXPECT_TRUE(same(dst.data() + d)) << "arrays at offsets " << so << ", " << d << ", N " << n;
            }

        int size = 0;
        ASSERT_EQ(A::getSize(n, &size), vtxStatusOk);
        for (std::size_t offset = 1; offset < 32; ++offset) {
            PlacedBlock block(static_cast<std::size_t>(size), offset);
            typename A::Spec* spec = nullptr;
            ASSERT_EQ(A::init(&spec, n, block.start()), vtxStatusOk) << n << " at " << offset;
            std::vector<T> z(n);
            ASSERT_EQ(A::run(x.data(), z.data(), spec), vtxStatusOk);
            EXPECT_TRUE(same(z.data())) << "block at offset " << offset << ", N " << n;
        }
    }
}

// Every instruction set the processor runs gives the bits of the SSE2 stages,
// for every length from 64 (2^22 with VTX_LONG_TESTS=1), with the arrays on
// 64-byte boundaries (the largest plans then write past the caches) and one
// element off them; the public call, in whatever set the process chose, too.
TYPED_TEST(Dct4Exec, EveryInstructionSetGivesTheBitsOfSse2)
{
    using T = TypeParam;
    const char* longTests = std::getenv("VTX_LONG_TESTS");
    const int largest = std::getenv("VTX_EMULATED") ? 16 : longTests && std::string(longTests) == "1" ? 22 : 20;
    const std::vector<vtx::Isa> sets = runnableSets();
    for (int log2n = 6; log2n <= largest; ++log2n) {
        const std::size_t n = std::size_t(1) << log2n;
        Plan<T> plan(static_cast<int>(n));
        ASSERT_EQ(plan.status(), vtxStatusOk) << n;
        const std::vector<T> x = randomInput<T>(n, 3000 + log2n);
        std::vector<T> want(n);
        ASSERT_EQ(vtx::dct4::env1_compute<T>(plan.root(), want.data(), x.data(), vtx::Isa::sse2), vtxStatusOk);
        std::vector<T> y(n);
        ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk);
        EXPECT_EQ(std::memcmp(y.data(), want.data(), n * sizeof(T)), 0) << "public call, N 2^" << log2n;
        std::unique_ptr<T, decltype(&std::free)> src(static_cast<T*>(std::aligned_alloc(64, (n + 64) * sizeof(T))),
                                                     &std::free);
        std::unique_ptr<T, decltype(&std::free)> dst(static_cast<T*>(std::aligned_alloc(64, (n + 64) * sizeof(T))),
                                                     &std::free);
        for (vtx::Isa set : sets)
            for (std::size_t off : {std::size_t{0}, std::size_t{1}}) {
                std::copy(x.begin(), x.end(), src.get() + off);
                poison(dst.get(), n + 64);
                ASSERT_EQ(vtx::dct4::env1_compute<T>(plan.root(), dst.get() + off, src.get() + off, set), vtxStatusOk);
                EXPECT_EQ(std::memcmp(dst.get() + off, want.data(), n * sizeof(T)), 0)
                    << setName(set) << ", arrays " << off << " elements off 64 bytes, N 2^" << log2n;
            }
    }
}

// Lengths 2^k + 1 plan like 2^k (their halves and quotients truncate alike)
// and are not transforms, but they execute: inside their arrays, and with
// the same bits each time.
TYPED_TEST(Dct4Exec, TruncatingOddLengthsExecuteInsideTheirArrays)
{
    using T = TypeParam;
    constexpr int guard = 16;
    const T canary = static_cast<T>(-777.25);
    const std::vector<int> lengths = sizeof(T) == 4 ? std::vector<int>{33, 65, 129, 4097, 131073}
                                                    : std::vector<int>{9, 17, 33, 65, 4097, 131073};
    for (int n : lengths) {
        Plan<T> plan(n);
        ASSERT_EQ(plan.status(), vtxStatusOk) << n;
        const std::vector<T> x = randomInput<T>(n, n);
        std::vector<T> first(n + 2 * guard, canary), again(n + 2 * guard, canary);
        ASSERT_EQ(plan.run(x.data(), first.data() + guard), vtxStatusOk) << n;
        ASSERT_EQ(plan.run(x.data(), again.data() + guard), vtxStatusOk) << n;
        EXPECT_EQ(std::memcmp(first.data(), again.data(), first.size() * sizeof(T)), 0) << n;
        for (int i = 0; i < guard; ++i) {
            EXPECT_EQ(first[i], canary) << n;
            EXPECT_EQ(first[guard + n + i], canary) << n;
        }
    }
}

TYPED_TEST(Dct4Exec, ExecutionAllocatesNothing)
{
    using T = TypeParam;
    // No env7, one level, two levels.
    for (int n : {64, 2048, 4096, 131072}) {
        Plan<T> plan(n);
        ASSERT_EQ(plan.status(), vtxStatusOk);
        std::vector<T> x = randomInput<T>(n, 3), y(n);
        const long mallocs = g_mallocs, frees = g_frees;
        for (int i = 0; i < 20; ++i) {
            ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk);
            ASSERT_EQ(plan.run(y.data(), y.data()), vtxStatusOk);
        }
        EXPECT_EQ(g_mallocs, mallocs) << n;
        EXPECT_EQ(g_frees, frees) << n;
    }
}

// Plans share nothing writable: threads executing plans of their own, of one
// length and of two, all give the bits of a lone execution.
TYPED_TEST(Dct4Exec, PlansOnThreadsGiveTheSameBits)
{
    using T = TypeParam;
    const int lengths[] = {4096, 65536};
    std::vector<T> x[2], want[2];
    for (int i = 0; i < 2; ++i) {
        const int n = lengths[i];
        Plan<T> plan(n);
        ASSERT_EQ(plan.status(), vtxStatusOk);
        x[i] = randomInput<T>(n, 31 + i);
        want[i].resize(n);
        ASSERT_EQ(plan.run(x[i].data(), want[i].data()), vtxStatusOk);
    }
    for (const int pair : {0, 1}) {  // both of 4096, then one of each
        int mismatches[2] = {0, 0};
        auto work = [&](int thread) {
            const int i = pair == 0 ? 0 : thread;
            const int n = lengths[i];
            Plan<T> plan(n);
            std::vector<T> y(n);
            for (int rep = 0; rep < 40; ++rep)
                if (plan.status() != vtxStatusOk || plan.run(x[i].data(), y.data()) != vtxStatusOk ||
                    std::memcmp(y.data(), want[i].data(), n * sizeof(T)) != 0)
                    ++mismatches[thread];
        };
        std::thread a(work, 0), b(work, 1);
        a.join();
        b.join();
        EXPECT_EQ(mismatches[0], 0) << "pair " << pair;
        EXPECT_EQ(mismatches[1], 0) << "pair " << pair;
    }
}

// ---- Inside the plan ------------------------------------------------------------

// Column b of the input folded with m columns: u[n] = x[2mn + b] for n >= 0,
// x[2m|n| - 1 - b] for n < 0, n from -L/2 to L/2 - 1; stored at n + L/2.
template <class T>
std::vector<long double> foldedColumn(const T* x, int m, int l, int b)
{
    std::vector<long double> u(l);
    for (int i = -l / 2; i < l / 2; ++i)
        u[i + l / 2] = i >= 0 ? x[2 * m * i + b] : x[2 * m * -i - 1 - b];
    return u;
}

// Z[a] = sum_n u[n] exp(+i n (2a+1) pi / L) of every column, laid out as the
// root's scratch: Re Z[a] of column b at (2a) m + b, Im at (2a+1) m + b.  The
// second vector holds sum |u| of the column at each place, for tolerances.
template <class T>
void columnsByDefinition(const T* x, int n, int m, std::vector<long double>& z, std::vector<long double>& mass)
{
    const int l = n / m;
    std::vector<CxL> e(2 * l);  // exp(i pi j / L)
    for (int j = 0; j < 2 * l; ++j)
        e[j] = cisPi(j, l);
    z.assign(n, 0);
    mass.assign(n, 0);
    for (int b = 0; b < m; ++b) {
        const std::vector<long double> u = foldedColumn(x, m, l, b);
        long double l1 = 0;
        for (long double v : u)
            l1 += std::fabs(v);
        for (int a = 0; a < l / 2; ++a) {
            long double re = 0, im = 0;
            for (int i = -l / 2; i < l / 2; ++i) {
                const int j = ((i * (2 * a + 1)) % (2 * l) + 2 * l) % (2 * l);
                re += u[i + l / 2] * e[j].real();
                im += u[i + l / 2] * e[j].imag();
            }
            z[2 * a * m + b] = re;
            z[(2 * a + 1) * m + b] = im;
            mass[2 * a * m + b] = mass[(2 * a + 1) * m + b] = l1;
        }
    }
}

TYPED_TEST(Dct4Exec, RootScratchOfAnImpulseAtFifteen)
{
    using T = TypeParam;
    Plan<T> plan(64);
    ASSERT_EQ(plan.status(), vtxStatusOk);
    ASSERT_EQ(plan.root()->divisor, 8);
    std::vector<T> x(64, 0), y(64);
    x[15] = 1;
    ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk);
    const double want[8] = {0.92388, -0.38268, 0.38268, -0.92388, -0.38268, -0.92388, -0.92388, -0.38268};
    for (int row = 0; row < 8; ++row)
        EXPECT_NEAR(plan.scratch()[8 * row], want[row], 1e-5) << "row " << row;
}

// After an execution the root's scratch, poisoned before, is the column
// transform of the definition, entry by entry.
TYPED_TEST(Dct4Exec, RootScratchIsTheColumnTransform)
{
    using T = TypeParam;
    double worst = 0;
    for (int n = 64; n <= 65536; n *= 2) {
        Plan<T> plan(n);
        ASSERT_EQ(plan.status(), vtxStatusOk);
        const int m = plan.root()->divisor, l = n / m;
        const std::vector<T> x = randomInput<T>(n, 77 + n);
        std::vector<T> y(n);
        poison(plan.scratch(), n);
        ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk);
        std::vector<long double> z, mass;
        columnsByDefinition(x.data(), n, m, z, mass);
        const T* s = plan.scratch();
        const double scale = kUnit<T> * std::log2(l);
        for (int i = 0; i < n; ++i) {
            const double ratio = static_cast<double>(std::fabs(s[i] - z[i]) / mass[i]) / scale;
            worst = std::max(worst, ratio);
            ASSERT_LE(ratio, 2.0) << "N " << n << " row " << i / m << " column " << i % m << ": " << s[i]
                                  << " for " << static_cast<double>(z[i]);
        }
    }
    std::printf("root scratch: largest error %.3f u log2 L sum|u|\n", worst);
}

// N = 4096 has one env7 (L 128, m2 8, inner length 16).  Its scratch holds
// Y[c][a'] = sum_n' u[m2 n' + c] exp(i n' (2a'+1) pi / L2) of column b in
// block c of rows of m: at c L2 m + (2a') m + b (real) and one row further
// (imaginary).
TYPED_TEST(Dct4Exec, Env7ScratchHoldsTheInnerTransforms)
{
    using T = TypeParam;
    const int n = 4096;
    Plan<T> plan(n);
    ASSERT_EQ(plan.status(), vtxStatusOk);
    const int m = plan.root()->divisor, l = n / m;
    ASSERT_EQ(m, 32);
    const Env5* e5 = plan.env5();
    ASSERT_EQ(e5->rule, 7);
    const Env7* e7 = firstOf<Env7>(plan.arena(), e5->kernelList);
    ASSERT_NE(e7, nullptr);
    ASSERT_EQ(e7->length, 128);
    ASSERT_EQ(e7->divisor, 8);
    ASSERT_EQ(e7->cols, 32);
    const int m2 = e7->divisor, l2 = l / m2;
    T* s = deref<T>(plan.arena(), e7->scratch);
    poison(s, n);

    const std::vector<T> x = randomInput<T>(n, 4096);
    std::vector<T> y(n);
    ASSERT_EQ(plan.run(x.data(), y.data()), vtxStatusOk);

    std::vector<CxL> e(2 * l2);
    for (int j = 0; j < 2 * l2; ++j)
        e[j] = cisPi(j, l2);
    const double scale = kUnit<T> * std::log2(l2);
    // Every column b has its own places in the rows: all of them are checked,
    // the last group first.
    for (int b = m - 1; b >= 0; --b) {
        const std::vector<long double> u = foldedColumn(x.data(), m, l, b);
        for (int c = 0; c < m2; ++c) {
            long double l1 = 0;
            for (int i = -l2 / 2; i < l2 / 2; ++i)
                l1 += std::fabs(u[m2 * i + c + l / 2]);
            for (int a = 0; a < l2 / 2; ++a) {
                long double re = 0, im = 0;
                for (int i = -l2 / 2; i < l2 / 2; ++i) {
                    const int j = ((i * (2 * a + 1)) % (2 * l2) + 2 * l2) % (2 * l2);
                    re += u[m2 * i + c + l / 2] * e[j].real();
                    im += u[m2 * i + c + l / 2] * e[j].imag();
                }
                const T gotRe = s[(c * l2 + 2 * a) * m + b], gotIm = s[(c * l2 + 2 * a + 1) * m + b];
                ASSERT_LE(std::fabs(gotRe - re), 2 * scale * l1) << "b " << b << " c " << c << " a' " << a;
                ASSERT_LE(std::fabs(gotIm - im), 2 * scale * l1) << "b " << b << " c " << c << " a' " << a;
            }
        }
    }
}

// Stage two alone, from a scratch set by the definition (in long double,
// rounded to the precision), gives the DCT-IV, in every instruction set with
// the same bits.
TYPED_TEST(Dct4Exec, StageTwoOfAnExactScratchIsTheTransform)
{
    using T = TypeParam;
    for (int n : {64, 128, 256, 512, 1024, 4096}) {
        Plan<T> plan(n);
        ASSERT_EQ(plan.status(), vtxStatusOk);
        const std::vector<T> x = randomInput<T>(n, 5 * n);
        std::vector<long double> z, mass;
        columnsByDefinition(x.data(), n, plan.root()->divisor, z, mass);
        T* scratch = static_cast<T*>(std::aligned_alloc(64, n * sizeof(T)));
        for (int i = 0; i < n; ++i)
            scratch[i] = static_cast<T>(z[i]);
        std::vector<T> y(n), other(n);
        const int log2n = static_cast<int>(std::log2(n));
        std::int32_t status = vtx::dct4::env4_compute<T>(plan.env4(), y.data(), scratch, vtx::Isa::sse2);
        ASSERT_EQ(status, vtxStatusOk) << n;
        for (vtx::Isa set : runnableSets()) {
            status = vtx::dct4::env4_compute<T>(plan.env4(), other.data(), scratch, set);
            ASSERT_EQ(status, vtxStatusOk) << n;
            EXPECT_EQ(std::memcmp(y.data(), other.data(), n * sizeof(T)), 0) << setName(set) << ", N 2^" << log2n;
        }
        std::free(scratch);
        const Errors e = errorsOf(y.data(), dct4Reference(x.data(), n));
        expectWithinBounds<T>(log2n, e);
        std::printf("stage two alone %s N=2^%-2d  max %.3e  rms %.3e\n", precisionName(sizeof(T)), log2n, e.max,
                    e.rms);
    }
}

}  // namespace
