// The runtime of one instruction set (compiled once per set): transforms in
// groups of W, each group moved into the core's arrays, run, and moved back.
#include "batch/batch.hpp"
#include "batch/lanes.hpp"

namespace vtx::batch::VTX_BATCH_SET {
namespace {

template <class T>
void run_groups(const Kernel<T>& k, const T* src, T* dst, std::ptrdiff_t count, std::ptrdiff_t srcStride,
                std::ptrdiff_t dstStride, T s)
{
    using V = typename LanesOf<T>::V;
    constexpr int W = kLanes<T>;
    const Core<T> core = k.core[VTX_BATCH_ISA];
    alignas(64) T in[kMaxComponents * W];
    alignas(64) T out[kMaxComponents * W];
    for (std::ptrdiff_t first = 0; first < count; first += W) {
        // A last group of fewer than W transforms: the lanes of the missing
        // ones hold zeros and are never stored.
        const int rows = count - first < W ? static_cast<int>(count - first) : W;
        const T* x = src + first * srcStride;
        T* y = dst + first * dstStride;
        // The whole group is read before any of it is written, so a
        // transform may be computed in place.
        for (int p = 0; p < k.loads; p += W) {
            const int width = k.loads - p < W ? k.loads - p : W;
            V v[W];
            for (int r = 0; r < W; ++r)
                v[r] = r >= rows ? V{} : width == W ? load(x + r * srcStride + p) : load_row<V>(x + r * srcStride + p, width);
            transpose(v);
            for (int c = 0; c < width; ++c)
                if (const int at = k.from[p + c]; at >= 0)
                    store(in + at * W, v[c]);
        }
        core(in, out, s);
        for (int p = 0; p < k.stores; p += W) {
            const int width = k.stores - p < W ? k.stores - p : W;
            V v[W];
            for (int c = 0; c < W; ++c) {
                const int at = c < width ? k.to[p + c] : -1;
                v[c] = at >= 0 ? load(out + at * W) : V{};
            }
            transpose(v);
            for (int r = 0; r < rows; ++r) {
                if (width == W)
                    store(y + r * dstStride + p, v[r]);
                else
                    store_row<V>(y + r * dstStride + p, v[r], width);
            }
        }
    }
}

}  // namespace

void run(const Kernel<float>& k, const float* src, float* dst, std::ptrdiff_t count, std::ptrdiff_t srcStride,
         std::ptrdiff_t dstStride, float s)
{
    run_groups(k, src, dst, count, srcStride, dstStride, s);
}

void run(const Kernel<double>& k, const double* src, double* dst, std::ptrdiff_t count, std::ptrdiff_t srcStride,
         std::ptrdiff_t dstStride, double s)
{
    run_groups(k, src, dst, count, srcStride, dstStride, s);
}

}  // namespace vtx::batch::VTX_BATCH_SET
