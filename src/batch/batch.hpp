// Batches: many transforms of one size per call, one transform per vector
// lane.
//
// A generated core runs a kernel's arithmetic on W transforms at once: it
// reads an array of vectors, vector i holding component i of each of the W
// transforms, and writes such an array, both indexed as the memory of one of
// the kernels it serves.  The runtime (groups.cpp) moves the
// components of W transforms into those arrays and back, transposing blocks
// of W components of W transforms in registers; a last group of fewer than W
// transforms runs through the same core, its unused lanes zeros that are never
// stored.  The tables (generated) say, per family and size, which components
// each transform has, where each lies in the core's arrays, the scale
// constants and the core of every instruction set.
#pragma once

#include "frame/frame.hpp"
#include "frame/isa.hpp"

#include <cstddef>
#include <cstdint>

namespace vtx::batch {

// Instruction sets with cores, in the order of vtx::Isa.
constexpr int kSets = 3;

template <class T>
using Core = void (*)(const T* in, T* out, T s);

// One size of a family.
template <class T>
struct Kernel {
    std::int16_t loads;               // components read from each source: 0..loads-1
    std::int16_t stores;              // components written to each destination: 0..stores-1
    std::int16_t source_length;       // elements of one input and one output (complex
    std::int16_t destination_length;  // elements for the complex families): the least strides
    // Where component p of a transform lies in the core's arrays, -1: read
    // by no operation (from), stored as +0 (to).  Null: at p itself (the
    // core's own kernel, whose +0 components the core never writes).
    const std::int16_t* from;
    const std::int16_t* to;
    T inv_n, inv_sqrt_n;              // the scale constants of the single kernel
    Core<T> core[kSets];              // by instruction set; null where the build has none
};

template <class T>
struct Family {
    Scaling scaling;
    Kernel<T> sizes[63];  // n = 2..64
};

// The largest component count of a transform (a complex one of 64 points).
constexpr int kMaxComponents = 128;

// Runs `count` transforms, the first components of transform t at
// src + t * srcStride and dst + t * dstStride (in components).
template <class T>
using Run = void (*)(const Kernel<T>& k, const T* src, T* dst, std::ptrdiff_t count, std::ptrdiff_t srcStride,
                     std::ptrdiff_t dstStride, T s);

// Each instruction set's runtime, compiled with that set's flags.
#define VTX_BATCH_RUNTIME(set)                                                                                     \
    namespace set {                                                                                                \
    void run(const Kernel<float>&, const float*, float*, std::ptrdiff_t, std::ptrdiff_t, std::ptrdiff_t, float);   \
    void run(const Kernel<double>&, const double*, double*, std::ptrdiff_t, std::ptrdiff_t, std::ptrdiff_t, double); \
    }
VTX_BATCH_RUNTIME(sse2)
// The AVX2 and AVX-512 sets: in x86-64 builds unless the build leaves them
// out (VTX_BATCH_WIDE=0).
#if !defined(VTX_BATCH_WIDE)
#if defined(__x86_64__)
#define VTX_BATCH_WIDE 1
#else
#define VTX_BATCH_WIDE 0
#endif
#endif
#if VTX_BATCH_WIDE
VTX_BATCH_RUNTIME(avx2)
VTX_BATCH_RUNTIME(avx512)
// The generated tables declare each core in every set and name them in order.
#define VTX_BATCH_DECLARE(T, core) \
    namespace sse2 { void core(const T*, T*, T); } \
    namespace avx2 { void core(const T*, T*, T); } \
    namespace avx512 { void core(const T*, T*, T); }
#define VTX_BATCH_CORES(core) {sse2::core, avx2::core, avx512::core}
#else
#define VTX_BATCH_DECLARE(T, core) \
    namespace sse2 { void core(const T*, T*, T); }
#define VTX_BATCH_CORES(core) {sse2::core, nullptr, nullptr}
#endif
#undef VTX_BATCH_RUNTIME

// The eighteen families: the name of the single kernels' general entry
// without the prefix, as its transform and its element type's suffix, and
// the element type.
#define VTX_BATCH_FAMILIES(X)                                                                                 \
    X(DFTFwd_CToC, 32fc, vtx32fc) X(DFTFwd_CToC, 64fc, vtx64fc) X(DFTInv_CToC, 32fc, vtx32fc)                 \
    X(DFTInv_CToC, 64fc, vtx64fc) X(DFTFwd_RToCCS, 32f, vtx32f) X(DFTFwd_RToCCS, 64f, vtx64f)                 \
    X(DFTFwd_RToPack, 32f, vtx32f) X(DFTFwd_RToPack, 64f, vtx64f) X(DFTFwd_RToPerm, 32f, vtx32f)              \
    X(DFTFwd_RToPerm, 64f, vtx64f) X(DFTInv_CCSToR, 32f, vtx32f) X(DFTInv_CCSToR, 64f, vtx64f)                \
    X(DFTInv_PackToR, 32f, vtx32f) X(DFTInv_PackToR, 64f, vtx64f) X(DFTInv_PermToR, 32f, vtx32f)              \
    X(DFTInv_PermToR, 64f, vtx64f) X(Hartley, 32f, vtx32f) X(Hartley, 64f, vtx64f)

template <class E> struct RealOf;
template <> struct RealOf<vtx32f> { using type = float; };
template <> struct RealOf<vtx64f> { using type = double; };
template <> struct RealOf<vtx32fc> { using type = float; };
template <> struct RealOf<vtx64fc> { using type = double; };

#define VTX_BATCH_TABLE(transform, suffix, E) extern const Family<RealOf<E>::type> transform##_##suffix;
VTX_BATCH_FAMILIES(VTX_BATCH_TABLE)
#undef VTX_BATCH_TABLE

}  // namespace vtx::batch
