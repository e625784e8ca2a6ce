// The batch entries against the single calls: every transform of a batch
// must be the bits of the single call of its size on its input, at every
// count up to two groups and one more, with gaps between the transforms, at
// odd element alignments and in place, with nothing written outside the
// transforms' outputs.  Run once per instruction set (VTX_ISA in the test's
// environment picks it).  Also: the generator's lane graphs evaluate to the
// bits of the graphs they come from, and the statuses of bad arguments.
#include "batch.hpp"
#include "exports.hpp"
#include "support.hpp"
#include "vtxgen.hpp"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <bit>
#include <climits>
#include <complex>
#include <tuple>
#include <type_traits>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

using vtxtest::Args;
using vtxtest::Buffer;
using vtxtest::Export;
using vtxtest::Form;

// A batch entry with the general entry of its single calls.
struct Family {
    const Export* batch;
    const Export* single;
    int reals() const { return batch->from == "C" ? 2 : 1; }  // components of an element
    int bytes() const { return batch->element_bytes; }         // of a component
    int in(int n) const { return static_cast<int>(batch->source_components(n)) / reals(); }   // elements
    int out(int n) const { return static_cast<int>(batch->destination_components(n)) / reals(); }
};
void PrintTo(const Family& f, std::ostream* os) { *os << f.batch->name; }

std::vector<Family> families()
{
    std::vector<Family> out;
    for (const Export& e : vtxtest::exports()) {
        if (e.form != Form::Batch)
            continue;
        std::string single = e.name;
        single.erase(single.find("_Batch"), 6);
        for (const Export& s : vtxtest::exports())
            if (s.form == Form::Dispatcher && s.name == single)
                out.push_back({&e, &s});
    }
    return out;
}

// Transforms per group are at most 16 (floats in 512-bit vectors), 4 in the
// 32-bit build: counts up to two groups and one more.
constexpr int kMaxCount = sizeof(void*) == 8 ? 2 * 16 + 1 : 2 * 4 + 1;

// Where a batch's transforms lie: the strides' excess over the lengths, in
// elements, and the data's offset from 16-byte alignment, in components.
struct Layout {
    const char* what;
    int src_gap, dst_gap;
    int src_offset, dst_offset;
    bool in_place;
};
const Layout kLayouts[] = {
    {"contiguous", 0, 0, 0, 0, false},
    {"with gaps", 3, 5, 0, 0, false},
    {"misaligned by one component", 1, 0, 1, 1, false},
    {"in place", 1, 1, 0, 0, true},
};

// Source components that no transform reads: the CCS slots that hold no
// bin.  The batch gets NaN there, the single call zero.
bool unread(const Export& e, int n, int component)
{
    if (e.from != "CCS")
        return false;
    for (int slot : vtxgen::zero_slots(vtxgen::Layout::CCS, n))
        if (slot == component)
            return true;
    return false;
}

std::vector<double> input(const Family& f, int n, int t, bool batch)
{
    std::vector<double> x = vtxtest::fixed_input(static_cast<int>(f.batch->source_components(n)),
                                                 static_cast<std::uint32_t>(1000 * n + t), f.bytes() == 4);
    for (std::size_t c = 0; c < x.size(); ++c)
        if (unread(*f.batch, n, static_cast<int>(c)))
            x[c] = batch ? std::nan("") : 0.0;
    return x;
}

class BatchBits : public testing::TestWithParam<Family> {};

