// The runtime of one instruction set (compiled once per set): transforms in
// groups of W, each group moved into the core's arrays, run, and moved back.
#include "batch/batch.hpp"
#include "batch/moves.hpp"

#include <climits>
#include <cstring>

namespace vtx::batch::VTX_BATCH_SET {
namespace {

template <class T>
using V = typename LanesOf<T>::V;

// Components p..p+W-1 of `rows` transforms (row r at x + r * stride),
// `width` of them read, as W vectors of one component each; the lanes of
// missing rows and the components past `width` are zeros.
template <class T>
VTX_LANE void columns_in(V<T> (&v)[kLanes<T>], const T* x, std::ptrdiff_t stride, int rows, int width)
{
    constexpr int W = kLanes<T>;
    if (rows == W && width == W) {
#pragma GCC unroll 16
        for (int r = 0; r < W; ++r)
            v[r] = load(x + r * stride);
    } else {
#pragma GCC unroll 16
        for (int r = 0; r < W; ++r)
            v[r] = r >= rows ? V<T>{} : width == W ? load(x + r * stride) : load_row<V<T>>(x + r * stride, width);
    }
    transpose(v);
}

// The inverse: W vectors of one component each as `width` components of
// `rows` transforms, nothing else written.
template <class T>
VTX_LANE void columns_out(V<T> (&v)[kLanes<T>], T* y, std::ptrdiff_t stride, int rows, int width)
{
    constexpr int W = kLanes<T>;
    transpose(v);
    if (rows == W && width == W) {
#pragma GCC unroll 16
        for (int r = 0; r < W; ++r)
            store(y + r * stride, v[r]);
    } else {
        for (int r = 0; r < rows; ++r) {
            if (width == W)
                store(y + r * stride, v[r]);
            else
                store_row<V<T>>(y + r * stride, v[r], width);
        }
    }
}

template <class T>
void run_groups(const Kernel<T>& k, const T* src, T* dst, std::ptrdiff_t count, std::ptrdiff_t srcStride,
                std::ptrdiff_t dstStride, T s)
{
    constexpr int W = kLanes<T>;
    const Core<T> core = k.core[VTX_BATCH_ISA];
    // The core's arrays, with room for a last block of components that
    // reaches past the transform's.
    alignas(64) T in[(kMaxComponents + W) * W];
    alignas(64) T out[(kMaxComponents + W) * W];
    // The core of its own kernel leaves the components stored as +0 alone.
    if (!k.to)
        std::memset(out, 0, sizeof(T) * W * static_cast<std::size_t>(k.stores));
    // A transform of at most six components moves cheaper by gathers and
    // scatters, where the set has them and the offsets of a group's rows
    // fit their 32-bit indices: one vector of one component of the group at
    // once, only the components there are (past six, the transposes below
    // cost less than a gather or scatter per component).  Else blocks of W
    // components of W transforms are transposed.
    constexpr int kFewComponents = 6;
    const bool gathers = kGathers && k.loads <= kFewComponents && srcStride <= INT_MAX / W;
    const bool scatters = kScatters && k.stores <= kFewComponents && dstStride <= INT_MAX / W;
    [[maybe_unused]] const Offsets in_offsets = offsets_of(gathers ? srcStride : 0);
    [[maybe_unused]] const Offsets out_offsets = offsets_of(scatters ? dstStride : 0);
    for (std::ptrdiff_t first = 0; first < count; first += W) {
        // A last group of fewer than W transforms: the lanes of the missing
        // ones hold zeros and are never stored.
        const int rows = count - first < W ? static_cast<int>(count - first) : W;
        const T* x = src + first * srcStride;
        T* y = dst + first * dstStride;
        // The whole group is read before any of it is written, so a
        // transform may be computed in place.
        if constexpr (kGathers) {
            if (gathers)
                for (int p = 0; p < k.loads; ++p)
                    if (const int at = k.from ? k.from[p] : p; at >= 0)
                        store(in + at * W, gather(x + p, in_offsets, rows));
        }
        if (!gathers) {
            for (int p = 0; p < k.loads; p += W) {
                const int width = k.loads - p < W ? k.loads - p : W;
                V<T> v[W];
                columns_in<T>(v, x + p, srcStride, rows, width);
                if (!k.from) {
#pragma GCC unroll 16
                    for (int c = 0; c < W; ++c)
                        store(in + (p + c) * W, v[c]);
                } else {
                    for (int c = 0; c < width; ++c)
                        if (const int at = k.from[p + c]; at >= 0)
                            store(in + at * W, v[c]);
                }
            }
        }
        core(in, out, s);
        if constexpr (kScatters) {
            if (scatters)
                for (int p = 0; p < k.stores; ++p) {
                    const int at = k.to ? k.to[p] : p;
                    scatter(y + p, out_offsets, rows, at >= 0 ? load(out + at * W) : V<T>{});
                }
        }
        for (int p = 0; p < (scatters ? 0 : k.stores); p += W) {
            const int width = k.stores - p < W ? k.stores - p : W;
            V<T> v[W];
            if (!k.to) {
#pragma GCC unroll 16
                for (int c = 0; c < W; ++c)
                    v[c] = load(out + (p + c) * W);
            } else {
#pragma GCC unroll 16
                for (int c = 0; c < W; ++c) {
                    const int at = c < width ? k.to[p + c] : -1;
                    v[c] = at >= 0 ? load(out + at * W) : V<T>{};
                }
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
