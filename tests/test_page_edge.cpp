// Every exported transform with its data at the edge of what it may touch.
// The source, the destination and the Walsh-Hadamard work buffer each lie in
// a region of their own, at every misalignment modulo 16, with around them
// either an inaccessible page (the data ending as close to it as its
// alignment allows, exactly on it where the alignment permits, or starting
// right after one) or NaN or infinity in every element.  The source is
// read-only during the call.
//
// No access may fault, the destination must hold the bits of the same call
// on a source with zeros around it, and every byte around the destination
// and the work buffer must still hold what was put there.  The destination
// and the work buffer start full of the guard value too, so a kernel that
// reads either before writing it shows.
//
// The instruction set the library runs is chosen by VTX_ISA: once the
// kernels are built in more than one, ctest runs this check once per set
// (VTX_KERNEL_ISAS in tests/CMakeLists.txt).
#include "exports.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <csetjmp>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace {

using vtxtest::Args;
using vtxtest::Export;
using vtxtest::Form;

// What lies around the data: an inaccessible page on one side (the rest of
// the region holds the guard value), or the guard value on both sides.
enum class Edge { PageAfter, PageBefore, None };

struct Surrounding {
    const char* name;
    Edge edge;
    std::uint32_t single;  // the guard value's bits in each precision
    std::uint64_t twice;
};

constexpr std::uint32_t kNaN32 = 0x7FC00000u, kInf32 = 0x7F800000u;
constexpr std::uint64_t kNaN64 = 0x7FF8000000000000u, kInf64 = 0x7FF0000000000000u;

const Surrounding kSurroundings[] = {
    {"an inaccessible page right after it, NaN before", Edge::PageAfter, kNaN32, kNaN64},
    {"an inaccessible page right before it, infinity after", Edge::PageBefore, kInf32, kInf64},
    {"NaN on both sides", Edge::None, kNaN32, kNaN64},
    {"negative infinity on both sides", Edge::None, kInf32 | 0x80000000u, kInf64 | (1ull << 63)},
};

// Where the reference call's data lies: zeros around it, aligned.
const Surrounding kZeros = {"zeros", Edge::None, 0, 0};

// The data's start modulo 16, source and destination apart: the aligned
// path, the unaligned one with either pointer or both misaligned.
const std::size_t kMisalignments[] = {0, 4, 8, 12};

constexpr std::size_t kRoom = 64;  // guard bytes on each side of data away from a page

// A read-write span of whole pages between two inaccessible ones, for data
// of `bytes`.
class Region {
public:
    explicit Region(std::size_t bytes)
        : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
          span_((bytes + 2 * kRoom + 16 + page_ - 1) / page_ * page_),
          base_(static_cast<unsigned char*>(
              mmap(nullptr, span_ + 2 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))),
          bytes_(bytes)
    {
        if (base_ == MAP_FAILED || !writable(true))
            throw std::runtime_error("cannot map guard pages");
    }
    ~Region() { munmap(base_, span_ + 2 * page_); }
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;

    // Fills the span with the guard value of elements of `element` bytes
    // and returns the data start, `misalignment` modulo 16, as `around` puts
    // it.  The span's start and end are page boundaries, so 16-byte ones.
    unsigned char* place(const Surrounding& around, std::size_t element, std::size_t misalignment)
    {
        writable(true);
        element_ = element;
        std::memcpy(pattern_, element == 4 ? static_cast<const void*>(&around.single) : &around.twice, element);
        std::memcpy(span(), pattern_, element);
        for (std::size_t n = element; n < span_; n *= 2)
            std::memcpy(span() + n, span(), std::min(n, span_ - n));
        std::size_t start = kRoom + misalignment;
        if (around.edge == Edge::PageAfter) {
            start = span_ - bytes_;
            start -= (start + 16 - misalignment) % 16;
        } else if (around.edge == Edge::PageBefore) {
            start = misalignment;
        }
        data_ = start;
        return span() + start;
    }
    bool writable(bool yes) const { return mprotect(span(), span_, yes ? PROT_READ | PROT_WRITE : PROT_READ) == 0; }

    // "" when every byte outside the data still holds what place() put
    // there, else which side changed.
    std::string changed_around() const
    {
        if (!intact(0, data_))
            return "bytes before the data changed";
        if (!intact(data_ + bytes_, span_))
            return "bytes past the data's end changed";
        return {};
    }

private:
    unsigned char* span() const { return base_ + page_; }
    // Whether [from, to) of the span holds the guard pattern: its first
    // element's bytes, then a copy of itself one element on.
    bool intact(std::size_t from, std::size_t to) const
    {
        if (to <= from)
            return true;
        const std::size_t head = std::min(to - from, element_);
        for (std::size_t i = from; i < from + head; ++i)
            if (span()[i] != pattern_[i % element_])
                return false;
        return std::memcmp(span() + from, span() + from + element_, to - from - head) == 0;
    }

