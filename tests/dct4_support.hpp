// Test helpers for the DCT-IV: blocks at chosen placements and a walk of a
// built plan tree.
#pragma once

#include "dct4/nodes.hpp"
#include "frame/isa.hpp"
#include "vtxgen.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace vtxtest::dct4 {

using namespace vtx::dct4;
using namespace vtx::plan;

// Both precisions behind one interface: the public calls, the test tolerance
// of the direct lengths and the largest supported log2 N.
template <class T>
struct Api;
template <>
struct Api<float> {
    using Spec = vtxDCT4Spec_32f;
    static constexpr auto getSize = vtxgDCT4GetSize_32f;
    static constexpr auto init = vtxgDCT4Init_32f;
    static constexpr auto initAlloc = vtxgDCT4InitAlloc_32f;
    static constexpr auto release = vtxgDCT4Free_32f;
    static constexpr auto run = vtxgDCT4_32f;
    static constexpr double tolerance = 4e-7;
    static constexpr int largest = 26;
};
template <>
struct Api<double> {
    using Spec = vtxDCT4Spec_64f;
    static constexpr auto getSize = vtxgDCT4GetSize_64f;
    static constexpr auto init = vtxgDCT4Init_64f;
    static constexpr auto initAlloc = vtxgDCT4InitAlloc_64f;
    static constexpr auto release = vtxgDCT4Free_64f;
    static constexpr auto run = vtxgDCT4_64f;
    static constexpr double tolerance = 8e-16;
    static constexpr int largest = 25;
};

// The instruction sets whose DCT-IV stages this build has and this processor
// runs, SSE2 (the reference) first.
inline std::vector<vtx::Isa> runnableSets()
{
    std::vector<vtx::Isa> sets{vtx::Isa::sse2};
#if defined(__x86_64__)
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx2"))
        sets.push_back(vtx::Isa::avx2);
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl"))
        sets.push_back(vtx::Isa::avx512);
#endif
    return sets;
}

inline const char* setName(vtx::Isa set)
{
    return set == vtx::Isa::sse2 ? "sse2" : set == vtx::Isa::avx2 ? "avx2" : "avx512";
}

// A block of `size` bytes whose address is `offset` modulo 32.
class PlacedBlock {
public:
    PlacedBlock(std::size_t size, std::size_t offset)
        : raw_(static_cast<unsigned char*>(std::aligned_alloc(32, (size + offset + 64 + 31) / 32 * 32))),
          start_(raw_ + offset), size_(size)
    {
    }
    ~PlacedBlock() { std::free(raw_); }
    PlacedBlock(const PlacedBlock&) = delete;
    PlacedBlock& operator=(const PlacedBlock&) = delete;

    unsigned char* start() const { return start_; }
    unsigned char* end() const { return start_ + size_; }
    Arena* arena() const { return reinterpret_cast<Arena*>(start_); }

private:
    unsigned char* raw_;
    unsigned char* start_;
    std::size_t size_;
};

// Every record below `object`, the object first, with its depth.
inline void walk(const Arena* arena, const EnvObject* object, int depth,
                 const std::function<void(const EnvObject*, int)>& visit)
{
    visit(object, depth);
    Ref children = 0;
    switch (object->del % kDouble) {
    case kEnv1: children = static_cast<const Env1*>(object)->children; break;
    case kEnv2: children = static_cast<const Env2*>(object)->children; break;
    case kEnv3: children = static_cast<const Env3*>(object)->children; break;
    case kEnv4: children = static_cast<const Env4*>(object)->children; break;
    case kEnv5: children = static_cast<const Env5*>(object)->children; break;
    case kEnv7: children = static_cast<const Env7*>(object)->children; break;
    case kEnv8: children = static_cast<const Env8*>(object)->children; break;
    case kEnv9: children = static_cast<const Env9*>(object)->children; break;
    default: return;
    }
    for (auto* cell = deref<EnvList>(arena, children); cell; cell = deref<EnvList>(arena, cell->next))
        if (const auto* child = deref<EnvObject>(arena, cell->value))
            walk(arena, child, depth + 1, visit);
}

}  // namespace vtxtest::dct4
