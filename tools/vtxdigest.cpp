// vtxdigest: one line per kernel, flag and access path (per batch entry,
// size and flag) with a hash of the output on fixed inputs.  Two builds
// (x86-64 and i386, say) that print the same lines compute the same bits.
#include "exports.hpp"
#include "support.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace {

std::uint64_t fnv1a(const unsigned char* p, std::size_t n, std::uint64_t h = 0xcbf29ce484222325ull)
{
    for (std::size_t i = 0; i < n; ++i)
        h = (h ^ p[i]) * 0x100000001b3ull;
    return h;
}

int failures = 0;

// The lines of one kernel: `run(src, dst, flag, seed)` makes one call on
// buffers of `bytes`, the data at the same misalignment in both: none, and
// `step` bytes (the unaligned path, or one element for scalar kernels).
template <class Run>
void digest(const std::string& name, std::size_t bytes, Run run, std::size_t step = 4)
{
    for (int flag : {vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric, vtxScaleNone})
        for (std::size_t misalign : {std::size_t{0}, step}) {
            std::uint64_t h = 0xcbf29ce484222325ull;
            for (std::uint32_t seed = 0; seed < 4; ++seed) {
                vtxtest::Buffer src(bytes), dst(bytes);
                if (run(src, dst, misalign, flag, seed) != vtxStatusOk)
                    ++failures;
                h = fnv1a(dst.at(misalign), bytes, h);
            }
            std::printf("%-30s flag %d offset %zu %016llx\n", name.c_str(), flag, misalign,
                        static_cast<unsigned long long>(h));
        }
}

// The DCT-IV of every length from 2 to 2^20 of one precision on the same
// inputs, the arrays at an element past a 16-byte boundary on odd seeds.
template <class T, class Spec>
int digestDct4(const char* name, vtxStatus (*getSize)(int, int*), vtxStatus (*init)(Spec**, int, void*),
               vtxStatus (*run)(const T*, T*, const Spec*))
{
    int failures = 0;
    for (int n = 2; n <= 1 << 20; n *= 2) {
        int size = 0;
        failures += getSize(n, &size) != vtxStatusOk;
        std::vector<unsigned char> block(size);
        Spec* spec = nullptr;
        failures += init(&spec, n, block.data()) != vtxStatusOk;
        std::uint64_t h = 0xcbf29ce484222325ull;
        for (std::uint32_t seed = 0; seed < 4; ++seed) {
            const std::vector<double> input = vtxtest::fixed_input(n, seed, sizeof(T) == 4);
            const std::size_t at = seed % 2;
            std::vector<T> x(n + 1), y(n + 1);
            std::copy(input.begin(), input.end(), x.begin() + at);
            failures += run(x.data() + at, y.data() + at, spec) != vtxStatusOk;
            h = fnv1a(reinterpret_cast<const unsigned char*>(y.data() + at), n * sizeof(T), h);
        }
        std::printf("%-30s N %d %016llx\n", name, n, static_cast<unsigned long long>(h));
    }
    return failures;
}

// The batch entries at every size and flag: 37 transforms (two groups of
// the widest vectors and more) with a gap of one element after each, the
// arrays one component past a 16-byte boundary; the hash covers the gaps.
void digestBatches()
{
    for (const vtxtest::Export& e : vtxtest::exports()) {
        if (e.form != vtxtest::Form::Batch)
            continue;
        const int per = e.from == "C" ? 2 : 1, count = 37;
        for (int n = 2; n <= 64; ++n)
            for (int flag : {vtxScaleForward, vtxScaleInverse, vtxScaleSymmetric, vtxScaleNone}) {
                const int in = static_cast<int>(e.source_components(n)) + per, out = static_cast<int>(e.destination_components(n)) + per;
                const bool single = e.element_bytes == 4;
                vtxtest::Buffer src(std::size_t(in) * count * e.element_bytes), dst(std::size_t(out) * count * e.element_bytes);
                src.put(std::size_t(e.element_bytes), vtxtest::fixed_input(in * count - per, static_cast<std::uint32_t>(n), single), single);
                vtxtest::Args a{src.at(std::size_t(e.element_bytes)), dst.at(std::size_t(e.element_bytes)), n, flag};
                a.count = count;
                a.srcStride = in / per;
                a.dstStride = out / per;
                failures += e(a) != vtxStatusOk;
                const std::uint64_t h = fnv1a(dst.at(std::size_t(e.element_bytes)), dst.size() - e.element_bytes);
                std::printf("%-30s N %d flag %d %016llx\n", e.name.c_str(), n, flag, static_cast<unsigned long long>(h));
            }
    }
}

}  // namespace

int main()
{
    using vtxtest::Buffer;
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels())
        digest(k.name(), static_cast<std::size_t>(k.components() * k.component_bytes()),
               [&](Buffer& src, Buffer& dst, std::size_t at, int flag, std::uint32_t seed) {
                   src.put(at, vtxtest::fixed_input(k.components(), seed, k.single()), k.single());
                   return k(src.at(at), dst.at(at), flag);
               });
    // Real and Hartley kernels: the longer of source and destination, at
    // offsets 0 and one element.
    for (const auto* family : {&vtxtest::real_kernels(vtxgen::Direction::Forward),
                               &vtxtest::real_kernels(vtxgen::Direction::Inverse), &vtxtest::hartley_kernels()})
        for (const vtxtest::RealKernel& k : *family)
            digest(
                k.name(),
                static_cast<std::size_t>(std::max(k.source_elements(), k.destination_elements()) * k.element_bytes()),
                [&](Buffer& src, Buffer& dst, std::size_t at, int flag, std::uint32_t seed) {
                    src.put(at, vtxtest::fixed_input(k.source_elements(), seed, k.single()), k.single());
                    return k(src.at(at), dst.at(at), flag);
                },
                static_cast<std::size_t>(k.element_bytes()));
    // Walsh-Hadamard kernels: odd seeds with the caller's work buffer, even
    // ones with the kernel's own.
    for (const vtxtest::WhtKernel& k : vtxtest::wht_kernels())
        digest(k.name(), k.bytes(), [&](Buffer& src, Buffer& dst, std::size_t at, int flag, std::uint32_t seed) {
            Buffer work(static_cast<std::size_t>(k.model.buffer_bytes()));
            src.put(at, vtxtest::fixed_input(k.length(), seed, k.single()), k.single());
            return k(src.at(at), dst.at(at), flag, seed % 2 ? work.at(0) : nullptr);
        });
    digestBatches();
    failures += digestDct4("vtxgDCT4_32f", vtxgDCT4GetSize_32f, vtxgDCT4Init_32f, vtxgDCT4_32f);
    failures += digestDct4("vtxgDCT4_64f", vtxgDCT4GetSize_64f, vtxgDCT4Init_64f, vtxgDCT4_64f);
    return failures ? 1 : 0;
}
