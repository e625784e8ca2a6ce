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

TEST(PageEdge, EveryTransformStaysInsideItsData)
{
    static vtxtest::Plans plans;
    int calls = 0, entries = 0;
    for (const Export& e : vtxtest::exports()) {
        const std::vector<vtxtest::Setting> runs = vtxtest::settings(e, plans);
        entries += !runs.empty();
        for (const vtxtest::Setting& run : runs) {
            const std::size_t in = e.source_components(run.n) * e.element_bytes;
            const std::size_t out = e.destination_components(run.n) * e.element_bytes;
            const auto x = vtxtest::fixed_input(static_cast<int>(e.source_components(run.n)), 7, e.element_bytes == 4);

            // The same call on ordinary buffers.
            vtxtest::Buffer src(in), dst(out), work(static_cast<std::size_t>(vtxtest::work_buffer_bytes(e, run.n)));
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
