// A libFuzzer target over the library's general entries: the first byte
// picks one exported dispatcher, Walsh-Hadamard entry or DCT-IV precision,
// the next bytes its size, flag, misalignments, overlap and work buffer,
// the rest the data.  Each call runs on guarded memory and must give the
// status of its first failing check, write nothing outside its destination
// (nothing at all on failure), and on success hold the bits of the same call
// on separate aligned buffers.  The DCT-IV path also builds its plan in a
// block of exactly the reported size at the chosen offset, between guards.
#include "exports.hpp"

#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using vtxtest::Args;
using vtxtest::Export;
using vtxtest::Form;

[[noreturn]] void fail(const std::string& what)
{
    std::fprintf(stderr, "fuzz_entries: %s\n", what.c_str());
    std::abort();
}

struct Input {
    const std::uint8_t* p;
    std::size_t left;
    std::uint8_t byte() { return left ? (--left, *p++) : 0; }
};

constexpr int kFlags[] = {1, 2, 4, 8, 0, 3, 5, 16, -1, INT_MIN, INT_MAX, 8};
constexpr std::size_t kGuard = 64;

// A size from one byte: mostly near the legal range, sometimes extreme.
int sizeFrom(std::uint8_t b)
{
    constexpr int extremes[] = {INT_MIN, INT_MAX, -65536, 1 << 30, (1 << 30) + 1, 1 << 20};
    return b < 250 ? static_cast<int>(b % 72) - 4 : extremes[b - 250];
}

// Guarded memory: the call's data somewhere inside, everything else fill.
struct Arena {
    std::vector<unsigned char> bytes;
    explicit Arena(std::size_t n) : bytes(n, 0xA5) {}
    unsigned char* at(std::size_t off) { return bytes.data() + off; }
};

void checkUntouched(const Arena& before, const Arena& after, const unsigned char* from, std::size_t count,
                    const std::string& what)
{
    const unsigned char* base = after.bytes.data();
    for (std::size_t i = 0; i < after.bytes.size(); ++i)
        if ((base + i < from || base + i >= from + count) && after.bytes[i] != before.bytes[i])
            fail(what + ": byte " + std::to_string(i) + " outside the destination changed");
}

