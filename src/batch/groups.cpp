// The runtime of one instruction set (compiled once per set): transforms in
// groups of W, each group moved into the core's arrays, run, and moved back.
#include "batch/batch.hpp"
#include "batch/moves.hpp"

#include <cstring>

namespace vtx::batch::VTX_BATCH_SET {
namespace {

template <class T>
void run_groups(const Kernel<T>& k, const T* src, T* dst, std::ptrdiff_t count, std::ptrdiff_t srcStride,
                std::ptrdiff_t dstStride, T s)
{
    using V = typename LanesOf<T>::V;
    constexpr int W = kLanes<T>, P = kPiece<T>;
    const Core<T> core = k.core[VTX_BATCH_ISA];
    // The core's arrays, with room for a last piece that reaches past the
    // transform's components.
    alignas(64) T in[(kMaxComponents + P) * W];
    alignas(64) T out[(kMaxComponents + P) * W];
    // The core of its own kernel leaves the components stored as +0 alone.
    if (!k.to)
        std::memset(out, 0, sizeof(T) * W * static_cast<std::size_t>(k.stores));
    for (std::ptrdiff_t first = 0; first < count; first += W) {
        // A last group of fewer than W transforms: the lanes of the missing
        // ones hold zeros and are never stored.
        const int rows = count - first < W ? static_cast<int>(count - first) : W;
        const T* x = src + first * srcStride;
        T* y = dst + first * dstStride;
        // The whole group is read before any of it is written, so a
        // transform may be computed in place.
        // Whole blocks of W components, then pieces of P.
        int p = 0;
        for (; p + W <= k.loads; p += W) {
            V v[W];
            block_in<T>(v, x + p, srcStride, rows);
#pragma GCC unroll 16
            for (int c = 0; c < W; ++c)
                if (const int at = k.from ? k.from[p + c] : p + c; at >= 0)
                    store(in + at * W, v[c]);
        }
        for (; p < k.loads; p += P) {
            const int width = k.loads - p < P ? k.loads - p : P;
            V v[P];
            columns_in<T>(v, x + p, srcStride, rows, width);
#pragma GCC unroll 4
            for (int c = 0; c < P; ++c) {
                const int at = !k.from ? p + c : c < width ? k.from[p + c] : -1;
                if (at >= 0)
                    store(in + at * W, v[c]);
            }
        }
        core(in, out, s);
        for (p = 0; p + W <= k.stores; p += W) {
            V v[W];
#pragma GCC unroll 16
            for (int c = 0; c < W; ++c) {
                const int at = k.to ? k.to[p + c] : p + c;
                v[c] = at >= 0 ? load(out + at * W) : V{};
            }
            block_out<T>(v, y + p, dstStride, rows);
        }
        for (; p < k.stores; p += P) {
            const int width = k.stores - p < P ? k.stores - p : P;
            V v[P];
#pragma GCC unroll 4
            for (int c = 0; c < P; ++c) {
                const int at = !k.to ? p + c : c < width ? k.to[p + c] : -1;
                v[c] = at >= 0 ? load(out + at * W) : V{};
            }
            columns_out<T>(v, y + p, dstStride, rows, width);
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
