// Inverse kernels against their forward kernels, and the size dispatchers.
//
// An inverse kernel is generated from its forward kernel's rule with the
// sign of the exponent reversed: the same counts and the same constant
// magnitudes, and a round trip returns the input.  Where the two kernels
// associate every sum alike, three identities hold bit for bit (flag 8):
//   mirror     I(x)[k] = F(x)[(N-k) mod N]
//   swap       I(x) = swap(F(swap(x))), real and imaginary parts exchanged
//   conjugate  I(x) = conj(F(conj(x)))
#include "support.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <map>
#include <set>
#include <string>

namespace {

using vtxgen::Direction;
using vtxtest::ComplexKernel;
using vtxtest::run_kernel;

struct Pair {
    const ComplexKernel* fwd;
    const ComplexKernel* inv;
    std::string name() const { return std::to_string(fwd->size()) + (fwd->single() ? "_32fc" : "_64fc"); }
};

std::vector<Pair> pairs()
{
    std::vector<Pair> out;
    const auto& all = vtxtest::complex_kernels();
    for (const ComplexKernel& f : all)
        if (f.model.direction == Direction::Forward)
            for (const ComplexKernel& i : all)
                if (i.model.direction == Direction::Inverse && i.size() == f.size() && i.single() == f.single())
                    out.push_back({&f, &i});
    return out;
}

void PrintTo(const Pair& p, std::ostream* os) { *os << p.name(); }

class Inverse : public ::testing::TestWithParam<Pair> {};

// Magnitudes of the constants that reach a store.
std::set<double> magnitudes(const vtxgen::Graph& g)
{
    const auto live = g.live_lanes();
    std::set<double> m;
    for (std::size_t i = 0; i < g.nodes().size(); ++i) {
        const vtxgen::Node& n = g.nodes()[i];
        if (n.op == vtxgen::Op::Const && live[i])
            for (int l = 0; l < n.width; ++l)
                if (live[i] >> l & 1)
                    m.insert(std::fabs(n.value[static_cast<std::size_t>(l)]));
    }
    return m;
}

TEST_P(Inverse, SameCountsAndConstantMagnitudes)
{
    const Pair& p = GetParam();
    const vtxgen::Graph f = p.fwd->model.build(), i = p.inv->model.build();
    EXPECT_EQ(p.fwd->model.rule.text(), p.inv->model.rule.text());
    const vtxgen::Counts cf = f.count(), ci = i.count();
    EXPECT_EQ(ci.additions, cf.additions) << p.inv->name();
    EXPECT_EQ(ci.multiplications, cf.multiplications) << p.inv->name();
    EXPECT_EQ(ci.exchanges, cf.exchanges) << p.inv->name();
    EXPECT_EQ(magnitudes(i), magnitudes(f)) << p.inv->name();
}

// Forward then inverse with flags 1 and 1, 2 and 2, 4 and 4.
TEST_P(Inverse, RoundTripReturnsTheInput)
{
    const Pair& p = GetParam();
    const double tolerance = p.fwd->single() ? 1e-5 : 1e-14;
    const int flags[][2] = {{vtxScaleForward, vtxScaleForward},
                            {vtxScaleInverse, vtxScaleInverse},
                            {vtxScaleSymmetric, vtxScaleSymmetric}};
    for (std::uint32_t seed = 0; seed < 4; ++seed) {
        const auto x = vtxtest::fixed_input(p.fwd->components(), seed, p.fwd->single());
        for (const auto& f : flags) {
            const auto y = run_kernel(*p.inv, run_kernel(*p.fwd, x, f[0]), f[1]);
            for (std::size_t c = 0; c < x.size(); ++c)
                ASSERT_NEAR(y[c], x[c], tolerance) << p.name() << ", flags " << f[0] << " then " << f[1];
        }
    }
}

// ---------------------------------------------------------- the identities

enum Identity { Mirror = 1, Swap = 2, Conjugate = 4 };

std::string identity_names(int set)
{
    std::string s;
    for (auto [bit, name] : {std::pair{Mirror, "mirror"}, {Swap, "swap"}, {Conjugate, "conjugate"}})
        if (set & bit)
            s += (s.empty() ? "" : ", ") + std::string(name);
    return s.empty() ? "none" : s;
}

std::uint64_t bits(double v, bool single)
{
    if (single) {
        const float f = static_cast<float>(v);
        std::uint32_t b;
        std::memcpy(&b, &f, 4);
        return b;
    }
    std::uint64_t b;
    std::memcpy(&b, &v, 8);
    return b;
}

// The identities that hold bit for bit on 64 inputs.
int identities_holding(const Pair& p)
{
    const int n = p.fwd->size();
    const bool single = p.fwd->single();
    int holds = Mirror | Swap | Conjugate;
    auto same = [&](const std::vector<double>& a, const std::vector<double>& b) {
        for (std::size_t c = 0; c < a.size(); ++c)
            if (bits(a[c], single) != bits(b[c], single))
                return false;
        return true;
    };
    for (std::uint32_t seed = 0; seed < 64 && holds; ++seed) {
        const auto x = vtxtest::fixed_input(2 * n, seed, single);
        const auto fx = run_kernel(*p.fwd, x, vtxScaleNone), ix = run_kernel(*p.inv, x, vtxScaleNone);
        std::vector<double> mirrored(fx.size()), swapped_in(x.size()), conj_in(x.size());
        for (int k = 0; k < n; ++k) {
            mirrored[2 * k] = fx[2 * ((n - k) % n)];
            mirrored[2 * k + 1] = fx[2 * ((n - k) % n) + 1];
            swapped_in[2 * k] = x[2 * k + 1];
            swapped_in[2 * k + 1] = x[2 * k];
            conj_in[2 * k] = x[2 * k];
            conj_in[2 * k + 1] = -x[2 * k + 1];
        }
        auto fs = run_kernel(*p.fwd, swapped_in, vtxScaleNone), fc = run_kernel(*p.fwd, conj_in, vtxScaleNone);
        for (int k = 0; k < n; ++k) {
            std::swap(fs[2 * k], fs[2 * k + 1]);
            fc[2 * k + 1] = -fc[2 * k + 1];
        }
        if (!same(ix, mirrored))
            holds &= ~Mirror;
        if (!same(ix, fs))
            holds &= ~Swap;
        if (!same(ix, fc))
            holds &= ~Conjugate;
    }
    return holds;
}

// The published identity table: what holds in the published build.
int published_identities(int n, bool single)
{
    auto in = [n](std::initializer_list<int> sizes) {
        for (int s : sizes)
            if (s == n)
                return true;
        return false;
    };
    const int all = Mirror | Swap | Conjugate;
    if (single) {
        if (in({9, 18, 24, 25, 27, 32, 36, 38, 45, 48, 49, 50, 54, 57, 58, 60, 63, 64}))
            return Swap | Conjugate;
        if (in({22, 33, 44, 55, 62}))
            return Swap;
        if (in({23}))
            return Mirror | Conjugate;
        if (in({19, 37, 61}))
            return Mirror;
        if (in({47, 59}))
            return 0;
        return all;
    }
    return in({11, 22, 23, 25, 29, 31, 33, 43, 44, 46, 47, 49, 50, 55, 58, 59, 61, 62}) ? 0 : all;
}

// Every identity of the published table holds bit for bit on 64 inputs.
// This build holds more: in the rows below its forward and inverse kernels
// associate every sum alike, so all three hold where the published build
// has fewer.  Any other row must agree with the table exactly.
TEST_P(Inverse, IdentitiesAgainstThePublishedTable)
{
    const Pair& p = GetParam();
    static const std::set<int> all_three_float{22, 23, 33, 38, 44, 55, 57, 58, 62},
        all_three_double{11, 22, 23, 25, 29, 31, 33, 43, 44, 46, 47, 49, 50, 55, 58, 59, 61, 62};
    const int n = p.fwd->size();
    const int here = identities_holding(p), published = published_identities(n, p.fwd->single());
    RecordProperty("identities", identity_names(here));
    EXPECT_EQ(here & published, published) << p.name() << ": holds " << identity_names(here) << ", published "
                                           << identity_names(published);
    const bool more = (p.fwd->single() ? all_three_float : all_three_double).count(n) > 0;
    EXPECT_EQ(identity_names(here), identity_names(more ? Mirror | Swap | Conjugate : published)) << p.name();
}

INSTANTIATE_TEST_SUITE_P(Complex, Inverse, ::testing::ValuesIn(pairs()),
                         [](const ::testing::TestParamInfo<Pair>& info) { return info.param.name(); });

// ---------------------------------------------------------- the dispatchers

struct Entry {
    const char* name;
    Direction direction;
    bool single;
    void* fn;
};

const Entry kDispatchers[] = {
    {"vtxgDFTFwd_CToC_32fc", Direction::Forward, true, reinterpret_cast<void*>(&vtxgDFTFwd_CToC_32fc)},
    {"vtxgDFTFwd_CToC_64fc", Direction::Forward, false, reinterpret_cast<void*>(&vtxgDFTFwd_CToC_64fc)},
    {"vtxgDFTInv_CToC_32fc", Direction::Inverse, true, reinterpret_cast<void*>(&vtxgDFTInv_CToC_32fc)},
    {"vtxgDFTInv_CToC_64fc", Direction::Inverse, false, reinterpret_cast<void*>(&vtxgDFTInv_CToC_64fc)},
};

vtxStatus dispatch(const Entry& e, const void* src, void* dst, int n, int flag)
{
    using D = vtxStatus (*)(const void*, void*, int, int);
    return reinterpret_cast<D>(e.fn)(src, dst, n, flag);
}

// In range, a dispatcher returns what the kernel of that size returns, with
// the same bits, for good and bad flags, null pointers and misalignment.
TEST(Dispatch, EverySizeReachesItsKernel)
{
    for (const Entry& e : kDispatchers)
        for (const ComplexKernel& k : vtxtest::complex_kernels()) {
            if (k.model.direction != e.direction || k.single() != e.single)
                continue;
            const std::size_t bytes = static_cast<std::size_t>(k.components() * k.component_bytes());
            const auto x = vtxtest::fixed_input(k.components(), 7, k.single());
            for (int flag : {int(vtxScaleForward), int(vtxScaleInverse), int(vtxScaleSymmetric), int(vtxScaleNone), 3})
                for (std::size_t misalign : {0, 4}) {
                    vtxtest::Buffer src(bytes), direct(bytes), via(bytes);
                    src.put(misalign, x, k.single());
                    const vtxStatus want = k(src.at(misalign), direct.at(0), flag);
                    ASSERT_EQ(dispatch(e, src.at(misalign), via.at(0), k.size(), flag), want) << e.name << " " << k.size();
                    ASSERT_EQ(via.raw(), direct.raw()) << e.name << " size " << k.size() << " flag " << flag;
                }
            vtxtest::Buffer dst(bytes);
            EXPECT_EQ(dispatch(e, nullptr, dst.at(0), k.size(), vtxScaleNone), vtxStatusNullPointer) << e.name;
            EXPECT_EQ(dst.changed(), "") << e.name;
        }
}

// Out of range, the size is refused before anything else is looked at.
TEST(Dispatch, SizesOutsideTwoToSixtyFourAreRefusedFirst)
{
    for (const Entry& e : kDispatchers)
        for (int n : {1, 0, -1, 65, 66, 1000, INT_MAX, INT_MIN, INT_MIN + 1}) {
            vtxtest::Buffer src(1024), dst(1024);
            for (int flag : {int(vtxScaleNone), 99}) {
                EXPECT_EQ(dispatch(e, nullptr, nullptr, n, flag), vtxStatusSizeError) << e.name << " " << n;
                EXPECT_EQ(dispatch(e, src.at(4), dst.at(0), n, flag), vtxStatusSizeError) << e.name << " " << n;
            }
            EXPECT_EQ(dst.changed(), "") << e.name << " " << n;
        }
}

}  // namespace
