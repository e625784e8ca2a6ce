// The call frame of every kernel: the order of the checks, an untouched
// destination on failure, nothing written outside the output on success,
// scaling as the last product, and the same bits for any alignment.
#include "support.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

using vtxtest::Buffer;
using vtxtest::ComplexKernel;

const int kGoodFlags[] = {vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric, vtxScaleNone};
const int kBadFlags[] = {0, 3, 5, 7, 9, 16, -1, INT_MIN, INT_MAX};
const std::uint32_t kSeeds[] = {1, 2, 3, 4};

// Where the source and destination start, in bytes past a 16-byte boundary.
struct Placement {
    const char* name;
    std::size_t src, dst;
    bool in_place;
};

const Placement kAligned{"aligned", 0, 0, false};
const Placement kPlacements[] = {
    kAligned,
    {"src+4", 4, 0, false},
    {"dst+4", 0, 4, false},
    {"src+4 dst+4", 4, 4, false},
    {"src+8", 8, 0, false},
    {"dst+8", 0, 8, false},
    {"src+8 dst+8", 8, 8, false},
    {"src+12 dst+4", 12, 4, false},
    {"in place", 0, 0, true},
    {"in place +4", 4, 4, true},
    {"in place +8", 8, 8, true},
};

enum class Null { None, Src, Dst, Both };
const char* null_name(Null n)
{
    return n == Null::Src ? "null source" : n == Null::Dst ? "null destination" : "both null";
}

std::size_t data_bytes(const ComplexKernel& k)
{
    return static_cast<std::size_t>(k.components() * k.component_bytes());
}

// One call on guarded buffers.
struct Call {
    vtxStatus status;
    std::vector<unsigned char> out;  // the destination's data bytes afterwards
    std::string damage;              // "" or the first byte written where none may be
};

Call call(const ComplexKernel& k, const Placement& p, const std::vector<double>& x, int flag, Null null = Null::None)
{
    const std::size_t n = data_bytes(k);
    Buffer src(n), dst(n);
    src.put(p.src, x, k.single());
    const std::vector<unsigned char> src_before = src.raw();
    Buffer& out = p.in_place ? src : dst;
    const void* s = null == Null::Src || null == Null::Both ? nullptr : src.at(p.src);
    void* d = null == Null::Dst || null == Null::Both ? nullptr : out.at(p.dst);

    Call c;
    c.status = k(s, d, flag);
    c.out.assign(out.at(p.dst), out.at(p.dst) + n);
    c.damage = vtxtest::damage(src, src_before, dst, p.src, p.dst, n, p.in_place, c.status == vtxStatusOk);
    return c;
}

// The factor a flag stands for, formed from N as the library forms it:
// 1/N and 1/sqrt(N) each rounded to double, then to float for float kernels.
double scale_of(const ComplexKernel& k, int flag)
{
    const double inv_n = 1.0 / k.size(), inv_sqrt_n = 1.0 / std::sqrt(static_cast<double>(k.size()));
    const bool forward = k.model.direction == vtxgen::Direction::Forward;
    double s = 1.0;
    if (flag == vtxScaleSymmetric)
        s = inv_sqrt_n;
    else if ((flag == vtxScaleForward && forward) || (flag == vtxScaleInverse && !forward))
        s = inv_n;
    return k.single() ? static_cast<double>(static_cast<float>(s)) : s;
}

// `out` (bytes of the kernel's element type) multiplied once by s, in the
// kernel's precision.
std::vector<unsigned char> times(const ComplexKernel& k, const std::vector<unsigned char>& out, double s)
{
    std::vector<unsigned char> r(out.size());
    for (int i = 0; i < k.components(); ++i) {
        if (k.single()) {
            float v;
            std::memcpy(&v, &out[4 * i], 4);
            v = v * static_cast<float>(s);
            std::memcpy(&r[4 * i], &v, 4);
        } else {
            double v;
            std::memcpy(&v, &out[8 * i], 8);
            v = v * s;
            std::memcpy(&r[8 * i], &v, 8);
        }
    }
    return r;
}

class Frame : public ::testing::TestWithParam<ComplexKernel> {};

