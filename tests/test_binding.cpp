// The library binds its own functions when it is linked: with a library
// that exports some of the same kernel names loaded first (interposer.c),
// the dispatchers and the Walsh-Hadamard entry still run this library's
// kernels, while a name looked up from the executable finds the impostor.
#include "exports.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <cstring>

extern "C" int vtxInterposedCalls;

namespace {

using vtxtest::Args;
using vtxtest::Export;

TEST(Binding, GeneralEntriesRunTheLibrarysOwnKernels)
{
    struct Row {
        const char* entry;
        const char* kernel;
        int n;
    };
    const Row rows[] = {
        {"vtxgDFTFwd_CToC_32fc", "vtxgDFTFwd_CToC_2_32fc", 2},      {"vtxgDFTInv_CToC_32fc", "vtxgDFTInv_CToC_47_32fc", 47},
        {"vtxgDFTFwd_CToC_64fc", "vtxgDFTFwd_CToC_64_64fc", 64},    {"vtxgDFTFwd_RToCCS_32f", "vtxgDFTFwd_RToCCS_8_32f", 8},
        {"vtxgDFTFwd_RToPerm_64f", "vtxgDFTFwd_RToPerm_59_64f", 59}, {"vtxgWHT_32f", "vtxgWHT_3_32f", 3},
    };
    const auto find = [](const std::string& name) {
        for (const Export& e : vtxtest::exports())
            if (e.name == name)
                return e;
        throw std::runtime_error(name + " is not exported");
    };
    for (const Row& row : rows) {
        const Export entry = find(row.entry), own = find(row.kernel);
        // The impostor is what the executable's own lookup finds.
        Export impostor = own;
        impostor.fn = dlsym(RTLD_DEFAULT, row.kernel);
        ASSERT_NE(impostor.fn, own.fn) << row.kernel << ": the impostor library is not loaded first";

        const std::size_t in = entry.source_components(row.n) * entry.element_bytes;
        const std::size_t out = entry.destination_components(row.n) * entry.element_bytes;
        vtxtest::Buffer src(in), viaEntry(out), viaKernel(out);
        src.put(0, vtxtest::fixed_input(static_cast<int>(in / entry.element_bytes), 3, entry.element_bytes == 4),
                entry.element_bytes == 4);
        const int calls = vtxInterposedCalls;
        Args a{src.at(0), viaEntry.at(0), row.n, vtxScaleNone};
        ASSERT_EQ(entry(a), vtxStatusOk) << row.entry << " at " << row.n << " ran a kernel of another library";
        a.dst = viaKernel.at(0);
        ASSERT_EQ(own(a), vtxStatusOk) << row.kernel;
        EXPECT_EQ(vtxInterposedCalls, calls) << row.kernel;
        EXPECT_EQ(std::memcmp(viaEntry.at(0), viaKernel.at(0), out), 0) << row.entry << " at " << row.n;
    }
}

}  // namespace