// The data form: a dispatcher (n a size) or a Walsh-Hadamard entry (n an order).
void dataEntry(const Export& e, Input& in)
{
    const bool wht = e.form == Form::WhtEntry;
    const int n = wht ? sizeFrom(in.byte()) % 16 : sizeFrom(in.byte());
    const int flag = kFlags[in.byte() % std::size(kFlags)];
    const std::uint8_t shape = in.byte();
    const std::size_t srcMis = (shape & 3) * 4, dstMis = ((shape >> 2) & 3) * 4;
    const int overlap = wht ? (shape >> 4) & 1 : (shape >> 4) % 3;  // separate, same, partial
    const bool withBuffer = shape & 0x80;
    const bool sizeOk = wht ? n >= 1 && n <= 13 : n >= 2 && n <= 64;
    const bool flagOk = flag == 1 || flag == 2 || flag == 4 || flag == 8;
    const int shown = sizeOk ? n : wht ? 1 : 2;
    const std::size_t eb = e.element_bytes, inBytes = e.source_components(shown) * eb,
                      outBytes = e.destination_components(shown) * eb, span = std::max(inBytes, outBytes);
    const std::string what = e.name + " n " + std::to_string(n) + " flag " + std::to_string(flag) + " shape " +
                             std::to_string(shape);

    Arena mem(2 * kGuard + 2 * span + 64);
    unsigned char* src = mem.at(kGuard + srcMis);
    unsigned char* dst = overlap == 0   ? mem.at(kGuard + span + 32 + dstMis)
                         : overlap == 1 ? src
                                        : src + (in.byte() % (span / eb + 1)) * eb;
    std::vector<unsigned char> x(inBytes);
    for (std::size_t i = 0; i < inBytes / eb; ++i) {
        const double v = static_cast<std::int8_t>(in.byte()) / 64.0;
        if (eb == 4) {
            const float f = static_cast<float>(v);
            std::memcpy(&x[i * 4], &f, 4);
        } else {
            std::memcpy(&x[i * 8], &v, 8);
        }
    }
    std::memcpy(src, x.data(), inBytes);
    int workBytes = 0;
    if (wht && sizeOk)
        (eb == 4 ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(n, &workBytes);
    std::vector<unsigned char> work(static_cast<std::size_t>(workBytes) + 16);
    void* buffer = withBuffer && workBytes ? work.data() + (16 - reinterpret_cast<std::uintptr_t>(work.data()) % 16) % 16 : nullptr;

    const Arena before = mem;
    Args a{src, dst, n, flag, buffer};
    const vtxStatus status = e(a);
    const vtxStatus want = !sizeOk ? vtxStatusSizeError : !flagOk ? vtxStatusFlagError : vtxStatusOk;
    if (status != want)
        fail(what + ": status " + std::to_string(status) + ", expected " + std::to_string(want));
    if (status != vtxStatusOk) {
        checkUntouched(before, mem, nullptr, 0, what);
        return;
    }
    checkUntouched(before, mem, dst, outBytes, what);

    // The same call on separate aligned buffers, the source as it was.
    auto* refSrc = static_cast<unsigned char*>(std::aligned_alloc(16, (inBytes + 15) / 16 * 16));
    auto* refDst = static_cast<unsigned char*>(std::aligned_alloc(16, (outBytes + 15) / 16 * 16));
    std::memcpy(refSrc, x.data(), inBytes);
    Args r{refSrc, refDst, n, flag, nullptr};
    if (e(r) != vtxStatusOk || std::memcmp(refDst, dst, outBytes) != 0)
        fail(what + ": other bits than on separate aligned buffers");
    std::free(refSrc);
    std::free(refDst);
}

// The DCT-IV lifecycle at one length.
template <class T, class Spec>
void dct4(Input& in, vtxStatus (*getSize)(int, int*), vtxStatus (*init)(Spec**, int, void*),
          vtxStatus (*initAlloc)(Spec**, int), vtxStatus (*release)(Spec*), vtxStatus (*run)(const T*, T*, const Spec*))
{
    const std::uint8_t b = in.byte();
    // Powers of two, their neighbours, the extremes.
    const int n = b < 128 ? 1 << (b % 14) : b < 250 ? (1 << (b % 14)) + b % 5 - 2 : sizeFrom(b);
    const std::size_t offset = in.byte() % 64;
    int size = -1;
    if (getSize(n, &size) != vtxStatusOk) {
        Arena mem(4096);
        const Arena before = mem;
        Spec* spec = nullptr;
        if (size != -1 || init(&spec, n, mem.at(kGuard + offset)) != vtxStatusSizeError || spec ||
            initAlloc(&spec, n) != vtxStatusSizeError || spec)
            fail("DCT-IV length " + std::to_string(n) + " refused unevenly");
        checkUntouched(before, mem, nullptr, 0, "DCT-IV refused length " + std::to_string(n));
        return;
    }
    // Lengths whose 32-bit size wraps cannot fit the reported block (the
    // caller is to pass powers of two); large plans take too long here.
    if (n > (1 << 16))
        return;
    Arena mem(2 * kGuard + static_cast<std::size_t>(size) + 64);
    const Arena before = mem;
    Spec* spec = nullptr;
    unsigned char* block = mem.at(kGuard + offset);
    if (init(&spec, n, block) != vtxStatusOk)
        fail("DCT-IV Init " + std::to_string(n));
    checkUntouched(before, mem, block, static_cast<std::size_t>(size), "DCT-IV Init " + std::to_string(n));
    if (n & (n - 1))
        return;  // 2^k + 1 builds the plan of 2^k, which computes no DCT-IV of n
    std::vector<T> x(static_cast<std::size_t>(n)), y(x.size()), z(x.size());
    for (T& v : x)
        v = static_cast<T>(static_cast<std::int8_t>(in.byte()) / 64.0);
    Spec* owned = nullptr;
    if (run(x.data(), y.data(), spec) != vtxStatusOk || initAlloc(&owned, n) != vtxStatusOk ||
        run(x.data(), z.data(), owned) != vtxStatusOk || std::memcmp(y.data(), z.data(), y.size() * sizeof(T)) != 0 ||
        release(owned) != vtxStatusOk)
        fail("DCT-IV length " + std::to_string(n) + ": the plan in the block and the allocated one differ");
    const Arena afterRun = mem;
    run(x.data(), x.data(), spec);  // in place
    if (std::memcmp(x.data(), y.data(), y.size() * sizeof(T)) != 0)
        fail("DCT-IV length " + std::to_string(n) + ": in place differs");
    checkUntouched(afterRun, mem, block, static_cast<std::size_t>(size), "DCT-IV execution");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::vector<Export> entries = [] {
        std::vector<Export> out;
        for (const Export& e : vtxtest::exports())
            if (e.form == Form::Dispatcher || e.form == Form::WhtEntry)
                out.push_back(e);
        return out;
    }();
    Input in{data, size};
    const std::size_t pick = in.byte() % (entries.size() + 2);
    if (pick < entries.size())
        dataEntry(entries[pick], in);
    else if (pick == entries.size())
        dct4<float, vtxDCT4Spec_32f>(in, vtxgDCT4GetSize_32f, vtxgDCT4Init_32f, vtxgDCT4InitAlloc_32f, vtxgDCT4Free_32f,
                                     vtxgDCT4_32f);
    else
        dct4<double, vtxDCT4Spec_64f>(in, vtxgDCT4GetSize_64f, vtxgDCT4Init_64f, vtxgDCT4InitAlloc_64f,
                                      vtxgDCT4Free_64f, vtxgDCT4_64f);
    return 0;
}