    std::size_t page_, span_;
    unsigned char* base_;
    std::size_t bytes_, data_ = 0, element_ = 4;
    unsigned char pattern_[8] = {};
};

sigjmp_buf g_fault;
void onFault(int) { siglongjmp(g_fault, 1); }

// Runs `e` and tells whether it touched an inaccessible page.
bool faults(const Export& e, const Args& a, vtxStatus& status)
{
    struct sigaction act {}, oldSegv {}, oldBus {};
    act.sa_handler = onFault;
    sigemptyset(&act.sa_mask);
    sigaction(SIGSEGV, &act, &oldSegv);
    sigaction(SIGBUS, &act, &oldBus);
    const bool faulted = sigsetjmp(g_fault, 1) != 0;
    if (!faulted)
        status = e(a);
    sigaction(SIGSEGV, &oldSegv, nullptr);
    sigaction(SIGBUS, &oldBus, nullptr);
    return faulted;
}

// One transform at one setting, its source, destination and work buffer
// each in a region of its own.
class Call {
public:
    Call(const Export& e, const vtxtest::Setting& run)
        : e_(e), in_(e.source_components(run.n) * element()), out_(e.destination_components(run.n) * element()),
          work_(static_cast<std::size_t>(vtxtest::work_buffer_bytes(e, run.n))), source_(in_), destination_(out_),
          buffer_(work_)
    {
        args_.n = run.n;
        args_.spec = run.spec;
        vtxtest::Buffer staged(in_);
        staged.put(0, vtxtest::fixed_input(static_cast<int>(e.source_components(run.n)), 7, element() == 4),
                   element() == 4);
        input_.assign(staged.at(0), staged.at(0) + in_);
    }
    std::size_t element() const { return static_cast<std::size_t>(e_.element_bytes); }

    // Runs the call with its data so placed and says what went wrong, or
    // "" with the destination's bytes in `result`.
    std::string run(const Surrounding& around, std::size_t srcMisalignment, std::size_t dstMisalignment,
                    std::vector<unsigned char>& result)
    {
        Args a = args_;
        auto* s = source_.place(around, element(), srcMisalignment);
        std::memcpy(s, input_.data(), in_);
        source_.writable(false);
        a.src = s;
        a.dst = destination_.place(around, element(), dstMisalignment);
        void* buffer = buffer_.place(around, element(), 0);
        a.buffer = work_ ? buffer : nullptr;
        vtxStatus status = vtxStatusOk;
        if (faults(e_, a, status))
            return "a read or write outside the data";
        if (status != vtxStatusOk)
            return "status " + std::to_string(status);
        for (const auto& [region, what] : {std::pair<Region*, const char*>{&destination_, "destination: "},
                                           {&buffer_, "work buffer: "}}) {
            const std::string changed = region->changed_around();
            if (!changed.empty())
                return what + changed;
        }
        result.assign(static_cast<unsigned char*>(a.dst), static_cast<unsigned char*>(a.dst) + out_);
        return {};
    }

private:
    const Export& e_;
    Args args_;
    std::size_t in_, out_, work_;
    Region source_, destination_, buffer_;
    std::vector<unsigned char> input_;
};

TEST(PageEdge, EveryTransformTouchesOnlyItsData)
{
    const char* isa = std::getenv("VTX_ISA");
    std::printf("instruction set: %s\n", isa ? isa : "the widest the processor has");
    static vtxtest::Plans plans;
    int calls = 0, entries = 0;
    for (const Export& e : vtxtest::exports()) {
        const std::vector<vtxtest::Setting> runs = vtxtest::settings(e, plans);
        entries += !runs.empty();
        for (const vtxtest::Setting& setting : runs) {
            Call call(e, setting);
            const std::string what = e.name + " at " + std::to_string(setting.n);
            std::vector<unsigned char> want, got;
            ASSERT_EQ(call.run(kZeros, 0, 0, want), "") << what << " on ordinary buffers";
            for (const Surrounding& around : kSurroundings)
                for (std::size_t srcMisalignment : kMisalignments)
                    for (std::size_t dstMisalignment : kMisalignments) {
                        // The DCT-IV takes arrays of its element type as
                        // they are (the kernels also accept doubles on 4 bytes).
                        if (e.form == Form::Dct4Run && (srcMisalignment | dstMisalignment) % call.element())
                            continue;
                        const std::string where = what + ", source and destination misaligned by " +
                                                  std::to_string(srcMisalignment) + " and " +
                                                  std::to_string(dstMisalignment) + ", with " + around.name;
                        ++calls;
                        ASSERT_EQ(call.run(around, srcMisalignment, dstMisalignment, got), "") << where;
                        ASSERT_TRUE(got == want) << where << ": other bits than with zeros around the source";
                    }
        }
    }
    EXPECT_GT(entries, 650);
    std::printf("%d entries, %d calls at the edges of their data\n", entries, calls);
}

}  // namespace
