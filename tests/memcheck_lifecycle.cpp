// A driver for valgrind's memcheck: the DCT-IV's whole life at several
// lengths (GetSize, Init in a block of exactly the reported size at an odd
// address, execution out of place and in place, InitAlloc, execution,
// Free, refused lengths) and the Walsh-Hadamard kernels of every order with
// a null work buffer and with one of the reported size, all with the core
// library's own allocator.  Run under memcheck, any invalid access, use of
// an undefined value or leak fails it; alone it only checks statuses.
#include "vtxgen.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

int g_failures = 0;

void expect(bool ok, const char* what, int n)
{
    if (!ok) {
        std::fprintf(stderr, "memcheck driver: %s failed at %d\n", what, n);
        ++g_failures;
    }
}

template <class T, class Spec>
void lifecycle(vtxStatus (*getSize)(int, int*), vtxStatus (*init)(Spec**, int, void*),
               vtxStatus (*initAlloc)(Spec**, int), vtxStatus (*release)(Spec*),
               vtxStatus (*run)(const T*, T*, const Spec*))
{
    for (int n : {2, 8, 32, 64, 1024, 4096, 65536}) {
        std::vector<T> x(static_cast<std::size_t>(n)), y(x.size());
        for (int i = 0; i < n; ++i)
            x[static_cast<std::size_t>(i)] = static_cast<T>((i * 37 % 101) - 50) / T(64);
        int size = 0;
        expect(getSize(n, &size) == vtxStatusOk, "GetSize", n);
        auto* block = static_cast<unsigned char*>(std::malloc(static_cast<std::size_t>(size) + 1));
        Spec* spec = nullptr;
        expect(init(&spec, n, block + 1) == vtxStatusOk, "Init", n);
        expect(run(x.data(), y.data(), spec) == vtxStatusOk, "execution", n);
        expect(run(y.data(), y.data(), spec) == vtxStatusOk, "execution in place", n);
        std::free(block);
        Spec* owned = nullptr;
        expect(initAlloc(&owned, n) == vtxStatusOk, "InitAlloc", n);
        expect(run(x.data(), y.data(), owned) == vtxStatusOk, "execution", n);
        expect(release(owned) == vtxStatusOk, "Free", n);
    }
    for (int n : {0, 3, 48, 96, 1000}) {
        void* block = std::malloc(256);
        Spec* spec = nullptr;
        expect(init(&spec, n, block) == vtxStatusSizeError && !spec, "refusal by Init", n);
        std::free(block);
        expect(initAlloc(&spec, n) == vtxStatusSizeError && !spec, "refusal by InitAlloc", n);
    }
}

template <class T>
void walshHadamard(vtxStatus (*entry)(const T*, T*, int, int, void*), vtxStatus (*bufferSize)(int, int*))
{
    for (int order = 1; order <= 13; ++order) {
        std::vector<T> x(std::size_t{1} << order, T(0.5)), y(x.size());
        int bytes = 0;
        expect(bufferSize(order, &bytes) == vtxStatusOk, "GetBufferSize", order);
        expect(entry(x.data(), y.data(), order, vtxScaleNone, nullptr) == vtxStatusOk, "WHT, null buffer", order);
        void* buffer = bytes ? std::aligned_alloc(16, static_cast<std::size_t>(bytes + 15) / 16 * 16) : nullptr;
        expect(entry(x.data(), y.data(), order, vtxScaleNone, buffer) == vtxStatusOk, "WHT, own buffer", order);
        std::free(buffer);
    }
}

}  // namespace

int main()
{
    lifecycle<float, vtxDCT4Spec_32f>(vtxgDCT4GetSize_32f, vtxgDCT4Init_32f, vtxgDCT4InitAlloc_32f, vtxgDCT4Free_32f,
                                      vtxgDCT4_32f);
    lifecycle<double, vtxDCT4Spec_64f>(vtxgDCT4GetSize_64f, vtxgDCT4Init_64f, vtxgDCT4InitAlloc_64f, vtxgDCT4Free_64f,
                                       vtxgDCT4_64f);
    walshHadamard<float>(vtxgWHT_32f, vtxgWHTGetBufferSize_32f);
    walshHadamard<double>(vtxgWHT_64f, vtxgWHTGetBufferSize_64f);
    std::printf("memcheck driver: %d failures\n", g_failures);
    return g_failures ? 1 : 0;
}
