// The real kernels, forward, inverse and Hartley.  Oracles: the generator's
// graph of each kernel (bit for bit), the definitions X[k] = sum_j x[j]
// exp(-2 pi i j k / N), x[j] = sum_k X[k] exp(2 pi i j k / N) and H[k] =
// sum_j x[j] (cos + sin)(2 pi j k / N) summed in long double, the operation
// tables of the small sizes transcribed below, the published operation
// counts, and the CCS kernel of the same size, precision and direction,
// whose bits the Pack and Perm kernels share.
#include "support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <bit>
#include <climits>
#include <cmath>
#include <complex>
#include <cstdio>
#include <limits>
#include <map>
#include <stdexcept>

namespace {

using vtxgen::Direction;
using vtxgen::Layout;
using vtxgen::position;
using vtxtest::Buffer;
using vtxtest::RealKernel;

// Every flag but 8 is bad; with a null pointer, 8 is refused too.
const int kFlagsToRefuse[] = {vtxScaleNone, 0, 3, 5, 6, 7, 9, 16, -1, INT_MIN, INT_MAX};

const RealKernel& kernel(int n, bool single, Layout l, Direction d = Direction::Forward)
{
    for (const RealKernel& k : vtxtest::real_kernels(d))
        if (k.size() == n && k.single() == single && k.layout() == l)
            return k;
    throw std::runtime_error("no real kernel of size " + std::to_string(n));
}

const RealKernel& hartley(int n, bool single)
{
    for (const RealKernel& k : vtxtest::hartley_kernels())
        if (k.size() == n && k.single() == single)
            return k;
    throw std::runtime_error("no Hartley kernel of size " + std::to_string(n));
}

// The factor of a flag as the kernel forms it: 1/N (flag 1 forward, 2
// inverse, both Hartley) and 1/sqrt(N) in double, then rounded to float for
// float kernels.
double scale_of(const RealKernel& k, int flag)
{
    const int n = k.size();
    const bool divides = k.hartley() ? flag == vtxScaleForward || flag == vtxScaleInverse
                                     : flag == (k.forward() ? vtxScaleForward : vtxScaleInverse);
    const double s = divides                       ? 1.0 / n
                     : flag == vtxScaleSymmetric ? 1.0 / std::sqrt(static_cast<double>(n))
                                                 : 1.0;
    return k.single() ? static_cast<double>(static_cast<float>(s)) : s;
}

// "dst[3], Im(1)": a position of a layout and what it holds; "dst[3]," of an
// inverse kernel.
std::string slot(Layout l, int n, int p, bool layout = true)
{
    for (int b = 0; layout && 2 * b <= n; ++b)
        for (bool im : {false, true})
            if (position(l, n, b, im) == p)
                return "dst[" + std::to_string(p) + "], " + (im ? "Im(" : "Re(") + std::to_string(b) + "),";
    return "dst[" + std::to_string(p) + "]," + (layout ? " a zero slot," : "");
}

std::string show(bool single, double v)
{
    char buf[64];
    if (single)
        std::snprintf(buf, sizeof buf, "0x%08x (%.9g)", std::bit_cast<std::uint32_t>(static_cast<float>(v)), v);
    else
        std::snprintf(buf, sizeof buf, "0x%016llx (%.17g)", std::bit_cast<unsigned long long>(v), v);
    return buf;
}

// The first byte of `b` outside [keep, keep + n) that differs from `before`.
std::string changed(const char* what, const Buffer& b, const std::vector<unsigned char>& before,
                    const unsigned char* keep, std::size_t n)
{
    for (std::size_t i = 0; i < before.size(); ++i) {
        const unsigned char* p = b.raw().data() + i;
        if (b.raw()[i] != before[i] && !(keep && p >= keep && p < keep + n))
            return std::string(what) + " changed at byte " + std::to_string(p - b.at(0)) + " of its data";
    }
    return {};
}

struct Call {
    vtxStatus status;
    std::vector<double> out;  // the destination's elements, on success
    std::string fault;        // "" or the first byte changed that may not change
};

// One call.  The source starts `src_at` bytes and the destination `dst_at`
// bytes past a 16-byte boundary, of one buffer when `shared`, of two
// otherwise; `null` 1, 2, 3: the source, the destination or both null.  On
// success only the destination's elements may change, on failure nothing.
Call call(const RealKernel& k, const std::vector<double>& x, int flag, int src_at = 0, int dst_at = 0,
          bool shared = false, int null = 0)
{
    const std::size_t out_bytes = static_cast<std::size_t>(k.destination_elements() * k.element_bytes());
    Buffer a(std::max(src_at, dst_at) + out_bytes + x.size() * k.element_bytes());
    Buffer b(shared ? 0 : a.size());
    Buffer& d = shared ? a : b;
    a.put(src_at, x, k.single());
    const std::vector<unsigned char> a_before = a.raw(), b_before = b.raw();
    Call c;
    c.status = k(null & 1 ? nullptr : a.at(src_at), null & 2 ? nullptr : d.at(dst_at), flag);
    const bool ok = c.status == vtxStatusOk;
    if (ok)
        c.out = d.get(dst_at, k.destination_elements(), k.single());
    c.fault = changed(shared ? "the buffer" : "the source", a, a_before, ok && shared ? a.at(dst_at) : nullptr,
                      out_bytes);
    if (c.fault.empty() && !shared)
        c.fault = changed("the destination buffer", b, b_before, ok ? b.at(dst_at) : nullptr, out_bytes);
    return c;
}

std::vector<double> input(const RealKernel& k, std::uint32_t seed)
{
    return vtxtest::fixed_input(k.source_elements(), seed, k.single());
}

// "" when the call succeeded, changed nothing but its output and gave the
// bits of `want`; else the status, the byte changed or the first element
// that differs.
std::string check(const RealKernel& k, const Call& c, const std::vector<double>& want)
{
    if (c.status != vtxStatusOk || !c.fault.empty())
        return "status " + std::to_string(c.status) + " " + c.fault;
    for (std::size_t p = 0; p < want.size(); ++p)
        if (std::bit_cast<std::uint64_t>(c.out[p]) != std::bit_cast<std::uint64_t>(want[p]))
            return slot(k.layout(), k.size(), static_cast<int>(p), k.forward() && !k.hartley()) + " is " +
                   show(k.single(), c.out[p]) + ", expected " + show(k.single(), want[p]);
    return {};
}

using Cl = std::complex<long double>;
const long double kPi = 3.141592653589793238462643383279502884L;

// X[k], k = 0..N/2, in long double, with j k reduced modulo N.
std::vector<Cl> reference(const std::vector<double>& x)
{
    const int n = static_cast<int>(x.size());
    std::vector<Cl> y(static_cast<std::size_t>(n / 2 + 1));
    for (int k = 0; 2 * k <= n; ++k)
        for (int j = 0; j < n; ++j) {
            const long double angle = 2 * kPi * static_cast<long double>(j * k % n) / n;
            y[k] += static_cast<long double>(x[j]) * Cl(cosl(angle), -sinl(angle));
        }
    return y;
}

// H[k], k = 0..N-1, in long double, with j k reduced modulo N.
std::vector<long double> hartley_reference(const std::vector<double>& x)
{
    const int n = static_cast<int>(x.size());
    std::vector<long double> y(static_cast<std::size_t>(n));
    for (int k = 0; k < n; ++k)
        for (int j = 0; j < n; ++j) {
            const long double angle = 2 * kPi * static_cast<long double>(j * k % n) / n;
            y[k] += static_cast<long double>(x[j]) * (cosl(angle) + sinl(angle));
        }
    return y;
}

// A stored bin of a layout; 0 for the parts no layout stores.
double bin(const RealKernel& k, const std::vector<double>& out, int b, bool im)
{
    const int p = position(k.layout(), k.size(), b, im);
    return p < 0 ? 0.0 : out[static_cast<std::size_t>(p)];
}

// x[j] = sum over all N bins of X[k] exp(2 pi i j k / N), X[N-k] the
// conjugate of X[k], from the bins of k's layout in `src`, in long double.
std::vector<long double> inverse_reference(const RealKernel& k, const std::vector<double>& src)
{
    const int n = k.size();
    std::vector<long double> x(static_cast<std::size_t>(n));
    for (int j = 0; j < n; ++j)
        for (int b = 0; b < n; ++b) {
            const int m = 2 * b <= n ? b : n - b;  // the stored bin
            const long double im = (2 * b <= n ? 1 : -1) * static_cast<long double>(bin(k, src, m, true));
            const long double angle = 2 * kPi * static_cast<long double>(j * b % n) / n;
            x[j] += static_cast<long double>(bin(k, src, m, false)) * cosl(angle) - im * sinl(angle);
        }
    return x;
}

// The layout `l` of size n filled from value(bin, imaginary); the zero slots
// hold positive zero.
template <class F>
std::vector<double> spread(Layout l, int n, F value)
{
    std::vector<double> out(static_cast<std::size_t>(vtxgen::layout_length(l, n)), 0.0);
    for (int b = 0; 2 * b <= n; ++b)
        for (bool im : {false, true})
            if (const int p = position(l, n, b, im); p >= 0)
                out[p] = value(b, im);
    return out;
}

// An inverse CCS kernel reads position N last: the zero slots (1, and N + 1
// for even N) are never loaded.
void checkEqualsItsGraphBitForBit(const RealKernel& k)
{
    const vtxgen::Graph g = k.model.build();
    const bool ccs_source = !k.forward() && k.layout() == Layout::CCS;
    ASSERT_EQ(g.source_components(), k.size() + ccs_source);
    ASSERT_EQ(g.destination_components(), k.destination_elements());
    for (int flag : {vtxScaleNone, vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric})
        for (std::uint32_t seed = 0; seed < 8; ++seed) {
            const std::vector<double> x = input(k, seed);
            std::vector<double> want(static_cast<std::size_t>(k.destination_elements()));
            g.evaluate(x, want, scale_of(k, flag));
            ASSERT_EQ(check(k, call(k, x, flag), want), "")
                << k.name() << ", flag " << flag << ", input " << seed << ", against its graph";
        }
}

// Forward, x = e_j: Re(k) = cos(2 pi j k / N), Im(k) = -sin(2 pi j k / N).
// Inverse, one bin 1: x[j] = c cos(2 pi j k / N) or -c sin(2 pi j k / N),
// c = 2 for 0 < k < N/2 (the bin and its mirror), 1 otherwise.  Hartley,
// x = e_j: H[k] = cos(2 pi j k / N) + sin(2 pi j k / N).
void checkImpulsesGiveCosinesAndSines(const RealKernel& k)
{
    const long double tolerance = k.hartley() ? (k.single() ? 4e-7L : 2e-13L)
                                  : k.single() ? (k.forward() ? 3e-7L : 5e-7L)
                                               : (k.forward() ? 5e-14L : 1e-13L);
    for (int j = 0; j < k.source_elements(); ++j) {
        std::vector<double> x(static_cast<std::size_t>(k.source_elements()));
        x[j] = 1;
        const Call c = call(k, x, vtxScaleNone);
        ASSERT_EQ(c.status, vtxStatusOk) << k.name();
        if (k.hartley() || !k.forward()) {
            const std::vector<long double> want = k.hartley() ? hartley_reference(x) : inverse_reference(k, x);
            for (int i = 0; i < k.size(); ++i)
                ASSERT_LE(fabsl(c.out[i] - want[i]), tolerance)
                    << k.name() << ", impulse at src[" << j << "]: x[" << i << "] is " << c.out[i] << ", exact "
                    << static_cast<double>(want[i]);
            continue;
        }
        const std::vector<Cl> ref = reference(x);
        for (int b = 0; 2 * b <= k.size(); ++b)
            for (bool im : {false, true}) {
                const long double want = im ? ref[b].imag() : ref[b].real();
                ASSERT_LE(fabsl(bin(k, c.out, b, im) - want), tolerance)
                    << k.name() << ", impulse at x[" << j << "]: " << (im ? "Im(" : "Re(") << b << ") is "
                    << bin(k, c.out, b, im) << ", exact " << static_cast<double>(want);
            }
    }
}

// The rounding-error bound of a fast transform, in the norm of the whole
// spectrum (the half spectrum counted with its mirror) or of the points,
// u = 2^-24 or 2^-53:
//   ||y - y_exact|| <= 2 u max(1, log2 N) ||y_exact||.
// Inputs in [-1, 1) and in [0, 1).  The worst kernels reach a third of it.
void checkRandomInputsWithinTheNormwiseBound(const RealKernel& k)
{
    const long double bound = (k.single() ? 0x1p-23L : 0x1p-52L) * std::max(1.0, std::log2(k.size() + 0.0));
    long double worst = 0;
    for (std::uint32_t seed = 1; seed <= 64; ++seed)
        for (bool positive : {false, true}) {
            std::vector<double> x = input(k, seed);
            for (double& v : x)
                v = positive ? std::fabs(v) : v;
            const Call c = call(k, x, vtxScaleNone);
            ASSERT_EQ(c.status, vtxStatusOk) << k.name();
            long double error = 0, norm = 0;
            if (k.forward() && !k.hartley()) {
                const std::vector<Cl> ref = reference(x);
                for (int b = 0; 2 * b <= k.size(); ++b) {
                    const int weight = b == 0 || 2 * b == k.size() ? 1 : 2;
                    error += weight * std::norm(Cl(bin(k, c.out, b, false), bin(k, c.out, b, true)) - ref[b]);
                    norm += weight * std::norm(ref[b]);
                }
            } else {
                const std::vector<long double> ref = k.hartley() ? hartley_reference(x) : inverse_reference(k, x);
                for (int j = 0; j < k.size(); ++j) {
                    error += (c.out[j] - ref[j]) * (c.out[j] - ref[j]);
                    norm += ref[j] * ref[j];
                }
            }
            const long double relative = sqrtl(error / norm);
            worst = std::max(worst, relative / bound);
            ASSERT_LE(relative, bound) << k.name() << ", input " << seed << (positive ? " positive" : "")
                                       << ": relative error " << static_cast<double>(relative);
        }
    ::testing::Test::RecordProperty(k.name() + "_share_of_bound", std::to_string(static_cast<double>(worst)));
}

// Float inverses whose Pack kernel adds in float a sum that CCS and Perm add
// in double: it widens that sum, one value more.
bool pack_widens_one_more(const RealKernel& k)
{
    return !k.forward() && k.single() && k.layout() == Layout::Pack && (k.size() == 22 || k.size() == 46);
}

// The layout whose kernel computes as k's: the CCS one, but for the inverse
// of 7, whose CCS kernel sums A(1) and B(1) over the bins 1, 3, 2 and whose
// Pack and Perm kernels over 1, 2, 3, and for the float inverses of 22 and
// 46, whose Pack kernel adds one sum in float where CCS and Perm add it in
// double.
const RealKernel& same_arithmetic(const RealKernel& k)
{
    const bool apart = !k.forward() && ((k.size() == 7 && k.layout() != Layout::CCS) || pack_widens_one_more(k));
    return kernel(k.size(), k.single(), apart ? Layout::Pack : Layout::CCS, k.model.direction);
}

// Forward: Pack and Perm hold the CCS kernel's bits at their positions; the
// CCS zero slots are positive zero whatever the input, NaN and infinity too.
// Inverse: the same bins in any layout give the bits of the layout that
// computes alike, whatever the CCS zero slots hold (a signalling NaN, say);
// where that is not CCS, the bits differ from CCS's on some input: at 7 in
// double (the float kernels add those sums in double and round them once, so
// their orders rarely show), at 22 and 46 in float.
void checkLayoutsHoldTheSameBits(const RealKernel& k)
{
    if (k.hartley())
        return;
    const RealKernel& ccs = kernel(k.size(), k.single(), Layout::CCS, k.model.direction);
    const RealKernel& twin = same_arithmetic(k);
    const int n = k.source_elements();
    std::vector<std::vector<double>> inputs{input(ccs, 1), input(ccs, 2),
                                            std::vector<double>(ccs.source_elements(), std::nan("")),
                                            std::vector<double>(ccs.source_elements(), HUGE_VAL)};
    inputs.back()[0] = -HUGE_VAL;
    const double snan = std::numeric_limits<double>::signaling_NaN();
    for (std::size_t i = 0; i < inputs.size(); ++i)
        for (int flag : {vtxScaleNone, vtxScaleForward, vtxScaleInverse}) {
            const std::vector<double>& x = inputs[i];
            if (k.forward()) {
                const Call whole = call(ccs, x, flag);
                const auto want = spread(k.layout(), n, [&](int b, bool im) { return bin(ccs, whole.out, b, im); });
                ASSERT_EQ(check(k, call(k, x, flag), want), "")
                    << k.name() << ", input " << i << ", flag " << flag << ", against " << ccs.name();
                continue;
            }
            std::vector<double> with_nan = x;
            for (int at : vtxgen::zero_slots(Layout::CCS, k.size()))
                with_nan[at] = snan;
            const Call want = call(ccs, x, flag);
            ASSERT_EQ(check(ccs, call(ccs, with_nan, flag), want.out), "") << ccs.name() << ", NaN in the zero slots";
            const auto bins = spread(k.layout(), k.size(), [&](int b, bool im) { return bin(ccs, x, b, im); });
            const Call got = call(k, bins, flag);
            if (&twin != &ccs) {
                const auto twin_bins = spread(twin.layout(), k.size(), [&](int b, bool im) { return bin(ccs, x, b, im); });
                ASSERT_EQ(check(k, got, call(twin, twin_bins, flag).out), "")
                    << k.name() << ", input " << i << ", flag " << flag << ", against " << twin.name();
                continue;
            }
            ASSERT_EQ(check(k, got, want.out), "")
                << k.name() << ", input " << i << ", flag " << flag << ", against " << ccs.name();
        }
    const bool shows = &twin != &ccs && (k.size() != 7 || !k.single());
    bool differs = false;
    for (int seed = 1; shows && !differs && seed <= 256; ++seed) {
        const std::vector<double> x = input(ccs, seed);
        const auto bins = spread(k.layout(), k.size(), [&](int b, bool im) { return bin(ccs, x, b, im); });
        differs = call(k, bins, vtxScaleNone).out != call(ccs, x, vtxScaleNone).out;
    }
    if (shows) {
        EXPECT_TRUE(differs) << k.name() << " gives the bits of " << ccs.name() << " on 256 inputs";
    }
}
// Element-aligned offsets; one buffer for source and destination, the
// destination d elements after or before the source (d = 0: in place, the
// buffer as long as the longer of the two): the bits of the aligned call.
void checkPlacementGivesTheSameBits(const RealKernel& k)
{
    const std::vector<double> x = input(k, 3);
    const Call want = call(k, x, vtxScaleSymmetric);
    const int e = k.element_bytes(), len = k.destination_elements();
    for (auto [s, d] : {std::pair{e, 0}, std::pair{0, e}, std::pair{e, e}, std::pair{3 * e, e}})
        ASSERT_EQ(check(k, call(k, x, vtxScaleSymmetric, s, d), want.out), "")
            << k.name() << ", source at +" << s << " bytes, destination at +" << d;
    for (int d = -len; d <= k.size(); ++d)
        ASSERT_EQ(check(k, call(k, x, vtxScaleSymmetric, e * len, e * (len + d), true), want.out), "")
            << k.name() << ", destination " << d << " elements from the source in one buffer";
}

// Flags 1, 2 and 4 give the flag-8 bits times their factor, rounded once:
// so the unscaled flags (2 and 8 forward, 1 and 8 inverse) give the same
// bits, and so do flags 1 and 2 of a Hartley kernel.  Outputs scaled in
// double are rounded after their scale, and only the unscaled flags are
// compared where some are (the others meet their graph, above).  All-zero
// input gives no negative zero.  A null pointer is reported before a bad
// flag; failures write nothing.
void checkFlagsAndFailures(const RealKernel& k)
{
    const bool narrow_scale = k.model.build().count().scaled_wide == 0;
    for (std::uint32_t seed = 0; seed < 4; ++seed) {
        const std::vector<double> x = input(k, seed);
        const Call none = call(k, x, vtxScaleNone);
        for (int flag : {vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric}) {
            std::vector<double> want = none.out;
            const double s = scale_of(k, flag);
            for (double& v : want)
                v = k.single() ? static_cast<float>(v) * static_cast<float>(s) : v * s;
            if (narrow_scale || s == 1.0) {
                ASSERT_EQ(check(k, call(k, x, flag), want), "")
                    << k.name() << ": flag " << flag << ", input " << seed << ", against flag 8 times the factor";
            }
        }
    }
    const std::vector<double> zero(static_cast<std::size_t>(k.source_elements()), 0.0);
    for (int flag : {vtxScaleNone, vtxScaleForward, vtxScaleSymmetric})
        ASSERT_EQ(check(k, call(k, zero, flag), std::vector<double>(k.destination_elements(), 0.0)), "")
            << k.name() << ", flag " << flag << ", all-zero input";
    for (int null : {0, 1, 2, 3})  // none, the source, the destination, both
        for (int flag : kFlagsToRefuse) {
            const Call c = call(k, input(k, 1), flag, 0, 0, false, null);
            if (null || flag != vtxScaleNone) {
                ASSERT_TRUE(c.status == (null ? vtxStatusNullPointer : vtxStatusFlagError) && c.fault.empty())
                    << k.name() << ", null " << null << ", flag " << flag << ": " << check(k, c, {});
            }
        }
}

// Forward then inverse in one layout returns the input: flags 8 then 2, and
// the pairs 1/1, 2/2, 4/4, within the rounding of the two transforms.  A
// Hartley kernel is its own inverse: flags 8 then 1 or 2, 1 then 8, 4 then 4.
void checkRoundTripReturnsTheInput(const RealKernel& k)
{
    if (k.forward() && !k.hartley())
        return;
    const RealKernel& fwd = k.hartley() ? k : kernel(k.size(), k.single(), k.layout());
    const double tolerance = (k.single() ? 0x1p-23 : 0x1p-52) * 8 * std::max(1.0, std::log2(k.size() + 0.0));
    using Flags = std::vector<std::pair<int, int>>;
    const Flags pairs = k.hartley() ? Flags{{vtxScaleNone, vtxScaleForward}, {vtxScaleNone, vtxScaleInverse},
                                            {vtxScaleForward, vtxScaleNone}, {vtxScaleSymmetric, vtxScaleSymmetric}}
                                    : Flags{{vtxScaleNone, vtxScaleInverse}, {vtxScaleForward, vtxScaleForward},
                                            {vtxScaleInverse, vtxScaleInverse}, {vtxScaleSymmetric, vtxScaleSymmetric}};
    for (auto [f, i] : pairs) {
        const std::vector<double> x = input(fwd, 5);
        const Call spectrum = call(fwd, x, f), back = call(k, spectrum.out, i);
        ASSERT_EQ(back.status, vtxStatusOk) << k.name();
        for (int j = 0; j < k.size(); ++j)
            ASSERT_NEAR(back.out[j], x[j], tolerance)
                << fwd.name() << " flag " << f << " then " << k.name() << " flag " << i << ": x[" << j << "]";
    }
}

// The checks above run on the fourteen kernels of a size (two directions
// and three layouts, and the Hartley kernel, in two precisions) in one test:
// a test per size keeps the suite's processes few.
class Real : public ::testing::TestWithParam<int> {
protected:
    void each(void (*check)(const RealKernel&))
    {
        for (const auto* family : {&vtxtest::real_kernels(Direction::Forward),
                                   &vtxtest::real_kernels(Direction::Inverse), &vtxtest::hartley_kernels()})
            for (const RealKernel& k : *family)
                if (k.size() == GetParam()) {
                    SCOPED_TRACE(k.name());
                    check(k);
                    if (HasFatalFailure())
                        return;
                }
    }
};

TEST_P(Real, EqualsItsGraphBitForBit) { each(checkEqualsItsGraphBitForBit); }
TEST_P(Real, ImpulsesGiveCosinesAndSines) { each(checkImpulsesGiveCosinesAndSines); }
TEST_P(Real, RandomInputsWithinTheNormwiseBound) { each(checkRandomInputsWithinTheNormwiseBound); }
TEST_P(Real, LayoutsHoldTheSameBits) { each(checkLayoutsHoldTheSameBits); }
TEST_P(Real, PlacementGivesTheSameBits) { each(checkPlacementGivesTheSameBits); }
TEST_P(Real, FlagsAndFailures) { each(checkFlagsAndFailures); }
TEST_P(Real, RoundTripReturnsTheInput) { each(checkRoundTripReturnsTheInput); }

INSTANTIATE_TEST_SUITE_P(Sizes, Real, ::testing::Range(2, 65),
                         [](const ::testing::TestParamInfo<int>& info) { return std::to_string(info.param); });

// ------------------------------------------------ the small sizes by hand

// The kernels of `sizes` among `kernels` against `table`, their size's
// operations written out, under each of `flags`: 32 inputs each, bit for bit.
template <class Kernels, class Table>
void followTheirTables(const Kernels& kernels, std::initializer_list<int> sizes, std::initializer_list<int> flags,
                       Table table)
{
    for (const RealKernel& k : kernels) {
        if (std::find(sizes.begin(), sizes.end(), k.size()) == sizes.end())
            continue;
        for (int flag : flags)
            for (std::uint32_t seed = 0; seed < 32; ++seed) {
                const std::vector<double> x = input(k, seed);
                ASSERT_EQ(check(k, call(k, x, flag), table(k, x, flag)), "")
                    << k.name() << ", flag " << flag << ", input " << seed << ", against the table of its size";
            }
    }
}


// Sizes 2, 4, 5, 6 and 8, one operation per line as their tables give them,
// in the layout of k.  T is the element type; w() widens a value to double,
// where products with constants and their sums are formed, and r() is the
// one rounding back to T.
template <class T>
std::vector<double> small_size(const RealKernel& k, const std::vector<double>& input, int flag)
{
    auto w = [](T v) { return static_cast<double>(v); };
    auto r = [](double v) { return static_cast<T>(v); };
    const std::vector<T> x(input.begin(), input.end());
    const T s = static_cast<T>(scale_of(k, flag)), zero = 0;
    std::vector<T> re(static_cast<std::size_t>(k.size() / 2 + 1)), im = re;
    if (k.size() == 2) {
        re[0] = (x[0] + x[1]) * s, re[1] = (x[0] - x[1]) * s;
    } else if (k.size() == 4) {
        const T a = x[0] + x[2], b = x[1] + x[3];
        re[0] = (a + b) * s, re[2] = (a - b) * s, re[1] = (x[0] - x[2]) * s;
        im[1] = zero - s * (x[1] - x[3]);
    } else if (k.size() == 5) {
        const double c1 = 0.30901699437494745, c2 = 0.8090169943749475, e1 = 0.9510565162951535,
                     e2 = 0.5877852522924731;
        const T s1 = x[1] + x[4], d1 = x[1] - x[4], s2 = x[3] + x[2], d2 = x[3] - x[2];
        re[0] = ((s1 + s2) + x[0]) * s;
        re[1] = r(((c1 * w(s1) - c2 * w(s2)) + w(x[0])) * w(s));
        re[2] = r(((w(x[0]) - c2 * w(s1)) + c1 * w(s2)) * w(s));
        im[1] = r((e2 * w(d2) - e1 * w(d1)) * w(s));
        im[2] = r(0.0 - w(s) * (e2 * w(d1) + e1 * w(d2)));
    } else if (k.size() == 6) {
        const double c = 0.8660254037844386;
        const T p = x[2] + x[4], a = x[0] + p, b = r(w(x[0]) - 0.5 * w(p)), cc = r(c * w(x[2] - x[4]));
        const T q = x[5] + x[1], d = x[3] + q, e = r(w(x[3]) - 0.5 * w(q)), f = r(c * w(x[5] - x[1]));
        re[0] = (a + d) * s, re[3] = (a - d) * s, re[2] = (b + e) * s, re[1] = (b - e) * s;
        im[2] = (cc + f) * s, im[1] = zero - s * (cc - f);
    } else if (k.size() == 8) {
        const double c = 0.7071067811865476;
        const T a = x[0] + x[4], b = x[0] - x[4], e = x[2] + x[6], f = x[2] - x[6];
        const T u = x[1] + x[5], v = x[3] + x[7], g = a + e, h = u + v;
        re[0] = (g + h) * s, re[4] = (g - h) * s, re[2] = (a - e) * s;
        im[2] = zero - s * (u - v);
        const T m = r(c * w(x[1] - x[5])), n = r(c * w(x[3] - x[7]));
        const T p = m - n, q = m + n;
        re[1] = (b + p) * s, re[3] = (b - p) * s;
        im[1] = zero - (f + q) * s, im[3] = zero - (q - f) * s;
    }
    return spread(k.layout(), k.size(), [&](int bin, bool imaginary) { return imaginary ? im[bin] : re[bin]; });
}

TEST(RealSmallSizes, FollowTheirTablesOperationByOperation)
{
    followTheirTables(vtxtest::real_kernels(), {2, 4, 5, 6, 8}, {vtxScaleNone, vtxScaleForward, vtxScaleSymmetric},
                      [](const RealKernel& k, const std::vector<double>& x, int flag) {
                          return k.single() ? small_size<float>(k, x, flag) : small_size<double>(k, x, flag);
                      });
}

// The inverse kernels of sizes 4, 5, 6 and 8 as their tables give them, from
// the bins of k's layout: R(k) and I(k) the doubled bins, w() and r() as above.
template <class T>
std::vector<double> small_inverse(const RealKernel& k, const std::vector<double>& src, int flag)
{
    auto w = [](T v) { return static_cast<double>(v); };
    auto r = [](double v) { return static_cast<T>(v); };
    auto re = [&](int b) { return static_cast<T>(bin(k, src, b, false)); };
    auto R = [&](int b) { return T(2) * re(b); };
    auto I = [&](int b) { return T(2) * static_cast<T>(bin(k, src, b, true)); };
    const T s = static_cast<T>(scale_of(k, flag));
    std::vector<T> x(static_cast<std::size_t>(k.size()));
    if (k.size() == 4) {
        const T a = re(0) + re(2), b = re(0) - re(2), u = R(1), v = I(1);
        x = {(a + u) * s, (b - v) * s, (a - u) * s, (b + v) * s};
    } else if (k.size() == 5) {
        const double c1 = 0.30901699437494745, c2 = 0.8090169943749475, e1 = 0.9510565162951535,
                     e2 = 0.5877852522924731;
        const T A1 = r((c1 * w(R(1)) - c2 * w(R(2))) + w(re(0))), A2 = r((w(re(0)) - c2 * w(R(1))) + c1 * w(R(2)));
        const T B1 = r(e1 * w(I(1)) + e2 * w(I(2))), B2 = r(e2 * w(I(1)) - e1 * w(I(2)));
        x = {((R(1) + R(2)) + re(0)) * s, (A1 - B1) * s, (A2 - B2) * s, (A2 + B2) * s, (A1 + B1) * s};
    } else if (k.size() == 6) {
        const double c = 0.8660254037844386;
        const T P = R(2) + R(1), Q = R(2) - R(1), U = I(2) - I(1), V = I(2) + I(1);
        const T E = re(0) + re(3), F = re(0) - re(3), G = r(w(E) - 0.5 * w(P)), H = r(w(F) - 0.5 * w(Q));
        const T J = r(c * w(U)), K = r(c * w(V));
        x = {(E + P) * s, (H - K) * s, (G + J) * s, (F + Q) * s, (G - J) * s, (H + K) * s};
    } else if (k.size() == 8) {
        const double c = 0.7071067811865476;
        const T a = re(0) + re(4), b = re(0) - re(4), e = a + R(2), f = a - R(2), g = b - I(2), h = b + I(2);
        const T u = R(1) + R(3), v = R(1) - R(3), wv = I(1) - I(3), y = I(1) + I(3);
        const T m = r(c * w(v)), n = r(c * w(y)), p = m - n, q = m + n;
        x = {(e + u) * s, (g + p) * s, (f - wv) * s, (h - q) * s,
             (e - u) * s, (g - p) * s, (f + wv) * s, (h + q) * s};
    }
    return {x.begin(), x.end()};
}

TEST(RealSmallSizes, InverseFollowTheirTablesOperationByOperation)
{
    followTheirTables(vtxtest::real_kernels(Direction::Inverse), {4, 5, 6, 8},
                      {vtxScaleNone, vtxScaleInverse, vtxScaleSymmetric},
                      [](const RealKernel& k, const std::vector<double>& x, int flag) {
                          return k.single() ? small_inverse<float>(k, x, flag) : small_inverse<double>(k, x, flag);
                      });
}

// The Hartley kernels of sizes 4 and 6 as their tables give them; size 2
// holds the bits of the forward kernel's Pack layout, (x0 + x1) s and
// (x0 - x1) s, under the flag of the same factor (1 for 2).  A to F of size
// 6 are those of the forward table.
template <class T>
std::vector<double> small_hartley(const RealKernel& k, const std::vector<double>& input, int flag)
{
    if (k.size() == 2)
        return call(kernel(2, k.single(), Layout::Pack), input, flag == vtxScaleInverse ? vtxScaleForward : flag).out;
    auto w = [](T v) { return static_cast<double>(v); };
    auto r = [](double v) { return static_cast<T>(v); };
    const std::vector<T> x(input.begin(), input.end());
    const T s = static_cast<T>(scale_of(k, flag));
    if (k.size() == 4) {
        const T a = x[1] + x[3], b = x[1] - x[3], c = x[0] + x[2], d = x[0] - x[2];
        return {(a + c) * s, (b + d) * s, (c - a) * s, (d - b) * s};
    }
    const double c = 0.8660254037844386;
    const T p = x[2] + x[4], A = x[0] + p, B = r(w(x[0]) - 0.5 * w(p)), C = r(c * w(x[2] - x[4]));
    const T q = x[5] + x[1], D = x[3] + q, E = r(w(x[3]) - 0.5 * w(q)), F = r(c * w(x[5] - x[1]));
    const T P = B + E, Q = C + F, R = B - E, U = F - C;
    return {(A + D) * s, (R - U) * s, (P - Q) * s, (A - D) * s, (P + Q) * s, (R + U) * s};
}

TEST(RealSmallSizes, HartleyFollowTheirTablesOperationByOperation)
{
    followTheirTables(vtxtest::hartley_kernels(), {2, 4, 6},
                      {vtxScaleNone, vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric},
                      [](const RealKernel& k, const std::vector<double>& x, int flag) {
                          return k.single() ? small_hartley<float>(k, x, flag) : small_hartley<double>(k, x, flag);
                      });
}

// x = 1, 2, ..., N at flag 8: the printed digits of the layout examples.
TEST(RealWorkedExamples, SizesEightAndSeven)
{
    const std::map<int, std::vector<double>> printed = {
        {8, {36, 0, -4, 9.656854, -4, 4, -4, 1.656854, -4, 0}},  // CCS
        {7, {28, 0, -3.5, 7.267825, -3.5, 2.791157, -3.5, 0.798852}},
    };
    for (const auto& row : printed) {
        const int n = row.first;
        const std::vector<double>& ccs = row.second;
        for (bool single : {true, false})
            for (Layout l : {Layout::CCS, Layout::Pack, Layout::Perm}) {
                const RealKernel& k = kernel(n, single, l);
                std::vector<double> x(static_cast<std::size_t>(n));
                for (int j = 0; j < n; ++j)
                    x[j] = j + 1;
                const Call c = call(k, x, vtxScaleNone);
                const auto want = spread(l, n, [&](int b, bool im) { return ccs[position(Layout::CCS, n, b, im)]; });
                ASSERT_EQ(c.status, vtxStatusOk) << k.name();
                for (std::size_t p = 0; p < want.size(); ++p)
                    EXPECT_LE(std::fabs(c.out[p] - want[p]), 5e-7 + std::fabs(want[p]) * (single ? 0x1p-23 : 0x1p-52))
                        << k.name() << ": " << slot(l, n, static_cast<int>(p)) << " is " << c.out[p] << ", printed "
                        << want[p];
            }
    }
}

// The twelve real dispatchers and the two Hartley ones: a size outside 2 to
// 64 is refused before the pointers and the flag are looked at; inside, the
// kernel's status and bits.
template <class T, vtxStatus (*F)(const T*, T*, int, int)>
vtxStatus untyped(const void* src, void* dst, int n, int flag)
{
    return F(static_cast<const T*>(src), static_cast<T*>(dst), n, flag);
}

TEST(RealDispatch, SizeFirstThenTheKernel)
{
    const struct {
        const char* name;
        bool single;
        Layout layout;
        vtxStatus (*fn)(const void*, void*, int, int);
        Direction direction = Direction::Forward;
        bool hartley = false;
    } dispatchers[] = {
        {"vtxgHartley_32f", true, Layout::CCS, untyped<vtx32f, vtxgHartley_32f>, Direction::Forward, true},
        {"vtxgHartley_64f", false, Layout::CCS, untyped<vtx64f, vtxgHartley_64f>, Direction::Forward, true},
        {"vtxgDFTFwd_RToCCS_32f", true, Layout::CCS, untyped<vtx32f, vtxgDFTFwd_RToCCS_32f>},
        {"vtxgDFTFwd_RToPack_32f", true, Layout::Pack, untyped<vtx32f, vtxgDFTFwd_RToPack_32f>},
        {"vtxgDFTFwd_RToPerm_32f", true, Layout::Perm, untyped<vtx32f, vtxgDFTFwd_RToPerm_32f>},
        {"vtxgDFTFwd_RToCCS_64f", false, Layout::CCS, untyped<vtx64f, vtxgDFTFwd_RToCCS_64f>},
        {"vtxgDFTFwd_RToPack_64f", false, Layout::Pack, untyped<vtx64f, vtxgDFTFwd_RToPack_64f>},
        {"vtxgDFTFwd_RToPerm_64f", false, Layout::Perm, untyped<vtx64f, vtxgDFTFwd_RToPerm_64f>},
        {"vtxgDFTInv_CCSToR_32f", true, Layout::CCS, untyped<vtx32f, vtxgDFTInv_CCSToR_32f>, Direction::Inverse},
        {"vtxgDFTInv_PackToR_32f", true, Layout::Pack, untyped<vtx32f, vtxgDFTInv_PackToR_32f>, Direction::Inverse},
        {"vtxgDFTInv_PermToR_32f", true, Layout::Perm, untyped<vtx32f, vtxgDFTInv_PermToR_32f>, Direction::Inverse},
        {"vtxgDFTInv_CCSToR_64f", false, Layout::CCS, untyped<vtx64f, vtxgDFTInv_CCSToR_64f>, Direction::Inverse},
        {"vtxgDFTInv_PackToR_64f", false, Layout::Pack, untyped<vtx64f, vtxgDFTInv_PackToR_64f>, Direction::Inverse},
        {"vtxgDFTInv_PermToR_64f", false, Layout::Perm, untyped<vtx64f, vtxgDFTInv_PermToR_64f>, Direction::Inverse},
    };
    for (const auto& e : dispatchers) {
        for (int n : {INT_MIN, -1, 0, 1, 65, INT_MAX}) {
            Buffer src(1024), dst(1024);
            EXPECT_EQ(e.fn(nullptr, nullptr, n, 3), vtxStatusSizeError) << e.name << " " << n;
            EXPECT_EQ(e.fn(nullptr, dst.at(0), n, -1), vtxStatusSizeError) << e.name << " " << n;
            EXPECT_EQ(e.fn(src.at(0), dst.at(0), n, vtxScaleNone), vtxStatusSizeError) << e.name << " " << n;
            EXPECT_EQ(dst.changed(), "") << e.name << " " << n;
        }
        for (int n = 2; n <= 64; ++n) {
            const RealKernel& k = e.hartley ? hartley(n, e.single) : kernel(n, e.single, e.layout, e.direction);
            const std::size_t bytes = static_cast<std::size_t>(
                std::max(k.source_elements(), k.destination_elements()) * k.element_bytes());
            Buffer src(bytes), direct(bytes), via(bytes);
            src.put(0, input(k, 9), k.single());
            for (int flag : {int(vtxScaleNone), int(vtxScaleForward), int(vtxScaleSymmetric), 3}) {
                const vtxStatus want = k(src.at(0), direct.at(0), flag);
                ASSERT_EQ(e.fn(src.at(0), via.at(0), n, flag), want) << e.name << " " << n << " flag " << flag;
                ASSERT_EQ(via.raw(), direct.raw()) << e.name << " " << n << " flag " << flag << ": other bits";
            }
            Buffer dst(bytes);
            EXPECT_EQ(e.fn(nullptr, dst.at(0), n, vtxScaleNone), vtxStatusNullPointer) << e.name << " " << n;
            EXPECT_EQ(e.fn(src.at(0), nullptr, n, 3), vtxStatusNullPointer) << e.name << " " << n;
            EXPECT_EQ(dst.changed(), "") << e.name << " " << n;
        }
    }
}

// ---------------------------------------------------- operation counts

struct Counts {
    int add, mul, neg, widen, narrow, wide;
    bool operator==(const Counts&) const = default;
};

void PrintTo(const Counts& c, std::ostream* os)
{
    *os << "add " << c.add << ", mul " << c.mul << ", neg " << c.neg << ", widen " << c.widen << ", narrow "
        << c.narrow << ", scaled wide " << c.wide;
}

// The published counts of each size: Add, Mul, Neg of both precisions, then
// Widen, Narrow and Scaled wide of the float kernel.  Forward:
const std::map<int, Counts> kPublishedForward = {
    {2, {2, 0, 0, 0, 0, 0}}, {3, {4, 2, 1, 3, 2, 2}}, {4, {6, 0, 1, 0, 0, 0}},
    {5, {12, 8, 1, 5, 4, 4}}, {6, {14, 4, 1, 6, 4, 0}}, {7, {24, 18, 1, 7, 6, 6}},
    {8, {20, 2, 3, 2, 2, 0}}, {9, {32, 20, 3, 22, 16, 2}}, {10, {34, 16, 3, 10, 8, 0}},
    {11, {60, 50, 1, 11, 10, 10}}, {12, {38, 8, 3, 12, 8, 4}}, {13, {78, 41, 2, 38, 29, 0}},
    {14, {62, 36, 3, 14, 12, 12}}, {15, {64, 34, 3, 30, 22, 4}}, {16, {58, 12, 6, 8, 8, 0}},
    {17, {116, 54, 5, 33, 32, 4}}, {18, {82, 40, 4, 44, 32, 4}}, {19, {164, 108, 4, 99, 76, 0}},
    {20, {86, 32, 5, 20, 16, 0}}, {21, {112, 68, 6, 42, 32, 2}}, {22, {142, 100, 5, 22, 20, 20}},
    {23, {300, 242, 4, 107, 94, 0}}, {24, {104, 22, 5, 30, 22, 0}}, {25, {152, 112, 6, 66, 56, 4}},
    {26, {182, 82, 7, 76, 58, 0}}, {27, {164, 110, 8, 109, 82, 2}}, {28, {150, 72, 7, 28, 24, 12}},
    {29, {306, 210, 8, 91, 82, 0}}, {30, {158, 68, 9, 60, 44, 0}}, {31, {316, 192, 6, 149, 116, 0}},
    {32, {158, 44, 10, 28, 28, 0}}, {33, {244, 172, 8, 66, 52, 2}}, {34, {266, 108, 8, 66, 64, 8}},
    {35, {228, 146, 8, 70, 58, 4}}, {36, {198, 80, 10, 88, 64, 0}}, {37, {400, 228, 8, 204, 158, 0}},
    {38, {366, 216, 12, 198, 152, 0}}, {39, {310, 149, 11, 153, 113, 2}}, {40, {220, 74, 11, 50, 42, 8}},
    {41, {444, 242, 9, 145, 128, 0}}, {42, {266, 136, 10, 84, 64, 0}}, {43, {532, 352, 9, 209, 168, 0}},
    {44, {326, 200, 11, 44, 40, 0}}, {45, {300, 172, 11, 155, 116, 2}}, {46, {646, 484, 11, 211, 188, 0}},
    {47, {1260, 1058, 9, 390, 358, 0}}, {48, {266, 68, 14, 72, 56, 4}}, {49, {408, 324, 11, 134, 120, 6}},
    {50, {354, 224, 18, 132, 112, 0}}, {51, {448, 196, 16, 150, 130, 2}}, {52, {414, 164, 14, 152, 116, 0}},
    {53, {844, 456, 14, 365, 294, 0}}, {54, {382, 220, 13, 218, 164, 4}}, {55, {472, 338, 14, 110, 94, 4}},
    {56, {368, 158, 14, 70, 62, 0}}, {57, {604, 362, 16, 354, 266, 2}}, {58, {670, 420, 14, 182, 164, 0}},
    {59, {1340, 954, 10, 421, 386, 0}}, {60, {374, 136, 18, 120, 88, 0}}, {61, {762, 415, 14, 312, 247, 0}},
    {62, {694, 384, 21, 297, 232, 0}}, {63, {488, 302, 18, 217, 166, 2}}, {64, {398, 132, 19, 76, 76, 0}},
};

// Inverse (nothing is scaled wide):
const std::map<int, Counts> kPublishedInverse = {
    {2, {2, 0, 0, 0, 0, 0}}, {3, {4, 2, 0, 3, 2, 0}}, {4, {6, 0, 0, 0, 0, 0}}, {5, {12, 8, 0, 5, 4, 0}},
    {6, {14, 4, 0, 6, 4, 0}}, {7, {24, 18, 0, 7, 6, 0}}, {8, {20, 2, 0, 2, 2, 0}}, {9, {32, 18, 0, 20, 14, 0}},
    {10, {34, 16, 0, 10, 8, 0}}, {11, {68, 50, 0, 31, 26, 0}}, {12, {38, 8, 0, 12, 8, 0}},
    {13, {80, 44, 0, 39, 30, 0}}, {14, {62, 36, 0, 14, 12, 0}}, {15, {64, 34, 0, 30, 22, 0}},
    {16, {58, 12, 0, 8, 8, 0}}, {17, {116, 54, 0, 33, 32, 0}}, {18, {82, 36, 0, 40, 28, 0}},
    {19, {164, 110, 0, 101, 78, 0}}, {20, {86, 32, 0, 20, 16, 0}}, {21, {112, 68, 0, 42, 32, 0}},
    {22, {158, 100, 0, 61, 52, 0}}, {23, {284, 242, 0, 67, 62, 0}}, {24, {104, 22, 0, 30, 22, 0}},
    {25, {152, 112, 0, 66, 56, 0}}, {26, {186, 88, 0, 78, 60, 0}}, {27, {164, 100, 0, 98, 72, 0}},
    {28, {150, 72, 0, 28, 24, 0}}, {29, {306, 210, 0, 91, 82, 0}}, {30, {158, 68, 0, 60, 44, 0}},
    {31, {316, 194, 0, 151, 118, 0}}, {32, {156, 42, 0, 26, 26, 0}}, {33, {268, 172, 0, 126, 100, 0}},
    {34, {266, 108, 0, 66, 64, 0}}, {35, {228, 146, 0, 70, 58, 0}}, {36, {198, 72, 0, 80, 56, 0}},
    {37, {402, 236, 0, 211, 164, 0}}, {38, {366, 220, 0, 201, 156, 0}}, {39, {308, 142, 0, 145, 108, 0}},
    {40, {220, 74, 0, 50, 42, 0}}, {41, {444, 242, 0, 145, 128, 0}}, {42, {266, 136, 0, 84, 64, 0}},
    {43, {532, 352, 0, 209, 168, 0}}, {44, {358, 200, 0, 124, 104, 0}}, {45, {300, 162, 0, 145, 106, 0}},
    {46, {614, 484, 0, 133, 124, 0}}, {47, {1260, 1058, 0, 390, 358, 0}}, {48, {270, 72, 0, 76, 60, 0}},
    {49, {408, 324, 0, 134, 120, 0}}, {50, {354, 224, 0, 132, 112, 0}}, {51, {448, 196, 0, 150, 130, 0}},
    {52, {414, 160, 0, 146, 112, 0}}, {53, {840, 450, 0, 363, 292, 0}}, {54, {382, 200, 0, 195, 144, 0}},
    {55, {512, 338, 0, 210, 174, 0}}, {56, {368, 158, 0, 70, 62, 0}}, {57, {604, 368, 0, 358, 272, 0}},
    {58, {670, 420, 0, 181, 164, 0}}, {59, {1340, 954, 0, 421, 386, 0}}, {60, {374, 136, 0, 120, 88, 0}},
    {61, {762, 418, 0, 315, 250, 0}}, {62, {694, 388, 0, 301, 236, 0}}, {63, {488, 300, 0, 215, 164, 0}},
    {64, {400, 134, 0, 78, 78, 0}},
};

// Sizes whose graphs do not give the published counts: what they give, and
// why.  Where the double kernel's additions or negations differ from the
// float kernel's, `double_counts` holds them.
struct Deviation {
    Counts counts;
    const char* why;
    Counts double_counts = {};
};

const char* const kSinSixty =
    "19- and 31-point blocks: the published factors of k = L/6 and L/3 take the sin 60 degrees of the"
    " first transform's three-point blocks; here those bins reach the factors through a later stage "
    "already multiplied (per block two products and two narrowings more, and two widenings, four at "
    "19)";
const char* const kRaderOpen =
    "Rader blocks: no form of the second transform found that gives all the published counts";
const char* const kWidenings =
    "widenings: with blocks of 23 or 29 points at twice their size (forward 46, inverse 58), and in 47 "
    "and 59, the published kernels widen 1 to 5 values fewer";
const char* const kNegation =
    "negations: the published kernel forms one more imaginary part as 0 - s v";
const char* const kThreeCubed =
    "3 x 3 x 3 steps: the published kernels widen one value fewer per 27 points";
const char* const kFortyEight =
    "48: sixteen points on complex data by CT(4,4), transposed, take 2 additions and 4 products (with"
    " their widenings and narrowings) fewer than the published inverse; no other order of its 2 x 2 x"
    " 2 x 2 found gives its counts";

const std::map<int, Deviation> kDeviations = {
    {19, {{164, 110, 3, 103, 78, 0}, kSinSixty}}, {31, {{316, 194, 7, 151, 118, 0}, kSinSixty}},
    {37, {{396, 224, 8, 207, 158, 0}, kRaderOpen}}, {38, {{366, 220, 12, 206, 156, 0}, kSinSixty}},
    {41, {{452, 246, 9, 149, 132, 0}, kRaderOpen}}, {46, {{646, 484, 11, 214, 188, 0}, kWidenings}},
    {47, {{1260, 1058, 9, 395, 358, 0}, kWidenings}}, {53, {{828, 430, 14, 357, 284, 0}, kRaderOpen}},
    {55, {{472, 338, 13, 110, 94, 4}, kNegation}}, {57, {{604, 368, 18, 366, 272, 2}, kSinSixty}},
    {59, {{1340, 954, 10, 423, 386, 0}, kWidenings}},
    {61, {{766, 417, 13, 310, 245, 0}, kRaderOpen, {774, 417, 9, 0, 0, 0}}},
    {62, {{694, 388, 23, 302, 236, 0}, kSinSixty}},
};

const std::map<int, Deviation> kInverseDeviations = {
    {19, {{168, 117, 0, 109, 83, 0}, kRaderOpen}}, {27, {{164, 100, 0, 99, 72, 0}, kThreeCubed}},
    {37, {{396, 220, 0, 203, 154, 0}, kRaderOpen}},
    {38, {{374, 234, 0, 218, 166, 0}, kRaderOpen}}, {39, {{316, 158, 0, 156, 116, 0}, kRaderOpen}},
    {41, {{450, 246, 0, 149, 132, 0}, kRaderOpen, {451, 246, 0, 0, 0, 0}}},
    {47, {{1260, 1058, 0, 395, 358, 0}, kWidenings}},
    {48, {{268, 68, 0, 72, 56, 0}, kFortyEight}}, {52, {{422, 176, 0, 156, 120, 0}, kRaderOpen}},
    {53, {{840, 454, 0, 369, 296, 0}, kRaderOpen}}, {54, {{382, 200, 0, 198, 144, 0}, kThreeCubed}},
    {57, {{616, 389, 0, 384, 287, 0}, kRaderOpen}}, {58, {{670, 420, 0, 182, 164, 0}, kWidenings}},
    {59, {{1340, 954, 0, 423, 386, 0}, kWidenings}}, {61, {{812, 502, 0, 361, 296, 0}, kRaderOpen}},
};

// Hartley (nothing is scaled wide, nothing negated):
const std::map<int, Counts> kPublishedHartley = {
    {2, {2, 0, 0, 0, 0, 0}}, {3, {6, 2, 0, 3, 2, 0}}, {4, {8, 0, 0, 0, 0, 0}}, {5, {16, 8, 0, 5, 4, 0}},
    {6, {18, 4, 0, 6, 4, 0}}, {7, {30, 18, 0, 7, 6, 0}}, {8, {26, 2, 0, 2, 2, 0}}, {9, {40, 20, 0, 22, 16, 0}},
    {10, {42, 16, 0, 10, 8, 0}}, {11, {70, 50, 0, 11, 10, 0}}, {12, {48, 8, 0, 12, 8, 0}},
    {13, {92, 44, 0, 39, 30, 0}}, {14, {74, 36, 0, 14, 12, 0}}, {15, {78, 34, 0, 30, 22, 0}},
    {16, {72, 12, 0, 8, 8, 0}}, {17, {132, 54, 0, 33, 32, 0}}, {18, {98, 36, 0, 40, 28, 0}},
    {19, {182, 108, 0, 99, 76, 0}}, {20, {104, 32, 0, 20, 16, 0}}, {21, {132, 68, 0, 42, 32, 0}},
    {22, {162, 100, 0, 22, 20, 0}}, {23, {306, 242, 0, 67, 62, 0}}, {24, {126, 22, 0, 30, 22, 0}},
    {25, {176, 112, 0, 66, 56, 0}}, {26, {206, 82, 0, 76, 58, 0}}, {27, {190, 100, 0, 98, 72, 0}},
    {28, {176, 72, 0, 28, 24, 0}}, {29, {334, 210, 0, 91, 82, 0}}, {30, {186, 68, 0, 60, 44, 0}},
    {31, {346, 194, 0, 151, 118, 0}}, {32, {186, 42, 0, 26, 26, 0}}, {33, {300, 172, 0, 126, 100, 0}},
    {34, {298, 108, 0, 66, 64, 0}}, {35, {262, 146, 0, 70, 58, 0}}, {36, {232, 72, 0, 80, 56, 0}},
    {37, {438, 236, 0, 211, 164, 0}}, {38, {402, 216, 0, 198, 152, 0}}, {39, {348, 149, 0, 153, 113, 0}},
    {40, {258, 74, 0, 50, 42, 0}}, {41, {484, 242, 0, 145, 128, 0}}, {42, {306, 136, 0, 84, 64, 0}},
    {43, {574, 352, 0, 209, 168, 0}}, {44, {400, 200, 0, 124, 104, 0}}, {45, {344, 162, 0, 145, 106, 0}},
    {46, {658, 484, 0, 134, 124, 0}}, {47, {1306, 1058, 0, 390, 358, 0}}, {48, {316, 72, 0, 76, 60, 0}},
    {49, {456, 324, 0, 134, 120, 0}}, {50, {402, 224, 0, 132, 112, 0}}, {51, {498, 196, 0, 150, 130, 0}},
    {52, {464, 164, 0, 152, 116, 0}}, {53, {892, 450, 0, 363, 292, 0}}, {54, {434, 200, 0, 196, 144, 0}},
    {55, {566, 338, 0, 210, 174, 0}}, {56, {422, 158, 0, 70, 62, 0}}, {57, {660, 362, 0, 354, 266, 0}},
    {58, {726, 420, 0, 182, 164, 0}}, {59, {1398, 954, 0, 421, 386, 0}}, {60, {432, 136, 0, 120, 88, 0}},
    {61, {822, 415, 0, 312, 247, 0}}, {62, {754, 388, 0, 301, 236, 0}}, {63, {550, 302, 0, 217, 166, 0}},
    {64, {462, 134, 0, 78, 78, 0}},
};

// The pair-stage Hartley kernels carry their forward kernel's deviation, the
// pairs-first ones the inverse kernel's of the same rule.

const std::map<int, Deviation> kHartleyDeviations = {
    {19, {{182, 110, 0, 103, 78, 0}, kSinSixty}}, {27, {{190, 100, 0, 99, 72, 0}, kThreeCubed}},
    {37, {{432, 220, 0, 203, 154, 0}, kRaderOpen}}, {38, {{402, 220, 0, 206, 156, 0}, kSinSixty}},
    {41, {{492, 246, 0, 149, 132, 0}, kRaderOpen}}, {47, {{1306, 1058, 0, 395, 358, 0}, kWidenings}},
    {48, {{314, 68, 0, 72, 56, 0}, kFortyEight}}, {53, {{892, 454, 0, 369, 296, 0}, kRaderOpen}},
    {54, {{434, 200, 0, 198, 144, 0}, kThreeCubed}}, {57, {{660, 368, 0, 366, 272, 0}, kSinSixty}},
    {59, {{1398, 954, 0, 423, 386, 0}, kWidenings}},
    {61, {{826, 417, 0, 310, 245, 0}, kRaderOpen, {834, 417, 0, 0, 0, 0}}},
};

Counts counts_of(const RealKernel& k)
{
    const vtxgen::Counts c = k.model.build().count();
    return {c.additions, c.multiplications, c.negations, c.widen, c.narrow, c.scaled_wide};
}

// The CCS kernel of each size has the published counts (or its recorded
// deviation), double kernels with nothing widened or narrowed; Pack and Perm
// kernels have their CCS kernel's counts.
void checkCounts(const std::vector<RealKernel>& kernels, const std::map<int, Counts>& published,
                 const std::map<int, Deviation>& deviations)
{
    for (const RealKernel& k : kernels) {
        const Counts got = counts_of(k);
        if (k.layout() != Layout::CCS) {
            Counts want = counts_of(kernel(k.size(), k.single(), Layout::CCS, k.model.direction));
            want.widen += pack_widens_one_more(k);
            EXPECT_EQ(got, want) << k.name() << " against CCS";
            continue;
        }
        Counts want = published.at(k.size());
        if (const auto it = deviations.find(k.size()); it != deviations.end()) {
            EXPECT_FALSE(it->second.counts == want) << k.name() << ": meets the published counts, drop its deviation";
            want = it->second.counts;
            if (!k.single() && it->second.double_counts.add) {
                want.add = it->second.double_counts.add;
                want.neg = it->second.double_counts.neg;
            }
            if (k.single())
                ::testing::Test::RecordProperty("deviation_" + k.name(), it->second.why);
        }
        if (!k.single())
            want.widen = want.narrow = want.wide = 0;
        EXPECT_EQ(got, want) << k.name();
    }
}

TEST(RealCounts, ForwardMatchThePublishedTable)
{
    checkCounts(vtxtest::real_kernels(Direction::Forward), kPublishedForward, kDeviations);
}
TEST(RealCounts, InverseMatchThePublishedTable)
{
    checkCounts(vtxtest::real_kernels(Direction::Inverse), kPublishedInverse, kInverseDeviations);
}
TEST(RealCounts, HartleyMatchThePublishedTable)
{
    checkCounts(vtxtest::hartley_kernels(), kPublishedHartley, kHartleyDeviations);
}

// The bins 0 < k < N/2 are doubled first, but where a doubled bin would
// meet one product only, the 2 goes into that product's constant: at N = 3
// Im(1) meets 2 sin(2 pi / 3) = 1.7320508075688772, and in each 17-point
// block two imaginary parts meet the eighth turn of its first transform.
TEST(RealCounts, InverseFoldsTheDoublingsThatMeetOneProduct)
{
    const std::map<int, int> folds = {{3, 1},  {9, 1},  {12, 2}, {15, 1}, {17, 2}, {21, 1}, {27, 1},
                                      {30, 2}, {33, 1}, {34, 4}, {51, 1}, {54, 2}, {57, 1}, {63, 1}};
    for (const RealKernel& k : vtxtest::real_kernels(Direction::Inverse)) {
        const int folded = folds.count(k.size()) ? folds.at(k.size()) : 0;
        EXPECT_EQ(static_cast<int>(k.model.folded_doublings().size()), folded) << k.name();
        EXPECT_EQ(k.model.build().count().doublings, 2 * ((k.size() + 1) / 2 - 1) - folded) << k.name();
    }
    const vtxgen::Graph three = kernel(3, false, Layout::CCS, Direction::Inverse).model.build();
    EXPECT_TRUE(std::any_of(three.nodes().begin(), three.nodes().end(), [](const vtxgen::Node& n) {
        return n.op == vtxgen::Op::Const && n.value[0] == 1.7320508075688772;
    }));
}

}  // namespace
