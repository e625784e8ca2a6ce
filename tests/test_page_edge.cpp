// Every exported transform with its data against inaccessible pages: the
// source, the destination and the Walsh-Hadamard work buffer each end as
// near a page that may not be touched as their alignment allows (or start
// right after one), the source read-only.  A read or write outside the data
// faults; the fault is caught and named.  The result must be the bits of the
// same call on ordinary aligned buffers.
#include "exports.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <csetjmp>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using vtxtest::Args;
using vtxtest::Export;
using vtxtest::Form;

// `bytes` of data between two inaccessible pages.
class EdgeRegion {
public:
    explicit EdgeRegion(std::size_t bytes)
        : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))), span_((bytes + 16 + page_ - 1) / page_ * page_),
          base_(static_cast<unsigned char*>(
              mmap(nullptr, span_ + 2 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))),
          bytes_(bytes)
    {
        if (base_ == MAP_FAILED || mprotect(base_ + page_, span_, PROT_READ | PROT_WRITE) != 0)
            throw std::runtime_error("cannot map guard pages");
    }
    ~EdgeRegion() { munmap(base_, span_ + 2 * page_); }
    EdgeRegion(const EdgeRegion&) = delete;
    EdgeRegion& operator=(const EdgeRegion&) = delete;

    // The data start: `misalignment` modulo 16, the end as close to the
    // upper page as that allows, or the start on the lower page's end.
    unsigned char* place(std::size_t misalignment, bool atEnd) const
    {
        if (!atEnd)
            return base_ + page_ + misalignment;
        auto start = reinterpret_cast<std::uintptr_t>(base_ + page_ + span_ - bytes_);
        start -= (start - misalignment) % 16;
        return reinterpret_cast<unsigned char*>(start);
    }
    void seal() const { mprotect(base_ + page_, span_, PROT_READ); }

private:
    std::size_t page_, span_;
    unsigned char* base_;
    std::size_t bytes_;
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

// The sizes (or orders, or lengths) each transform is run at, and its plan.
struct Setting {
    int n;
    void* spec = nullptr;
};

std::vector<Setting> runsOf(const Export& e)
{
    static void* plans[2][27] = {};
    switch (e.form) {
    case Form::Kernel:
    case Form::WhtKernel: return {{e.size}};
    case Form::Dispatcher: return {{2}, {5}, {47}, {59}, {64}};
    case Form::WhtEntry: return {{1}, {3}, {8}, {13}};
    case Form::Dct4Run: {
        std::vector<Setting> runs;
        for (int k : {1, 3, 5, 6, 10}) {
            void*& spec = plans[e.element_bytes == 8][k];
            if (!spec) {
                const vtxStatus built = e.element_bytes == 4
                                            ? vtxgDCT4InitAlloc_32f(reinterpret_cast<vtxDCT4Spec_32f**>(&spec), 1 << k)
                                            : vtxgDCT4InitAlloc_64f(reinterpret_cast<vtxDCT4Spec_64f**>(&spec), 1 << k);
                if (built != vtxStatusOk)
                    throw std::runtime_error("no DCT-IV plan of length " + std::to_string(1 << k));
            }
            runs.push_back({1 << k, spec});
        }
        return runs;
    }
    default: return {};
    }
}

int workBufferBytes(const Export& e, int order)
{
    int bytes = 0;
    if (e.form == Form::WhtKernel || e.form == Form::WhtEntry)
        (e.element_bytes == 4 ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(order, &bytes);
    return bytes;
}

TEST(PageEdge, EveryTransformStaysInsideItsData)
{
    int calls = 0, entries = 0;
    for (const Export& e : vtxtest::exports()) {
        const std::vector<Setting> runs = runsOf(e);
        entries += !runs.empty();
        for (const Setting& run : runs) {
            const std::size_t in = e.source_components(run.n) * e.element_bytes;
            const std::size_t out = e.destination_components(run.n) * e.element_bytes;
            const auto x = vtxtest::fixed_input(static_cast<int>(e.source_components(run.n)), 7, e.element_bytes == 4);

            // The same call on ordinary buffers.
            vtxtest::Buffer src(in), dst(out), work(static_cast<std::size_t>(workBufferBytes(e, run.n)));
            src.put(0, x, e.element_bytes == 4);
            Args plain{src.at(0), dst.at(0), run.n, vtxScaleNone, work.size() ? work.at(0) : nullptr};
            plain.spec = run.spec;
            ASSERT_EQ(e(plain), vtxStatusOk) << e.name << " at " << run.n;

            const std::size_t bufferBytes = work.size();
            for (const bool atEnd : {true, false}) {
                for (std::size_t misalignment : {0, 4, 8, 12}) {
                    // The DCT-IV takes arrays of its element type as they
                    // are (the kernels also accept doubles on 4 bytes).
                    if (e.form == Form::Dct4Run && misalignment % e.element_bytes)
                        continue;
                    EdgeRegion source(in), destination(out), buffer(bufferBytes);
                    Args a = plain;
                    auto* s = source.place(misalignment, atEnd);
                    std::memcpy(s, src.at(0), in);
                    source.seal();
                    a.src = s;
                    a.dst = destination.place(misalignment, atEnd);
                    a.buffer = bufferBytes ? buffer.place(0, atEnd) : nullptr;
                    vtxStatus status = vtxStatusOk;
                    const std::string where = e.name + " at " + std::to_string(run.n) + ", data misaligned by " +
                                              std::to_string(misalignment) +
                                              (atEnd ? ", ending at" : ", starting after") + " an inaccessible page";
                    ++calls;
                    ASSERT_FALSE(faults(e, a, status)) << where << ": a read or write outside the data";
                    ASSERT_EQ(status, vtxStatusOk) << where;
                    ASSERT_EQ(std::memcmp(a.dst, dst.at(0), out), 0) << where << ": other bits than on ordinary buffers";
                }
            }
        }
    }
    EXPECT_GT(entries, 650);
    std::printf("%d entries, %d calls at page edges\n", entries, calls);
}

}  // namespace