// A null pointer is reported before the flag is looked at, whatever the flag
// and however the other pointer is aligned, and nothing is written.
TEST_P(Frame, NullPointerIsCheckedFirst)
{
    const ComplexKernel& k = GetParam();
    const std::vector<double> x = vtxtest::fixed_input(k.components(), 1, k.single());
    std::vector<int> flags(std::begin(kGoodFlags), std::end(kGoodFlags));
    flags.insert(flags.end(), std::begin(kBadFlags), std::end(kBadFlags));
    for (Null null : {Null::Src, Null::Dst, Null::Both})
        for (const Placement& p : {kPlacements[0], kPlacements[1], kPlacements[2]})
            for (int flag : flags) {
                const Call c = call(k, p, x, flag, null);
                if (c.status != vtxStatusNullPointer || !c.damage.empty())
                    FAIL() << k.name() << ", " << null_name(null) << ", " << p.name << ", flag " << flag
                           << ": status " << c.status << (c.damage.empty() ? "" : ", ") << c.damage;
            }
}

// A bad flag is refused on every path, in place too, and nothing is written.
TEST_P(Frame, BadFlagLeavesEverythingUntouched)
{
    const ComplexKernel& k = GetParam();
    const std::vector<double> x = vtxtest::fixed_input(k.components(), 1, k.single());
    for (const Placement& p : kPlacements)
        for (int flag : kBadFlags) {
            const Call c = call(k, p, x, flag);
            if (c.status != vtxStatusFlagError || !c.damage.empty())
                FAIL() << k.name() << ", " << p.name << ", flag " << flag << ": status " << c.status
                       << (c.damage.empty() ? "" : ", ") << c.damage;
        }
}

// Every alignment and the in-place call give the bits of the aligned call
// with separate buffers, and write nothing outside the output.
TEST_P(Frame, AnyAlignmentGivesTheAlignedBits)
{
    const ComplexKernel& k = GetParam();
    for (std::uint32_t seed : kSeeds) {
        const std::vector<double> x = vtxtest::fixed_input(k.components(), seed, k.single());
        for (int flag : kGoodFlags) {
            const Call want = call(k, kAligned, x, flag);
            for (const Placement& p : kPlacements) {
                const Call c = call(k, p, x, flag);
                std::string fault = c.status != vtxStatusOk ? "status " + std::to_string(c.status) : c.damage;
                if (fault.empty())
                    fault = vtxtest::first_difference(k, c.out.data(), want.out.data());
                if (!fault.empty())
                    FAIL() << k.name() << ", " << p.name << ", flag " << flag << ", input " << seed << ": "
                           << fault;
            }
        }
    }
}

// The output of any flag is the unscaled output multiplied once by the
// flag's factor.
TEST_P(Frame, ScalingIsTheLastProduct)
{
    const ComplexKernel& k = GetParam();
    {
        // The oracle's own factor: 1/sqrt(2) in two rounded steps lies one
        // unit below the nearest double.
        const double s = 1.0 / std::sqrt(2.0);
        std::uint64_t bits;
        std::memcpy(&bits, &s, 8);
        ASSERT_EQ(bits, 0x3FE6A09E667F3BCCull);
    }
    for (std::uint32_t seed : kSeeds) {
        const std::vector<double> x = vtxtest::fixed_input(k.components(), seed, k.single());
        const Call none = call(k, kAligned, x, vtxScaleNone);
        ASSERT_EQ(none.status, vtxStatusOk) << k.name();
        for (int flag : {vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric}) {
            const Call c = call(k, kAligned, x, flag);
            const std::vector<unsigned char> want = times(k, none.out, scale_of(k, flag));
            const std::string fault = vtxtest::first_difference(k, c.out.data(), want.data());
            if (!fault.empty())
                FAIL() << k.name() << ", flag " << flag << " against flag 8 times " << scale_of(k, flag)
                       << ", input " << seed << ": " << fault;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Kernels, Frame, ::testing::ValuesIn(vtxtest::complex_kernels()),
                         [](const ::testing::TestParamInfo<ComplexKernel>& info) { return info.param.name(); });

}  // namespace