TEST_P(BatchBits, EveryTransformIsTheSingleCallsBits)
{
    const Family& f = GetParam();
    const int bytes = f.bytes(), reals = f.reals();
    for (int n = 2; n <= 64; ++n) {
        const int flag = 1 << (n % 4);  // 1, 2, 4, 8 in turn
        const std::size_t out_bytes = f.batch->destination_components(n) * static_cast<std::size_t>(bytes);
        // The single calls, one transform each.
        std::vector<std::vector<unsigned char>> expected;
        for (int t = 0; t < kMaxCount; ++t) {
            const std::size_t longer = std::max(f.batch->source_components(n), f.batch->destination_components(n));
            Buffer src(longer * bytes), dst(out_bytes);
            src.put(0, input(f, n, t, false), bytes == 4);
            Args a{src.at(0), dst.at(0), n, flag};
            ASSERT_EQ((*f.single)(a), vtxStatusOk) << f.single->name << " at " << n;
            expected.emplace_back(dst.at(0), dst.at(0) + out_bytes);
        }
        for (const Layout& l : kLayouts) {
            const int longer = std::max(f.in(n), f.out(n));
            const int src_stride = (l.in_place ? longer : f.in(n)) + l.src_gap;
            const int dst_stride = (l.in_place ? longer : f.out(n)) + l.dst_gap;
            const std::size_t src_step = static_cast<std::size_t>(src_stride) * reals * bytes;
            const std::size_t dst_step = static_cast<std::size_t>(dst_stride) * reals * bytes;
            const std::size_t src_at = static_cast<std::size_t>(l.src_offset) * bytes;
            const std::size_t dst_at = static_cast<std::size_t>(l.dst_offset) * bytes;
            Buffer src(src_step * kMaxCount), dst(dst_step * kMaxCount);
            Buffer& into = l.in_place ? src : dst;
            unsigned char* const y = into.at(l.in_place ? src_at : dst_at);
            const std::size_t y_in_raw = static_cast<std::size_t>(y - into.raw().data());
            for (int count = 0; count <= kMaxCount; ++count) {
                for (int t = 0; t < kMaxCount; ++t)
                    src.put(src_at + t * src_step, input(f, n, t, true), bytes == 4);
                const std::vector<unsigned char> source = src.raw(), before = into.raw();
                const std::string where = f.batch->name + " n " + std::to_string(n) + ", count " +
                                          std::to_string(count) + ", " + l.what;
                Args a{src.at(src_at), y, n, flag};
                a.count = count;
                a.srcStride = src_stride;
                a.dstStride = dst_stride;
                ASSERT_EQ((*f.batch)(a), vtxStatusOk) << where;
                // Each output is the single call's; every other byte (the
                // gaps, the transforms past the count, their guards, the
                // source of a batch out of place) is as it was.
                std::vector<unsigned char> after = into.raw();
                for (int t = 0; t < count; ++t) {
                    unsigned char* got = after.data() + y_in_raw + t * dst_step;
                    ASSERT_EQ(std::memcmp(got, expected[static_cast<std::size_t>(t)].data(), out_bytes), 0)
                        << where << ": transform " << t << " differs from the single call";
                    std::memcpy(got, before.data() + y_in_raw + t * dst_step, out_bytes);
                }
                ASSERT_TRUE(after == before) << where << ": a byte outside the transforms' outputs changed";
                if (!l.in_place) {
                    ASSERT_TRUE(src.raw() == source) << where << ": the source changed";
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Batch, BatchBits, testing::ValuesIn(families()),
                         [](const auto& info) { return info.param.batch->name; });

TEST(BatchEntries, EveryFamilyHasItsBatch) { EXPECT_EQ(families().size(), 18u); }

// ---- bad arguments

// One call's arguments as changes to a good call at n = 12: a null pointer,
// n, count, a stride short of its length by some elements, the flag.
struct Bad {
    const char* what;
    bool src_null, dst_null;
    int n, count, src_short, dst_short, flag;
    vtxStatus want;
};
const Bad kBad[] = {
    {"null source", true, false, 12, 3, 0, 0, 1, vtxStatusNullPointer},
    {"null destination", false, true, 12, 3, 0, 0, 1, vtxStatusNullPointer},
    {"null beside bad n, count and flag", true, false, 1, -1, 0, 0, 3, vtxStatusNullPointer},
    {"n 1", false, false, 1, 3, 0, 0, 1, vtxStatusSizeError},
    {"n 65", false, false, 65, 3, 0, 0, 1, vtxStatusSizeError},
    {"n INT_MIN", false, false, INT_MIN, 3, 0, 0, 1, vtxStatusSizeError},
    {"count -1", false, false, 12, -1, 0, 0, 1, vtxStatusSizeError},
    {"count INT_MIN", false, false, 12, INT_MIN, 0, 0, 1, vtxStatusSizeError},
    {"source stride one short", false, false, 12, 3, 1, 0, 1, vtxStatusSizeError},
    {"destination stride one short", false, false, 12, 3, 0, 1, 1, vtxStatusSizeError},
    {"negative stride", false, false, 12, 3, 100, 0, 1, vtxStatusSizeError},
    {"short stride beside bad flag", false, false, 12, 0, 0, 1, 3, vtxStatusSizeError},
    {"flag 3", false, false, 12, 3, 0, 0, 3, vtxStatusFlagError},
    {"flag 0 at count 0", false, false, 12, 0, 0, 0, 0, vtxStatusFlagError},
    {"count 0", false, false, 12, 0, 0, 0, 1, vtxStatusOk},
};

TEST(BatchEntries, BadArgumentsGiveTheFirstFailingCheckAndWriteNothing)
{
    for (const Family& f : families())
        for (const Bad& b : kBad) {
            const int n = 12, count = 3;
            const std::size_t step = static_cast<std::size_t>(std::max(f.in(n), f.out(n)) * f.reals() * f.bytes());
            Buffer src(step * count), dst(step * count);
            src.put(0, vtxtest::fixed_input(static_cast<int>(step * count) / f.bytes(), 1, f.bytes() == 4), f.bytes() == 4);
            const std::vector<unsigned char> src_before = src.raw(), dst_before = dst.raw();
            Args a{b.src_null ? nullptr : src.at(0), b.dst_null ? nullptr : dst.at(0), b.n, b.flag};
            a.count = b.count;
            a.srcStride = f.in(n) - b.src_short;
            a.dstStride = f.out(n) - b.dst_short;
            EXPECT_EQ((*f.batch)(a), b.want) << f.batch->name << ": " << b.what;
            EXPECT_TRUE(src.raw() == src_before && dst.raw() == dst_before) << f.batch->name << ": " << b.what;
        }
}

// A count of 0 reads and writes nothing: arrays on a page that may not be
// touched at all.
TEST(BatchEntries, CountZeroTouchesNoMemory)
{
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    void* p = mmap(nullptr, page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(p, MAP_FAILED);
    for (const Family& f : families()) {
        Args a{p, p, 64, vtxScaleNone};
        a.count = 0;
        EXPECT_EQ((*f.batch)(a), vtxStatusOk) << f.batch->name;
    }
    munmap(p, page);
}

// ---- the C++ forms

// Each C++ batch form over pointers with gaps and over contiguous ranges:
// the C batch's bits and status; ranges that do not hold whole transforms
// give size_error without a call.
template <class T>
void cxx_forms(int n)
{
    using C = std::complex<T>;
    const bool single = sizeof(T) == 4;
    constexpr int count = 7;
    auto reals = [&](int k, std::uint32_t seed) {
        std::vector<T> v;
        for (double d : vtxtest::fixed_input(k, seed, single))
            v.push_back(T(d));
        return v;
    };
    auto same = [](const auto& a, const auto& b) {
        return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(a[0])) == 0;
    };
    const std::string where = std::string(single ? "float" : "double") + " n " + std::to_string(n);
    const auto api = [] {
        if constexpr (sizeof(T) == 4)
            return std::make_tuple(vtxgDFTFwd_CToC_Batch_32fc, vtxgDFTInv_CToC_Batch_32fc, vtxgDFTFwd_RToPerm_Batch_32f,
                                   vtxgDFTInv_CCSToR_Batch_32f, vtxgHartley_Batch_32f);
        else
            return std::make_tuple(vtxgDFTFwd_CToC_Batch_64fc, vtxgDFTInv_CToC_Batch_64fc, vtxgDFTFwd_RToPerm_Batch_64f,
                                   vtxgDFTInv_CCSToR_Batch_64f, vtxgHartley_Batch_64f);
    }();
    using E = std::conditional_t<sizeof(T) == 4, vtx32fc, vtx64fc>;

    // Complex, forward and inverse: strided pointers, then ranges.
    const std::vector<T> xr = reals(2 * (n + 1) * count, 1);
    std::vector<C> x(xr.size() / 2), y(x.size()), want(x.size());
    std::memcpy(static_cast<void*>(x.data()), xr.data(), xr.size() * sizeof(T));
    const auto* cx = reinterpret_cast<const E*>(x.data());
    auto* cw = reinterpret_cast<E*>(want.data());
    EXPECT_EQ(vtx::dft_batch(x.data(), y.data(), n, count, n + 1, n + 1, vtx::scale::forward), vtx::status::ok);
    ASSERT_EQ(std::get<0>(api)(cx, cw, n, count, n + 1, n + 1, vtxScaleForward), vtxStatusOk);
    EXPECT_TRUE(same(y, want)) << where;
    std::vector<C> xs(x.begin(), x.begin() + n * count), ys(xs.size()), ws(xs.size());
    EXPECT_EQ(vtx::inverse_dft_batch(xs, ys, n), vtx::status::ok);
    ASSERT_EQ(std::get<1>(api)(reinterpret_cast<const E*>(xs.data()), reinterpret_cast<E*>(ws.data()), n, count, n, n,
                               vtxScaleNone),
              vtxStatusOk);
    EXPECT_TRUE(same(ys, ws)) << where;
    std::vector<C> short_range(xs.size() - 1);
    EXPECT_EQ(vtx::dft_batch(xs, short_range, n), vtx::status::size_error) << where;

    // Real forward into Perm, inverse from CCS, Hartley: ranges.
    const int perm = vtx::perm::length(n), ccs = vtx::ccs::length(n);
    const std::vector<T> r = reals(n * count, 2), spectra = reals(ccs * count, 3);
    std::vector<T> got(std::size_t(perm) * count), expect(got.size());
    EXPECT_EQ(vtx::real_forward_batch<vtx::perm>(r, got, n, vtx::scale::symmetric), vtx::status::ok);
    ASSERT_EQ(std::get<2>(api)(r.data(), expect.data(), n, count, n, perm, vtxScaleSymmetric), vtxStatusOk);
    EXPECT_TRUE(same(got, expect)) << where;
    std::vector<T> back(std::size_t(n) * count), back_c(back.size());
    EXPECT_EQ(vtx::real_inverse_batch<vtx::ccs>(spectra, back, n, vtx::scale::inverse), vtx::status::ok);
    ASSERT_EQ(std::get<3>(api)(spectra.data(), back_c.data(), n, count, ccs, n, vtxScaleInverse), vtxStatusOk);
    EXPECT_TRUE(same(back, back_c)) << where;
    std::vector<T> h(r.size()), h_c(r.size());
    EXPECT_EQ(vtx::hartley_batch(r, h, n), vtx::status::ok);
    ASSERT_EQ(std::get<4>(api)(r.data(), h_c.data(), n, count, n, n, vtxScaleNone), vtxStatusOk);
    EXPECT_TRUE(same(h, h_c)) << where;
    std::vector<T> odd(r.begin(), r.end() - 1);
    EXPECT_EQ(vtx::hartley_batch(odd, h, n), vtx::status::size_error) << where;
}

TEST(BatchEntries, CxxFormsAreTheCBatch)
{
    for (int n : {2, 7, 16, 47, 64}) {
        cxx_forms<float>(n);
        cxx_forms<double>(n);
    }
}

// ---- the generator's lane graphs

// A kernel's graph with its lanes apart computes the same bits as the graph,
// each input and output at the memory component its placement names.
TEST(LaneGraph, EveryKernelEqualsItsGraph)
{
    std::vector<vtxgen::KernelText> all;
    for (const auto& k : vtxgen::complex_kernels())
        all.push_back(k.text());
    for (const auto d : {vtxgen::Direction::Forward, vtxgen::Direction::Inverse})
        for (const auto& k : vtxgen::real_kernels(d))
            all.push_back(k.text());
    for (const auto& k : vtxgen::hartley_kernels())
        all.push_back(k.text());
    for (const vtxgen::KernelText& k : all) {
        const vtxgen::LaneGraph lanes = vtxgen::lanes_apart(k.graph);
        const bool single = k.prec == vtxgen::Prec::F32;
        for (std::uint32_t seed = 0; seed < 2; ++seed) {
            const std::vector<double> x = vtxtest::fixed_input(k.graph.source_components(), seed, single);
            std::vector<double> want(static_cast<std::size_t>(k.graph.destination_components()), -1.0);
            k.graph.evaluate(x, want, single ? double(float(1.0 / 3)) : 1.0 / 3);
            std::vector<double> in, out(lanes.at.destination.size());
            for (int c : lanes.at.source)
                in.push_back(x[static_cast<std::size_t>(c)]);
            lanes.graph.evaluate(in, out, single ? double(float(1.0 / 3)) : 1.0 / 3);
            std::vector<double> got(want.size(), -1.0);
            for (std::size_t i = 0; i < out.size(); ++i)
                got[static_cast<std::size_t>(lanes.at.destination[i])] = out[i];
            for (int c : lanes.at.zeros)
                got[static_cast<std::size_t>(c)] = 0.0;
            for (std::size_t c = 0; c < want.size(); ++c)
                ASSERT_EQ(std::bit_cast<std::uint64_t>(got[c]), std::bit_cast<std::uint64_t>(want[c]))
                    << k.name << " seed " << seed << " component " << c;
        }
    }
}

}  // namespace
