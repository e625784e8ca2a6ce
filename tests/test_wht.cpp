// The Walsh-Hadamard kernels and their general entries, with the core
// library's vtxMalloc and vtxFree replaced by this executable's own
// (exported, so the dynamic linker binds the library to them): every test
// knows how often the library allocated, how much, and whether it gave the
// block back.
//
// Oracles: the definition in long double (exact on integer inputs), a plain
// stage-by-stage transform in the kernel's precision (the same operations in
// the same order, so equal bit for bit on any input), and the generator's own
// graphs.
#include "support.hpp"
#include "vtxcore.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

struct Allocations {
    int mallocs = 0, frees = 0;
    int last_size = -1;
    void* last_block = nullptr;
    void* last_freed = nullptr;
} g_alloc;

}  // namespace

extern "C" VTXCOREAPI void* vtxMalloc(int size)
{
    ++g_alloc.mallocs;
    g_alloc.last_size = size;
    g_alloc.last_block = std::aligned_alloc(64, (static_cast<std::size_t>(size) + 63) / 64 * 64);
    return g_alloc.last_block;
}

extern "C" VTXCOREAPI void vtxFree(void* ptr)
{
    ++g_alloc.frees;
    g_alloc.last_freed = ptr;
    std::free(ptr);
}

namespace {

using vtxtest::Buffer;
using vtxtest::WhtKernel;

const int kGoodFlags[] = {vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric, vtxScaleNone};
const int kBadFlags[] = {0, 3, 5, 7, 9, 16, -1, 99, INT_MIN, INT_MAX};

// The factor of a flag, as the library forms it from n alone.
double scale_of(const WhtKernel& k, int flag)
{
    const double n = k.length();
    const double s = flag == vtxScaleNone ? 1.0 : flag == vtxScaleSymmetric ? 1.0 / std::sqrt(n) : 1.0 / n;
    return k.single() ? static_cast<float>(s) : s;
}

// The definition: y[k] = sum_j (-1)^popcount(j & k) x[j], unscaled.
std::vector<long double> definition(const std::vector<double>& x)
{
    const std::size_t n = x.size();
    std::vector<long double> y(n);
    for (std::size_t k = 0; k < n; ++k) {
        long double sum = 0;
        for (std::size_t j = 0; j < n; ++j)
            sum += std::popcount(j & k) & 1 ? -static_cast<long double>(x[j]) : static_cast<long double>(x[j]);
        y[k] = sum;
    }
    return y;
}

// Stage by stage from bit 0 upward, then the scale, in the kernel's precision.
template <class Real>
std::vector<double> stages(const std::vector<double>& x, double s)
{
    std::vector<Real> v(x.begin(), x.end());
    for (std::size_t d = 1; d < v.size(); d <<= 1)
        for (std::size_t j = 0; j < v.size(); ++j)
            if (!(j & d)) {
                const Real a = v[j], b = v[j + d];
                v[j] = a + b;
                v[j + d] = a - b;
            }
    std::vector<double> y(v.size());
    for (std::size_t j = 0; j < v.size(); ++j)
        y[j] = static_cast<Real>(v[j] * static_cast<Real>(s));
    return y;
}

std::vector<double> stage_reference(const WhtKernel& k, const std::vector<double>& x, int flag)
{
    return k.single() ? stages<float>(x, scale_of(k, flag)) : stages<double>(x, scale_of(k, flag));
}

std::vector<double> integers(const WhtKernel& k, std::uint32_t seed)
{
    std::vector<double> x = vtxtest::fixed_input(k.length(), seed, k.single());
    for (double& v : x)
        v = std::round(v * 500) + 0.0;  // no negative zeros
    return x;
}

std::vector<double> random_input(const WhtKernel& k, std::uint32_t seed)
{
    return vtxtest::fixed_input(k.length(), seed, k.single());
}

// The first element where two outputs differ bit for bit, or "".
std::string first_difference(const WhtKernel& k, const std::vector<double>& got, const std::vector<double>& want)
{
    for (std::size_t i = 0; i < want.size(); ++i)
        if (std::bit_cast<std::uint64_t>(got[i]) != std::bit_cast<std::uint64_t>(want[i])) {
            char buf[128];
            std::snprintf(buf, sizeof buf, "y[%zu] = %a (%.17g), expected %a (%.17g)", i, got[i], got[i], want[i],
                          want[i]);
            return k.name() + ": " + buf;
        }
    return {};
}

// Where the source and destination start, in bytes past a 16-byte boundary,
// and whose buffer the blocked orders use.
struct Placement {
    const char* name;
    std::size_t src, dst;
    bool in_place;
    bool caller_buffer;
};

const Placement kPlacements[] = {
    {"aligned, own buffer", 0, 0, false, false},
    {"aligned, caller's buffer", 0, 0, false, true},
    {"src+4", 4, 0, false, true},
    {"dst+4", 0, 4, false, false},
    {"src+4 dst+4", 4, 4, false, true},
    {"src+8", 8, 0, false, false},
    {"dst+8", 0, 8, false, true},
    {"src+8 dst+8", 8, 8, false, false},
    {"src+12 dst+4", 12, 4, false, true},
    {"in place", 0, 0, true, true},
    {"in place, own buffer", 0, 0, true, false},
    {"in place +4", 4, 4, true, false},
    {"in place +8", 8, 8, true, true},
};

enum class Null { None, Src, Dst, Both };

// One call on guarded buffers, with what it did to memory and the allocator.
struct Call {
    vtxStatus status = vtxStatusOk;
    std::vector<double> out;
    std::string damage;  // "" or the first thing changed that may not change
    int mallocs = 0, frees = 0;
};

Call call(const WhtKernel& k, const Placement& p, const std::vector<double>& x, int flag, Null null = Null::None)
{
    const std::size_t n = k.bytes();
    const std::size_t work_bytes = static_cast<std::size_t>(k.model.buffer_bytes());
    Buffer src(n), dst(n), work(work_bytes);
    src.put(p.src, x, k.single());
    const std::vector<unsigned char> src_before = src.raw();
    Buffer& out = p.in_place ? src : dst;
    const void* s = null == Null::Src || null == Null::Both ? nullptr : src.at(p.src);
    void* d = null == Null::Dst || null == Null::Both ? nullptr : out.at(p.dst);

    const Allocations before = g_alloc;
    Call c;
    c.status = k(s, d, flag, p.caller_buffer ? work.at(0) : nullptr);
    c.mallocs = g_alloc.mallocs - before.mallocs;
    c.frees = g_alloc.frees - before.frees;
    c.out = out.get(p.dst, k.length(), k.single());
    const bool ok = c.status == vtxStatusOk;
    c.damage = vtxtest::damage(src, src_before, dst, p.src, p.dst, n, p.in_place, ok);
    if (c.damage.empty())
        c.damage = work.changed_outside(0, work_bytes);
    if (c.damage.empty() && !ok && p.caller_buffer)
        c.damage = work.changed();
    return c;
}

std::vector<double> run(const WhtKernel& k, const std::vector<double>& x, int flag)
{
    const Call c = call(k, kPlacements[0], x, flag);
    EXPECT_EQ(c.status, vtxStatusOk) << k.name() << " flag " << flag;
    return c.out;
}

class Wht : public ::testing::TestWithParam<WhtKernel> {};

// Integer inputs: every partial sum is exact, so each output is the exact
// sum rounded once by the scale, in every flag (1 and 2 alike).  Random inputs: the stage
// reference bit for bit, and the definition within the rounding of N stages.
TEST_P(Wht, MatchesTheDefinitionAndTheStageReference)
{
    const WhtKernel& k = GetParam();
    const long double eps = k.single() ? std::numeric_limits<float>::epsilon() : std::numeric_limits<double>::epsilon();
    for (std::uint32_t seed : {1u, 2u}) {
        const std::vector<double> xi = integers(k, seed), xr = random_input(k, seed);
        const std::vector<long double> exact = definition(xi), accurate = definition(xr);
        long double magnitude = 0;
        for (double v : xr)
            magnitude += std::fabs(v);
        for (int flag : kGoodFlags) {
            const double s = scale_of(k, flag);
            const std::vector<double> yi = run(k, xi, flag), yr = run(k, xr, flag);
            std::vector<double> want(exact.size());
            for (std::size_t i = 0; i < want.size(); ++i)
                want[i] = k.single() ? static_cast<float>(exact[i]) * static_cast<float>(s)
                                     : static_cast<double>(exact[i]) * s;
            ASSERT_EQ(first_difference(k, yi, want), "") << "integer input " << seed << ", flag " << flag;
            ASSERT_EQ(first_difference(k, yr, stage_reference(k, xr, flag)), "")
                << "random input " << seed << ", flag " << flag;
            const long double bound = (k.order() + 1) * eps * magnitude * s;
            for (std::size_t i = 0; i < yr.size(); ++i)
                ASSERT_LE(std::fabs(yr[i] - accurate[i] * s), bound)
                    << k.name() << " y[" << i << "], random input " << seed << ", flag " << flag;
        }
    }
}

// The generator's graphs run on an array: a straight-line kernel once; the
// pieces of a blocked kernel in pass order, each on every block it covers
// (a Rows piece of 2^b rows `stride` apart on each vector-wide column).
std::vector<double> evaluate_model(const WhtKernel& k, std::vector<double> v, double s)
{
    if (k.model.passes.empty()) {
        std::vector<double> y(v.size());
        k.model.build().evaluate(v, y, s);
        return y;
    }
    const std::size_t lanes = k.single() ? 4 : 2;
    for (const vtxgen::WhtPiece& piece : k.model.pieces()) {
        const vtxgen::Graph g = piece.build();
        const std::size_t rows = std::size_t(1) << piece.order;
        const bool block = piece.kind == vtxgen::WhtPiece::Kind::Block;
        const std::size_t span = block ? rows : (rows - 1) * piece.stride + lanes;
        for (std::size_t base = 0; base < v.size(); base += block ? rows : lanes) {
            if (!block && (base / piece.stride) % rows != 0) {
                base += (rows - 1) * piece.stride - lanes;  // to the next group of rows
                continue;
            }
            std::vector<double> in(v.begin() + base, v.begin() + base + span), out = in;
            g.evaluate(in, out, s);
            std::copy(out.begin(), out.end(), v.begin() + base);
        }
    }
    return v;
}

// The compiled kernel is the generator's graphs, bit for bit.
TEST_P(Wht, KernelEqualsItsGraphs)
{
    const WhtKernel& k = GetParam();
    for (int flag : kGoodFlags) {
        const std::vector<double> x = random_input(k, 7);
        ASSERT_EQ(first_difference(k, run(k, x, flag), evaluate_model(k, x, scale_of(k, flag))), "")
            << "flag " << flag;
    }
}

// A single 1 at x[j] gives row j of the matrix times s.
TEST_P(Wht, UnitInputGivesARow)
{
    const WhtKernel& k = GetParam();
    const int n = k.length();
    for (int j : {0, 1, 2, n / 2 - 1, n / 2, n - 1, (n * 5 / 7) | 1}) {
        if (j < 0 || j >= n)
            continue;
        std::vector<double> x(static_cast<std::size_t>(n), 0.0);
        x[static_cast<std::size_t>(j)] = 1.0;
        for (int flag : {vtxScaleInverse, vtxScaleSymmetric}) {
            const double s = scale_of(k, flag);
            std::vector<double> row(x.size());
            for (std::size_t i = 0; i < row.size(); ++i)
                row[i] = std::popcount(i & static_cast<std::size_t>(j)) & 1 ? -s : s;
            ASSERT_EQ(first_difference(k, run(k, x, flag), row), "") << "x[" << j << "] = 1, flag " << flag;
        }
    }
}

// Twice with flag 4, or flag 1 then flag 8, returns the input: exactly on
// integers (up to 500) where every partial sum of the second transform fits
// the precision (9 + 2N bits) and the factors are powers of two, within
// rounding elsewhere.
TEST_P(Wht, TransformTwiceReturnsTheInput)
{
    const WhtKernel& k = GetParam();
    const std::vector<double> x = integers(k, 3);
    const bool exact = 9 + 2 * k.order() <= (k.single() ? 24 : 53);
    const double tolerance = (k.single() ? 1e-6 : 1e-15) * 500 * k.order();
    const std::pair<int, int> trips[] = {{vtxScaleForward, vtxScaleNone},
                                         {vtxScaleNone, vtxScaleInverse},
                                         {vtxScaleSymmetric, vtxScaleSymmetric}};
    for (const auto& [first, second] : trips) {
        const std::vector<double> back = run(k, run(k, x, first), second);
        if (exact && (first != vtxScaleSymmetric || k.order() % 2 == 0)) {
            EXPECT_EQ(first_difference(k, back, x), "") << "flags " << first << ", " << second;
            continue;
        }
        for (std::size_t i = 0; i < x.size(); ++i)
            ASSERT_NEAR(back[i], x[i], tolerance) << k.name() << " x[" << i << "], flags " << first << ", " << second;
    }
}

// Every placement, buffer choice and in-place call gives the aligned call's
// bits, writes nothing outside the destination (and the buffer), and takes
// exactly one block of the table's size from vtxMalloc when, and only when,
// a blocked order is given no buffer.
TEST_P(Wht, PlacementsAndBuffersGiveTheSameBits)
{
    const WhtKernel& k = GetParam();
    const bool blocked = k.order() >= 8;
    int expected_bytes = -1;
    ASSERT_EQ((k.single() ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(k.order(), &expected_bytes),
              vtxStatusOk);
    for (int flag : kGoodFlags) {
        const std::vector<double> x = random_input(k, 11);
        const std::vector<double> want = stage_reference(k, x, flag);
        for (const Placement& p : kPlacements) {
            g_alloc.last_size = -1;
            const Call c = call(k, p, x, flag);
            ASSERT_EQ(c.status, vtxStatusOk) << k.name() << " " << p.name;
            ASSERT_EQ(c.damage, "") << k.name() << " " << p.name << ", flag " << flag;
            ASSERT_EQ(first_difference(k, c.out, want), "") << p.name << ", flag " << flag;
            const int allocations = blocked && !p.caller_buffer ? 1 : 0;
            ASSERT_EQ(c.mallocs, allocations) << k.name() << " " << p.name;
            ASSERT_EQ(c.frees, allocations) << k.name() << " " << p.name;
            if (allocations) {
                EXPECT_EQ(g_alloc.last_size, expected_bytes) << k.name() << " " << p.name;
                EXPECT_EQ(g_alloc.last_freed, g_alloc.last_block) << k.name() << " frees another block";
            }
        }
    }
}

// Statuses and their precedence: a null pointer beats a bad flag, on the
// aligned and the unaligned path; nothing written, nothing allocated.
TEST_P(Wht, FailuresWriteNothingAndAllocateNothing)
{
    const WhtKernel& k = GetParam();
    const std::vector<double> x = random_input(k, 5);
    for (const Placement& p : kPlacements) {
        for (Null null : {Null::Src, Null::Dst, Null::Both})
            for (int flag : {int(vtxScaleNone), 3, 99}) {
                const Call c = call(k, p, x, flag, null);
                EXPECT_EQ(c.status, vtxStatusNullPointer) << k.name() << " " << p.name << ", flag " << flag;
                EXPECT_EQ(c.damage, "") << k.name() << " " << p.name;
                EXPECT_EQ(c.mallocs + c.frees, 0) << k.name() << " " << p.name;
            }
        for (int flag : kBadFlags) {
            const Call c = call(k, p, x, flag);
            EXPECT_EQ(c.status, vtxStatusFlagError) << k.name() << " " << p.name << ", flag " << flag;
            EXPECT_EQ(c.damage, "") << k.name() << " " << p.name << ", flag " << flag;
            EXPECT_EQ(c.mallocs + c.frees, 0) << k.name() << " " << p.name;
        }
    }
}

// The general entry calls the kernel of the order: the same bits, statuses
// and allocations.
TEST_P(Wht, GeneralEntryCallsTheKernel)
{
    const WhtKernel& k = GetParam();
    const std::vector<double> x = random_input(k, 13);
    const std::size_t n = k.bytes();
    Buffer src(n), dst(n);
    src.put(0, x, k.single());
    const int before = g_alloc.mallocs;
    const vtxStatus status =
        k.single() ? vtxgWHT_32f(reinterpret_cast<const vtx32f*>(src.at(0)), reinterpret_cast<vtx32f*>(dst.at(4)),
                                 k.order(), vtxScaleSymmetric, nullptr)
                   : vtxgWHT_64f(reinterpret_cast<const vtx64f*>(src.at(0)), reinterpret_cast<vtx64f*>(dst.at(8)),
                                 k.order(), vtxScaleSymmetric, nullptr);
    ASSERT_EQ(status, vtxStatusOk);
    EXPECT_EQ(g_alloc.mallocs - before, k.order() >= 8 ? 1 : 0);
    EXPECT_EQ(first_difference(k, dst.get(k.single() ? 4 : 8, k.length(), k.single()), run(k, x, vtxScaleSymmetric)),
              "");
    vtx32f f = 0;
    vtx64f d = 0;
    EXPECT_EQ(k.single() ? vtxgWHT_32f(nullptr, &f, k.order(), 7, nullptr)
                         : vtxgWHT_64f(nullptr, &d, k.order(), 7, nullptr),
              vtxStatusNullPointer);
    EXPECT_EQ(k.single() ? vtxgWHT_32f(&f, &f, k.order(), 7, nullptr) : vtxgWHT_64f(&d, &d, k.order(), 7, nullptr),
              vtxStatusFlagError);
}

// Operation counts: N 2^(N-1) additions, as many subtractions, 2^N scale
// products and nothing else; in blocked orders summed over the pieces of the
// passes, which cover the order exactly and scale only in the last.
TEST_P(Wht, OperationCounts)
{
    const WhtKernel& k = GetParam();
    std::vector<std::pair<vtxgen::Graph, int>> parts;  // graph, calls
    if (k.model.passes.empty()) {
        parts.emplace_back(k.model.build(), 1);
    } else {
        int orders = 0;
        const auto pieces = k.model.pieces();
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            EXPECT_EQ(pieces[i].scaled, i + 1 == pieces.size()) << pieces[i].name();
            orders += pieces[i].order;
            parts.emplace_back(pieces[i].build(), pieces[i].calls(k.order()));
        }
        EXPECT_EQ(orders, k.order());
    }
    long additions = 0, subtractions = 0, others = 0, scales = 0;
    for (const auto& [g, calls] : parts) {
        const auto live = g.live_lanes();
        for (std::size_t i = 0; i < g.nodes().size(); ++i) {
            const vtxgen::Node& node = g.nodes()[i];
            const long lanes = std::popcount(live[i]) * calls;
            switch (node.op) {
            case vtxgen::Op::Add: additions += lanes; break;
            case vtxgen::Op::Sub: subtractions += lanes; break;
            case vtxgen::Op::Scale: scales += lanes; break;
            case vtxgen::Op::Mul:
            case vtxgen::Op::Mask:
            case vtxgen::Op::Widen:
            case vtxgen::Op::Narrow: others += lanes; break;
            default: break;
            }
        }
    }
    const long half = static_cast<long>(k.order()) * k.length() / 2;
    EXPECT_EQ(additions, half);
    EXPECT_EQ(subtractions, half);
    EXPECT_EQ(scales, k.length());
    EXPECT_EQ(others, 0);
}

INSTANTIATE_TEST_SUITE_P(Kernels, Wht, ::testing::ValuesIn(vtxtest::wht_kernels()),
                         [](const auto& info) { return info.param.name(); });

// The pass orders and buffer sizes of the blocked kernels.
TEST(WhtTable, PassesAndBufferSizes)
{
    struct Row {
        int order;
        std::vector<int> f32, f64;
        int bytes32, bytes64;
    };
    const Row rows[] = {
        {8, {5, 3}, {5, 3}, 1024, 2048},          {9, {6, 3}, {5, 4}, 2048, 4096},
        {10, {6, 4}, {7, 3}, 4096, 8192},         {11, {6, 5}, {5, 3, 3}, 8192, 18432},
        {12, {6, 3, 3}, {5, 3, 4}, 18432, 34816}, {13, {6, 3, 4}, {7, 3, 3}, 34816, 73728},
    };
    for (const WhtKernel& k : vtxtest::wht_kernels()) {
        int bytes = -1;
        ASSERT_EQ((k.single() ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(k.order(), &bytes),
                  vtxStatusOk);
        EXPECT_EQ(bytes, k.model.buffer_bytes()) << k.name();
        if (k.order() < 8) {
            EXPECT_EQ(bytes, 0) << k.name();
            EXPECT_TRUE(k.model.passes.empty()) << k.name();
            continue;
        }
        const Row& r = rows[k.order() - 8];
        EXPECT_EQ(k.model.passes, k.single() ? r.f32 : r.f64) << k.name();
        EXPECT_EQ(bytes, k.single() ? r.bytes32 : r.bytes64) << k.name();
    }
}

// A bad order is refused before anything else is looked at.
TEST(WhtTable, BadOrdersAreRefusedFirst)
{
    for (int order : {0, -1, 14, 15, 64, INT_MAX, INT_MIN}) {
        const int before = g_alloc.mallocs;
        EXPECT_EQ(vtxgWHT_32f(nullptr, nullptr, order, 99, nullptr), vtxStatusSizeError) << order;
        EXPECT_EQ(vtxgWHT_64f(nullptr, nullptr, order, 99, nullptr), vtxStatusSizeError) << order;
        int bytes = 12345;
        EXPECT_EQ(vtxgWHTGetBufferSize_32f(order, &bytes), vtxStatusSizeError) << order;
        EXPECT_EQ(vtxgWHTGetBufferSize_64f(order, &bytes), vtxStatusSizeError) << order;
        EXPECT_EQ(bytes, 12345) << order;
        EXPECT_EQ(vtxgWHTGetBufferSize_32f(order, nullptr), vtxStatusSizeError) << order;
        EXPECT_EQ(g_alloc.mallocs, before);
    }
}

// Flag 4 at order 1: 1.0 / sqrt(2.0) in double, one unit below the nearest
// double, and that rounded to float.
TEST(WhtTable, SymmetricFactorOfOrderOne)
{
    const double x64[2] = {1.0, 0.0};
    double y64[2];
    ASSERT_EQ(vtxgWHT_1_64f(x64, y64, vtxScaleSymmetric, nullptr), vtxStatusOk);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(y64[0]), 0x3FE6A09E667F3BCCull);
    EXPECT_EQ(y64[1], y64[0]);
    const float x32[2] = {0.0f, 1.0f};
    float y32[2];
    ASSERT_EQ(vtxgWHT_1_32f(x32, y32, vtxScaleSymmetric, nullptr), vtxStatusOk);
    EXPECT_EQ(y32[0], 0.70710677f);
    EXPECT_EQ(y32[1], -0.70710677f);
}

}  // namespace
