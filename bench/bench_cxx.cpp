// The C++ interface against the C call it wraps, side by side in one run:
//   cxx/<call>/c     the C function
//   cxx/<call>/cxx   the same transform through vtxgen.hpp
// Same input, same buffers, same flag; the two times should agree to noise.
#include "vtxgen.hpp"

#include <benchmark/benchmark.h>

#include <complex>
#include <cstdint>
#include <vector>

namespace {

// Runs `call` on buffers of `n` elements of E (16-byte aligned vectors).
template <class E, class Call>
void run(benchmark::State& state, int n, Call call)
{
    std::vector<E> x(static_cast<std::size_t>(n) + 4), y(static_cast<std::size_t>(n) + 4);
    for (int i = 0; i < n; ++i)
        x[static_cast<std::size_t>(i)] = E(static_cast<float>((i * 7) % 13) / 13.0f - 0.5f);
    for (auto _ : state) {
        benchmark::DoNotOptimize(call(x.data(), y.data()));
        benchmark::ClobberMemory();
    }
}

using C32 = std::complex<float>;
using C64 = std::complex<double>;
auto* c32(C32* p) { return reinterpret_cast<vtx32fc*>(p); }
auto* c64(C64* p) { return reinterpret_cast<vtx64fc*>(p); }

void dft16_c(benchmark::State& s) { run<C32>(s, 16, [](C32* x, C32* y) { return vtxgDFTFwd_CToC_16_32fc(c32(x), c32(y), vtxScaleNone); }); }
void dft16_cxx(benchmark::State& s) { run<C32>(s, 16, [](C32* x, C32* y) { return vtx::dft<16>(x, y); }); }
void dft60_c(benchmark::State& s) { run<C64>(s, 60, [](C64* x, C64* y) { return vtxgDFTInv_CToC_60_64fc(c64(x), c64(y), vtxScaleInverse); }); }
void dft60_cxx(benchmark::State& s) { run<C64>(s, 60, [](C64* x, C64* y) { return vtx::inverse_dft<60>(x, y, vtx::scale::inverse); }); }
void any7_c(benchmark::State& s) { run<C32>(s, 7, [](C32* x, C32* y) { return vtxgDFTFwd_CToC_32fc(c32(x), c32(y), 7, vtxScaleNone); }); }
void any7_cxx(benchmark::State& s) { run<C32>(s, 7, [](C32* x, C32* y) { return vtx::dft(x, y, 7); }); }
void real32_c(benchmark::State& s) { run<double>(s, 34, [](double* x, double* y) { return vtxgDFTFwd_RToCCS_32_64f(x, y, vtxScaleNone); }); }
void real32_cxx(benchmark::State& s) { run<double>(s, 34, [](double* x, double* y) { return vtx::real_forward<32, vtx::ccs>(x, y); }); }
void hartley8_c(benchmark::State& s) { run<float>(s, 8, [](float* x, float* y) { return vtxgHartley_8_32f(x, y, vtxScaleNone); }); }
void hartley8_cxx(benchmark::State& s) { run<float>(s, 8, [](float* x, float* y) { return vtx::hartley<8>(x, y); }); }
void wht10_c(benchmark::State& s)
{
    int bytes = 0;
    vtxgWHTGetBufferSize_32f(10, &bytes);
    std::vector<unsigned char> work(static_cast<std::size_t>(bytes) + 16);
    void* buffer = work.data() + (16 - reinterpret_cast<std::uintptr_t>(work.data()) % 16) % 16;
    run<float>(s, 1024, [buffer](float* x, float* y) { return vtxgWHT_10_32f(x, y, vtxScaleNone, buffer); });
}
void wht10_cxx(benchmark::State& s)
{
    const vtx::wht<float> w(10);
    run<float>(s, 1024, [&w](float* x, float* y) { return w(x, y); });
}
void dct4_c(benchmark::State& s)
{
    vtxDCT4Spec_64f* spec = nullptr;
    vtxgDCT4InitAlloc_64f(&spec, 256);
    run<double>(s, 256, [spec](double* x, double* y) { return vtxgDCT4_64f(x, y, spec); });
    vtxgDCT4Free_64f(spec);
}
void dct4_cxx(benchmark::State& s)
{
    const vtx::dct4_plan<double> plan(256);
    run<double>(s, 256, [&plan](double* x, double* y) { return plan(x, y); });
}

}  // namespace

BENCHMARK(dft16_c)->Name("cxx/dft<16>/32fc/c");
BENCHMARK(dft16_cxx)->Name("cxx/dft<16>/32fc/cxx");
BENCHMARK(dft60_c)->Name("cxx/inverse_dft<60>/64fc/c");
BENCHMARK(dft60_cxx)->Name("cxx/inverse_dft<60>/64fc/cxx");
BENCHMARK(any7_c)->Name("cxx/dft(n=7)/32fc/c");
BENCHMARK(any7_cxx)->Name("cxx/dft(n=7)/32fc/cxx");
BENCHMARK(real32_c)->Name("cxx/real_forward<32,ccs>/64f/c");
BENCHMARK(real32_cxx)->Name("cxx/real_forward<32,ccs>/64f/cxx");
BENCHMARK(hartley8_c)->Name("cxx/hartley<8>/32f/c");
BENCHMARK(hartley8_cxx)->Name("cxx/hartley<8>/32f/cxx");
BENCHMARK(wht10_c)->Name("cxx/wht(10)/32f/c");
BENCHMARK(wht10_cxx)->Name("cxx/wht(10)/32f/cxx");
BENCHMARK(dct4_c)->Name("cxx/dct4_plan(256)/64f/c");
BENCHMARK(dct4_cxx)->Name("cxx/dct4_plan(256)/64f/cxx");

BENCHMARK_MAIN();
